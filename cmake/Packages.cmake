# SPDX-License-Identifier: MIT
# Debian packages by the target `package`: both libraries, what a host's build needs, the demo. Each
# component of the install rules is a package.
set(HALVEK_PACKAGE_FILES ${PROJECT_SOURCE_DIR}/cmake/packages)
file(STRINGS ${HALVEK_PACKAGE_FILES}/changelog HALVEK_CHANGES LIMIT_COUNT 1)
if(NOT HALVEK_CHANGES MATCHES "^halvekutils \\(${PROJECT_VERSION}-([^)]+)\\)")
  message(FATAL_ERROR "cmake/packages/changelog does not start with version ${PROJECT_VERSION}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_1})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME halvekutils)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${HALVEK_PACKAGE_FILES}/Stage.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${HALVEK_PACKAGE_FILES}/Finish.cmake)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE halvekutils)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "HalvekUtils developers <developers@halvekutils.example>")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

# halvek_package(<component> <name> SECTION ... SUMMARY ... TEXT ... [NEEDS component...] [ALSO ...])
function(halvek_package component name)
  cmake_parse_arguments(package "" "SECTION;SUMMARY;TEXT;ALSO" "NEEDS" ${ARGN})
  string(TOUPPER ${component} upper)
  set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${package_SECTION} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${package_ALSO}" PARENT_SCOPE)
  set(CPACK_COMPONENT_${upper}_DEPENDS ${package_NEEDS} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${package_SUMMARY}
HalvekUtils gives the desktop clients of medical practices their shared
services: message boxes, calendar, calculator, colours, lists of codes,
currency fields, reference data, preferences and an error log.

${package_TEXT}" PARENT_SCOPE)
  if(package_SECTION STREQUAL libs)
    set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA ${HALVEK_PACKAGE_FILES}/triggers PARENT_SCOPE)
  endif()
endfunction()

set(CPACK_COMPONENTS_ALL)
halvek_package(runtime libhalvekutils${PROJECT_VERSION_MAJOR} SECTION libs
  SUMMARY "shared services for medical practice clients"
  TEXT "This package holds the rules and the data, without windows.")
set(HALVEK_DEV_ALSO "libstdc++-dev")
if(HALVEK_QT)
  halvek_package(qt libhalvekutils-qt${PROJECT_VERSION_MAJOR} SECTION libs NEEDS runtime
    SUMMARY "shared services for medical practice clients - windows"
    TEXT "This package holds the windows for clients with Qt 6 Widgets, and the printers.")
  set(HALVEK_DEV_ALSO "qt6-base-dev (>= 6.4)")
  set(HALVEK_QT_COMPONENT qt)
endif()
halvek_package(dev libhalvekutils-dev SECTION libdevel NEEDS runtime ${HALVEK_QT_COMPONENT}
  ALSO "${HALVEK_DEV_ALSO}"
  SUMMARY "shared services for medical practice clients - development files"
  TEXT "This package holds the headers, the CMake package and the pkg-config files.")
if(HALVEK_DEMO)
  halvek_package(demo halvekutils-demo SECTION misc NEEDS qt
    SUMMARY "front-desk client that shows the HalvekUtils services"
    TEXT "This package holds a small client with sample data, one page a service.")
endif()
include(CPack)
