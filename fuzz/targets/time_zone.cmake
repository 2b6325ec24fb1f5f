orvan_fuzz(time_zone LINKS orvan_site)
