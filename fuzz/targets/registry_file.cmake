orvan_fuzz(registry_file LINKS orvan_site)
