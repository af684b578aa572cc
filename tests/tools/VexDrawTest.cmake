# Runs `vex draw` on the sample plan and on broken inputs; each check names
# what failed. Native builds also hand the picture to an SVG renderer.
# -DVEX=program -DEMULATOR=wine-or-empty -DSAMPLES=folder -DWORK=scratch folder
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
file(COPY ${SAMPLES}/geometry.txt DESTINATION ${WORK})

include(${CMAKE_CURRENT_LIST_DIR}/VexRun.cmake)

# The sample: every item read, the crossings found, an SVG with true arcs.
vex(0 "3 points, 4 lines, 3 arcs, 13 crossings" "" draw geometry.txt -o plan.svg)
file(READ ${WORK}/plan.svg svg)
foreach(part "<svg" "width=\"800\" height=\"600\"" "<path d=\"M " " A " ">centre line</text>")
  string(FIND "${svg}" "${part}" at)
  if(at EQUAL -1)
    message(SEND_ERROR "plan.svg lacks '${part}'")
  endif()
endforeach()
vex(0 "world 973.913 1857.609 1626.087 2292.391 on 300 x 200" "" draw geometry.txt -o bare.svg
    --no-intersections --width 300 --height 200)
file(READ ${WORK}/bare.svg svg)
string(FIND "${svg}" "#c800c8" at)
if(NOT at EQUAL -1)
  message(SEND_ERROR "bare.svg rings crossings although told not to")
endif()

# One point alone has no extent: the view keeps the size of its unit window
# (widened by the margin, 1 / 0.92) about it, at the aspect of the picture.
file(WRITE ${WORK}/one.txt "point 5 7\n")
vex(0 "world 4.275 6.457 5.725 7.543" "" draw one.txt -o one.svg)

# Broken inputs name the line and what is wrong with it.
file(WRITE ${WORK}/few.txt "# header\r\npoint 1 2\r\nline 1 2 3\r\n")
vex(3 "" "few.txt: line 3: too few numbers" draw few.txt -o x.svg)
file(WRITE ${WORK}/word.txt "point 1 north\n")
vex(3 "" "line 1: not a number: \"north\"" draw word.txt -o x.svg)
file(WRITE ${WORK}/many.txt "arc 0 0 1 0 90 4\n")
vex(3 "" "line 1: too many numbers" draw many.txt -o x.svg)
file(WRITE ${WORK}/kind.txt "\ncircle 0 0 5\n")
vex(3 "" "line 2: unknown item \"circle\"" draw kind.txt -o x.svg)
file(WRITE ${WORK}/empty.txt "# nothing but a comment\n\n")
vex(3 "" "empty.txt: holds nothing to draw" draw empty.txt -o x.svg)
vex(3 "" "missing.txt: cannot be read" draw missing.txt -o x.svg)
vex(3 "" "cannot be written" draw geometry.txt -o no-such-folder/x.svg)
if(EXISTS ${WORK}/x.svg)
  message(SEND_ERROR "a failed drawing left x.svg behind")
endif()

# Usage errors and help.
vex(2 "" "" draw geometry.txt -o x.svg --width 5)
vex(2 "" "" draw geometry.txt)
vex(0 "arc CX CY R START END" "" draw --help)

# The picture is a valid SVG: the renderer reads it (native builds only).
find_program(RSVG rsvg-convert)
if(RSVG AND EMULATOR STREQUAL "")
  execute_process(COMMAND ${RSVG} -o ${WORK}/plan.png ${WORK}/plan.svg RESULT_VARIABLE rc ERROR_VARIABLE err)
  if(NOT rc EQUAL 0 OR NOT EXISTS ${WORK}/plan.png)
    message(SEND_ERROR "rsvg-convert could not render plan.svg: ${err}")
  endif()
endif()
