# A host program built against the moved tree runs the moved plugin.

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

file(REMOVE_RECURSE ${WORK_DIR}/host-program)
file(COPY ${CMAKE_CURRENT_LIST_DIR}/consumer/ DESTINATION ${WORK_DIR}/host-program/source)
build(${WORK_DIR}/host-program/source ${WORK_DIR}/host-program/build)
run(${HOST_PROGRAM} ${MOVED}/${PLUGIN} ${MOVED})
