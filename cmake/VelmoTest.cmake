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
    add_test(NAME ${label}.${name} COMMAND ${name} -platform offscreen)
    set_tests_properties(${label}.${name} PROPERTIES LABELS ${label} TIMEOUT 300)
    foreach(factor IN LISTS arg_SCALES)
        add_test(NAME ${label}.${name}@${factor} COMMAND ${name} -platform offscreen --scale ${factor})
        set_tests_properties(${label}.${name}@${factor} PROPERTIES LABELS ${label} TIMEOUT 300)
    endforeach()
endfunction()
