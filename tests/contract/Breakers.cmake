# Of every check: a host that breaks this promise alone is told so, by this check alone. No check goes
# without: the kit's own list is what is walked through.

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

set(covered)

# expect_broken(CHECKS COMMAND...): the kit calls these checks broken, and no other.
macro(expect_broken checks)
    broken_checks(seen ${ARGN})
    list(APPEND covered ${checks})
    if(NOT "${seen}" STREQUAL "${checks}")
        message(SEND_ERROR "broken: ${checks}; the kit says: ${seen}")
    endif()
endmacro()

# In the headers: several in a variant, each in a pair of variants of its own.
file(GLOB variants ${HOST_BUILD}/variants/*.txt)
foreach(variant IN LISTS variants)
    file(READ ${variant} checks)
    cmake_path(REMOVE_EXTENSION variant)
    broken_checks(seen ${variant})
    list(SORT checks)
    list(SORT seen)
    if(NOT "${seen}" STREQUAL "${checks}")
        message(SEND_ERROR "broken: ${checks}; the kit says: ${seen}")
    endif()
    foreach(check IN LISTS checks)
        list(APPEND variants_of_${check} ${variant})
    endforeach()
    list(APPEND covered ${checks})
endforeach()
list(REMOVE_DUPLICATES covered)
foreach(check IN LISTS covered)
    list(LENGTH variants_of_${check} count)
    if(NOT count EQUAL 2)
        message(SEND_ERROR "${check} is broken in ${count} variants")
    endif()
endforeach()

# In the plugin's file.
cmake_path(GET PLUGIN_FILE PARENT_PATH plugins)
set(patched ${plugins}-patched) # beside it, where its libraries are found
file(MAKE_DIRECTORY ${patched})
# patch(NAME PATTERN REPLACEMENT): the plugin's file with some of its bytes changed.
function(patch name pattern replacement)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C
        sed "s/${pattern}/${replacement}/" ${PLUGIN_FILE} OUTPUT_FILE ${patched}/${name}.so)
endfunction()
patch(Metadata "\\x70PackagingControl" "\\x70QackagingControl")
patch(Bases "\\x00DocumentWatcher\\x00" "\\x00DocumentWatcheR\\x00")
run(${CMAKE_COMMAND} --install ${HOST_BUILD} --prefix ${WORK_DIR}/alone)
set(only --only Plugin --plugin)
expect_broken(Plugin.Needs ${KIT} ${only} ${WORK_DIR}/alone/${PLUGIN})
expect_broken(Plugin.OwnsNoService ${KIT} ${only} ${HOST_BUILD}/variants/owning_plugin.so)
expect_broken(Plugin.Metadata ${KIT} ${only} ${patched}/Metadata.so)
expect_broken(Plugin.Bases ${KIT} ${only} ${patched}/Bases.so)

# In what the host does.
execute_process(COMMAND ${KIT} --list OUTPUT_VARIABLE list)
string(REGEX MATCHALL "(^|\n)[A-Za-z]+\\.[A-Za-z]+:" all "${list}")
list(TRANSFORM all REPLACE "[\n:]" "")
foreach(check IN LISTS all)
    if(NOT check IN_LIST covered)
        set(plugin)
        if(check MATCHES "^Receipt\\.")
            set(plugin --plugin ${PLUGIN_FILE})
        endif()
        expect_broken(${check} ${CMAKE_COMMAND} -E env SHOPLINE_BREAKS=${check} ${KIT} ${plugin})
    endif()
endforeach()
list(LENGTH all count)
if(count LESS 100)
    message(SEND_ERROR "the kit lists ${count} checks")
endif()
