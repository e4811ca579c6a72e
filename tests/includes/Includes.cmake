# Reads the includes of the product's sources in ROOT and fails on each that leads where its folder
# must not look. docs/architecture.md draws the picture.

cmake_minimum_required(VERSION 3.25)

# may_include(FOLDER FOLDERS...): sources of FOLDER include their own headers and those of FOLDERS.
set(folders)
macro(may_include folder)
    list(APPEND folders ${folder})
    set(known_by_${folder} ${folder} ${ARGN})
endmacro()

# The host knows nobody; the plugin's folders know the host and Log4Qt.
may_include(log4qt)
may_include(host)
may_include(plugin host log4qt)
may_include(registry host log4qt plugin)
may_include(events host log4qt plugin registry)
may_include(triggers host log4qt plugin registry)
# The kit that checks a host sees that host and nothing else of the project.
# The till knows the host and Log4Qt, never the plugin; a module of it knows the ones before it that
# it is made of.
may_include(till/result)
may_include(till/language host)
may_include(till/goods host till/result)
may_include(till/receipt host till/result till/goods)
set(receipt host till/result till/goods till/receipt)
may_include(till/course ${receipt})
may_include(till/database till/result)
may_include(till/storage ${receipt} till/database)
may_include(till/plugins host till/result)
may_include(till/actions ${receipt} log4qt till/language till/course)
may_include(till/register ${known_by_till/actions} till/actions till/plugins till/storage)
may_include(till/startup ${known_by_till/register} till/register)
may_include(till/view ${receipt} till/language)
may_include(till/reports ${receipt} till/course till/storage till/language till/view)
may_include(till/words ${known_by_till/register} till/register)
may_include(till/recorder ${known_by_till/words} till/words)
may_include(till/script ${known_by_till/recorder} till/recorder till/view)
may_include(till/runner ${known_by_till/script} till/script)
may_include(till/terminal ${known_by_till/script} till/script till/database)
may_include(till/console ${known_by_till/terminal} till/terminal till/runner till/reports till/startup)

# The window knows the till but for what is a terminal's, and its own modules before each.
set(look ${known_by_till/register} till/register till/view window/look)
may_include(window/look ${look})
may_include(window/receipt ${look})
may_include(window/articles ${look})
may_include(window/shelf ${look})
may_include(window/dialogs ${look})
may_include(window/course ${known_by_till/reports} till/reports window/look)
may_include(window/archive ${known_by_till/reports} till/reports)
may_include(window/scripts ${known_by_till/script} till/script window/look window/archive)
may_include(window/desk ${look} window/receipt window/articles window/shelf window/dialogs window/course
    window/scripts)
may_include(window/program ${look} window/desk till/startup till/database)

# Sets FOLDER to the folder that PATH, which an include names, leads into: empty for what is not the
# project's.
function(folder_of path result)
    string(REGEX MATCH "^((till|window)/[^/]+|[^/]+)/" folder "${path}")
    string(REGEX REPLACE "/$" "" folder "${folder}")
    set(ours till window plugin registry events triggers tests bench fuzz ${folders})
    if(NOT folder IN_LIST ours AND NOT folder MATCHES "^(till|window)/")
        set(folder "")
    endif()
    set(${result} "${folder}" PARENT_SCOPE)
endfunction()

set(faults)
set(count 0)
foreach(folder ${folders})
    file(GLOB_RECURSE sources RELATIVE ${ROOT} ${ROOT}/${folder}/*.h ${ROOT}/${folder}/*.cpp)
    foreach(source ${sources})
        file(STRINGS ${ROOT}/${source} includes REGEX "^[ \t]*#[ \t]*include")
        math(EXPR count "${count} + 1")
        foreach(include ${includes})
            string(REGEX MATCH "[<\"]([^>\"]+)[>\"]" named "${include}")
            set(path "${CMAKE_MATCH_1}")
            folder_of("${path}" target)
            # A header of ours is named from the project's top, so that it can be seen here.
            if(include MATCHES "\"" AND NOT target AND NOT path MATCHES "\\.moc$|^moc_.*\\.cpp$")
                list(APPEND faults "${source}: ${path} is not named from the project's top")
            elseif(target AND NOT target IN_LIST known_by_${folder})
                list(APPEND faults "${source} includes ${path}")
            endif()
        endforeach()
    endforeach()
endforeach()

# Every module of the till and of its window has its line above.
file(GLOB modules RELATIVE ${ROOT} ${ROOT}/till/*/CMakeLists.txt ${ROOT}/window/*/CMakeLists.txt)
foreach(module ${modules})
    cmake_path(GET module PARENT_PATH module)
    if(NOT module IN_LIST folders)
        list(APPEND faults "${module} is not listed here")
    endif()
endforeach()

if(faults)
    list(JOIN faults "\n" text)
    message(FATAL_ERROR "${text}")
endif()
if(count EQUAL 0)
    message(FATAL_ERROR "no sources in ${ROOT}")
endif()
message("${count} sources, each include in order")
