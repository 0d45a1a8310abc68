# What every target of this tree has in common.

# orda_target(<name>): language level, warnings, moc and uic, where the result lies.
function(orda_target name)
  target_compile_features(${name} PUBLIC cxx_std_17)
  target_compile_options(${name} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>) # Qt's logging macros
  target_compile_definitions(${name} PRIVATE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
    QT_DEPRECATED_WARNINGS QT_STRICT_ITERATORS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
  if(ORDA_WERROR)
    target_compile_options(${name} PRIVATE -Werror)
  endif()
  if(ORDA_SANITIZE)
    target_compile_options(${name} PRIVATE -fsanitize=${ORDA_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(${name} PRIVATE -fsanitize=${ORDA_SANITIZE})
  endif()
  set_target_properties(${name} PROPERTIES
    AUTOMOC ON AUTOUIC ON AUTORCC ON
    CXX_EXTENSIONS OFF
    POSITION_INDEPENDENT_CODE ON
    RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin"
    LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib"
    ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
endfunction()

# orda_install(<name> <component> [<export set> <include directory>]): a program or a library, to be run from any prefix: it finds our libraries by their
# place beside its own. Headers and what else only developers need go to the component "development".
function(orda_install name component)
  get_target_property(type ${name} TYPE)
  if(type STREQUAL "EXECUTABLE")
    file(RELATIVE_PATH to_libraries "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
    set_target_properties(${name} PROPERTIES INSTALL_RPATH "\$ORIGIN/${to_libraries}")
    install(TARGETS ${name} RUNTIME COMPONENT ${component})
  else()
    set_target_properties(${name} PROPERTIES INSTALL_RPATH "\$ORIGIN" VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    install(TARGETS ${name} EXPORT ${ARGV2}
      LIBRARY COMPONENT ${component} NAMELINK_COMPONENT development
      FILE_SET HEADERS COMPONENT development DESTINATION "${ARGV3}"
      INCLUDES DESTINATION "${ARGV3}")
  endif()
endfunction()

# orda_install_package(<name>): what find_package(<name> CONFIG) reads, from cmake/<name>Config.cmake and the export
# set <name>.
function(orda_install_package name)
  set(place "${ORDA_INSTALL_CMAKEDIR}/${name}")
  set(version_file "${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake")
  write_basic_package_version_file("${version_file}" COMPATIBILITY SameMajorVersion)
  install(FILES "${PROJECT_SOURCE_DIR}/cmake/${name}Config.cmake" "${version_file}" DESTINATION "${place}" COMPONENT development)
  install(EXPORT ${name} FILE ${name}Targets.cmake NAMESPACE orda:: DESTINATION "${place}" COMPONENT development)
endfunction()

# orda_hide_symbols(<library>): only what is marked for it can be seen from outside, and nothing may be left for whoever loads it to find.
function(orda_hide_symbols name)
  set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  get_target_property(type ${name} TYPE)
  if(type STREQUAL "SHARED_LIBRARY" AND NOT ORDA_SANITIZE) # clang puts what its sanitizers call into the program
    target_link_options(${name} PRIVATE LINKER:-z,defs)
  endif()
endfunction()

# The directory of what CMake generates for the client libraries: <library>/Export.h with the mark <LIBRARY>_EXPORT.
set(ORDA_EXPORT_HEADERS "${PROJECT_BINARY_DIR}/clientlibs/include")

# orda_client_library(<name> LINKS <targets> [PRIVATE_LINKS <targets>] SOURCES <files> [INTERNAL <files>]): one of the six client
# libraries, with clientlibs/ as its include root. The headers among SOURCES are its users'; those among INTERNAL are not installed,
# and what they mark as exported is for the programs and tests of this tree.
function(orda_client_library name)
  cmake_parse_arguments(arg "" "" "LINKS;PRIVATE_LINKS;SOURCES;INTERNAL" ${ARGN})
  add_library(${name} SHARED ${arg_SOURCES} ${arg_INTERNAL})
  add_library(orda::${name} ALIAS ${name})
  orda_target(${name})
  orda_hide_symbols(${name})
  generate_export_header(${name} EXPORT_FILE_NAME "${ORDA_EXPORT_HEADERS}/${name}/Export.h")
  # Nobody replaces single functions of these: calls within a file are direct.
  target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-semantic-interposition>)
  set(headers ${arg_SOURCES})
  list(FILTER headers INCLUDE REGEX "\\.h$")
  target_sources(${name} PUBLIC FILE_SET HEADERS
    BASE_DIRS "${PROJECT_SOURCE_DIR}/clientlibs" "${ORDA_EXPORT_HEADERS}"
    FILES ${headers} "${ORDA_EXPORT_HEADERS}/${name}/Export.h")
  target_link_libraries(${name} PUBLIC ${arg_LINKS} PRIVATE ${arg_PRIVATE_LINKS})
  orda_install(${name} clientlibs orda_clientlibs "${CMAKE_INSTALL_INCLUDEDIR}")
endfunction()

# orda_translations(<target> <part> <directory>): builds the part's translations, <directory>/<part>_<language>.ts, into the
# target, as the resource ":/translations/<part>_<language>.qm". A part's name holds no underscore.
function(orda_translations target part directory)
  find_package(Qt5 5.15 REQUIRED COMPONENTS LinguistTools)
  file(GLOB sources CONFIGURE_DEPENDS "${directory}/${part}_*.ts")
  set(output "${CMAKE_CURRENT_BINARY_DIR}/translations")
  set_source_files_properties(${sources} PROPERTIES OUTPUT_LOCATION "${output}")
  qt5_add_translation(compiled ${sources})
  set(entries "")
  foreach(file IN LISTS compiled)
    get_filename_component(name "${file}" NAME)
    string(APPEND entries "    <file>${name}</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT "${output}/${part}_translations.qrc"
    CONTENT "<RCC>\n  <qresource prefix=\"/translations\">\n${entries}  </qresource>\n</RCC>\n" @ONLY)
  qt5_add_resources(resource "${output}/${part}_translations.qrc")
  target_sources(${target} PRIVATE ${resource})
endfunction()
