# What every target shares: the language, the warnings, the sanitizers, the compiler cache.

find_program(ORVAN_CCACHE ccache)
if(ORVAN_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ORVAN_CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${ORVAN_CCACHE})
endif()

add_library(orvan_options INTERFACE)
target_compile_features(orvan_options INTERFACE cxx_std_20)
target_include_directories(orvan_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(orvan_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Werror)
# When GCC 12 optimises, it takes `"text" + string` for an overlapping copy (its bug 105651), and an
# array of vectors that is given up half made for one that is read.
set(old_gcc $<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>)
target_compile_options(orvan_options INTERFACE
  $<${old_gcc}:-Wno-restrict> $<${old_gcc}:-Wno-maybe-uninitialized>)
# Where sources are compiled together, each one's own names are no header's though the compiler sees
# it included, and what it calls its variables is nothing to the next one.
set(together $<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>)
target_compile_options(orvan_options INTERFACE
  $<${together}:-Wno-shadow> $<$<AND:${together},$<CXX_COMPILER_ID:GNU>>:-Wno-subobject-linkage>)
if(WIN32)
  # The calls that take UTF-16, those of Windows 10 with them, and no macros that nobody asks for.
  target_compile_definitions(orvan_options INTERFACE
    UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)
endif()
if(ORVAN_SANITIZE)
  target_compile_options(orvan_options INTERFACE
    -fsanitize=${ORVAN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(orvan_options INTERFACE -fsanitize=${ORVAN_SANITIZE})
endif()
if(ORVAN_FUZZ)
  target_compile_options(orvan_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# compiled_together(TARGET APART a.cpp ...): with ORVAN_TOGETHER, up to eight of its sources are
# compiled as one. Headers, most of all those of GoogleMock, Qt, CLI11 and JSON, and what is made
# from their templates take longer to compile than what stands in a source. APART are the sources
# that give something a name of their own which another source has too, or a header of its a macro.
function(compiled_together target)
  cmake_parse_arguments(arg "" "" "APART" ${ARGN})
  if(NOT ORVAN_TOGETHER)
    return()
  endif()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON)
  if(arg_APART)
    set_source_files_properties(${arg_APART} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  endif()
endfunction()

# A folder of src/: orvan_folder(NAME SOURCES a.cpp b.cpp LINKS orvan_core ... PRIVATE_LINKS ...)
#
# Makes the library orvan_NAME. LINKS is the list of what the folder may know. A folder of headers
# alone has no SOURCES.
function(orvan_folder name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  if(arg_SOURCES)
    add_library(orvan_${name} STATIC ${arg_SOURCES})
    target_link_libraries(orvan_${name} PUBLIC orvan_options ${arg_LINKS} PRIVATE ${arg_PRIVATE_LINKS})
  else()
    add_library(orvan_${name} INTERFACE)
    target_link_libraries(orvan_${name} INTERFACE orvan_options ${arg_LINKS})
  endif()
endfunction()

# A test program: orvan_test(NAME SOURCES a_test.cpp ... APART a_test.cpp ... LINKS orvan_x ...)
#
# Makes NAME_test, linked with GoogleTest, GoogleMock and tests/support, and registers it. The tests
# of what knows nothing of a tool go without the fakes.
function(orvan_test name)
  cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;APART;LINKS" ${ARGN})
  add_executable(${name}_test ${arg_SOURCES})
  target_link_libraries(${name}_test PRIVATE
    orvan_options ${arg_LINKS} GTest::gmock GTest::gtest GTest::gtest_main)
  target_include_directories(${name}_test PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  if(TARGET orvan_test_support AND NOT name MATCHES "^(runtime|system|text|windows_backend)$")
    target_link_libraries(${name}_test PRIVATE orvan_test_support)
  endif()
  compiled_together(${name}_test APART ${arg_APART})
  add_test(NAME ${name} COMMAND ${name}_test)
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  if(ORVAN_SANITIZE)
    math(EXPR arg_TIMEOUT "4 * ${arg_TIMEOUT}") # a program under sanitizers is that much slower
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT})
endfunction()
