orvan_fuzz(site_paths LINKS orvan_site)
