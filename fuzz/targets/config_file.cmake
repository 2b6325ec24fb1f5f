orvan_fuzz(config_file LINKS orvan_cli_config)
