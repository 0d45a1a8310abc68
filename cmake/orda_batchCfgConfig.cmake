# The module, as the target orda::orda_batchCfg, and the client libraries that it was built against.
include(CMakeFindDependencyMacro)
find_dependency(Qt5 5.15 COMPONENTS Core Gui Widgets)
find_dependency(orda_clientlibs CONFIG HINTS "${CMAKE_CURRENT_LIST_DIR}/../orda_clientlibs")
include("${CMAKE_CURRENT_LIST_DIR}/orda_batchCfgTargets.cmake")
