orvan_fuzz(site_settings LINKS orvan_site)
