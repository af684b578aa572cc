# Installs the built library into a scratch prefix, then configures, builds
# and runs a consumer project against it with find_package(VexBase), and
# another one that takes the checkout with add_subdirectory.
# Arguments: -DBUILD_DIR= -DSOURCE_DIR= -DWORK_DIR= -DCXX=
file(REMOVE_RECURSE ${WORK_DIR})

execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix
                RESULT_VARIABLE rc OUTPUT_QUIET)
if(rc)
  message(FATAL_ERROR "install failed")
endif()

foreach(mode package subdirectory)
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/package -B ${WORK_DIR}/${mode}
                    -G Ninja -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix
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
