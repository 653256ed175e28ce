# What `cmake --install` puts where: the library and its headers, a CMake package and a pkg-config
# file. The message catalogues are installed by po/. Everything refers to everything else by
# relative paths, so that an install tree can be moved.

include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Ostrel")
set(pkgconfig_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

install(TARGETS Ostrel EXPORT OstrelTargets FILE_SET HEADERS)
install(EXPORT OstrelTargets NAMESPACE Ostrel:: DESTINATION "${package_dir}")

configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/OstrelConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/OstrelConfig.cmake"
  INSTALL_DESTINATION "${package_dir}"
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/OstrelConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/OstrelConfig.cmake"
              "${PROJECT_BINARY_DIR}/OstrelConfigVersion.cmake"
              "${CMAKE_CURRENT_LIST_DIR}/OstrelDependencies.cmake"
  DESTINATION "${package_dir}")

file(RELATIVE_PATH prefix_from_pkgconfig "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig"
     "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig "${prefix_from_pkgconfig}")
file(RELATIVE_PATH libdir_from_prefix "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_LIBDIR}")
file(RELATIVE_PATH includedir_from_prefix "${CMAKE_INSTALL_PREFIX}"
     "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
configure_file("${CMAKE_CURRENT_LIST_DIR}/Ostrel.pc.in" "${PROJECT_BINARY_DIR}/Ostrel.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/Ostrel.pc" DESTINATION "${pkgconfig_dir}")
