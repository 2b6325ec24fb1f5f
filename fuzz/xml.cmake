orvan_fuzz(xml LINKS orvan_portable orvan_test_support)
