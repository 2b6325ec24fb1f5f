orvan_fuzz(file_pattern LINKS orvan_site)
