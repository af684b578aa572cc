# Makes the manual page vex.1 with help2man from the tool's own --help texts:
# the top-level help, then a COMMANDS section with the help of every command
# and sub-command, so new commands appear without editing anything here.
# -DVEX=program -DHELP2MAN=program -DVERSION=x.y.z -DOUTPUT=vex.1 -DWORK=folder

# help_of(<out> <args>...): the help text of `vex <args> --help`.
function(help_of out)
  execute_process(COMMAND ${VEX} ${ARGN} --help RESULT_VARIABLE rc OUTPUT_VARIABLE text)
  if(rc)
    message(FATAL_ERROR "vex ${ARGN} --help failed (${rc})")
  endif()
  # Every command repeats the exit-status footer; the page says it once.
  if(ARGN)
    string(REGEX REPLACE "\nExit status:.*" "\n" text "${text}")
  endif()
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

# subcommands_of(<out> <help text>): the names listed under "Subcommands:".
function(subcommands_of out text)
  set(names "")
  set(inside FALSE)
  string(REPLACE "\n" ";" lines "${text}")
  foreach(line IN LISTS lines)
    if(line STREQUAL "Subcommands:")
      set(inside TRUE)
    elseif(inside AND line MATCHES "^  ([a-z0-9][a-z0-9-]*)( |$)")
      list(APPEND names ${CMAKE_MATCH_1})
    elseif(inside AND NOT line MATCHES "^ ")
      set(inside FALSE)
    endif()
  endforeach()
  set(${out} "${names}" PARENT_SCOPE)
endfunction()

# roff_literal(<out> <text>): text shown as it stands, in a no-fill block.
function(roff_literal out text)
  string(REPLACE "\\" "\\e" text "${text}")
  string(REGEX REPLACE "(^|\n)([.'])" "\\1\\\\&\\2" text "${text}")
  set(${out} ".nf\n${text}.fi\n" PARENT_SCOPE)
endfunction()

set(commands "[COMMANDS]\n")
help_of(top)
subcommands_of(names "${top}")
foreach(name IN LISTS names)
  help_of(help ${name})
  roff_literal(body "${help}")
  string(APPEND commands ".SS \"vex ${name}\"\n${body}")
  subcommands_of(subnames "${help}")
  foreach(sub IN LISTS subnames)
    help_of(subhelp ${name} ${sub})
    roff_literal(body "${subhelp}")
    string(APPEND commands ".SS \"vex ${name} ${sub}\"\n${body}")
  endforeach()
endforeach()

file(MAKE_DIRECTORY ${WORK})
file(WRITE ${WORK}/commands.h2m "${commands}")
execute_process(COMMAND ${HELP2MAN} --no-info --version-string=${VERSION}
                  "--name=settings files, checksums, times and coordinates of the Vex suite"
                  --include=${WORK}/commands.h2m --output=${OUTPUT} ${VEX}
                RESULT_VARIABLE rc ERROR_VARIABLE err)
if(rc)
  message(FATAL_ERROR "help2man failed: ${err}")
endif()
