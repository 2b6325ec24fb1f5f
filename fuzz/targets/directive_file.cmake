orvan_fuzz(directive_file LINKS orvan_cabmaker)
