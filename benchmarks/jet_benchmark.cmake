# The trace database's writer alone, beside a plain write of the same number of pages.
add_executable(jet_benchmark jet_benchmark.cpp)
target_link_libraries(jet_benchmark PRIVATE orvan_options orvan_jet benchmark::benchmark_main)
target_compile_definitions(jet_benchmark PRIVATE
  ORVAN_TRACE_SCHEMA="${PROJECT_SOURCE_DIR}/data/trace_database.schema")
