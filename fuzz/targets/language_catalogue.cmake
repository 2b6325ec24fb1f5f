orvan_fuzz(language_catalogue LINKS orvan_site)
