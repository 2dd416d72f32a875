# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT

# What every target of the project is compiled with.
function(pixmallow_compile_options target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Werror)
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
endfunction()

# pixmallow_room(base SOURCES ... LINKS ...): one folder of src/ as a static library. LINKS repeats
# the row of the include table in ARCHITECTURE.md.
function(pixmallow_room room)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINKS")
    string(REPLACE "/" "_" target ${room})
    add_library(${target} STATIC ${ARG_SOURCES})
    target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${target} PUBLIC ${ARG_LINKS})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    pixmallow_compile_options(${target})
endfunction()

# pixmallow_test(base/PngWriterTest LINKS ...): one test program from tests/base/PngWriterTest.cpp,
# its cases known to ctest by name, as "desktop" if they need a virtual one, and as "campaign" if
# they make a row of docs/reliability.md.
function(pixmallow_test path)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINKS;PROPERTIES")
    get_filename_component(target ${path} NAME)
    add_executable(${target} ${CMAKE_SOURCE_DIR}/tests/${path}.cpp ${ARG_SOURCES})
    target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR})
    target_link_libraries(${target} PRIVATE ${ARG_LINKS} GTest::gmock)
    if(NOT "OWN_MAIN" IN_LIST ARG_UNPARSED_ARGUMENTS)
        target_link_libraries(${target} PRIVATE GTest::gtest_main)
    endif()
    pixmallow_compile_options(${target})
    set(labels "")
    if("desktop_main" IN_LIST ARG_LINKS)
        list(APPEND labels desktop)
    endif()
    if("campaign" IN_LIST ARG_LINKS)
        list(APPEND labels campaign)
    endif()
    list(JOIN labels " " labels) # A list would come apart on its way to ctest.
    if(labels)
        list(APPEND ARG_PROPERTIES LABELS "${labels}")
    endif()
    gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60 PROPERTIES ${ARG_PROPERTIES})
endfunction()
