orvan_fuzz(trace_line LINKS orvan_site)
