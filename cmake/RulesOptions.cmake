# Options of every target of this project: language level, warnings, sanitizers, hardening.
option(RULES_WERROR "Treat compiler warnings as errors" OFF)
option(RULES_TESTS "Build the tests" OFF)
option(RULES_BENCH "Build the benchmarks" OFF)
option(RULES_FUZZ "Build the fuzzers, with Clang" OFF)
option(RULES_HARDENING "Stack protector, fortified functions, read-only relocations" OFF)
set(RULES_QT 5 CACHE STRING "Major version of Qt: 5, the clients', or 6")
set(RULES_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize takes them")

if(RULES_QT EQUAL 5)
    set(RULES_QT_LEAST 5.15)
else()
    set(RULES_QT_LEAST 6.4)
endif()

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# A build, all of which lies in one folder, and what is installed of it can be moved as a whole. The
# run paths are the same: CMake ends those that it has to change with a colon, which is the current
# folder to the loader.
if(UNIX AND NOT APPLE)
    set(CMAKE_INSTALL_RPATH $ORIGIN)
    set(CMAKE_INSTALL_RPATH_USE_LINK_PATH ON)
    set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
endif()
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

add_library(rules_options INTERFACE)
target_include_directories(rules_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_definitions(rules_options INTERFACE
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH)
if(MSVC)
    target_compile_options(rules_options INTERFACE /W4 /utf-8 $<$<BOOL:${RULES_WERROR}>:/WX>)
else()
    target_compile_options(rules_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Woverloaded-virtual -Wcast-align
        $<$<BOOL:${RULES_WERROR}>:-Werror>)
    # Clang's sanitizers leave their functions to the program that loads a library.
    if(NOT RULES_FUZZ)
        target_link_options(rules_options INTERFACE -Wl,--no-undefined)
    endif()
endif()
if(RULES_SANITIZE)
    target_compile_options(rules_options INTERFACE
        -fsanitize=${RULES_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(rules_options INTERFACE -fsanitize=${RULES_SANITIZE})
endif()
if(RULES_HARDENING AND NOT MSVC)
    target_compile_options(rules_options INTERFACE
        -fstack-protector-strong -D_FORTIFY_SOURCE=2 -fstack-clash-protection)
    target_link_options(rules_options INTERFACE -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endif()
