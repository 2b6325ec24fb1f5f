# What window_benchmark.sh measures: the console's window, and an empty one.
if(NOT TARGET orvan_desktop)
  return()
endif()
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
add_executable(console_window console_window.cpp page_through.cpp)
target_link_libraries(console_window PRIVATE orvan_desktop)
add_executable(empty_window empty_window.cpp)
target_link_libraries(empty_window PRIVATE orvan_options Qt6::Widgets)
