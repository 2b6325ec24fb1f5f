orvan_fuzz(event_log LINKS orvan_site)
