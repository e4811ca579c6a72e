# What every target of the project is built with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

# Everything runs from the build tree as it does when installed.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_BINDIR})
# The libraries are the project's own, so that they lie in a folder of their own.
set(PACKAGINGCONTROL_LIBRARY_DIR ${CMAKE_INSTALL_LIBDIR}/packagingcontrol)
set(PACKAGINGCONTROL_PLUGIN_DIR ${PACKAGINGCONTROL_LIBRARY_DIR}/plugins)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${PACKAGINGCONTROL_LIBRARY_DIR})
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

# What is installed is for those who run it, unless it says "dev".
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME runtime)

add_compile_options(-Wall -Wextra -Wpedantic -Wdate-time -Wshadow -Woverloaded-virtual -Wnull-dereference)
if(PACKAGINGCONTROL_WERROR)
    add_compile_options(-Werror)
endif()
# Debian 12's valgrind does not read the version that Clang writes by itself.
add_compile_options($<$<CXX_COMPILER_ID:Clang>:-fdebug-default-version=4>)
# Headers of another host may use what this code does without.
if(NOT PACKAGINGCONTROL_HOST_PACKAGE)
    add_compile_definitions(QT_NO_KEYWORDS QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    set(PACKAGINGCONTROL_NO_CASTS QT_NO_CAST_FROM_ASCII)
endif()
# GCC collects garbage from 128 MB on, which takes a tenth of its time. From 512 MB on, it needs 120 MB more.
add_compile_options("$<$<CXX_COMPILER_ID:GNU>:--param=ggc-min-heapsize=524288>")
# Programs share precompiled headers with libraries, and are compiled as those are.
add_compile_options(-fPIC)
add_link_options(-Wl,--as-needed)
# What is not delivered may be linked by any linker: this one takes a fifth of the time.
find_program(PACKAGINGCONTROL_LLD ld.lld)
if(PACKAGINGCONTROL_LLD)
    add_link_options($<$<CONFIG:Debug>:-fuse-ld=lld>)
endif()
# How the product alone is compiled: tests are linked with it as they are, and need not be compiled anew.
set(PACKAGINGCONTROL_PRODUCT_OPTIONS)
if(PACKAGINGCONTROL_SANITIZE)
    set(PACKAGINGCONTROL_SANITIZERS -fsanitize=address,undefined)
    # Optimised, so that the product's functions contain, and check, most of what they use of Qt's inline
    # ones: where a copy is called, the linker may take the tests', which checks nothing.
    list(APPEND PACKAGINGCONTROL_PRODUCT_OPTIONS ${PACKAGINGCONTROL_SANITIZERS} -fno-sanitize-recover=all
        -fno-omit-frame-pointer -O1 -g1)
    add_link_options(${PACKAGINGCONTROL_SANITIZERS})
else()
    # Clang leaves the sanitizers' own symbols to the program, so that libraries cannot be complete.
    add_link_options(-Wl,--no-undefined)

    # What is delivered is hardened as Debian hardens its packages, and names no folder of its build.
    set(delivered $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
    add_compile_options("$<${delivered}:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>")
    add_compile_options("$<${delivered}:-ffile-prefix-map=${PROJECT_BINARY_DIR}=build>")
    add_compile_options("$<${delivered}:-fstack-protector-strong;-Wformat;-Wformat-security>")
    if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
        add_compile_options("$<${delivered}:-fstack-clash-protection;-fcf-protection>")
    endif()
    # Bound at load, calls need no stubs; and nobody puts one function of a library in another's place.
    add_compile_options("$<${delivered}:-fno-plt;-fno-semantic-interposition>")
    add_compile_options("$<${delivered}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3>")
    add_link_options("$<${delivered}:-Wl,-z,relro,-z,now>")
endif()
if(PACKAGINGCONTROL_FUZZ)
    list(APPEND PACKAGINGCONTROL_PRODUCT_OPTIONS -fsanitize=fuzzer-no-link)
    add_link_options(-fsanitize=fuzzer-no-link)
endif()
if(PACKAGINGCONTROL_COVERAGE)
    list(APPEND PACKAGINGCONTROL_PRODUCT_OPTIONS --coverage -O0)
    add_link_options(--coverage)
endif()
add_compile_options(${PACKAGINGCONTROL_PRODUCT_OPTIONS})
# Tests call the plugin and its host millions of times. GCC's -Wnull-dereference follows the optimiser, which
# sees paths through Qt's headers that there are not.
set(PACKAGINGCONTROL_OFTEN_CALLED)
if(PACKAGINGCONTROL_OPTIMISE)
    set(PACKAGINGCONTROL_OFTEN_CALLED "$<$<CONFIG:Debug>:-O1>"
        "$<$<CONFIG:Debug>:-Wno-null-dereference>")
endif()
