# What every test that CTest starts finds in its environment: folders of settings and data that are
# not the user's own, and the datum grid in PROJ's search path, where there is one.

find_path(KVGUICTL_GRID_FOLDER us_noaa_conus.tif
          PATHS ENV KVGUICTL_GRID_FOLDER
                ${PROJECT_SOURCE_DIR}/../shared/proj
                $ENV{HOME}/.local/share/proj
          NO_DEFAULT_PATH
          DOC "Folder of the grid between NAD27 and NAD83")

set(home ${PROJECT_BINARY_DIR}/home)
set(environment
    "file(REMOVE_RECURSE \"${home}\")\n"
    "set(ENV{XDG_CONFIG_HOME} \"${home}/config\")\n"
    "set(ENV{XDG_DATA_HOME} \"${home}/data\")\n"
    "set(ENV{QT_QPA_PLATFORM} offscreen)\n"
    "set(ENV{UBSAN_OPTIONS} print_stacktrace=1)\n")
if(KVGUICTL_GRID_FOLDER)
    # A search path in the environment takes the place of PROJ's own.
    pkg_get_variable(proj_data proj datadir)
    list(APPEND environment "set(ENV{PROJ_DATA} \"${KVGUICTL_GRID_FOLDER}:${proj_data}\")\n")
else()
    message(STATUS "No datum grid: the tests that need it will be skipped")
endif()

string(CONCAT environment ${environment})
file(WRITE ${PROJECT_BINARY_DIR}/test_environment.cmake "${environment}")
set_property(DIRECTORY ${PROJECT_SOURCE_DIR}/tests APPEND
             PROPERTY TEST_INCLUDE_FILES ${PROJECT_BINARY_DIR}/test_environment.cmake)
