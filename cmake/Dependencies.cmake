# What the project stands on, found once for all of its folders.

find_package(SQLite3 REQUIRED)
find_package(PROJ REQUIRED CONFIG)
find_package(PkgConfig REQUIRED)
pkg_check_modules(GEOS REQUIRED IMPORTED_TARGET geos)
pkg_check_modules(LIBPQ REQUIRED IMPORTED_TARGET libpq>=14)
pkg_check_modules(ODBC REQUIRED IMPORTED_TARGET odbc)
