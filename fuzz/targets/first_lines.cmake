orvan_fuzz(first_lines LINKS orvan_timeline)
