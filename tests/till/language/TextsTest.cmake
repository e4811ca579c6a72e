# Collects the texts of the till into a copy of LANGUAGE_FILE: they must be those that it has already,
# so that no text was added, changed or removed without it, and none may lack a translation.

# The texts of \a file, however its version of lupdate writes them.
function(texts_of file texts)
    file(STRINGS ${file} lines REGEX "<source>" ENCODING UTF-8)
    list(TRANSFORM lines STRIP)
    string(REPLACE "&apos;" "'" lines "${lines}")
    string(REPLACE "&quot;" "\"" lines "${lines}")
    list(SORT lines)
    set(${texts} "${lines}" PARENT_SCOPE)
endfunction()

set(found ${WORK_DIR}/collected.ts)
file(COPY_FILE ${LANGUAGE_FILE} ${found})
execute_process(COMMAND ${COLLECT} ${found} ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
texts_of(${LANGUAGE_FILE} kept_texts)
texts_of(${found} found_texts)
if(NOT kept_texts STREQUAL found_texts)
    execute_process(COMMAND diff -u ${LANGUAGE_FILE} ${found})
    message(FATAL_ERROR "build collect_texts and translate what is new")
endif()
file(STRINGS ${LANGUAGE_FILE} lacking REGEX "type=\"unfinished\"|<translation></translation>")
if(lacking)
    list(LENGTH lacking count)
    message(FATAL_ERROR "${count} texts lack a translation")
endif()
