# Binary packages with CPack (scripts/package): a Debian package from a Linux
# build, a zip from the mingw-w64 build. Each holds the library, its headers,
# the CMake and pkg-config files and the vex tool.
set(CPACK_PACKAGE_NAME vexbase)
set(CPACK_PACKAGE_VENDOR "Vex suite")
set(CPACK_PACKAGE_CONTACT "VexBase maintainers <maintainers@users.noreply.c-seed-90928713.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DESCRIPTION
    "VexBase is the base library of the Vex suite of hydrographic survey and dredging applications: settings files with checksums and differences, errors, number, coordinate and time formatting, units and geometry. The package holds the shared library, its C++20 headers, CMake and pkg-config files, and the vex command-line tool.")
set(CPACK_RESOURCE_FILE_README ${PROJECT_SOURCE_DIR}/README.md)
# Users debug against a build tree; the packages stay small.
set(CPACK_STRIP_FILES ON)
set(CPACK_SOURCE_GENERATOR "")

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME ${CPACK_PACKAGE_NAME}-${PROJECT_VERSION}-win64)
else()
  set(CPACK_GENERATOR DEB)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
  # Depends from the libraries the programs load; the shlibs file and the
  # ldconfig trigger let other packages depend on this one.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
endif()

include(CPack)
