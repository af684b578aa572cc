# Makes the Debian package from the build tree, unpacks it with dpkg -x into
# a scratch root and checks its fields, its contents and that its vex runs
# from there.
# Arguments: -DBUILD_DIR= -DWORK_DIR= -DCPACK= -DVERSION= -DCOMMIT=ON|OFF -DLIBDIR= -DMANDIR=
include(${CMAKE_CURRENT_LIST_DIR}/InstalledTool.cmake)
file(REMOVE_RECURSE ${WORK_DIR})

execute_process(COMMAND ${CPACK} -G DEB --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR}
                RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE out)
file(GLOB deb ${WORK_DIR}/*.deb)
list(LENGTH deb count)
if(rc OR NOT count EQUAL 1)
  message(FATAL_ERROR "cpack made no Debian package:\n${out}")
endif()
file(SIZE ${deb} size)
message(STATUS "${deb}: ${size} bytes")

execute_process(COMMAND dpkg-deb --field ${deb} Package Version Depends OUTPUT_VARIABLE fields)
if(NOT fields MATCHES "Package: vexbase\nVersion: ${VERSION}\n" OR NOT fields MATCHES "libstdc\\+\\+6")
  message(FATAL_ERROR "unexpected package fields:\n${fields}")
endif()

set(root ${WORK_DIR}/root)
execute_process(COMMAND dpkg -x ${deb} ${root} RESULT_VARIABLE rc)
if(rc)
  message(FATAL_ERROR "dpkg -x ${deb} failed")
endif()
foreach(file
    usr/include/vexbase/base/VexBase.h
    usr/${LIBDIR}/cmake/VexBase/VexBaseConfig.cmake
    usr/${LIBDIR}/cmake/VexBase/VexBaseTargets.cmake
    usr/${LIBDIR}/pkgconfig/vexbase.pc
    usr/${LIBDIR}/libvexbase.so
    usr/${MANDIR}/man1/vex.1)
  if(NOT EXISTS ${root}/${file})
    message(FATAL_ERROR "the package has no ${file}")
  endif()
endforeach()
check_installed_vex(${root}/usr/bin/vex ${VERSION} ${root}/usr/${LIBDIR})
