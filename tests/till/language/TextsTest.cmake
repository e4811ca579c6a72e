# Collects the texts of the till into a copy of LANGUAGE_FILE: it must be the file as it is kept, so
# that no text was added, changed or removed without it, and no text in it may lack a translation.
set(found ${WORK_DIR}/collected.ts)
file(COPY_FILE ${LANGUAGE_FILE} ${found})
execute_process(COMMAND ${COLLECT} ${found} ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND diff -u --label kept --label collected ${LANGUAGE_FILE} ${found}
    OUTPUT_VARIABLE difference
    RESULT_VARIABLE differs
)
if(NOT differs STREQUAL "0")
    message(FATAL_ERROR "build collect_texts and translate what is new:\n${difference}")
endif()
file(STRINGS ${LANGUAGE_FILE} lacking REGEX "type=\"unfinished\"|<translation></translation>")
if(lacking)
    list(LENGTH lacking count)
    message(FATAL_ERROR "${count} texts lack a translation")
endif()
