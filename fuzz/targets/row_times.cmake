orvan_fuzz(row_times LINKS orvan_timeline)
