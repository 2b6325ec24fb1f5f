# What window_benchmark.sh measures: the windows of console and viewer, and an empty one.
if(NOT TARGET orvan_desktop)
  return()
endif()
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
add_executable(console_window console_window.cpp page_through.cpp)
target_link_libraries(console_window PRIVATE orvan_desktop)
add_executable(empty_window empty_window.cpp)
target_link_libraries(empty_window PRIVATE orvan_options Qt6::Widgets)

# And the viewer's, on a database that count_components fills.
add_executable(viewer_window viewer_window.cpp)
target_link_libraries(viewer_window PRIVATE orvan_viewer)
