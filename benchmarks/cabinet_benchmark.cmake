# Makes the input of cabinet_benchmark.sh.
add_executable(cabinet_benchmark_input cabinet_benchmark_input.cpp)
target_link_libraries(cabinet_benchmark_input PRIVATE orvan_options orvan_jet)
target_compile_definitions(cabinet_benchmark_input PRIVATE
  ORVAN_TRACE_SCHEMA="${PROJECT_SOURCE_DIR}/data/trace_database.schema")
