# The package by which the module finds a client's own libraries, as <prefix>/lib/cmake/orda_clientlibs/orda_clientlibsConfig.cmake.
# Their headers lie in <prefix>/include/<library>/, as beside this file; the libraries in <prefix>/lib/.
include(CMakeFindDependencyMacro)
find_dependency(Qt5 5.15 COMPONENTS Widgets)
get_filename_component(orda_prefix "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)
foreach(library vms_client_sdk orda_data orda_base orda_worker orda_saas XCOMMON)
  if(NOT TARGET orda::${library})
    add_library(orda::${library} SHARED IMPORTED)
    set_target_properties(orda::${library} PROPERTIES
      IMPORTED_LOCATION "${orda_prefix}/lib/lib${library}.so"
      INTERFACE_INCLUDE_DIRECTORIES "${orda_prefix}/include"
      INTERFACE_LINK_LIBRARIES Qt5::Widgets)
  endif()
endforeach()
