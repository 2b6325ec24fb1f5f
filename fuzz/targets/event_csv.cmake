orvan_fuzz(event_csv LINKS orvan_timeline)
