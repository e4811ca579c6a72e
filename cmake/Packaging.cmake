# What `cmake --build --target package` makes: three Debian packages, and an archive of everything.

# The kit, and the page that walks through it, each where the other looks for it.
set(data ${CMAKE_INSTALL_DATADIR}/packagingcontrol)
install(DIRECTORY contract DESTINATION ${data} COMPONENT dev)
install(FILES docs/host-sdk.md DESTINATION ${data}/docs COMPONENT dev)

install(FILES docs/till.md docs/trace.md docs/reports.md DESTINATION share/doc/packagingcontrol)
install(FILES docs/window.md DESTINATION share/doc/packagingcontrol-window COMPONENT window)
# Debian's packages have changes and copyright in a form of their own.
install(FILES CHANGELOG.md DESTINATION share/doc/packagingcontrol COMPONENT archive)
find_program(PACKAGINGCONTROL_GZIP gzip)
mark_as_advanced(PACKAGINGCONTROL_GZIP)
if(PACKAGINGCONTROL_GZIP)
    string(TIMESTAMP PACKAGE_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
    set(changelog ${PROJECT_BINARY_DIR}/debian/changelog)
    configure_file(cmake/debian/changelog.in ${changelog} @ONLY)
    execute_process(COMMAND ${PACKAGINGCONTROL_GZIP} -9nf ${changelog})
    set(manual ${PROJECT_BINARY_DIR}/debian/till.1.gz)
    add_custom_command(OUTPUT ${manual}
        COMMAND ${PACKAGINGCONTROL_GZIP} -9nc ${PROJECT_BINARY_DIR}/till/console/till.1 > ${manual}
        DEPENDS till_manual ${PROJECT_BINARY_DIR}/till/console/till.1
        VERBATIM
    )
    add_custom_target(debian_manual ALL DEPENDS ${manual})
    install(FILES ${manual} DESTINATION share/man/man1 COMPONENT runtime EXCLUDE_FROM_ALL)
    foreach(component runtime window dev)
        set(package packagingcontrol)
        if(NOT component STREQUAL "runtime")
            string(APPEND package -${component})
        endif()
        install(FILES cmake/debian/copyright ${changelog}.gz DESTINATION share/doc/${package}
            COMPONENT ${component} EXCLUDE_FROM_ALL)
    endforeach()
endif()

set(CPACK_GENERATOR TGZ)
find_program(PACKAGINGCONTROL_DPKG_SHLIBDEPS dpkg-shlibdeps)
mark_as_advanced(PACKAGINGCONTROL_DPKG_SHLIBDEPS)
if(PACKAGINGCONTROL_DPKG_SHLIBDEPS)
    list(APPEND CPACK_GENERATOR DEB)
endif()
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME packagingcontrol)
set(CPACK_PACKAGE_VENDOR PackagingControl)
set(CPACK_PACKAGE_CONTACT "PackagingControl developers <packagingcontrol@packagingcontrol.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "packaging control for a point-of-sale host")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGE_FILE_NAME
    packagingcontrol-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime dev)
if(TARGET till-window)
    list(APPEND CPACK_COMPONENTS_ALL window)
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME packagingcontrol)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS libqt6sql6-sqlite) # loaded by name, when a database is opened
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
"A plugin keeps account of what is poured into what: which goods of a
receipt are in which tara, and what capacity is left. With it comes a
small cash register, the till, which loads the plugin and runs whole
receipts through it, and a sample shop.")

# The console asks for no display: Qt's widgets come with the window alone.
set(CPACK_DEBIAN_WINDOW_PACKAGE_NAME packagingcontrol-window)
set(CPACK_DEBIAN_WINDOW_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_WINDOW_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_WINDOW_PACKAGE_RECOMMENDS qt6-translations-l10n) # what Qt says by itself
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/${PACKAGINGCONTROL_LIBRARY_DIR})
set(CPACK_COMPONENT_WINDOW_DEPENDS runtime)
set(CPACK_COMPONENT_WINDOW_DESCRIPTION
"The small cash register of packagingcontrol in a window: articles to touch,
the receipt, and a shelf with the vessels that show what was poured into
what.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME packagingcontrol-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS qt6-base-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SUGGESTS "cmake, g++")
set(CPACK_COMPONENT_DEV_DEPENDS runtime)
set(CPACK_COMPONENT_DEV_DESCRIPTION
"The headers of the host and its CMake package, to build plugins and host
programs with, and the contract kit, which checks a host's SDK before its
first receipt.")

include(CPack)
