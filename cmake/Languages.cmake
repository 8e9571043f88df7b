# SPDX-License-Identifier: GPL-3.0-or-later
# Further languages of the program's texts: each `translations/sarne_LL.ts` is compiled into the program. The target
# `texts` gathers what there is to translate from the sources into these files.
file(GLOB SARNE_LANGUAGES CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/translations/sarne_*.ts")

function(sarne_add_languages target)
    if(NOT SARNE_LANGUAGES)
        return()
    endif()
    set(bin "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS}" "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}" /usr/lib/qt6/bin)
    find_program(SARNE_LRELEASE lrelease HINTS ${bin} REQUIRED)
    find_program(SARNE_LUPDATE lupdate HINTS ${bin} REQUIRED)
    set(compiled "")
    foreach(source IN LISTS SARNE_LANGUAGES)
        get_filename_component(name "${source}" NAME_WE)
        set(qm "${CMAKE_BINARY_DIR}/translations/${name}.qm")
        add_custom_command(OUTPUT "${qm}" DEPENDS "${source}" COMMAND "${SARNE_LRELEASE}" -silent "${source}" -qm "${qm}")
        list(APPEND compiled "${qm}")
    endforeach()
    qt_add_resources(${target} languages PREFIX / BASE "${CMAKE_BINARY_DIR}" FILES ${compiled})
    # A new language begins as an empty file, which the tool itself makes but does not read.
    add_custom_target(texts COMMAND find ${SARNE_LANGUAGES} -empty -delete
                      COMMAND "${SARNE_LUPDATE}" -locations none -no-obsolete "${CMAKE_SOURCE_DIR}/src"
                      -ts ${SARNE_LANGUAGES})
endfunction()
