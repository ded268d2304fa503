# velmo_build_date(<variable>)
#
# The date that this source tells for its builds, as 2026-01-31, so that equal sources make equal binaries: that of
# SOURCE_DATE_EPOCH, else of the last commit, else of the source as it was packed.
function(velmo_build_date variable)
    set(packed "${PROJECT_SOURCE_DIR}/CMakeLists.txt")
    file(TIMESTAMP "${packed}" date "%Y-%m-%d" UTC)
    if(DEFINED ENV{SOURCE_DATE_EPOCH})
        # This command takes the variable for the current time.
        string(TIMESTAMP date "%Y-%m-%d" UTC)
        set(${variable} "${date}" PARENT_SCOPE)
        return()
    endif()

    find_package(Git QUIET)
    if(NOT GIT_FOUND OR NOT EXISTS "${PROJECT_SOURCE_DIR}/.git")
        set(${variable} "${date}" PARENT_SCOPE)
        return()
    endif()
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env TZ=UTC0 "${GIT_EXECUTABLE}" log -1 --format=%cd --date=format-local:%Y-%m-%d
        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}" OUTPUT_VARIABLE committed OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    if(committed MATCHES "^[0-9]+-[0-9]+-[0-9]+$")
        set(date "${committed}")
    endif()
    # A commit configures again.
    execute_process(COMMAND "${GIT_EXECUTABLE}" rev-parse --git-path logs/HEAD
        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}" OUTPUT_VARIABLE log OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    get_filename_component(log "${log}" ABSOLUTE BASE_DIR "${PROJECT_SOURCE_DIR}")
    if(EXISTS "${log}" AND NOT IS_DIRECTORY "${log}")
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${log}")
    endif()
    set(${variable} "${date}" PARENT_SCOPE)
endfunction()
