orvan_fuzz(jet_writer LINKS orvan_jet)
