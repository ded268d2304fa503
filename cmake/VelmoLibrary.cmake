# velmo_library(<target> <name> FOLDERS <folder>... PUBLIC_HEADERS <header>... SOURCES <file>...)
#
# A shared library of the package: alias Velmo2::<name>, file name Velmo2.<name>. Public headers are given relative to
# the current folder and are installed under the same relative path. Users may include a header by its path from the
# library's root or by its name alone.
function(velmo_library target name)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "FOLDERS;PUBLIC_HEADERS;SOURCES")

    add_library(${target} SHARED ${arg_PUBLIC_HEADERS} ${arg_SOURCES})
    add_library(Velmo2::${name} ALIAS ${target})
    velmo_compile_settings(${target})
    target_compile_features(${target} INTERFACE cxx_std_17)

    string(TOUPPER "VELMO_${name}_BUILD" build_definition)
    target_compile_definitions(${target} PRIVATE ${build_definition}
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME "Velmo2.${name}"
        EXPORT_NAME ${name}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        VELMO_PUBLIC_HEADERS "${arg_PUBLIC_HEADERS}")
    if(WIN32)
        set_target_properties(${target} PROPERTIES PREFIX "")
    elseif(NOT APPLE)
        # The libraries lie in one folder wherever they are installed. What Windows would not link does not link here.
        set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
        target_link_options(${target} PRIVATE LINKER:--no-undefined)
    endif()

    set(install_root "${CMAKE_INSTALL_INCLUDEDIR}/Velmo2/Velmo.${name}")
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>" "$<INSTALL_INTERFACE:${install_root}>")
    foreach(folder IN LISTS arg_FOLDERS)
        target_include_directories(${target} INTERFACE
            "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/${folder}>" "$<INSTALL_INTERFACE:${install_root}/${folder}>")
    endforeach()
    foreach(header IN LISTS arg_PUBLIC_HEADERS)
        get_filename_component(folder "${header}" DIRECTORY)
        install(FILES "${header}" DESTINATION "${install_root}/${folder}" COMPONENT Development)
    endforeach()
    install(TARGETS ${target} EXPORT Velmo2GUITargets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development)
endfunction()
