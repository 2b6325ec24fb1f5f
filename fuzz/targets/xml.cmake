orvan_fuzz(xml LINKS orvan_site orvan_test_support)
