# What a site costs per log line, per registry value and per listed file.
add_executable(site_benchmark site_benchmark.cpp)
target_link_libraries(site_benchmark PRIVATE
  orvan_options orvan_site benchmark::benchmark_main)
