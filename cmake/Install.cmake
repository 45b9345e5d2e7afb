# Installation: the library, its headers but those of the services, a CMake package and a pkg-config
# file; the programs install themselves, by cmake/Programs.cmake. All of it may be moved as a whole.
# Its components are the packages of cmake/Packages.cmake.

file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.h)
list(FILTER headers EXCLUDE REGEX "/src/(services|qt)/")

set(KVGUICTL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/KVGuiCtl)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/KVGuiCtl)

add_library(KVGuiCtl::KVGuiCtl ALIAS KVGuiCtl)
target_compile_features(KVGuiCtl INTERFACE cxx_std_20)
target_sources(KVGuiCtl PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src
                                                FILES ${headers})

install(TARGETS KVGuiCtl EXPORT KVGuiCtlTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT dev
        FILE_SET HEADERS DESTINATION ${KVGUICTL_INCLUDEDIR} COMPONENT dev)
install(EXPORT KVGuiCtlTargets NAMESPACE KVGuiCtl:: DESTINATION ${package_folder}
        COMPONENT dev)

configure_package_config_file(cmake/KVGuiCtlConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/KVGuiCtlConfig.cmake
                              INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KVGuiCtlConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KVGuiCtlConfig.cmake
              ${PROJECT_BINARY_DIR}/KVGuiCtlConfigVersion.cmake
        DESTINATION ${package_folder} COMPONENT dev)

file(RELATIVE_PATH KVGUICTL_PREFIX_FROM_PC /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" KVGUICTL_PREFIX_FROM_PC ${KVGUICTL_PREFIX_FROM_PC})
# Where no run path is installed, the loader finds the library by itself.
if(NOT CMAKE_SKIP_INSTALL_RPATH)
    set(KVGUICTL_PC_RUN_PATH "-Wl,-rpath,\${libdir} ")
endif()
configure_file(cmake/KVGuiCtl.pc.in ${PROJECT_BINARY_DIR}/KVGuiCtl.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/KVGuiCtl.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT dev)

# The component Qt: a library of its own, and a file that finds Qt ahead of its targets.
if(TARGET KVGuiCtlQt)
    set(qt_headers application.h binding.h map/block_map_window.h map/geometry.h
                   map/map_block.h qt_desktop.h)
    list(TRANSFORM qt_headers PREPEND ${PROJECT_SOURCE_DIR}/src/qt/)
    target_sources(KVGuiCtlQt PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src
                                                      FILES ${qt_headers})
    install(TARGETS KVGuiCtlQt EXPORT KVGuiCtlQtExports
            LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT qt NAMELINK_COMPONENT dev
            FILE_SET HEADERS DESTINATION ${KVGUICTL_INCLUDEDIR} COMPONENT dev)
    install(EXPORT KVGuiCtlQtExports NAMESPACE KVGuiCtl:: DESTINATION ${package_folder}
            COMPONENT dev)
    install(FILES cmake/KVGuiCtlQtTargets.cmake DESTINATION ${package_folder} COMPONENT dev)
    configure_file(cmake/KVGuiCtlQt.pc.in ${PROJECT_BINARY_DIR}/KVGuiCtlQt.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/KVGuiCtlQt.pc
            DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
endif()
