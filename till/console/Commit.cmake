# Writes Commit.cpp to OUTPUT for the commit in SOURCE_DIR, unless it says so already. A folder that is
# no clone has none, even inside of somebody else's.

cmake_minimum_required(VERSION 3.25)

set(commit)
if(EXISTS ${SOURCE_DIR}/.git)
    execute_process(COMMAND git -C ${SOURCE_DIR} describe --always --dirty --exclude=* --abbrev=12
        OUTPUT_VARIABLE commit OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
file(CONFIGURE OUTPUT ${OUTPUT} CONTENT
"#include \"till/console/Commit.h\"

const char *const till::commit = \"@commit@\";
" @ONLY)
