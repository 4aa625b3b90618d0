# What outside projects find the installed library by: the CMake package and the pkg-config file.
include(CMakePackageConfigHelpers)

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/MURTimelineConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/MURTimelineConfig.cmake INSTALL_DESTINATION ${MUR_PACKAGE_FOLDER})
# Before 1.0 every minor version may break hosts.
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/MURTimelineConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/MURTimelineConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/MURTimelineConfigVersion.cmake DESTINATION ${MUR_PACKAGE_FOLDER})

set(pkgConfigFolder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH upToPrefix /${pkgConfigFolder} /)
string(REGEX REPLACE "/$" "" upToPrefix ${upToPrefix})
configure_file(${CMAKE_CURRENT_LIST_DIR}/murtimeline.pc.in ${CMAKE_CURRENT_BINARY_DIR}/murtimeline.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/murtimeline.pc DESTINATION ${pkgConfigFolder})

install(FILES README.md LICENSE CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
