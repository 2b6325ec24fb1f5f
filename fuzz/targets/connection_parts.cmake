orvan_fuzz(connection_parts LINKS orvan_odbc)
