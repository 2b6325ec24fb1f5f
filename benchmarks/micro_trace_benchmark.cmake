# Reading and writing trace levels on a site's directory database, beside the sqlite3 program.
add_executable(micro_trace_benchmark micro_trace_benchmark.cpp)
target_link_libraries(micro_trace_benchmark PRIVATE
  orvan_traces orvan_site orvan_test_support benchmark::benchmark_main)
target_include_directories(micro_trace_benchmark PRIVATE ${PROJECT_SOURCE_DIR}/tests)
target_compile_definitions(micro_trace_benchmark PRIVATE
  ORVAN_DATABASE_SCHEMA="${PROJECT_SOURCE_DIR}/data/server/schema.sql")
