# What is delivered is hardened: the build BUILD_DIR, which must be a release.

cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

# expect(FILE WHAT TEXT PATTERN): the text, which is about the file, has to match.
function(expect file what text pattern)
    if(NOT text MATCHES "${pattern}")
        message(SEND_ERROR "${file}: ${what}\n${text}")
    endif()
endfunction()

file(GLOB libraries ${BUILD_DIR}/lib/packagingcontrol/*.so)
foreach(file ${BUILD_DIR}/bin/till ${BUILD_DIR}/${PLUGIN} ${libraries})
    run(${READELF} -lW ${file})
    expect(${file} "can be loaded to one address only" "${RUN_OUTPUT}" "Elf file type is DYN")
    expect(${file} "is not read-only after relocation" "${RUN_OUTPUT}" "GNU_RELRO")
    expect(${file} "has an executable stack" "${RUN_OUTPUT}" "GNU_STACK[^\n]* RW  ")
    run(${READELF} -dW ${file})
    expect(${file} "binds its calls when they are made" "${RUN_OUTPUT}" "BIND_NOW|Flags: NOW")
    run(${NM} -D --undefined-only ${file})
    expect(${file} "does not guard its stack" "${RUN_OUTPUT}" "__stack_chk_fail")
endforeach()
run(${NM} -D --undefined-only ${BUILD_DIR}/bin/till)
expect(till "calls the C library unchecked" "${RUN_OUTPUT}" "__[a-z]+_chk@")
