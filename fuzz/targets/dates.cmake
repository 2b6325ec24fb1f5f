orvan_fuzz(dates LINKS orvan_runtime)
