# What the project stands on, found once for all of its folders.

find_package(SQLite3 REQUIRED)
find_package(PROJ REQUIRED CONFIG)
find_package(PkgConfig REQUIRED)
pkg_check_modules(GEOS REQUIRED IMPORTED_TARGET geos>=3.10)
pkg_check_modules(LIBPQ REQUIRED IMPORTED_TARGET libpq>=14)
pkg_check_modules(ODBC REQUIRED IMPORTED_TARGET odbc)

if(KVGUICTL_QT)
    find_package(Qt6 6.4 QUIET COMPONENTS Widgets PrintSupport)
    if(NOT Qt6_FOUND)
        message(FATAL_ERROR "Qt 6.4 with Widgets and PrintSupport was not found (on Debian: "
                            "qt6-base-dev). Without real windows: -DKVGUICTL_QT=OFF")
    endif()
endif()

# For what reads and writes other programs' files, which is left out where it is missing.
pkg_check_modules(GDAL IMPORTED_TARGET gdal>=3.4)
if(NOT GDAL_FOUND)
    message(STATUS "No GDAL (on Debian: libgdal-dev): kvload will read no files, and no GeoPackages are written")
endif()
