# The texts of the desktop's window in other languages.
#
# Qt's own CMake package for this comes with a whole set of designer tools; the two programs are all
# it takes.
find_program(ORVAN_LRELEASE NAMES lrelease lrelease-qt6 HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)
find_program(ORVAN_LUPDATE NAMES lupdate lupdate-qt6 HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)

# orvan_translations(TARGET a_de.ts ...): compiles the files into the target, below ":/translations".
# They have the texts of the folder and those of what windows share.
#
# The target TARGET_texts brings new texts of its sources into the files, to be translated there.
function(orvan_translations target)
  set(compiled)
  set(sources)
  foreach(file IN LISTS ARGN)
    cmake_path(GET file STEM name)
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/${file})
    set(output ${CMAKE_CURRENT_BINARY_DIR}/${name}.qm)
    add_custom_command(OUTPUT ${output}
      COMMAND ${ORVAN_LRELEASE} -silent ${source} -qm ${output}
      DEPENDS ${source} VERBATIM)
    list(APPEND compiled ${output})
    list(APPEND sources ${source})
  endforeach()
  qt_add_resources(${target} translations
    PREFIX /translations BASE ${CMAKE_CURRENT_BINARY_DIR} FILES ${compiled})
  add_custom_target(${target}_texts
    COMMAND ${ORVAN_LUPDATE} -silent -locations none -no-obsolete -I ${PROJECT_SOURCE_DIR}/src
      ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/src/hosts/common/filters
      ${PROJECT_SOURCE_DIR}/src/hosts/common/look -ts ${sources}
    VERBATIM)
endfunction()
