# velmo_test_environment(<test>...)
#
# Frees a test from what the user's session sets, and lets programs find the toolkit's libraries on Windows.
function(velmo_test_environment)
    set(changes
        LC_ALL=set:C.UTF-8
        QT_SCALE_FACTOR=unset: QT_SCREEN_SCALE_FACTORS=unset: QT_FONT_DPI=unset:
        QT_STYLE_OVERRIDE=unset: QT_QPA_PLATFORMTHEME=unset: QT_LOGGING_RULES=unset:)
    if(WIN32)
        list(APPEND changes "PATH=path_list_prepend:$<TARGET_FILE_DIR:Qt6::Core>")
    endif()
    set_tests_properties(${ARGV} PROPERTIES ENVIRONMENT_MODIFICATION "${changes}" TIMEOUT 300)
endfunction()

# velmo_tests_wanted(<result> <option> <tool>...)
#
# Whether the tests that <option> stands for (ON, OFF, or AUTO, where the tools are found) are to be made. The tools are
# variables of find_program; it is an error when tests are asked for and a tool is missing.
function(velmo_tests_wanted result option)
    set(${result} OFF PARENT_SCOPE)
    # Sanitized programs are slow, and what such tests rest on is not sanitized.
    if(NOT ${option} OR VELMO_SANITIZE OR NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
        return()
    endif()
    foreach(tool IN LISTS ARGN)
        if(NOT ${tool} AND ${option} STREQUAL "AUTO")
            message(STATUS "Tests left out (${option}): ${tool} is not found")
            return()
        elseif(NOT ${tool})
            message(FATAL_ERROR "${option} asks for tests, but ${tool} is not found")
        endif()
    endforeach()
    set(${result} ON PARENT_SCOPE)
endfunction()

# velmo_test_program(<name> <source>...)
#
# An executable of tests/CMakeLists.txt. Under sanitizers it is not optimized: what it tests is.
function(velmo_test_program name)
    add_executable(${name} ${ARGN})
    velmo_compile_settings(${name})
    target_link_libraries(${name} PRIVATE Velmo2::GUI VelmoTestSupport)
    if(VELMO_SANITIZE AND NOT MSVC)
        target_compile_options(${name} PRIVATE -O0)
    endif()
    if(NOT VELMO_PRECOMPILED_HEADERS)
        return()
    endif()

    set(owner VelmoTestHeaders)
    if(NOT TARGET ${owner})
        file(CONFIGURE OUTPUT ${owner}.cpp CONTENT "" @ONLY)
        add_library(${owner} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${owner}.cpp")
        velmo_compile_settings(${owner})
        set_target_properties(${owner} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
        target_link_libraries(${owner} PRIVATE Qt6::Widgets Qt6::Test)
        if(VELMO_SANITIZE AND NOT MSVC)
            target_compile_options(${owner} PRIVATE -O0)
        endif()
        velmo_precompile(${owner} <QAccessible> <QSignalSpy> <QTemporaryDir> <QTest>)
    endif()
    target_precompile_headers(${name} REUSE_FROM ${owner})
    # Sources include their own, so there is next to nothing in it.
    set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp" PROPERTIES
        SKIP_PRECOMPILE_HEADERS ON)
endfunction()

# velmo_test(<label> <name> [POSIX] [SCALES <factor>...] [LIBRARIES <library>...])
#
# A Qt Test program tests/<label>/<name>.cpp, run once at scale 1 and once more at every factor of SCALES.
# POSIX marks a test that needs a POSIX system; it is left out elsewhere. The target <label>_tests builds those of a
# label.
function(velmo_test label name)
    cmake_parse_arguments(PARSE_ARGV 2 arg "POSIX" "" "SCALES;LIBRARIES")
    if(arg_POSIX AND NOT UNIX)
        return()
    endif()

    velmo_test_program(${name} "${label}/${name}.cpp")
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    if(NOT TARGET ${label}_tests)
        add_custom_target(${label}_tests)
    endif()
    add_dependencies(${label}_tests ${name})

    # The platform is an argument rather than a variable, since compatibility layers drop QT_ variables.
    set(test ${label}.${name})
    add_test(NAME ${test} COMMAND ${name} -platform offscreen)
    set(tests ${test})
    if(VELMO_SANITIZE)
        set(arg_SCALES "") # a scale makes other numbers, not other memory
    endif()
    foreach(factor IN LISTS arg_SCALES)
        add_test(NAME ${test}@${factor} COMMAND ${name} -platform offscreen --scale ${factor})
        list(APPEND tests ${test}@${factor})
    endforeach()
    velmo_test_environment(${tests})
    set_tests_properties(${tests} PROPERTIES LABELS ${label})
endfunction()

set(VELMO_DESKTOP_TESTS AUTO CACHE STRING "Test on a display of their own: ON, OFF, or AUTO, where the tools are found")
find_program(VELMO_XVFB NAMES Xvfb)
find_program(VELMO_OPENBOX NAMES openbox)
find_program(VELMO_XDOTOOL NAMES xdotool)

# velmo_desktop_test(<name> [LIBRARIES <library>...])
#
# A Qt Test program tests/desktop/<name>.cpp, run with a display, a window manager and a pointer of its own.
function(velmo_desktop_test name)
    velmo_tests_wanted(wanted VELMO_DESKTOP_TESTS VELMO_XVFB VELMO_OPENBOX VELMO_XDOTOOL)
    if(NOT wanted)
        return()
    endif()
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBRARIES")
    velmo_test_program(${name} "desktop/${name}.cpp" desktop/RealInput.cpp)
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    add_test(NAME desktop.${name}
        COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/desktop/run-on-desktop.sh" $<TARGET_FILE:${name}> -platform xcb)
    velmo_test_environment(desktop.${name})
    # A user's patience is part of some of them.
    set_tests_properties(desktop.${name} PROPERTIES LABELS desktop RUN_SERIAL ON)
endfunction()

find_program(VELMO_DBUS_RUN_SESSION NAMES dbus-run-session)
find_program(VELMO_AT_SPI_REGISTRY NAMES at-spi2-registryd PATHS /usr/libexec)
find_program(VELMO_SYSTEM_PYTHON NAMES python3 PATHS /usr/bin NO_DEFAULT_PATH)
if(VELMO_SYSTEM_PYTHON AND NOT VELMO_AT_SPI_BINDINGS)
    # The system's own, which its bindings are installed for.
    execute_process(COMMAND ${VELMO_SYSTEM_PYTHON} -c "import gi; gi.require_version('Atspi', '2.0')"
        RESULT_VARIABLE missing OUTPUT_QUIET ERROR_QUIET)
    if(NOT missing)
        set(VELMO_AT_SPI_BINDINGS ON CACHE INTERNAL "Python can use the accessibility bus")
    endif()
endif()

# velmo_assistive_test(<name> <target>)
#
# A Python program tests/accessibility/<name>.py that uses the running program of <target> as assistive tools do, on a
# display and buses of their own.
function(velmo_assistive_test name target)
    velmo_tests_wanted(wanted VELMO_DESKTOP_TESTS VELMO_XVFB VELMO_OPENBOX VELMO_DBUS_RUN_SESSION VELMO_AT_SPI_REGISTRY
        VELMO_SYSTEM_PYTHON VELMO_AT_SPI_BINDINGS)
    if(NOT wanted)
        return()
    endif()
    set(test accessibility.${name})
    add_test(NAME ${test}
        COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/desktop/run-on-desktop.sh" ${VELMO_DBUS_RUN_SESSION} --
            ${VELMO_SYSTEM_PYTHON} -B "${CMAKE_CURRENT_SOURCE_DIR}/accessibility/${name}.py" $<TARGET_FILE:${target}>)
    velmo_test_environment(${test})
    set_tests_properties(${test} PROPERTIES LABELS accessibility)
endfunction()
