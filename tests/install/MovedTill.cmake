# The programs run from where the tree was moved to.

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

run(${MOVED}/${BIN_DIR}/till --version)

# A console needs nothing of a window.
dynamic_entries(${MOVED}/${BIN_DIR}/till NEEDED needed)
if(NOT needed MATCHES "Qt6Core" OR needed MATCHES "Qt6(Gui|Widgets)")
    message(SEND_ERROR "the console program needs ${needed}")
endif()
if(EXISTS ${MOVED}/${BIN_DIR}/till-window)
    dynamic_entries(${MOVED}/${BIN_DIR}/till-window NEEDED needed)
    if(NOT needed MATCHES "Qt6Widgets")
        message(SEND_ERROR "the window needs ${needed}")
    endif()
    run(${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${MOVED}/${BIN_DIR}/till-window --version)
endif()
