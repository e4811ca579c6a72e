# The package of an adapter: called as the file is, <name>Config.cmake, and found where
# <name>_DIR or CMAKE_PREFIX_PATH say.

include(CMakeFindDependencyMacro)
# What every header of the plugin's needs.
find_dependency(Qt6 6.4 COMPONENTS Core)
# The SDK's own package. One that has none is named by its files: add_library(... SHARED IMPORTED).
find_dependency(VendorSdk)

# The package may be looked for twice in one build.
if(NOT TARGET PackagingHost::Host)
    # Headers alone: nothing is built for the adapter, and nothing of it is linked.
    add_library(PackagingHost::Host INTERFACE IMPORTED)
    # The folder above host/, so that the plugin finds "host/Event.h" there.
    target_include_directories(PackagingHost::Host INTERFACE ${CMAKE_CURRENT_LIST_DIR}/include)
    # The host's library, which the host program has loaded already, and Qt.
    target_link_libraries(PackagingHost::Host INTERFACE VendorSdk::Sdk Qt6::Core)
endif()
