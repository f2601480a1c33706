# cpack makes Debian packages of the installed components, see docs/packaging.md.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL workbench plugin host development)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# Staged outside the build folder: a build of the tree could pick up the headers.
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_SOURCE_DIR}/out/packages)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Intelligent rules maintainers <maintainers@intelligentrules.invalid>")
set(CPACK_PACKAGE_CONTACT ${CPACK_DEBIAN_PACKAGE_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The host library is no package's yet while they are made.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

# rules_package(COMPONENT NAME SECTION SUMMARY DESCRIPTION)
macro(rules_package COMPONENT NAME SECTION SUMMARY DESCRIPTION)
    string(TOUPPER ${COMPONENT} component)
    set(CPACK_DEBIAN_${component}_PACKAGE_NAME ${NAME})
    set(CPACK_DEBIAN_${component}_PACKAGE_SECTION ${SECTION})
    set(CPACK_DEBIAN_${component}_DESCRIPTION "${SUMMARY}\n${DESCRIPTION}")
    set(folder ${CMAKE_INSTALL_DATADIR}/doc/${NAME})
    install(FILES packaging/copyright DESTINATION ${folder} COMPONENT ${COMPONENT})
    rules_install_packed(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${folder} changelog ${COMPONENT})
    rules_install_packed(${CMAKE_BINARY_DIR}/packaging/changelog.Debian
        ${folder} changelog.Debian ${COMPONENT})
endmacro()

file(TIMESTAMP ${PROJECT_SOURCE_DIR}/CHANGELOG.md RULES_PACKAGE_TIME "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(packaging/changelog.Debian.in ${CMAKE_BINARY_DIR}/packaging/changelog.Debian @ONLY)

rules_package(workbench rules-workbench video "editor and checker of video analysis rules"
"The workbench shows the rules window of a camera channel by itself: regions,
trip lines, lanes and calibration staffs are drawn on the live picture, and
every other attribute is edited in tables beside it.

rulesctl checks, compares and rolls out the same documents without a window.")
rules_package(plugin intelligentrules-plugin libs "rules window for video surveillance clients"
"The plug-in that clients load to show the rules window of a camera channel,
with its skin and translations, and what plays streams and video files for it.")
rules_package(host libkqhost1 libs "host library of the intelligent rules plug-in"
"What clients and the intelligent rules plug-in share: the plug-in interfaces,
the message bus between them, and the video surface.")
rules_package(development intelligentrules-dev libdevel "headers of the intelligent rules plug-in's host"
"The interfaces by which a client loads the intelligent rules plug-in and speaks
with it, with a CMake package, a pkg-config file and a small client as an
example.")

set(CPACK_COMPONENT_WORKBENCH_DEPENDS plugin host)
set(CPACK_COMPONENT_PLUGIN_DEPENDS host)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS plugin host)
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_RECOMMENDS fonts-dejavu-core)
if(RULES_QT EQUAL 5)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qtbase5-dev (>= ${RULES_QT_LEAST})")
else()
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qt6-base-dev (>= ${RULES_QT_LEAST})")
endif()
# For packages that are made of programs which link it, and for the loader.
set(CPACK_DEBIAN_HOST_PACKAGE_CONTROL_EXTRA
    ${CMAKE_BINARY_DIR}/packaging/shlibs ${CMAKE_BINARY_DIR}/packaging/triggers)
file(WRITE ${CMAKE_BINARY_DIR}/packaging/shlibs "libkqhost 1 libkqhost1 (>= ${PROJECT_VERSION})\n")
file(WRITE ${CMAKE_BINARY_DIR}/packaging/triggers "activate-noawait ldconfig\n")
include(CPack)
