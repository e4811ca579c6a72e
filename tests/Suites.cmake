# Read by ctest when it starts, once for each program of tests: every suite in it becomes a test of
# ctest's. That is a process a suite rather than a process a test: starting thousands of them takes
# longer than what they do. What a program prints when it fails names the test.
#
#   SUITES_PROGRAM  the program's file
#   SUITES_LABELS   labels of its suites
#   SUITES_ON_DISK  whether their temporary files have to be where temporary files usually are

if(NOT EXISTS "${SUITES_PROGRAM}")
    add_test("${SUITES_PROGRAM}_is_not_built" "${SUITES_PROGRAM}")
    return()
endif()

execute_process(COMMAND "${SUITES_PROGRAM}" --gtest_list_tests
    OUTPUT_VARIABLE suites_listed
    RESULT_VARIABLE suites_result
)
# A suite's line is not indented; its name ends with a point, and a remark may follow.
string(REGEX MATCHALL "(^|\n)[^ \n]+\\.( |\n)" suites_lines "${suites_listed}")
if(NOT suites_result EQUAL 0 OR suites_lines STREQUAL "")
    message(FATAL_ERROR "${SUITES_PROGRAM} lists no tests: ${suites_result}")
endif()

set(suites_environment)
if(NOT SUITES_ON_DISK AND NOT DEFINED ENV{TMPDIR})
    execute_process(COMMAND test -d /dev/shm -a -w /dev/shm RESULT_VARIABLE suites_result)
    if(suites_result EQUAL 0)
        set(suites_environment TMPDIR=/dev/shm)
    endif()
endif()
foreach(suite IN LISTS suites_lines)
    string(REGEX REPLACE "^\n?(.*)\\.[ \n]$" "\\1" suite "${suite}")
    add_test("${suite}" "${SUITES_PROGRAM}" "--gtest_filter=${suite}.*")
    set_tests_properties("${suite}" PROPERTIES
        LABELS "${SUITES_LABELS}"
        ENVIRONMENT "${suites_environment}"
    )
endforeach()
