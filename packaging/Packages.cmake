# Debian's packages, made with `cpack` in the build folder: the program with its window, and quilm-script, which needs no
# window system. With SOURCE_DATE_EPOCH set the same sources give the same bytes.
set(QUILM_MAINTAINER "The Quilm authors <quilm@quilm.org>" CACHE STRING "Who answers for the packages: Name <address>")
set(QUILM_REVISION 1 CACHE STRING "Revision of the packages of one version")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quilm)
set(CPACK_PACKAGE_CONTACT "${QUILM_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/debian/prepare.cmake")

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE "${QUILM_REVISION}")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

execute_process(COMMAND date --utc --rfc-email --date "${QUILM_RELEASE_DATE}" OUTPUT_VARIABLE QUILM_RELEASE_TIME
                OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)

# debian_package(NAME SECTION PARTS...): a package of these parts of the installation, with the documents that each has
# to bring along and the description of debian/NAME.txt.
function(debian_package name section)
  set(made "${CMAKE_CURRENT_BINARY_DIR}/${name}")
  configure_file(debian/copyright "${made}/copyright" @ONLY)
  set(QUILM_PACKAGE "${name}")
  configure_file(debian/changelog "${made}/changelog.Debian" @ONLY)
  configure_file("${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${made}/changelog" COPYONLY)
  install(FILES "${made}/copyright" "${made}/changelog.Debian" "${made}/changelog"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}" COMPONENT ${name}-debian EXCLUDE_FROM_ALL)
  configure_file(debian/lintian-overrides "${made}/lintian-overrides" @ONLY)
  install(FILES "${made}/lintian-overrides" RENAME ${name}
          DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides" COMPONENT ${name}-debian EXCLUDE_FROM_ALL)

  file(READ debian/${name}.txt description)
  string(TOUPPER "${name}" key)
  foreach(part ${name}-debian ${ARGN})
    string(TOUPPER "${part}" part_key)
    set(CPACK_COMPONENT_${part_key}_GROUP ${name} PARENT_SCOPE)
  endforeach()
  set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_DESCRIPTION "${description}" PARENT_SCOPE)
  set(parts ${CPACK_COMPONENTS_ALL} ${name}-debian ${ARGN})
  set(CPACK_COMPONENTS_ALL ${parts} PARENT_SCOPE)
endfunction()

set(CPACK_COMPONENTS_ALL "")
debian_package(quilm-script electronics script)
if(QUILM_APP)
  debian_package(quilm electronics window)
  # The help opens in the user's browser; drawings are laid out for the widths of these fonts.
  set(CPACK_DEBIAN_QUILM_PACKAGE_RECOMMENDS "fonts-liberation, xdg-utils")
  set(CPACK_DEBIAN_QUILM_PACKAGE_SUGGESTS quilm-script)
endif()
include(CPack)
