# find_package(PimManagerVCard 1.0): the targets PimManager::vCard and PimManager::vCardImport, and Qt 5 Core, which they
# need.
include(CMakeFindDependencyMacro)
find_dependency(Qt5 5.15 COMPONENTS Core)
include(${CMAKE_CURRENT_LIST_DIR}/PimManagerVCardTargets.cmake)
