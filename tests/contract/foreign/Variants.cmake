# Included where the kit's project begins, and run where it ends: the kit again, against headers that
# break promises. What a run of the kit costs is its compilation, so that a variant breaks several, and
# each promise is broken in two variants, a pair that no other promise of its file has: told in just
# these two, it is told for itself.

set(variant_count 7)
# Broken at run time.
set(broken_at_run_time Types.Names Services.Modifiers Services.AbsentSetting)

# contract_promises(FILE RESULT): the checks of a file that the headers can break.
function(contract_promises file result)
    file(READ ${CMAKE_CURRENT_SOURCE_DIR}/${file} text)
    string(REGEX MATCHALL "{\"(Form|Table|Numbers|Types|Services|Log)\\.[A-Za-z]+\"" checks "${text}")
    list(TRANSFORM checks REPLACE "[{\"]" "")
    list(REMOVE_ITEM checks ${broken_at_run_time})
    set(${result} ${checks} PARENT_SCOPE)
endfunction()

# contract_variant(NUMBER CHECKS...): the kit against headers that break these.
function(contract_variant number)
    set(text)
    foreach(check IN LISTS ARGN)
        string(REPLACE "." "_" macro ${check})
        string(APPEND text "#define SHOPLINE_BREAKS_${macro}\n")
    endforeach()
    string(APPEND text "#include \"OneLogger.h\"\n")
    foreach(file IN LISTS CONTRACT_HEADER_CHECKS)
        string(APPEND text "#include \"contract/${file}\"\n")
    endforeach()
    set(variants ${CMAKE_BINARY_DIR}/variants)
    file(WRITE ${variants}/${number}.txt "${ARGN}")
    file(CONFIGURE OUTPUT ${variants}/${number}.cpp CONTENT "${text}" @ONLY)

    add_executable(contract_variant_${number} ${variants}/${number}.cpp)
    target_sources(contract_variant_${number} PRIVATE
        $<FILTER:$<TARGET_OBJECTS:packaging_contract>,EXCLUDE,unity_headers_cxx>)
    set_target_properties(contract_variant_${number} PROPERTIES
        AUTOMOC OFF
        UNITY_BUILD OFF
        OUTPUT_NAME ${number}
        RUNTIME_OUTPUT_DIRECTORY ${variants})
    target_include_directories(contract_variant_${number} PRIVATE
        ${CONTRACT_INCLUDE_DIR} ${PACKAGINGCONTROL_FOREIGN_DIR})
    target_link_libraries(contract_variant_${number} PRIVATE
        PackagingHost::Host Log4Qt::log4qt Qt6::Core)
    target_precompile_headers(contract_variant_${number} REUSE_FROM packaging_contract)
    target_compile_options(contract_variant_${number} PRIVATE
        $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()

function(contract_variants)
    foreach(file IN LISTS CONTRACT_HEADER_CHECKS)
        contract_promises(${file} checks)
        set(first 1)
        set(second 2)
        foreach(check IN LISTS checks)
            list(APPEND variant_${first} ${check})
            list(APPEND variant_${second} ${check})
            math(EXPR second "${second} + 1")
            if(second GREATER variant_count)
                math(EXPR first "${first} + 1")
                math(EXPR second "${first} + 1")
            endif()
        endforeach()
    endforeach()
    foreach(number RANGE 1 ${variant_count})
        contract_variant(${number} ${variant_${number}})
    endforeach()

    # A plugin that brings a slot of its own for a service.
    add_library(owning_plugin MODULE
        ${PACKAGINGCONTROL_FOREIGN_DIR}/OwnSlot.cpp $<TARGET_OBJECTS:PackagingControlObjects>)
    target_link_libraries(owning_plugin PRIVATE PackagingHost::Host Log4Qt::log4qt Qt6::Core)
    set_target_properties(owning_plugin PROPERTIES
        AUTOMOC OFF
        PREFIX ""
        LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/variants)
endfunction()

cmake_language(DEFER CALL contract_variants)
