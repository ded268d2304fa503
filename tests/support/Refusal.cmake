# check_answer(<what> <expected message, empty: passes> <program> [<argument>...])
#
# Runs a check in the folder WORK, over something in which a fault has been planted, and fails unless it is refused with
# the message.
function(check_answer what expected)
    execute_process(COMMAND ${ARGN} WORKING_DIRECTORY "${WORK}"
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(expected STREQUAL "" AND NOT result EQUAL 0)
        message("${output}")
        message(SEND_ERROR "${what}: refused")
    elseif(NOT expected STREQUAL "" AND (result EQUAL 0 OR NOT output MATCHES "${expected}"))
        message("${output}")
        message(SEND_ERROR "${what}: passed, or refused for another reason than ${expected}")
    endif()
endfunction()
