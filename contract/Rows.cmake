# Tries, when the host is configured, whether its headers can be compiled as the plugin uses them:
# everything at once, as a good host passes; where that fails, header by header, and in a header that
# fails row by row. So every row is judged, and what is missing is told in one table.

# contract_try(RESULT LOG HOST TEXT DEFINITIONS...): compiles TEXT against the imported target HOST.
function(contract_try result log host text)
    set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
    try_compile(compiles SOURCE_FROM_VAR row.cpp text NO_CACHE
        CMAKE_FLAGS -DINCLUDE_DIRECTORIES=${CONTRACT_INCLUDE_DIR}
        COMPILE_DEFINITIONS ${ARGN}
        LINK_LIBRARIES ${host}
        OUTPUT_VARIABLE output
        CXX_STANDARD 20 CXX_STANDARD_REQUIRED ON)
    set(${result} ${compiles} PARENT_SCOPE)
    set(${log} "${output}" PARENT_SCOPE)
endfunction()

# contract_first_error(LOG RESULT): what the compiler said first, and where, if in a header of the host.
function(contract_first_error log result)
    string(REGEX MATCH "(([^/\n]+\\.h[a-z]*):([0-9]+):[0-9:]*|[^\n]*) error: ([^\n]*)" error "${log}")
    set(error "${CMAKE_MATCH_4}")
    if(CMAKE_MATCH_2)
        string(APPEND error " (${CMAKE_MATCH_2}, line ${CMAKE_MATCH_3})")
    endif()
    set(${result} "${error}" PARENT_SCOPE)
endfunction()

# contract_rows_of(HOST FILE TABLE): appends what is missing of one header to TABLE.
function(contract_rows_of host file table)
    set(lines "${${table}}")
    get_filename_component(name ${file} NAME_WE)
    set(text "#include \"contract/rows/${name}.cpp\"\n")
    contract_try(good log ${host} "${text}")
    if(NOT good)
        contract_try(good log ${host} "${text}" -DONLY_ROW=0)
        contract_first_error("${log}" error)
        if(NOT good)
            string(APPEND lines "  host/${name}.h\n      the whole header: ${error}\n")
        else()
            string(APPEND lines "  host/${name}.h\n")
        endif()
        file(READ ${file} source)
        string(REGEX MATCHALL "#if ROW\\([0-9]+\\) // [^\n]*" rows "${source}")
        foreach(row IN LISTS rows)
            string(REGEX MATCH "\\(([0-9]+)\\) // (.*)" found "${row}")
            set(number ${CMAKE_MATCH_1})
            set(what "${CMAKE_MATCH_2}")
            if(good)
                contract_try(holds log ${host} "${text}" -DONLY_ROW=${number})
                if(NOT holds)
                    contract_first_error("${log}" error)
                    string(APPEND lines "      ${what}: ${error}\n")
                endif()
            endif()
        endforeach()
    endif()
    set(${table} "${lines}" PARENT_SCOPE)
endfunction()

# contract_rows(HOST TABLE): what the imported target HOST lacks, as text; empty when it has all.
function(contract_rows host table)
    file(GLOB files ${CONTRACT_INCLUDE_DIR}/contract/rows/*.cpp)
    set(text)
    foreach(file IN LISTS files)
        get_filename_component(name ${file} NAME_WE)
        string(APPEND text "#include \"contract/rows/${name}.cpp\"\n")
    endforeach()
    set(missing)
    contract_try(good log ${host} "${text}")
    if(NOT good)
        message(STATUS "The host's headers are tried one by one")
        foreach(file IN LISTS files)
            contract_rows_of(${host} ${file} missing)
        endforeach()
        if(NOT missing)
            contract_first_error("${log}" error)
            set(missing "  the headers together: ${error}\n")
        endif()
    endif()
    set(${table} "${missing}" PARENT_SCOPE)
endfunction()
