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

# pkg-config file for builds without CMake. Paths are relative to the file's
# own folder where the install layout allows, so a moved prefix still works.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(VEXBASE_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
else()
  file(RELATIVE_PATH _up /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
  string(REGEX REPLACE "/$" "" _up "${_up}")
  set(VEXBASE_PC_PREFIX "\${pcfiledir}/${_up}")
endif()
foreach(_dir LIBDIR INCLUDEDIR)
  if(IS_ABSOLUTE "${CMAKE_INSTALL_${_dir}}")
    set(VEXBASE_PC_${_dir} ${CMAKE_INSTALL_${_dir}})
  else()
    set(VEXBASE_PC_${_dir} "\${prefix}/${CMAKE_INSTALL_${_dir}}")
  endif()
endforeach()
string(APPEND VEXBASE_PC_INCLUDEDIR /vexbase)
set(VEXBASE_PC_CFLAGS "")
if(NOT BUILD_SHARED_LIBS)
  set(VEXBASE_PC_CFLAGS " -DVEXBASE_STATIC")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/vexbase.pc.in ${PROJECT_BINARY_DIR}/vexbase.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vexbase.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# A Windows install runs by itself: the MinGW runtime DLLs that the library
# and the tool load go beside them.
if(MINGW)
  include(${PROJECT_SOURCE_DIR}/cmake/VexBaseMingwRuntime.cmake)
  vexbase_mingw_runtime_dlls(_runtime_dlls)
  install(FILES ${_runtime_dlls} DESTINATION ${CMAKE_INSTALL_BINDIR})
  # Debian's libstdc++-6.dll carries 20 MB of debug information; a stripped
  # install (cmake --install --strip, and the zip) drops it as for our files.
  if(CMAKE_STRIP)
    foreach(_dll IN LISTS _runtime_dlls)
      get_filename_component(_name ${_dll} NAME)
      install(CODE "if(CMAKE_INSTALL_DO_STRIP)
  execute_process(COMMAND \"${CMAKE_STRIP}\" --strip-debug
    \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/${_name}\")
endif()")
    endforeach()
  endif()
endif()
