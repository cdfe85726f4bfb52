# SPDX-License-Identifier: MIT
# What Debian requires in each package besides the installed files. CPack runs this on its staging
# folder.
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  set(root ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr)
  set(name ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
  set(papers ${root}/share/doc/${name})
  configure_file(${CMAKE_CURRENT_LIST_DIR}/copyright ${papers}/copyright COPYONLY)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog ${papers}/changelog.Debian COPYONLY)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/../../CHANGELOG.md ${papers}/changelog COPYONLY)
  file(GLOB manuals ${root}/share/man/man1/*.1)
  execute_process(COMMAND gzip -9n ${papers}/changelog ${papers}/changelog.Debian ${manuals}
                  COMMAND_ERROR_IS_FATAL ANY)
  if(EXISTS ${CMAKE_CURRENT_LIST_DIR}/${name}.overrides)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/${name}.overrides
                   ${root}/share/lintian/overrides/${name} COPYONLY)
  endif()
  # Programs find packaged libraries without a search path in the file.
  file(GLOB programs ${root}/bin/*)
  foreach(program IN LISTS programs)
    file(RPATH_REMOVE FILE ${program})
  endforeach()
endforeach()
