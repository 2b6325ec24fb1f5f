# Fails when a text of SOURCES is not in the files of FOLDER yet, or one there is used no more.
# Takes LUPDATE, INCLUDES, SOURCES, FOLDER and WORK, a folder to work in.
file(GLOB files ${FOLDER}/*.ts)
if(NOT files)
  message(FATAL_ERROR "${FOLDER} holds no translations")
endif()
file(REMOVE_RECURSE ${WORK})
file(COPY ${files} DESTINATION ${WORK})
file(GLOB copies ${WORK}/*.ts)
execute_process(COMMAND ${LUPDATE} -silent -locations none -no-obsolete -I ${INCLUDES} ${SOURCES}
  -ts ${copies} COMMAND_ERROR_IS_FATAL ANY)
foreach(file IN LISTS files)
  cmake_path(GET file FILENAME name)
  file(READ ${file} kept)
  file(READ ${WORK}/${name} wanted)
  if(NOT kept STREQUAL wanted)
    message(SEND_ERROR "${name} is behind the sources: build the _texts target of its folder, and translate")
  endif()
endforeach()
