# A host's SDK of somebody else's, with an adapter of headers alone: the plugin and the kit are built
# against it, the kit with its variants.

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

set(foreign ${CMAKE_CURRENT_LIST_DIR}/foreign)
file(REMOVE_RECURSE ${WORK_DIR})
build(${foreign}/sdk ${SDK_BUILD})
build(${SOURCE_DIR} ${HOST_BUILD}
    -DPACKAGINGCONTROL_HOST_PACKAGE=ShoplineHost
    -DShoplineHost_DIR=${foreign}/adapter
    -DShopline_DIR=${SDK_BUILD}
    -DCMAKE_PROJECT_PackagingContract_INCLUDE=${foreign}/Variants.cmake
    -DPACKAGINGCONTROL_FOREIGN_DIR=${foreign})
