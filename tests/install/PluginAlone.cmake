# The plugin builds against an installed host, reading nothing of the tree's own host/, and a host
# program loads the result.

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

set(source ${WORK_DIR}/alone/source)
set(binary ${WORK_DIR}/alone/build)
file(REMOVE_RECURSE ${WORK_DIR}/alone)
foreach(part CMakeLists.txt cmake contract plugin registry events triggers)
    file(COPY ${SOURCE_DIR}/${part} DESTINATION ${source})
endforeach()

# Headers of the tree's own host that would end the build if one of them were read.
file(GLOB own_headers RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/host/*.h)
foreach(header ${own_headers})
    file(WRITE ${source}/${header} "#error The tree's own host header was read\n")
endforeach()

build_alone(${source} ${binary})

file(READ ${binary}/compile_commands.json commands)
if(commands MATCHES "-(I|isystem )${SOURCE_DIR}(/host|/log4qt)?[ \"]")
    message(FATAL_ERROR "the plugin alone still looks for headers in ${SOURCE_DIR}")
endif()
run(${HOST_PROGRAM} ${binary}/${PLUGIN} ${MOVED})

# Installed alone, it brings itself and nothing of the host.
run(${CMAKE_COMMAND} --install ${binary} --prefix ${WORK_DIR}/alone/installed)
file(GLOB_RECURSE installed RELATIVE ${WORK_DIR}/alone/installed ${WORK_DIR}/alone/installed/*)
if(NOT installed STREQUAL PLUGIN)
    message(FATAL_ERROR "the plugin alone installs \"${installed}\", not just \"${PLUGIN}\"")
endif()
