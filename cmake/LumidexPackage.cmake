# What another project needs to find LumidexUtil: a CMake package and a pkg-config file.

include(CMakePackageConfigHelpers)

set(LUMIDEX_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/LumidexUtil")
configure_package_config_file(cmake/LumidexUtilConfig.cmake.in "${CMAKE_CURRENT_BINARY_DIR}/LumidexUtilConfig.cmake"
  INSTALL_DESTINATION ${LUMIDEX_PACKAGE_DIR})
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/LumidexUtilConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(EXPORT LumidexUtilTargets NAMESPACE LumidexUtil:: DESTINATION ${LUMIDEX_PACKAGE_DIR})
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/LumidexUtilConfig.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/LumidexUtilConfigVersion.cmake" DESTINATION ${LUMIDEX_PACKAGE_DIR})

configure_file(cmake/LumidexUtil.pc.in "${CMAKE_CURRENT_BINARY_DIR}/LumidexUtil.pc" @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/LumidexUtil.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
