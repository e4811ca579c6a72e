# The program runs from where the tree was moved to.

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

run(${MOVED}/${BIN_DIR}/till --version)
