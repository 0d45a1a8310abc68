# Five packages by CPack: the libraries, what a client's developer builds against, the client, the program for scripts, and the simulated devices.

# The version stands in CMakeLists.txt; these are written by hand and must not fall behind.
foreach(file "debian/changelog;^orda-batchcfg \\(([0-9.]+)-1\\)" "../CHANGELOG.md;\n## \\[([0-9.]+)\\]" "org.example.orda_client.metainfo.xml;<release version=\"([0-9.]+)\"")
  list(GET file 1 pattern)
  list(GET file 0 file)
  file(READ "${file}" text)
  if(NOT text MATCHES "${pattern}" OR NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
    message(FATAL_ERROR "packaging/${file} does not begin with version ${PROJECT_VERSION}")
  endif()
endforeach()

set(libraries "liborda-batchcfg${PROJECT_VERSION_MAJOR}")
set(this_version "(= ${PROJECT_VERSION}-1)")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orda-batchcfg)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # it would go before each package's own
set(CPACK_PACKAGE_CONTACT "Orda Batch Configuration developers <batchcfg@example.org>")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SOURCE orda-batchcfg)
# The libraries lie in a directory of their own, and the programs' packages depend on the very version that they were built with.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/lib")
# Packages of other clients depend on the libraries by what stays within a major version.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON) # takes the debug information out, as CPACK_STRIP_FILES would, and keeps it
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_LIBRARIES_PACKAGE_NAME ${libraries})
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_SHLIBDEPS ON)
# The check marks and arrows of the theme are SVG, which Qt reads by a plug-in.
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_DEPENDS "libqt5svg5")
set(CPACK_DEBIAN_LIBRARIES_DESCRIPTION "batch configuration of cameras: the module and its libraries
The module orda_batchCfg brings a form with which a desktop client configures
many cameras and recorders at once.
.
This package has the module and the client libraries that it uses.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME orda-batchcfg-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${libraries} ${this_version}, qtbase5-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "batch configuration of cameras: files to build a client with
The module orda_batchCfg brings a form with which a desktop client configures
many cameras and recorders at once.
.
This package has the headers of the module and of the client libraries, the
CMake packages orda_batchCfg and orda_clientlibs, the pages on how to use them,
a sample client and a sample plug-in.")

set(CPACK_DEBIAN_CLIENT_PACKAGE_NAME orda-client)
set(CPACK_DEBIAN_CLIENT_PACKAGE_SECTION video)
set(CPACK_DEBIAN_CLIENT_PACKAGE_SHLIBDEPS ON)
# The history of runs is a SQLite file, which Qt opens by a plug-in.
set(CPACK_DEBIAN_CLIENT_PACKAGE_DEPENDS "${libraries} ${this_version}, fonts-dejavu-core, hicolor-icon-theme, libqt5sql5-sqlite")
set(CPACK_DEBIAN_CLIENT_PACKAGE_RECOMMENDS "fonts-wqy-microhei, qttranslations5-l10n, xdg-utils")
set(CPACK_DEBIAN_CLIENT_PACKAGE_SUGGESTS "orda-batch, orda-fleet, qtwayland5")
set(CPACK_DEBIAN_CLIENT_DESCRIPTION "configure many online cameras and recorders at once
An operator ticks cameras and recorders that are online, ticks the parameters
to change, and presses Configure: each device's parameters are read, changed
only where they were ticked, and written back, with one result a device, a
summary, and a record file.
.
This package has the desktop client orda_client.")

set(CPACK_DEBIAN_BATCH_PACKAGE_NAME orda-batch)
set(CPACK_DEBIAN_BATCH_PACKAGE_SECTION video)
set(CPACK_DEBIAN_BATCH_PACKAGE_SHLIBDEPS ON)
# It shows nothing: no fonts, no icons. The history of runs is as the client's.
set(CPACK_DEBIAN_BATCH_PACKAGE_DEPENDS "${libraries} ${this_version}, libqt5sql5-sqlite")
set(CPACK_DEBIAN_BATCH_PACKAGE_SUGGESTS "ansible-core, orda-fleet")
set(CPACK_DEBIAN_BATCH_DESCRIPTION "configure many cameras and recorders from scripts
Reads the settings of many cameras and recorders, says what a change would do
to each of them, makes it in waves, verifies it, and takes it back, from a
terminal, a script or a timer and without any display.
.
This package has the program orda_batch, and in /usr/share/orda-batchcfg/ansible
a role with which Ansible runs it at many sites.")

set(CPACK_DEBIAN_FLEET_PACKAGE_NAME orda-fleet)
set(CPACK_DEBIAN_FLEET_PACKAGE_SECTION video)
set(CPACK_DEBIAN_FLEET_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_FLEET_PACKAGE_DEPENDS "${libraries} ${this_version}")
set(CPACK_DEBIAN_FLEET_DESCRIPTION "simulated cameras and recorders to try programs on
Thousands of devices behind real sockets, which answer as cameras and recorders
do, or with the faults that they are told to have.
.
This package has the program orda_fleet.")

include(CPack)
cpack_add_component_group(libraries)
foreach(component clientlibs module)
  cpack_add_component(${component} GROUP libraries)
endforeach()
foreach(component development client batch fleet)
  cpack_add_component(${component})
endforeach()

# package_documents(<package> <component>): what every package has.
function(package_documents package component)
  set(place "${CMAKE_INSTALL_DATADIR}/doc/${package}")
  install(FILES debian/copyright DESTINATION "${place}" COMPONENT ${component})
  gzipped("${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog" changelog.Debian "${place}" ${component})
  gzipped("${PROJECT_SOURCE_DIR}/CHANGELOG.md" changelog "${place}" ${component})
endfunction()

package_documents(${libraries} module)
package_documents(orda-batchcfg-dev development)
package_documents(orda-client client)
package_documents(orda-batch batch)
package_documents(orda-fleet fleet)

install(FILES "${PROJECT_SOURCE_DIR}/docs/batch.md" "${PROJECT_SOURCE_DIR}/docs/batch-result.schema.json"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/orda-batch" COMPONENT batch)
set(place "${CMAKE_INSTALL_DATADIR}/doc/orda-batchcfg-dev")
foreach(page integration scripting compatibility device-protocol reliability)
  install(FILES "${PROJECT_SOURCE_DIR}/docs/${page}.md" DESTINATION "${place}" COMPONENT development)
endforeach()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/tests/consumer" "${PROJECT_SOURCE_DIR}/docs/examples/plugin" DESTINATION "${place}/examples"
  COMPONENT development PATTERN headers EXCLUDE)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/skeleton" DESTINATION "${place}" COMPONENT development)
