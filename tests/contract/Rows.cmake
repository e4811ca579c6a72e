# What a host's headers lack is told row by row: all of it, and nothing that is there.

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

set(binary ${WORK_DIR}-rows)
file(REMOVE_RECURSE ${binary})
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/rows -B ${binary} -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX} -DCONTRACT_DIR=${SOURCE_DIR}/contract)
file(READ ${binary}/missing.txt missing)
string(REGEX REPLACE "(\n      [^:\n]+(::[^:\n]+)?):[^\n]*" "\\1" names "${missing}")
set(expected "  host/EContext.h
      EContext::Error
      EContext::Continue, comparable with int
  host/Finally.h
      the whole header
")
if(NOT names STREQUAL expected)
    message(FATAL_ERROR "expected the rows\n${expected}and got\n${missing}")
endif()
if(NOT missing MATCHES "the whole header: [^\n]*Finally\\.h")
    message(FATAL_ERROR "the compiler's own words are missing:\n${missing}")
endif()
