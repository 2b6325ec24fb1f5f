# What reading a trace database takes.
add_executable(count_components count_components.cpp)
target_link_libraries(count_components PRIVATE orvan_options orvan_jet orvan_timeline)
