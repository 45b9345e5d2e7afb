# Packages of Debian, one for each component of the installation. "./run --package" builds and checks
# them.

set(texts ${PROJECT_SOURCE_DIR}/cmake/package)
# These are none of Debian's own, which count from 1.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0kvguictl1)
configure_file(${texts}/changelog.in ${PROJECT_BINARY_DIR}/package/changelog.Debian @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_BINARY_DIR}/package/changelog COPYONLY)
kvguictl_compress(${PROJECT_BINARY_DIR}/package/changelog.Debian debian_changes)
kvguictl_compress(${PROJECT_BINARY_DIR}/package/changelog changes)

# A package by its component's name. The description's first line is its summary; what follows is
# its section, its copyright, and the components of ours that it needs in the same version.
macro(kvguictl_package component name description section copyright)
    string(TOUPPER ${component} upper)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
    set(CPACK_COMPONENT_${upper}_DESCRIPTION "${description}")
    set(CPACK_COMPONENT_${upper}_DEPENDS ${ARGN})
    set(folder ${CMAKE_INSTALL_DATADIR}/doc/${name})
    # Only a package needs these.
    install(FILES ${changes} ${debian_changes} DESTINATION ${folder} COMPONENT ${component}
            EXCLUDE_FROM_ALL)
    install(FILES ${texts}/${copyright} RENAME copyright DESTINATION ${folder}
            COMPONENT ${component} EXCLUDE_FROM_ALL)
    if(EXISTS ${texts}/lintian-overrides.${component})
        install(FILES ${texts}/lintian-overrides.${component} RENAME ${name}
                DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides COMPONENT ${component}
                EXCLUDE_FROM_ALL)
    endif()
endmacro()

set(programs_recommend kvguictl-engines)

set(summary "dialogs for maps and reports of oil and gas data")
kvguictl_package(library libkvguictl0 "${summary}: library
Dialogs that ask which area and block, which values of a column, which bounds
and projection, which paper. They run without a screen, too." libs copyright)
# The loader's list of libraries is brought up to date by a trigger.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${texts}/triggers)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_RECOMMENDS kvguictl-engines)

kvguictl_package(engines kvguictl-engines "${summary}: PostgreSQL and ODBC
The library loads these when it is first asked for such a database. SQLite
needs neither." libs copyright library)

if(TARGET KVGuiCtlGdal)
    kvguictl_package(gdal kvguictl-gdal "${summary}: files of other programs
Reads them for kvload, and writes them for the workbench, through GDAL." libs copyright)
    list(APPEND programs_recommend kvguictl-gdal)
endif()

if(TARGET KVGuiCtlQt)
    kvguictl_package(qt libkvguictlqt0 "${summary}: windows
Shows the dialogs of KVGuiCtl in windows of Qt." libs copyright library)
    set(CPACK_DEBIAN_QT_PACKAGE_CONTROL_EXTRA ${texts}/triggers)
    set(qt qt)
endif()

kvguictl_package(dev libkvguictl-dev "${summary}: development files
Headers, a CMake package and pkg-config files for programs that open the
dialogs of KVGuiCtl." libdevel copyright library ${qt})
set(CPACK_DEBIAN_DEV_PACKAGE_RECOMMENDS qt6-base-dev)

kvguictl_package(programs kvguictl "${summary}: programs
The workbench shows a dataset on a map and in reports, and opens every dialog.
kvdlg runs a dialog from the shell. sampledata makes a dataset to try them on,
kvload one of files of other programs."
                 science copyright.programs library ${qt})
list(JOIN programs_recommend ", " CPACK_DEBIAN_PROGRAMS_PACKAGE_RECOMMENDS)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
# There is no address yet; this is one that by its standard reaches nobody.
set(CPACK_PACKAGE_CONTACT "KVGuiCtl developers <developers@kvguictl.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SOURCE kvguictl)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
