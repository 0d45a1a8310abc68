# The six client libraries, as the targets orda::vms_client_sdk, orda::orda_data, orda::orda_base, orda::orda_worker, orda::orda_saas
# and orda::XCOMMON.
include(CMakeFindDependencyMacro)
find_dependency(Qt5 5.15 COMPONENTS Core Gui Widgets)
include("${CMAKE_CURRENT_LIST_DIR}/orda_clientlibsTargets.cmake")
