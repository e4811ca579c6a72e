# A host package that is not there ends the configuration with its name.

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

set(binary ${WORK_DIR}-missing)
file(REMOVE_RECURSE ${binary})
execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${binary} -G ${GENERATOR}
        -DCMAKE_CXX_COMPILER=${CXX} -DQt6_DIR=${QT_DIR}
        -DPACKAGINGCONTROL_HOST_PACKAGE=NoSuchHostPackage
    RESULT_VARIABLE status OUTPUT_QUIET ERROR_VARIABLE errors)
file(REMOVE_RECURSE ${binary})
if(status EQUAL 0)
    message(FATAL_ERROR "configured without the host package")
endif()
if(NOT errors MATCHES "NoSuchHostPackage")
    message(FATAL_ERROR "the missing package is not named:\n${errors}")
endif()
