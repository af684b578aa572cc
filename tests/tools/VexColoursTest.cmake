# Runs `vex colours` end to end on the sample tables and on broken inputs.
# -DVEX=program -DEMULATOR=wine-or-empty -DSAMPLES=folder -DWORK=scratch folder
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
file(COPY ${SAMPLES}/depth-colours.ini ${SAMPLES}/dredge-difference.ini DESTINATION ${WORK})

include(${CMAKE_CURRENT_LIST_DIR}/VexRun.cmake)

# The samples.
vex(0 "13 entries, 1 locked" "" colours show depth-colours.ini --colour never)
vex(0 "deeper than 24 m" "" colours show depth-colours.ini)
vex(0 "48;2;74;255;0m    " "" colours show depth-colours.ini --colour always)
vex(0 "-14   74, 255,   0  #4AFF00  design depth" "" colours lookup depth-colours.ini -- -14)
vex(0 "-24.5    0,   0, 255  #0000FF  deeper than 24 m" "" colours lookup depth-colours.ini -- -24.5)
vex(0 "dredge difference: under-dredge limit 0.3, over-dredge limit -0.2" ""
    colours show dredge-difference.ini)
vex(0 "0.3  192, 192, 192  #C0C0C0" "" colours lookup dredge-difference.ini 0.3)

# Making tables.
vex(0 "" "" colours make --rainbow --min 0 --max 10 --count 5 -o rainbow.ini)
vex(0 "4 entries" "" colours show rainbow.ini)
vex(0 "10  255,   0,   0  #FF0000" "" colours lookup rainbow.ini 10)
vex(0 "" "" colours make --palette viridis --min 0 --max 1 --count 5 -o viridis.ini)
vex(0 "1  253, 231,  37  #FDE725" "" colours lookup viridis.ini 1)
vex(0 "" "" colours make --rgb 0,0,0 white --min 0 --max 2 --count 4 -o grey.ini)
vex(0 "2  255, 255, 255" "" colours lookup grey.ini 2)
vex(0 "" "" colours dredge --under-limit 0.4 --over-limit 0.1 --tolerance-count 2 -o d.ini)
vex(0 "under-dredge limit 0.4, over-dredge limit -0.1" "" colours show d.ini)
vex(2 "" "choose one" colours make --rainbow --palette vik --min 0 --max 1 --count 5 -o x.ini)
vex(2 "" "no palette \"jet\"" colours make --palette jet --min 0 --max 1 --count 5 -o x.ini)
vex(2 "" "not a colour: 0,0,999" colours make --rgb 0,0,999 red --min 0 --max 1 --count 5 -o x.ini)
vex(2 "" "" colours make --rainbow --min 0 --max 1 --count 2 -o x.ini)
vex(3 "" "no-such-folder" colours make --rainbow --min 0 --max 1 --count 5 -o no-such-folder/x.ini)

# GMT palettes both ways: the table survives the trip.
vex(0 "B\t0/0/255" "" colours to-cpt depth-colours.ini)
vex(0 "" "" colours to-cpt depth-colours.ini -o depth.cpt)
vex(0 "" "" colours from-cpt depth.cpt -o back.ini)
vex(0 "" "" colours lookup depth-colours.ini -- -20 -14 -3.5 0 7)
set(direct "${last_output}")
vex(0 "" "" colours lookup back.ini -- -20 -14 -3.5 0 7)
if(NOT direct STREQUAL last_output)
  message(SEND_ERROR "CPT round trip changed the colours:\n${direct}\nbecame\n${last_output}")
endif()
vex(0 "#4AFF00  design depth" "" colours lookup depth.cpt -- -14)
file(WRITE ${WORK}/gmt.cpt "# from GMT\n0\tblack\t5\t128\tL\n5 #FF0000 10 255/0/0 B ;top\nB\tnavy\nF\twhite\nN\t128\n")
vex(0 "7  255,   0,   0  #FF0000  top" "" colours lookup gmt.cpt 7)
vex(0 "-1    0,   0, 128  #000080" "" colours lookup gmt.cpt -- -1)

# The legend picture.
vex(0 "" "" colours legend depth-colours.ini -o depth.svg --title m)
file(READ ${WORK}/depth.svg svg)
string(FIND "${svg}" "<svg" at)
if(at EQUAL -1)
  message(SEND_ERROR "depth.svg is not an SVG document")
endif()
vex(2 "" "does not fit" colours legend depth-colours.ini -o small.svg --width 30 --height 30)

# Broken inputs: refused with the file and the reason, never a crash.
file(WRITE ${WORK}/badvalue.ini "[Values]\r\n0 = 1\r\n1 = deep\r\n[Colors]\r\n0 = 1, 2, 3\r\n1 = 1, 2, 3\r\n")
file(WRITE ${WORK}/nocolour.ini "[Values]\r\n0 = 1\r\n[Colors]\r\nLowColor = 0, 0, 0\r\n")
file(WRITE ${WORK}/badcolour.ini "[Values]\r\n0 = 1\r\n[Colors]\r\n0 = red\r\n")
file(WRITE ${WORK}/garbage.cpt "0 red 1 red\nthis is not a slice\n")
file(COPY_FILE ${VEX} ${WORK}/program.cpt)
vex(3 "" "badvalue.ini: [Values] 1: unreadable value" colours show badvalue.ini)
vex(3 "" "nocolour.ini: a value without a colour" colours show nocolour.ini)
vex(3 "" "badcolour.ini: [Colors] 0: unreadable value" colours lookup badcolour.ini 1)
vex(3 "" "garbage.cpt: line 2:" colours show garbage.cpt)
vex(3 "" "program.cpt: line" colours from-cpt program.cpt -o x.ini)
vex(3 "" "missing.ini: cannot be read" colours show missing.ini)
vex(3 "" "missing.cpt: cannot read" colours lookup missing.cpt 1)
vex(2 "" "" colours lookup depth-colours.ini deep)
vex(0 "vex colours lookup" "" colours lookup --help)
