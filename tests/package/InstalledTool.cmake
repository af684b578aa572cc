# check_installed_vex(<program> <version> <libdir>): the installed vex starts
# with an empty environment (no LD_LIBRARY_PATH), reports its version, and
# loads vexbase from <libdir> of the same install, not from anywhere else.
function(check_installed_vex vex version libdir)
  execute_process(COMMAND env -i ${vex} --version
                  RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  # Built from a git checkout (COMMIT set by the caller), it names the commit.
  set(commit "(commit [0-9a-f]+(-dirty)?, )?")
  if(COMMIT)
    set(commit "commit [0-9a-f]+(-dirty)?, ")
  endif()
  if(rc OR NOT out MATCHES "^vex ${version} \\(vexbase ${version}\\)\n${commit}([A-Za-z]+ build|build type not set)\n")
    message(FATAL_ERROR "${vex} --version: exit ${rc}\n${out}${err}")
  endif()
  execute_process(COMMAND env -i ldd ${vex} OUTPUT_VARIABLE out)
  file(REAL_PATH ${libdir} libdir)
  if(NOT out MATCHES "libvexbase\\.so\\.[0-9]+ => ([^ ]+)")
    message(FATAL_ERROR "ldd ${vex} shows no vexbase:\n${out}")
  endif()
  file(REAL_PATH ${CMAKE_MATCH_1} loaded)
  get_filename_component(loaded_dir ${loaded} DIRECTORY)
  if(NOT loaded_dir STREQUAL libdir)
    message(FATAL_ERROR "${vex} loads ${loaded}, not the library in ${libdir}")
  endif()
endfunction()
