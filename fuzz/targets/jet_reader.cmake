orvan_fuzz(jet_reader LINKS orvan_jet)
