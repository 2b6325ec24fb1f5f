# What Windows keeps in its programs and libraries beside their code.

set(orvan_resource_folder ${PROJECT_SOURCE_DIR}/cmake/windows)

# What is made on the way to them; from the data's folder a site may be given any file.
set(orvan_made_resources ${PROJECT_BINARY_DIR}/resources)
file(MAKE_DIRECTORY ${orvan_made_resources})

# Writes the resource script FILE that has the version of a program or library, the project's, and
# MORE. TYPE is the system's name for what it is.
function(orvan_version_script file module_file module_type description more)
  cmake_path(GET module_file STEM module_name)
  configure_file(${orvan_resource_folder}/version.rc.in ${file} @ONLY)
endfunction()

# orvan_resource_library(NAME FILE RC DESCRIPTION text [DEPENDS ...]) : makes the library FILE of the
# resource script RC, by the target NAME. It has resources in it and nothing that runs.
function(orvan_resource_library name file script)
  cmake_parse_arguments(arg "" "DESCRIPTION" "DEPENDS" ${ARGN})
  set(compile ${CMAKE_RC_COMPILER} --codepage=65001 -O coff)
  set(object ${orvan_made_resources}/${name})
  cmake_path(GET script PARENT_PATH folder)
  cmake_path(GET file FILENAME module_file)
  orvan_version_script(${object}.version.rc ${module_file} VFT_DLL "${arg_DESCRIPTION}" "")
  add_custom_command(OUTPUT ${file}
    COMMAND ${compile} -I ${folder} -i ${script} -o ${object}.res.o
    COMMAND ${compile} -i ${object}.version.rc -o ${object}.version.o
    COMMAND ${CMAKE_C_COMPILER} -shared -nostdlib -Wl,--entry=0 -o ${file}
      ${object}.res.o ${object}.version.o
    DEPENDS ${script} ${object}.version.rc ${arg_DEPENDS}
    COMMENT "Making ${name}"
    VERBATIM)
  add_custom_target(${name} ALL DEPENDS ${file})
endfunction()

# The tool's icons, of the drawings that the window has.
set(orvan_icon_folder ${PROJECT_BINARY_DIR}/icons)
set(orvan_drawings ${PROJECT_SOURCE_DIR}/src/hosts/common/look/icons)
file(MAKE_DIRECTORY ${orvan_icon_folder})
foreach(program convert icotool rsvg-convert)
  find_program(ORVAN_${program} ${program} REQUIRED)
endforeach()
set(orvan_pictures)
foreach(name console processes process log log-current)
  set(script ${orvan_resource_folder}/draw_icon.sh)
  add_custom_command(OUTPUT ${orvan_icon_folder}/${name}.ico
    COMMAND sh ${script} ${orvan_drawings}/${name}.svg ${orvan_icon_folder}/${name}.ico
    DEPENDS ${script} ${orvan_drawings}/${name}.svg
    COMMENT "Drawing ${name}.ico"
    VERBATIM)
  list(APPEND orvan_pictures ${orvan_icon_folder}/${name}.ico)
endforeach()
foreach(size 16 32)
  set(script ${orvan_resource_folder}/draw_bitmap.sh)
  add_custom_command(OUTPUT ${orvan_icon_folder}/console-${size}.bmp
    COMMAND sh ${script} ${orvan_drawings}/console.svg ${size}
      ${orvan_icon_folder}/console-${size}.bmp
    DEPENDS ${script} ${orvan_drawings}/console.svg
    COMMENT "Drawing console-${size}.bmp"
    VERBATIM)
  list(APPEND orvan_pictures ${orvan_icon_folder}/console-${size}.bmp)
endforeach()
add_custom_target(orvan_icons DEPENDS ${orvan_pictures})

# orvan_module_resources(TARGET DESCRIPTION text [SNAP_IN]) : gives a program or a library its
# version, the project's, its icon and its manifest; with SNAP_IN also the pictures of the snap-in.
function(orvan_module_resources target)
  cmake_parse_arguments(arg "SNAP_IN" "DESCRIPTION" "" ${ARGN})
  get_target_property(type ${target} TYPE)
  get_target_property(name ${target} OUTPUT_NAME)
  if(NOT name)
    set(name ${target})
  endif()
  set(snap_in ${PROJECT_SOURCE_DIR}/src/hosts/mmc/resources)
  if(type STREQUAL EXECUTABLE)
    set(suffix .exe)
    set(kind VFT_APP)
    set(manifest_number 1)
    set(manifest program.manifest)
  else()
    set(suffix .dll)
    set(kind VFT_DLL)
    set(manifest_number 2)
    set(manifest library.manifest)
  endif()
  set(more "#include \"resource.h\"\nORVAN_TOOL_ICON ICON \"console.ico\"\n")
  string(APPEND more "${manifest_number} RT_MANIFEST \"${manifest}\"")
  if(arg_SNAP_IN)
    string(APPEND more "\n#include \"snap_in.rc\"")
  endif()
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  set(object ${CMAKE_CURRENT_BINARY_DIR}/${target}.res.o)
  orvan_version_script(${script} ${name}${suffix} ${kind} "${arg_DESCRIPTION}" "${more}")
  add_custom_command(OUTPUT ${object}
    COMMAND ${CMAKE_RC_COMPILER} --codepage=65001 -I ${snap_in} -I ${orvan_resource_folder}
      -I ${orvan_icon_folder} -i ${script} -o ${object} -O coff
    DEPENDS ${script} ${orvan_resource_folder}/${manifest} ${snap_in}/resource.h
      ${snap_in}/snap_in.rc ${orvan_pictures}
    COMMENT "Compiling the resources of ${name}${suffix}"
    VERBATIM)
  add_dependencies(${target} orvan_icons)
  target_sources(${target} PRIVATE ${object})
  set_source_files_properties(${object} PROPERTIES EXTERNAL_OBJECT ON GENERATED ON)
endfunction()
