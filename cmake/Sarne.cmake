# SPDX-License-Identifier: GPL-3.0-or-later
# Helpers shared by every folder: our own warnings, the folder libraries and the folder tests.

include(Precompiled)

find_program(SARNE_CCACHE ccache)
if(SARNE_CCACHE)
    # Paths below the source folder count as relative, so that every checkout shares what another has compiled.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_PCH_EXTSUM=1 CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${SARNE_CCACHE})
endif()

add_library(sarne_options INTERFACE)
target_compile_options(sarne_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                       -Woverloaded-virtual -Wimplicit-fallthrough -Werror)
target_compile_definitions(sarne_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                           QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_include_directories(sarne_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
if(SARNE_SANITIZE)
    target_compile_options(sarne_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                           -fno-omit-frame-pointer)
    target_link_options(sarne_options INTERFACE -fsanitize=address,undefined)
endif()
if(SARNE_FUZZ)
    target_compile_options(sarne_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# sarne_library(name [LIGHT] SOURCES ... [PUBLIC targets...] [PRIVATE targets...] [PRECOMPILED kind]): one static library
# per folder of src/. Most draw, so the kind of precompiled headers is "widgets" where none is told.
function(sarne_library name)
    cmake_parse_arguments(ARG "LIGHT" "PRECOMPILED" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_PUBLIC} PRIVATE sarne_options ${ARG_PRIVATE})
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}/src")
    if(ARG_LIGHT)
        target_compile_options(${name} PRIVATE ${SARNE_LIGHT_OPTIONS})
    endif()
    if(NOT ARG_PRECOMPILED)
        set(ARG_PRECOMPILED widgets)
    endif()
    sarne_precompiled(${name} ${ARG_PRECOMPILED})
endfunction()

# The tests that are quick enough to run under the sanitizers with every change; leaks count there.
set(SARNE_SANITIZED_TESTS test_core test_db test_richtext test_forms test_dialogs richtext_fuzz query_fuzz content_fuzz picture_fuzz)
add_custom_target(sanitized_tests)

# sarne_test_settings(name): what every test runs with.
function(sarne_test_settings name)
    set(leaks 0)
    if(name IN_LIST SARNE_SANITIZED_TESTS)
        set(leaks 1)
        add_dependencies(sanitized_tests ${name})
        set_tests_properties(${name} PROPERTIES LABELS sanitized)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT 600 ENVIRONMENT
                         "QT_QPA_PLATFORM=offscreen;ASAN_OPTIONS=detect_leaks=${leaks}")
endfunction()

# sarne_test(name SOURCES ... LIBS ... [PRECOMPILED kind]): one test executable per folder of tests/, run without a display.
function(sarne_test name)
    cmake_parse_arguments(ARG "" "PRECOMPILED" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES} "${CMAKE_SOURCE_DIR}/tests/support/kept.cpp")
    # Not for the whole test: what is compiled with a path is not shared with other checkouts.
    set_property(SOURCE "${CMAKE_SOURCE_DIR}/tests/support/kept.cpp" PROPERTY COMPILE_DEFINITIONS
                 SARNE_TEST_FOLDER="${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE sarne_options GTest::gtest Qt6::Core ${ARG_LIBS})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
    target_compile_options(${name} PRIVATE ${SARNE_LIGHT_OPTIONS})
    if(NOT ARG_PRECOMPILED)
        set(ARG_PRECOMPILED test)
    endif()
    if(SARNE_PRECOMPILED)
        sarne_precompiled(${name} ${ARG_PRECOMPILED})
    else()
        target_compile_options(${name} PRIVATE -include "${CMAKE_SOURCE_DIR}/tests/support/print.h")
    endif()
    add_test(NAME ${name} COMMAND ${name})
    sarne_test_settings(${name})
endfunction()

# sarne_widget_test(name SOURCES ... LIBS ...): as sarne_test, for tests that drive real forms with real events.
function(sarne_widget_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    sarne_test(${name} SOURCES ${ARG_SOURCES} "${CMAKE_SOURCE_DIR}/tests/support/main_widgets.cpp"
               LIBS ${ARG_LIBS} sarne_explore sarne_forms sarne_db SQLiteCpp PkgConfig::SQLITE3 Qt6::Test PRECOMPILED widgettest)
endfunction()
