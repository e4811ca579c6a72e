# Installs the build, moves it, and looks at what is there.

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${STAGED})
cmake_path(GET MOVED PARENT_PATH moved_parent)
file(MAKE_DIRECTORY ${moved_parent})
file(RENAME ${STAGED} ${MOVED})

foreach(path
        ${PLUGIN}
        ${LIB_DIR}/packagingcontrol/libPackagingHost.so
        ${LIB_DIR}/cmake/PackagingHost/PackagingHostConfig.cmake
        ${INCLUDE_DIR}/host/BasicPlugin.h)
    if(NOT EXISTS ${MOVED}/${path})
        message(SEND_ERROR "not installed: ${path}")
    endif()
endforeach()

# Every header of the host, so that none is forgotten.
file(GLOB headers RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/host/*.h)
foreach(header ${headers})
    if(NOT EXISTS ${MOVED}/${INCLUDE_DIR}/${header})
        message(SEND_ERROR "not installed: ${header}")
    endif()
endforeach()

# The stand-in for Log4Qt is the host package's, and never taken for Log4Qt.
file(GLOB taken
    ${MOVED}/${LIB_DIR}/cmake/*[Ll]og4[Qq]t* ${MOVED}/${LIB_DIR}/packagingcontrol/liblog4qt*)
if(taken)
    message(SEND_ERROR "taken for Log4Qt: ${taken}")
endif()

# Libraries are found from where the file lies.
file(GLOB binaries ${MOVED}/${LIB_DIR}/packagingcontrol/*.so ${MOVED}/${PLUGIN} ${MOVED}/${BIN_DIR}/*)
foreach(binary ${binaries})
    dynamic_entries(${binary} RUNPATH runpath)
    if(NOT runpath MATCHES "^\\$ORIGIN[^:]*$")
        message(SEND_ERROR "${binary}: run path \"${runpath}\" is not relative")
    endif()
endforeach()

# Packages name no place in which they were built or first installed.
file(GLOB_RECURSE packages ${MOVED}/${LIB_DIR}/cmake/*.cmake)
foreach(package ${packages})
    file(READ ${package} text)
    foreach(place ${BUILD_DIR} ${SOURCE_DIR} ${STAGED})
        string(FIND "${text}" ${place} found)
        if(NOT found EQUAL -1)
            message(SEND_ERROR "${package} names ${place}")
        endif()
    endforeach()
endforeach()
