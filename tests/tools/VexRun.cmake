# The check shared by the end-to-end scripts of the vex tool: runs vex in
# ${WORK} (under ${EMULATOR} when cross-built) and compares exit status and
# output; the output stays in last_output for further checks.
# vex(<expected exit> <stdout must contain> <stderr must contain> args...)
function(vex expected_rc stdout_part stderr_part)
  execute_process(COMMAND ${EMULATOR} ${VEX} ${ARGN} WORKING_DIRECTORY ${WORK}
                  RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  set(ok TRUE)
  if(NOT rc EQUAL expected_rc)
    set(ok FALSE)
  endif()
  if(NOT stdout_part STREQUAL "")
    string(FIND "${out}" "${stdout_part}" at)
    if(at EQUAL -1)
      set(ok FALSE)
    endif()
  endif()
  if(NOT stderr_part STREQUAL "")
    string(FIND "${err}" "${stderr_part}" at)
    if(at EQUAL -1)
      set(ok FALSE)
    endif()
  endif()
  if(NOT ok)
    message(SEND_ERROR "vex ${ARGN}: exit ${rc} (expected ${expected_rc})\n"
                       "stdout: ${out}\nstderr: ${err}\n"
                       "expected stdout with '${stdout_part}', stderr with '${stderr_part}'")
  endif()
  set(last_output "${out}" PARENT_SCOPE)
endfunction()
