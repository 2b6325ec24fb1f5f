# Nanoseconds and allocations that a log line costs: formatted, parsed, both.
add_executable(logreader_benchmark logreader_benchmark.cpp)
target_link_libraries(logreader_benchmark PRIVATE
  orvan_options orvan_logreader orvan_test_support benchmark::benchmark_main)
target_include_directories(logreader_benchmark PRIVATE ${PROJECT_SOURCE_DIR}/tests)
