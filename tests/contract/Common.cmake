# Shared by the scripts of this folder.

set(SDK_BUILD ${WORK_DIR}/sdk)
set(HOST_BUILD ${WORK_DIR}/host)
set(KIT ${HOST_BUILD}/${BIN_DIR}/packaging_contract)
set(PLUGIN_FILE ${HOST_BUILD}/${PLUGIN})

# run(COMMAND...): fails with the command's output.
function(run)
    execute_process(COMMAND ${ARGN}
        RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nended with ${status}\n${output}")
    endif()
endfunction()

# build(SOURCE BINARY OPTIONS...): with this build's compiler and flags, unoptimised and fast.
function(build source binary)
    run(${CMAKE_COMMAND} -S ${source} -B ${binary} -G ${GENERATOR}
        -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${CXX_FLAGS} -DCMAKE_BUILD_TYPE=Debug
        -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0
        -DQt6_DIR=${QT_DIR} ${ARGN})
    run(${CMAKE_COMMAND} --build ${binary})
endfunction()

# broken_checks(RESULT COMMAND...): the names of the checks that the kit calls broken, in their order.
function(broken_checks result)
    execute_process(COMMAND ${ARGN} --json OUTPUT_VARIABLE report ERROR_VARIABLE errors)
    string(JSON count ERROR_VARIABLE mistake LENGTH "${report}" checks)
    if(mistake)
        message(FATAL_ERROR "${ARGN}: ${mistake}\n${report}\n${errors}")
    endif()
    string(REPLACE ";" "," report "${report}")
    # One line a check would take longer to read as JSON than the checks take.
    string(REGEX MATCHALL "\"name\": \"[A-Za-z.]+\",[^{}]*\"verdict\": \"broken\"" found "${report}")
    list(TRANSFORM found REPLACE "\"name\": \"([A-Za-z.]+)\".*" "\\1")
    set(${result} "${found}" PARENT_SCOPE)
endfunction()
