# What every target of the project is compiled with, and the switches a builder may set.

option(KVGUICTL_TESTS "Build the tests" ON)
option(KVGUICTL_QT "Build KVGuiCtlQt, which shows real windows" ON)
option(KVGUICTL_BENCH "Build the benchmarks" OFF)
option(KVGUICTL_WERROR "Treat warnings as errors" OFF)
option(KVGUICTL_FUZZ "Build the libFuzzer targets (clang only)" OFF)
set(KVGUICTL_SANITIZE "" CACHE STRING "Sanitizers to build with, as address,undefined")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
# An installed program finds the library from where it stands itself.
set(CMAKE_INSTALL_RPATH $ORIGIN/../${CMAKE_INSTALL_LIBDIR})

if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(KVGUICTL_CCACHE ccache)
    if(KVGUICTL_CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${KVGUICTL_CCACHE})
    endif()
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
                    -Wnon-virtual-dtor -Woverloaded-virtual)
# GCC 12 takes "text" + std::string for an overlapping copy.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12
   AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    add_compile_options(-Wno-restrict)
endif()
if(KVGUICTL_WERROR)
    add_compile_options(-Werror)
endif()
if(KVGUICTL_SANITIZE)
    add_compile_options(-fsanitize=${KVGUICTL_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${KVGUICTL_SANITIZE})
endif()
