orvan_fuzz(cabinet LINKS orvan_cabinet)
