# The plugin that was built alone, built once more in another folder and later, is the same file.

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

set(elsewhere ${WORK_DIR}/elsewhere/in/another)
file(REMOVE_RECURSE ${WORK_DIR}/elsewhere)
file(COPY ${WORK_DIR}/alone/source/ DESTINATION ${elsewhere}/source)
set(ENV{CCACHE_DISABLE} 1) # or else it might be the same object

build_alone(${elsewhere}/source ${elsewhere}/build)

file(SHA256 ${WORK_DIR}/alone/build/${PLUGIN} once)
file(SHA256 ${elsewhere}/build/${PLUGIN} again)
if(NOT once STREQUAL again)
    message(FATAL_ERROR "${WORK_DIR}/alone/build/${PLUGIN} and ${elsewhere}/build/${PLUGIN} differ")
endif()
