# What another project needs to find LumidexUtil: a CMake package and a pkg-config file. Both keep working when the
# installed tree is moved.

include(CMakePackageConfigHelpers)

set(LUMIDEX_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/LumidexUtil")
configure_package_config_file(cmake/LumidexUtilConfig.cmake.in "${CMAKE_CURRENT_BINARY_DIR}/LumidexUtilConfig.cmake"
  INSTALL_DESTINATION ${LUMIDEX_PACKAGE_DIR})
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/LumidexUtilConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(EXPORT LumidexUtilTargets NAMESPACE LumidexUtil:: DESTINATION ${LUMIDEX_PACKAGE_DIR})
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/LumidexUtilConfig.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/LumidexUtilConfigVersion.cmake" DESTINATION ${LUMIDEX_PACKAGE_DIR})

set(LUMIDEX_PC_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  # Not below the prefix: nothing to count up from.
  set(LUMIDEX_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
else()
  file(RELATIVE_PATH up "/${LUMIDEX_PC_DIR}" "/")
  string(REGEX REPLACE "/$" "" up "${up}")
  set(LUMIDEX_PC_PREFIX "\${pcfiledir}/${up}")
endif()
# An absolute folder replaces the prefix.
cmake_path(APPEND LUMIDEX_PC_LIBDIR "\${prefix}" "${CMAKE_INSTALL_LIBDIR}")
cmake_path(APPEND LUMIDEX_PC_INCLUDEDIR "\${prefix}" "${LUMIDEX_HEADERS_DIR}")
configure_file(cmake/LumidexUtil.pc.in "${CMAKE_CURRENT_BINARY_DIR}/LumidexUtil.pc" @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/LumidexUtil.pc" DESTINATION ${LUMIDEX_PC_DIR})
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
