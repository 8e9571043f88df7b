# SPDX-License-Identifier: GPL-3.0-or-later
# Where an installed program lies: the program in libdir as its own folder, the data it stands beside linked from
# datadir, the launcher in bindir, the compact disc under datadir. Nothing knows the prefix, so a staged tree runs from
# where it stands. Components: program, data, tools.
include(GNUInstallDirs)

set(folder "${CMAKE_INSTALL_LIBDIR}/velisa-sarn")
set(data "${CMAKE_INSTALL_DATADIR}/velisa-sarn")
set(made "${CMAKE_BINARY_DIR}/disc-out")
set(wanted "${CMAKE_BINARY_DIR}/install")

# Links and settings are written down relative to where they stand.
function(sarne_way from to result)
    file(RELATIVE_PATH way "/root/${from}" "/root/${to}")
    set(${result} "${way}" PARENT_SCOPE)
endfunction()
sarne_way("${CMAKE_INSTALL_BINDIR}" "${folder}" SARNE_PROGRAM_FROM_BIN)
sarne_way("${folder}" "${data}/program" to_data)
sarne_way("${folder}" "${data}/disc" to_disc)

# --- program
set(programs sarne)
if(SARNE_HAS_XRANDR)
    list(APPEND programs sarne-obnov)
endif()
install(TARGETS ${programs} RUNTIME DESTINATION "${folder}" COMPONENT program)
configure_file(packaging/velisa-sarn.in "${wanted}/velisa-sarn" @ONLY)
install(PROGRAMS "${wanted}/velisa-sarn" DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT program)
file(CONFIGURE OUTPUT "${wanted}/Dunvik.exe.conf" CONTENT "[General]\nCDPath=${to_disc}\n")
install(FILES "${wanted}/Dunvik.exe.conf" DESTINATION "${folder}/nastaveni/App Paths" COMPONENT program)
foreach(name Sarne.drc Sarne.rcc KOp.bj siroke)
    install(CODE "
        set(link \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${folder}/${name}\")
        message(STATUS \"Linking: \${link}\")
        file(REMOVE \"\${link}\")
        file(CREATE_LINK \"${to_data}/${name}\" \"\${link}\" SYMBOLIC)" COMPONENT program)
endforeach()

# --- desktop
install(FILES "packaging/desktop/${SARNE_ID}.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications"
        COMPONENT program)
foreach(size 16 22 24 32 48 64 128 256 512)
    install(FILES "packaging/icons/${SARNE_ID}-${size}.png" RENAME "${SARNE_ID}.png" COMPONENT program
            DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps")
endforeach()
install(FILES "packaging/icons/${SARNE_ID}.svg" COMPONENT program
        DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")

# Releases as CHANGELOG.md tells them.
set(SARNE_URL "https://sarn.velisa.example" CACHE STRING "Where the project and its pictures are published")
file(STRINGS CHANGELOG.md changes ENCODING UTF-8)
set(SARNE_RELEASE_NOTES "")
foreach(line IN LISTS changes)
    string(REPLACE "&" "&amp;" line "${line}")
    string(REPLACE "<" "&lt;" line "${line}")
    if(line MATCHES "^## ([0-9.]+) – ([-0-9]+)")
        if(SARNE_RELEASE_NOTES)
            string(APPEND SARNE_RELEASE_NOTES "</ul></description></release>\n")
        else()
            set(SARNE_DATE "${CMAKE_MATCH_2}")
        endif()
        string(APPEND SARNE_RELEASE_NOTES
               "    <release version=\"${CMAKE_MATCH_1}\" date=\"${CMAKE_MATCH_2}\" type=\"stable\"><description><ul>\n")
    elseif(SARNE_RELEASE_NOTES AND line MATCHES "^- (.*)")  # what is not released yet stands before the first
        string(APPEND SARNE_RELEASE_NOTES "      <li>${CMAKE_MATCH_1}</li>\n")
    elseif(SARNE_RELEASE_NOTES AND line MATCHES "^  (.*)")  # the line before goes on
        string(REGEX REPLACE "</li>\n$" " ${CMAKE_MATCH_1}</li>\n" SARNE_RELEASE_NOTES "${SARNE_RELEASE_NOTES}")
    endif()
endforeach()
string(APPEND SARNE_RELEASE_NOTES "    </ul></description></release>\n")
configure_file("packaging/desktop/${SARNE_ID}.metainfo.xml.in" "${wanted}/${SARNE_ID}.metainfo.xml" @ONLY)
install(FILES "${wanted}/${SARNE_ID}.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT program)

# --- manual pages
foreach(language "" cs/)
    foreach(page velisa-sarn.6 sarne-disc.1)
        configure_file("packaging/man/${language}${page}" "${wanted}/man/${language}${page}" @ONLY)
        string(REGEX REPLACE ".*\\." "" section "${page}")
        set(component program)
        if(page STREQUAL "sarne-disc.1")
            set(component tools)
        endif()
        install(FILES "${wanted}/man/${language}${page}" COMPONENT ${component}
                DESTINATION "${CMAKE_INSTALL_MANDIR}/${language}man${section}")
    endforeach()
endforeach()

# --- data
install(DIRECTORY "${made}/program/" DESTINATION "${data}/program" COMPONENT data
        PATTERN sarne EXCLUDE PATTERN sarne-obnov EXCLUDE)
install(DIRECTORY "${made}/disc/" DESTINATION "${data}/disc" COMPONENT data)
# The disc has a photo once under two names; so has what is installed.
install(CODE "
    set(photos \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${data}/disc/foto\")
    file(GLOB finest RELATIVE \"\${photos}/Recepty\" \"\${photos}/Recepty/*\")
    foreach(name IN LISTS finest)
        execute_process(COMMAND \"${CMAKE_COMMAND}\" -E compare_files \"\${photos}/Recepty/\${name}\"
                                \"\${photos}/Velke/\${name}\" RESULT_VARIABLE differ OUTPUT_QUIET ERROR_QUIET)
        if(NOT differ)
            file(REMOVE \"\${photos}/Velke/\${name}\")
            file(CREATE_LINK \"../Recepty/\${name}\" \"\${photos}/Velke/\${name}\" SYMBOLIC)
        endif()
    endforeach()" COMPONENT data)

# --- tools
install(TARGETS sarne-disc RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tools)
