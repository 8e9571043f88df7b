# SPDX-License-Identifier: GPL-3.0-or-later
# What the program can do without. Each is a setting: ON insists on it, OFF leaves it out, AUTO uses it where it is found.

# sarne_optional(NAME what [MODULES pkg-config modules...] [QT component]): sets SARNE_HAS_NAME; what is had is linked as
# PkgConfig::NAME or Qt6::component.
function(sarne_optional name what)
    cmake_parse_arguments(ARG "" "QT" "MODULES" ${ARGN})
    set(SARNE_${name} AUTO CACHE STRING "${what}: AUTO, ON or OFF")
    set_property(CACHE SARNE_${name} PROPERTY STRINGS AUTO ON OFF)
    set(required REQUIRED)
    if(SARNE_${name} STREQUAL AUTO)
        set(required "")
    endif()
    set(has FALSE)
    if(NOT required OR SARNE_${name})
        if(ARG_QT)
            find_package(Qt6 6.4 ${required} COMPONENTS ${ARG_QT})
            set(has ${Qt6${ARG_QT}_FOUND})
        else()
            pkg_check_modules(${name} ${required} IMPORTED_TARGET GLOBAL ${ARG_MODULES})
            set(has ${${name}_FOUND})
        endif()
    endif()
    if(NOT has)
        message(STATUS "Without ${what}")
    endif()
    set(SARNE_HAS_${name} "${has}" PARENT_SCOPE)
endfunction()

sarne_optional(PULSE "asking the sound server for its devices (libpulse)" MODULES libpulse)
sarne_optional(XRANDR "switching the display's mode (XRandR)" MODULES xrandr x11)
sarne_optional(DBUS "keeping the display awake during films (Qt D-Bus)" QT DBus)
sarne_optional(QPDF "links within printed files (qpdf)" MODULES libqpdf)
sarne_optional(SPEECH "reading aloud (speech dispatcher)" MODULES speech-dispatcher)
