orvan_fuzz(time_text LINKS orvan_core)
