# Installation: the library, every header under its path in the repository, the message catalogue, and the
# two ways to find them, find_package(bexa) and pkg-config.
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/bexa")

install(TARGETS bexa EXPORT bexaTargets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/bexa/"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/bexa"
  FILES_MATCHING PATTERN "*.h")
# With YDSROOT=<prefix>/share/bexa the library finds its texts.
install(DIRECTORY "${PROJECT_SOURCE_DIR}/data/msg"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/bexa"
  FILES_MATCHING PATTERN "*.rsc")

install(EXPORT bexaTargets NAMESPACE bexa:: DESTINATION "${package_dir}")
configure_package_config_file(
  "${PROJECT_SOURCE_DIR}/cmake/bexaConfig.cmake.in" "${PROJECT_BINARY_DIR}/bexaConfig.cmake"
  INSTALL_DESTINATION "${package_dir}")
# Before 1.0 a minor version may change the interface.
write_basic_package_version_file("${PROJECT_BINARY_DIR}/bexaConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/bexaConfig.cmake" "${PROJECT_BINARY_DIR}/bexaConfigVersion.cmake"
  DESTINATION "${package_dir}")

# The prefix is found from where the file lies, so that an installed tree can be moved.
set(pkgconfig_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
  set(pkgconfig_prefix "${CMAKE_INSTALL_PREFIX}")
  set(pkgconfig_libdir "${CMAKE_INSTALL_FULL_LIBDIR}")
  set(pkgconfig_includedir "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
else()
  file(RELATIVE_PATH way_up "/${pkgconfig_dir}" "/")
  string(REGEX REPLACE "/$" "" way_up "${way_up}")
  set(pkgconfig_prefix "\${pcfiledir}/${way_up}")
  set(pkgconfig_libdir "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
  set(pkgconfig_includedir "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
configure_file("${PROJECT_SOURCE_DIR}/cmake/bexa.pc.in" "${PROJECT_BINARY_DIR}/bexa.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/bexa.pc" DESTINATION "${pkgconfig_dir}")
