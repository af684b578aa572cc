# Makes the Windows zip from the mingw build tree, unpacks it into a scratch
# folder and runs its vex.exe under Wine with no search path to the MinGW
# runtime: the DLLs it needs must be in the zip beside it.
# Arguments: -DBUILD_DIR= -DWORK_DIR= -DCPACK= -DEMULATOR= -DVERSION=
file(REMOVE_RECURSE ${WORK_DIR})

execute_process(COMMAND ${CPACK} -G ZIP --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR}
                RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE out)
file(GLOB zip ${WORK_DIR}/*.zip)
list(LENGTH zip count)
if(rc OR NOT count EQUAL 1)
  message(FATAL_ERROR "cpack made no zip:\n${out}")
endif()
file(SIZE ${zip} size)
message(STATUS "${zip}: ${size} bytes")

set(unpacked ${WORK_DIR}/unpacked)
file(MAKE_DIRECTORY ${unpacked})
execute_process(COMMAND ${CMAKE_COMMAND} -E tar xf ${zip} WORKING_DIRECTORY ${unpacked}
                RESULT_VARIABLE rc)
get_filename_component(top ${zip} NAME_WLE)
set(top ${unpacked}/${top})
foreach(file
    bin/vex.exe bin/libvexbase.dll
    bin/libstdc++-6.dll bin/libgcc_s_seh-1.dll bin/libwinpthread-1.dll
    lib/libvexbase.dll.a include/vexbase/base/VexBase.h
    lib/cmake/VexBase/VexBaseConfig.cmake lib/pkgconfig/vexbase.pc)
  if(NOT EXISTS ${top}/${file})
    message(FATAL_ERROR "the zip has no ${file}")
  endif()
endforeach()

execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=WINEPATH ${EMULATOR} ${top}/bin/vex.exe --version
                RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(rc OR NOT out MATCHES "^vex ${VERSION} \\(vexbase ${VERSION}\\)")
  message(FATAL_ERROR "vex.exe --version from the zip: exit ${rc}\n${out}${err}")
endif()
