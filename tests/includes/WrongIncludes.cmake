# A small project, in WORK_DIR, with one wrong include at a time: Includes.cmake must name each. And
# none where all are right.

cmake_minimum_required(VERSION 3.25)

function(expect_fault source line fault)
    file(REMOVE_RECURSE ${WORK_DIR})
    file(WRITE ${WORK_DIR}/${source} "#include <QtCore/QString>\n${line}\n")
    execute_process(COMMAND ${CMAKE_COMMAND} -D ROOT=${WORK_DIR}
            -P ${CMAKE_CURRENT_LIST_DIR}/Includes.cmake
        RESULT_VARIABLE status OUTPUT_VARIABLE text ERROR_VARIABLE text)
    if(fault STREQUAL "")
        if(NOT status EQUAL 0)
            message(SEND_ERROR "${source} with ${line}: refused, ${text}")
        endif()
    elseif(status EQUAL 0 OR NOT text MATCHES "${fault}")
        message(SEND_ERROR "${source} with ${line}: not told \"${fault}\" but: ${text}")
    endif()
endfunction()

expect_fault(till/goods/A.cpp "#include \"till/goods/A.h\"" "")
expect_fault(till/goods/A.cpp "#include <host/Tmc.h>" "")
expect_fault(till/console/A.cpp "#include \"till/language/A.h\"" "")
expect_fault(plugin/A.cpp "#include \"A.moc\"" "")
expect_fault(till/Precompiled.h "" "")

expect_fault(host/A.h "#include \"plugin/PackagingControl.h\"" "host/A.h includes plugin/")
expect_fault(contract/A.cpp "#include \"plugin/PackagingControl.h\"" "contract/A.cpp includes plugin/")
expect_fault(host/A.h "#include \"till/goods/Money.h\"" "host/A.h includes till/")
expect_fault(host/A.cpp "#include <log4qt/logger.h>" "host/A.cpp includes log4qt/")
expect_fault(registry/A.cpp "#include \"events/EventPosition.h\"" "registry/A.cpp includes events/")
expect_fault(triggers/A.cpp "#include \"till/goods/Money.h\"" "triggers/A.cpp includes till/")
expect_fault(till/plugins/A.cpp "#include \"plugin/PackagingControl.h\""
    "till/plugins/A.cpp includes plugin/")
expect_fault(till/console/A.cpp "  #  include <registry/Tolerance.h>"
    "till/console/A.cpp includes registry/")
expect_fault(till/goods/A.h "#include \"till/receipt/Receipt.h\"" "till/goods/A.h includes till/rec")
expect_fault(till/storage/A.cpp "#include \"till/course/Notes.h\""
    "till/storage/A.cpp includes till/course")
expect_fault(till/register/A.cpp "#include \"till/view/TextPage.h\""
    "till/register/A.cpp includes till/view")
expect_fault(till/script/A.cpp "#include \"tests/support/FakeHost.h\""
    "till/script/A.cpp includes tests/")
expect_fault(till/goods/A.cpp "#include \"../receipt/Receipt.h\"" "not named from the project's")
expect_fault(till/goods/A.cpp "#include \"Money.h\"" "not named from the project's")
expect_fault(window/look/A.cpp "#include \"till/console/Options.h\""
    "window/look/A.cpp includes till/console")
expect_fault(till/view/A.cpp "#include \"window/look/GoodsLook.h\""
    "till/view/A.cpp includes window/look")
expect_fault(till/Precompiled.h "#include \"till/goods/Money.h\""
    "till/Precompiled.h includes till/goods")
expect_fault(window/Precompiled.h "#include \"till/goods/Money.h\""
    "window/Precompiled.h includes till/goods")
expect_fault(plugin/PackagingControl "#include \"events/EventPosition.h\""
    "plugin/PackagingControl includes events/")
expect_fault(window/attic/CMakeLists.txt "" "window/attic is not listed")
expect_fault(till/attic/CMakeLists.txt "" "till/attic is not listed")
expect_fault(till/attic/A.cpp "" "till/attic/A.cpp is in no folder")
expect_fault(attic/A.cc "" "attic/A.cc is in no folder")
expect_fault(tests/A.cpp "" "no sources in")
file(REMOVE_RECURSE ${WORK_DIR})
