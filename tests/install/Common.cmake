# Shared by the scripts of this folder. Paths inside the tree that was installed and moved.

set(STAGED ${WORK_DIR}/staged)
set(MOVED ${WORK_DIR}/moved/somewhere/else)
set(HOST_PROGRAM ${WORK_DIR}/host-program/build/host_program)

# run(COMMAND...): fails with the command's output; its standard output is in RUN_OUTPUT.
function(run)
    execute_process(COMMAND ${ARGN}
        RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nended with ${status}\n${output}\n${errors}")
    endif()
    set(RUN_OUTPUT "${output}" PARENT_SCOPE)
endfunction()

# build(SOURCE BINARY OPTIONS...): configures and builds with this build's compiler and flags.
function(build source binary)
    run(${CMAKE_COMMAND} -S ${source} -B ${binary} -G ${GENERATOR}
        -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${CXX_FLAGS}
        -DPACKAGINGCONTROL_SANITIZE=${SANITIZE}
        -DCMAKE_BUILD_TYPE=${BUILD_TYPE} -DCMAKE_PREFIX_PATH=${MOVED} -DQt6_DIR=${QT_DIR}
        -DCMAKE_EXPORT_COMPILE_COMMANDS=ON ${ARGN})
    run(${CMAKE_COMMAND} --build ${binary})
endfunction()

# build_alone(SOURCE BINARY): the plugin, against the installed host and with the release's flags. It has
# debugging information too, which names all folders that are not kept out, and those that a compiler's
# cache would write otherwise.
function(build_alone source binary)
    set(ENV{CCACHE_BASEDIR} /nowhere)
    build(${source} ${binary} -DPACKAGINGCONTROL_HOST_PACKAGE=PackagingHost
        -DCMAKE_BUILD_TYPE=Release "-DCMAKE_CXX_FLAGS=${CXX_FLAGS} -g"
        -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0)
endfunction()

# The values of one kind of entry (NEEDED, RUNPATH) in the dynamic section of a file.
function(dynamic_entries file kind result)
    run(${READELF} -dW ${file})
    string(REGEX MATCHALL "\\(${kind}\\)[^\n]*" lines "${RUN_OUTPUT}")
    list(TRANSFORM lines REPLACE "^.*\\[(.*)\\].*$" "\\1")
    set(${result} "${lines}" PARENT_SCOPE)
endfunction()
