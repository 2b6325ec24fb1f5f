# Brings the packages' files to what Debian wants, between their installation into a staging folder
# and the packing: manual pages compressed, and documents that only a package has.

# compress(FILE): replaces it by FILE.gz, the same in every build.
function(compress file)
  execute_process(COMMAND gzip -9nf ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  set(root ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr)
  file(GLOB pages ${root}/share/man/man*/*.?)
  foreach(page IN LISTS pages)
    compress(${page})
  endforeach()
  set(documents ${root}/share/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
  set(project ${CPACK_ORVAN_DOCUMENTS})
  file(COPY ${project}/packaging/copyright DESTINATION ${documents})
  configure_file(${project}/packaging/changelog.in ${documents}/changelog.Debian @ONLY)
  configure_file(${project}/CHANGELOG.md ${documents}/changelog COPYONLY)
  compress(${documents}/changelog.Debian)
  compress(${documents}/changelog)
  file(CHMOD_RECURSE ${documents} PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ
    DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
      WORLD_READ WORLD_EXECUTE)
endforeach()
