# SPDX-License-Identifier: GPL-3.0-or-later
# Precompiled headers: nine tenths of compiling a source are the headers of Qt and of the standard library. Each kind below
# is compiled once and used by all folders of its kind; with SARNE_PRECOMPILED off every source proves that it includes
# what it needs (the sanitizer build does).

option(SARNE_PRECOMPILED "Precompile the headers of the libraries" ON)

# What waits for a user or for files is compiled sooner, and is none the slower; so are tests, which run once for each
# time they are compiled.
if(CMAKE_BUILD_TYPE STREQUAL Release)
    set(SARNE_LIGHT_OPTIONS -O1)
endif()

# sarne_precompiled_kind(kind targets...): the headers in precompiled/kind.h, compiled against the given libraries.
function(sarne_precompiled_kind kind)
    if(NOT SARNE_PRECOMPILED)
        return()
    endif()
    set(source "${CMAKE_BINARY_DIR}/precompiled/${kind}.cpp")
    set(header "${CMAKE_SOURCE_DIR}/cmake/precompiled/${kind}.h")
    file(CONFIGURE OUTPUT "${source}" CONTENT "")
    add_library(sarne_precompiled_${kind} OBJECT "${source}")
    target_link_libraries(sarne_precompiled_${kind} PRIVATE sarne_options ${ARGN})
    if(kind MATCHES "test$")
        target_compile_options(sarne_precompiled_${kind} PRIVATE ${SARNE_LIGHT_OPTIONS})
    endif()
    target_precompile_headers(sarne_precompiled_${kind} PRIVATE "${header}")
    # What ccache knows the compiled headers by: the same in every checkout, though the compiled file is not.
    file(GLOB_RECURSE headers "${CMAKE_SOURCE_DIR}/cmake/precompiled/*.h" "${CMAKE_SOURCE_DIR}/tests/support/print.h")
    set(known "${CMAKE_CXX_COMPILER_VERSION} ${Qt6_VERSION} ${GTest_VERSION} ${CMAKE_BUILD_TYPE} ${CMAKE_CXX_FLAGS}")
    foreach(each IN LISTS headers)
        file(SHA256 "${each}" digest)
        string(APPEND known " ${digest}")
    endforeach()
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/sarne_precompiled_${kind}.dir")
    file(CONFIGURE OUTPUT "${folder}/cmake_pch.hxx.gch.sum" CONTENT "${known}")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${headers}")
endfunction()

# sarne_precompiled(target kind): lets the target's sources begin with that kind's headers.
function(sarne_precompiled target kind)
    if(SARNE_PRECOMPILED)
        target_precompile_headers(${target} REUSE_FROM sarne_precompiled_${kind})
    endif()
endfunction()
