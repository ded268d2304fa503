# Runs a Windows program under Wine, on an X server of its own: cmake -DWINE=... -DWINESERVER=... -DXVFB_RUN=...
# -DWORK=<folder> -DPROGRAM=<exe> -DARGUMENTS=<list> -P RunUnderWine.cmake
#
# Wine's own files are made in the folder by the first run, which takes half a minute, and kept. The folder is the home
# folder too, so that nothing of the user's is read or written.
set(ENV{HOME} "${WORK}")
set(ENV{LC_ALL} "C.UTF-8") # or Wine would refuse file names beyond ASCII
set(ENV{WINEPREFIX} "${WORK}/prefix")
set(ENV{WINEDEBUG} "-all")
set(ENV{WINEDLLOVERRIDES} "mscoree=;mshtml=;winemenubuilder.exe=")

# The time limit is inside, so that xvfb-run still ends its server. The output goes to a file, since Wine's services
# would hold a pipe open.
function(run_under_wine seconds)
    execute_process(
        COMMAND "${XVFB_RUN}" -a timeout ${seconds} "${WINE}" ${ARGN}
        WORKING_DIRECTORY "${WORK}"
        OUTPUT_FILE "${WORK}/output.txt"
        ERROR_FILE "${WORK}/output.txt"
        RESULT_VARIABLE result)
    execute_process(COMMAND "${WINESERVER}" -k ERROR_QUIET)
    execute_process(COMMAND "${WINESERVER}" -w ERROR_QUIET)
    if(NOT result EQUAL 0)
        file(READ "${WORK}/output.txt" output)
        message(FATAL_ERROR "${ARGN} ended with ${result}\n${output}")
    endif()
endfunction()

file(MAKE_DIRECTORY "${WORK}")
if(NOT EXISTS "${WORK}/prefix-is-made")
    file(REMOVE_RECURSE "${WORK}/prefix")
    run_under_wine(180 wineboot --init)
    file(TOUCH "${WORK}/prefix-is-made")
endif()
run_under_wine(60 "${PROGRAM}" ${ARGUMENTS})
