# Installs the built library into a scratch prefix, then checks what a user
# meets there: the vex tool and its manual page, and consumer projects built
# against the install with find_package(VexBase) and with pkg-config, and
# against the checkout with add_subdirectory.
# Arguments: -DBUILD_DIR= -DSOURCE_DIR= -DWORK_DIR= -DCXX= -DVERSION= -DCOMMIT=ON|OFF
#            -DTOOL=1|0 (whether the vex tool is built)
#            -DBINDIR= -DLIBDIR= -DMANDIR= (the install layout, relative)
include(${CMAKE_CURRENT_LIST_DIR}/InstalledTool.cmake)
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix}
                RESULT_VARIABLE rc OUTPUT_QUIET)
if(rc)
  message(FATAL_ERROR "install failed")
endif()

if(TOOL)
  check_installed_vex(${prefix}/${BINDIR}/vex ${VERSION} ${prefix}/${LIBDIR})
  if(NOT EXISTS ${prefix}/${MANDIR}/man1/vex.1)
    message(FATAL_ERROR "no manual page in ${prefix}/${MANDIR}/man1")
  endif()
endif()

foreach(mode package subdirectory)
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/package -B ${WORK_DIR}/${mode}
                    -G Ninja -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_PREFIX_PATH=${prefix}
                    -DVEXBASE_CONSUME=${mode} -DVEXBASE_SOURCE_DIR=${SOURCE_DIR}
                  RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(rc)
    message(FATAL_ERROR "configuring the ${mode} consumer failed:\n${out}")
  endif()
  execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/${mode}
                  RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(rc)
    message(FATAL_ERROR "building the ${mode} consumer failed:\n${out}")
  endif()
  execute_process(COMMAND ${WORK_DIR}/${mode}/consumer RESULT_VARIABLE rc OUTPUT_VARIABLE out)
  if(rc)
    message(FATAL_ERROR "the ${mode} consumer failed: ${out}")
  endif()
  message(STATUS "${mode} consumer: ${out}")
endforeach()

# A Makefile user's build: one compiler line with pkg-config's flags, and
# the library found through the install's own libdir variable.
find_program(PKG_CONFIG NAMES pkgconf pkg-config REQUIRED)
set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
execute_process(COMMAND ${PKG_CONFIG} --cflags --libs vexbase
                RESULT_VARIABLE rc OUTPUT_VARIABLE flags ERROR_VARIABLE err
                OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND ${PKG_CONFIG} --variable=libdir vexbase
                OUTPUT_VARIABLE libdir OUTPUT_STRIP_TRAILING_WHITESPACE)
if(rc OR NOT flags MATCHES "-lvexbase")
  message(FATAL_ERROR "pkg-config --cflags --libs vexbase: ${flags}${err}")
endif()
separate_arguments(flags UNIX_COMMAND "${flags}")
execute_process(COMMAND ${CXX} -std=c++20 ${SOURCE_DIR}/tests/package/consumer.cpp ${flags}
                  -Wl,-rpath,${libdir} -o ${WORK_DIR}/pkg-config-consumer
                RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE out)
if(rc)
  message(FATAL_ERROR "building with pkg-config's flags (${flags}) failed:\n${out}")
endif()
execute_process(COMMAND ${WORK_DIR}/pkg-config-consumer RESULT_VARIABLE rc OUTPUT_VARIABLE out)
if(rc)
  message(FATAL_ERROR "the pkg-config consumer failed: ${out}")
endif()
message(STATUS "pkg-config consumer: ${out}")
