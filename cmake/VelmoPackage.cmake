# The files that let another project write find_package(Velmo2GUI).
include(CMakePackageConfigHelpers)

set(velmo_package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/Velmo2GUI")
configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/Velmo2GUIConfig.cmake.in" "${PROJECT_BINARY_DIR}/Velmo2GUIConfig.cmake"
    INSTALL_DESTINATION "${velmo_package_folder}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/Velmo2GUIConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)

install(EXPORT Velmo2GUITargets NAMESPACE Velmo2:: DESTINATION "${velmo_package_folder}" COMPONENT Development)
install(FILES
    "${PROJECT_BINARY_DIR}/Velmo2GUIConfig.cmake"
    "${PROJECT_BINARY_DIR}/Velmo2GUIConfigVersion.cmake"
    DESTINATION "${velmo_package_folder}" COMPONENT Development)
