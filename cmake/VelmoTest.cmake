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

# velmo_test(<label> <name> [POSIX] [SCALES <factor>...] [LIBRARIES <library>...])
#
# A Qt Test program tests/<label>/<name>.cpp, run once at scale 1 and once more at every factor of SCALES.
# POSIX marks a test that needs a POSIX system; it is left out elsewhere.
function(velmo_test label name)
    cmake_parse_arguments(PARSE_ARGV 2 arg "POSIX" "" "SCALES;LIBRARIES")
    if(arg_POSIX AND NOT UNIX)
        return()
    endif()

    add_executable(${name} "${label}/${name}.cpp")
    velmo_compile_settings(${name})
    target_link_libraries(${name} PRIVATE Velmo2::GUI VelmoTestSupport ${arg_LIBRARIES})

    # The platform is an argument rather than a variable, since compatibility layers drop QT_ variables.
    set(test ${label}.${name})
    add_test(NAME ${test} COMMAND ${name} -platform offscreen)
    set(tests ${test})
    foreach(factor IN LISTS arg_SCALES)
        add_test(NAME ${test}@${factor} COMMAND ${name} -platform offscreen --scale ${factor})
        list(APPEND tests ${test}@${factor})
    endforeach()
    velmo_test_environment(${tests})
    set_tests_properties(${tests} PROPERTIES LABELS ${label})
endfunction()
