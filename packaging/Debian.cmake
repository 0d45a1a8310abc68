# Two packages by CPack: what runs, and what a client's developer builds against.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orda-batchcfg)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # it would go before each package's own
set(CPACK_PACKAGE_CONTACT "Orda Batch Configuration developers <batchcfg@example.org>")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME orda-batchcfg)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION video)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
# The check marks and arrows of the theme are SVG, which Qt reads by a plug-in.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libqt5svg5, fonts-dejavu-core, hicolor-icon-theme")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "fonts-wqy-microhei, qttranslations5-l10n, xdg-utils")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS "qtwayland5")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "configure many online cameras and recorders at once
An operator ticks cameras and recorders that are online, ticks the parameters
to change, and presses Configure: each device's parameters are read, changed
only where they were ticked, and written back, with one result a device, a
summary, and a record file.
.
This package has the desktop client orda_client, the simulated devices of
orda_fleet, the module that a client of one's own can load, and the client
libraries that the module uses.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME orda-batchcfg-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "orda-batchcfg (= ${PROJECT_VERSION}-1), qtbase5-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "batch configuration of cameras: files to build a client with
The module orda_batchCfg brings a form with which a desktop client configures
many cameras and recorders at once.
.
This package has the headers of the module and of the client libraries, and
the CMake packages orda_batchCfg and orda_clientlibs.")

include(CPack)
cpack_add_component_group(runtime)
foreach(component clientlibs module client)
  cpack_add_component(${component} GROUP runtime)
endforeach()
cpack_add_component(development)

install(FILES debian/copyright DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/orda-batchcfg" COMPONENT client)
install(FILES debian/copyright DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/orda-batchcfg-dev" COMPONENT development)
gzipped("${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog" changelog.Debian "${CMAKE_INSTALL_DATADIR}/doc/orda-batchcfg" client)
gzipped("${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog" changelog.Debian "${CMAKE_INSTALL_DATADIR}/doc/orda-batchcfg-dev" development)
