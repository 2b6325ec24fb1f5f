# Windows' resource libraries, which have resources in them and nothing that runs.

# orvan_resource_library(NAME FILE RC [DEPENDS ...]) : makes the library FILE of the resource script
# RC, by the target NAME.
function(orvan_resource_library name file script)
  cmake_parse_arguments(arg "" "" "DEPENDS" ${ARGN})
  set(object ${CMAKE_CURRENT_BINARY_DIR}/${name}.res.o)
  cmake_path(GET script PARENT_PATH folder)
  add_custom_command(OUTPUT ${file}
    COMMAND ${CMAKE_RC_COMPILER} --codepage=65001 -I ${folder} -i ${script} -o ${object} -O coff
    COMMAND ${CMAKE_C_COMPILER} -shared -nostdlib -Wl,--entry=0 -o ${file} ${object}
    DEPENDS ${script} ${arg_DEPENDS}
    COMMENT "Making ${name}"
    VERBATIM)
  add_custom_target(${name} ALL DEPENDS ${file})
endfunction()
