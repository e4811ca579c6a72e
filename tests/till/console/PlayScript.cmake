# Plays SCRIPT with TILL and holds its whole standard output against the text kept in EXPECTED;
# nothing may come on standard error, and the exit status must be 0. With RENEW set the text is kept
# anew instead.
get_filename_component(name "${SCRIPT}" NAME_WE)
set(found "${WORK_DIR}/${name}.txt")
execute_process(
    COMMAND "${TILL}" play --colour never "${SCRIPT}"
    OUTPUT_FILE "${found}"
    ERROR_VARIABLE errors
    RESULT_VARIABLE status
)
if(NOT status STREQUAL "0")
    message(FATAL_ERROR "${name}: exit status ${status}: ${errors}")
endif()
if(NOT errors STREQUAL "")
    message(FATAL_ERROR "${name}: on standard error: ${errors}")
endif()

if(RENEW)
    configure_file("${found}" "${EXPECTED}" COPYONLY)
    message(STATUS "${EXPECTED} renewed")
    return()
endif()

if(NOT EXISTS "${EXPECTED}")
    message(FATAL_ERROR "no text is kept for ${name}: read ${found}, then build renew_till_texts")
endif()
execute_process(
    COMMAND diff -u --label kept --label found "${EXPECTED}" "${found}"
    OUTPUT_VARIABLE difference
    RESULT_VARIABLE differs
)
if(NOT differs STREQUAL "0")
    message(FATAL_ERROR "${name} prints another text than ${EXPECTED}:\n${difference}")
endif()
