# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT

# The tools of the toolkit's translators. What else Qt has for CMake here would pull in its Designer.
find_program(LRELEASE lrelease HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)
find_program(LUPDATE lupdate HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)

# pixmallow_translations(base de ...): compiles translations/pixmallow_de.ts and so on into the
# target, as the resource "translations". Nothing is compressed, so that they are read from the
# program's file as they are, and only the pages that are needed.
function(pixmallow_translations target)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/translations)
    set(files "")
    set(entries "")
    foreach(language ${ARGN})
        set(source ${CMAKE_SOURCE_DIR}/translations/pixmallow_${language}.ts)
        set(compiled ${folder}/pixmallow_${language}.qm)
        add_custom_command(OUTPUT ${compiled}
            COMMAND ${LRELEASE} -silent ${source} -qm ${compiled}
            DEPENDS ${source} VERBATIM)
        list(APPEND files ${compiled})
        string(APPEND entries "<file>pixmallow_${language}.qm</file>")
    endforeach()
    file(GENERATE OUTPUT ${folder}/translations.qrc
        CONTENT "<RCC><qresource prefix=\"/translations\">${entries}</qresource></RCC>\n")
    add_custom_command(OUTPUT ${folder}/translations.cpp
        COMMAND Qt6::rcc --no-compress --name translations --output ${folder}/translations.cpp
            ${folder}/translations.qrc
        DEPENDS ${files} ${folder}/translations.qrc VERBATIM)
    target_sources(${target} PRIVATE ${folder}/translations.cpp)
    set_source_files_properties(${folder}/translations.cpp PROPERTIES SKIP_AUTOGEN ON)
endfunction()
