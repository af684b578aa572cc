# Install rules and the package config: find_package(VexBase CONFIG) gives
# vexbase::vexbase with include/vexbase as include root (<base/...>).
include(CMakePackageConfigHelpers)

install(TARGETS vexbase EXPORT VexBaseTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vexbase)

set(VEXBASE_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/VexBase)

install(EXPORT VexBaseTargets
  NAMESPACE vexbase::
  DESTINATION ${VEXBASE_CMAKE_DIR})

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/VexBaseConfig.cmake.in
  ${PROJECT_BINARY_DIR}/VexBaseConfig.cmake
  INSTALL_DESTINATION ${VEXBASE_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VexBaseConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)

install(FILES
  ${PROJECT_BINARY_DIR}/VexBaseConfig.cmake
  ${PROJECT_BINARY_DIR}/VexBaseConfigVersion.cmake
  DESTINATION ${VEXBASE_CMAKE_DIR})
