orvan_fuzz(xml LINKS orvan_xml orvan_test_support)
