# Shared settings for every target of the project.

# Compile definitions and warnings for our own code; Qt's headers come in as system headers.
function(kb_target_defaults target)
    target_compile_definitions(${target} PRIVATE
        QT_NO_URL_CAST_FROM_STRING
        QT_USE_QSTRINGBUILDER
        QT_NO_FOREACH
        QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    target_compile_options(${target} PRIVATE -Wall -Wextra)
    if(NOT KB_FUZZ)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()

# kb_add_library(NAME SOURCES ... [LIBS ...])
function(kb_add_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    kb_target_defaults(${name})
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(${name} PUBLIC ${ARG_LIBS})
endfunction()

# kb_add_test(NAME SOURCES ... [LIBS ...])
# One QtTest executable, registered with ctest, run offscreen in a pinned time zone.
function(kb_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    kb_target_defaults(${name})
    target_compile_definitions(${name} PRIVATE
        KB_TEST_DATA_DIR="${CMAKE_SOURCE_DIR}/tests/data"
        KB_BINARY_DIR="${CMAKE_BINARY_DIR}")
    target_link_libraries(${name} PRIVATE Qt6::Test ${ARG_LIBS})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=Europe/Berlin;LC_ALL=C.UTF-8;LANG=C.UTF-8"
        TIMEOUT 300)
endfunction()
