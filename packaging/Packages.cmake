# The packages: `cmake --build build/release --target package package_source`, or tools/release.
#
# quilm-script comes in a package of its own, which needs no toolkit, with the examples; quilm has the window.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quilm)
set(CPACK_PACKAGE_VENDOR "the Quilm authors")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL window script)
set(CPACK_COMPONENTS_GROUPING IGNORE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${QUILM_MAINTAINER}")
set(CPACK_DEBIAN_WINDOW_PACKAGE_NAME quilm)
set(CPACK_DEBIAN_WINDOW_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_WINDOW_PACKAGE_RECOMMENDS "quilm-script, xdg-utils")
set(CPACK_DEBIAN_SCRIPT_PACKAGE_NAME quilm-script)
set(CPACK_DEBIAN_SCRIPT_PACKAGE_SECTION electronics)
set(CPACK_COMPONENT_WINDOW_DESCRIPTION "design of passive LC filters
Quilm makes a ladder of real component values from a family, a topology, an
order, frequencies and terminations, and shows how it behaves with its
losses. The ladder can be edited, tuned, optimised, tried with tolerances,
matched and transformed, and written for other programs.")
set(CPACK_COMPONENT_SCRIPT_DESCRIPTION "design of passive LC filters, driven by a script
The commands of a script press the controls of Quilm's pages without a
window; what happens is printed as JSON. It serves batch work.")

set(CPACK_SOURCE_GENERATOR TXZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME "quilm-${PROJECT_VERSION}")
set(CPACK_SOURCE_IGNORE_FILES "/\\.git/;/build/;/out/;/__pycache__/")
include(CPack)
