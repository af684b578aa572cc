# Runs vex contour on the dredger sample and on broken inputs; each check
# names what failed.
# -DVEX=program -DEMULATOR=wine-or-empty -DSAMPLES=folder -DWORK=scratch folder
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
file(COPY ${SAMPLES}/dredger-contour.ini DESTINATION ${WORK})

include(${CMAKE_CURRENT_LIST_DIR}/VexRun.cmake)

# Showing one side: the pen, the count, the extents and the points.
vex(0 "pen     width 2, colour 8388608 (red 0, green 0, blue 128)" "" contour show dredger-contour.ini)
vex(0 "extents x -11.000 to 11.000, y -55.000 to 55.000" "" contour show dredger-contour.ini)
vex(0 "   11        0.000       55.000  B  0" "" contour show dredger-contour.ini)
vex(0 "points  29" "" contour show dredger-contour.ini --side 2)
vex(3 "" "no [BOTTOM POINTS] section" contour show dredger-contour.ini --side 1)
vex(3 "" "missing.ini: no such file" contour show missing.ini)
vex(2 "" "" contour show dredger-contour.ini --side 6)
file(COPY_FILE ${VEX} ${WORK}/garbage.bin)
vex(3 "" "garbage.bin" contour show garbage.bin)
# An unreadable line ends the outline; the lines after it are not read.
file(WRITE ${WORK}/broken.ini "[POINTS]\r\nPoint(1) = 1, 2, 0\r\nPoint(2) = 3, 4, 0\r\n"
                               "Point(3) = five, 6, 0\r\nPoint(4) = 7, 8, 0\r\n")
vex(0 "points  2" "" contour show broken.ini)

# The picture: five outlines, the missing bottom view named.
vex(0 "" "" contour svg dredger-contour.ini -o dredger.svg)
file(READ ${WORK}/dredger.svg svg)
string(REGEX MATCHALL "<polyline" outlines "${svg}")
list(LENGTH outlines count)
if(NOT count EQUAL 5)
  message(SEND_ERROR "dredger.svg: ${count} outlines, expected 5")
endif()
foreach(label "plan (POINTS), 22 points" "left (LEFT POINTS), 29 points" "no outline in the file")
  string(FIND "${svg}" "${label}" at)
  if(at EQUAL -1)
    message(SEND_ERROR "dredger.svg lacks '${label}'")
  endif()
endforeach()
vex(3 "" "no-such-folder" contour svg dredger-contour.ini -o no-such-folder/x.svg)

# Packing: colour 0x00800000 and width 2 as little-endian 32-bit words, then
# 18 bytes per point; unpacking gives the same string back.
vex(0 "0000800002000000000000000000" "" contour pack dredger-contour.ini --side 4)
string(STRIP "${last_output}" front)
string(LENGTH "${front}" digits)
if(NOT digits EQUAL 628)
  message(SEND_ERROR "pack --side 4: ${digits} hex digits, expected 2 x (8 + 18 x 17) = 628")
endif()
vex(0 "17 points written" "" contour unpack ${front} -o front.ini --side 4)
vex(0 "${front}" "" contour pack front.ini --side 4)
vex(3 "" "no [POINTS] section" contour pack front.ini --side 0)
# Into an existing file: the other sides stay.
file(COPY_FILE ${WORK}/dredger-contour.ini ${WORK}/copy.ini)
vex(0 "" "" contour unpack ${front} -o copy.ini --side 1)
vex(0 "points  17" "" contour show copy.ini --side 1)
vex(0 "points  29" "" contour show copy.ini --side 2)
vex(2 "" "" contour pack dredger-contour.ini)
vex(3 "" "holds 8 bytes" contour unpack 0000800002000000 -o short.ini)
vex(2 "" "hexadecimal" contour unpack 0G -o short.ini)
vex(2 "" "hexadecimal" contour unpack 000 -o short.ini)
if(EXISTS ${WORK}/short.ini)
  message(SEND_ERROR "a refused contour string wrote short.ini")
endif()
vex(3 "" "no-such-folder" contour unpack ${front} -o no-such-folder/x.ini)

vex(0 "Example:" "" contour svg --help)
vex(0 "a hopper dredger from ahead" "" demo)
