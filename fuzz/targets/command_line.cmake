orvan_fuzz(command_line LINKS orvan_site)
