# Runs `vex tide` on the sample tide table and on broken inputs; each check
# names what failed.
# -DVEX=program -DEMULATOR=wine-or-empty -DSAMPLES=folder -DWORK=scratch folder
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
file(COPY ${SAMPLES}/tide.txt DESTINATION ${WORK})

include(${CMAKE_CURRENT_LIST_DIR}/VexRun.cmake)

# More parts that the standard output of the last vex() must contain; each
# run under Wine takes seconds, so one summary is checked several ways.
function(expect_stdout)
  foreach(part IN LISTS ARGN)
    string(FIND "${last_output}" "${part}" at)
    if(at EQUAL -1)
      message(SEND_ERROR "the last output lacks '${part}':\n${last_output}")
    endif()
  endforeach()
endfunction()

# The sample: three days at 10-minute steps, 433 values.
vex(0 "433 tide values written to harbour.tid" "" tide import tide.txt -o harbour.tid)
file(SIZE ${WORK}/harbour.tid size)
if(NOT size EQUAL 6928)
  message(SEND_ERROR "harbour.tid is ${size} bytes, expected 433 records of 16")
endif()
vex(0 "433 loaded of 433" "" tide show harbour.tid)
expect_stdout("first        2026-11-20 00:00:00" "last         2026-11-23 00:00:00"
              "lowest       0.126 at 2026-11-21 21:00:00"
              "highest      4.23 at 2026-11-21 14:40:00" "largest gap  00:10:00")

# Export and import again: the same bytes.
vex(0 "2026-11-20T00:10:00Z,3.164" "" tide export harbour.tid)
vex(0 "" "" tide export harbour.tid -o harbour.csv)
# CMake's strings lose carriage returns: the CR LF line ends are checked in hex.
file(READ ${WORK}/harbour.csv head HEX LIMIT 44)
string(HEX "time_utc,height" header)
string(HEX "2026-11-20T00:00:00Z,3.05" row)
if(NOT head STREQUAL "${header}0d0a${row}0d0a")
  message(SEND_ERROR "harbour.csv starts unexpectedly: ${head}")
endif()
file(READ ${WORK}/harbour.csv csv)
string(REPLACE "T" " " table "${csv}")
string(REPLACE "Z," " " table "${table}")
string(REPLACE "time_utc,height" "# exported" table "${table}")
file(WRITE ${WORK}/again.txt "${table}")
vex(0 "433 tide values" "" tide import again.txt -o again.tid)
file(SHA256 ${WORK}/harbour.tid first)
file(SHA256 ${WORK}/again.tid second)
if(NOT first STREQUAL second)
  message(SEND_ERROR "export and import again changed the tide file")
endif()

# Plot: an SVG document with the curve and labelled axes.
vex(0 "" "" tide plot harbour.tid -o harbour.svg --title "Sample harbour")
file(READ ${WORK}/harbour.svg svg)
foreach(part "<svg" "<polyline" "Time (UTC)" "Height" "Sample harbour" "2026-11-21")
  string(FIND "${svg}" "${part}" at)
  if(at EQUAL -1)
    message(SEND_ERROR "harbour.svg lacks ${part}")
  endif()
endforeach()

# Time forms: HMS, and HM/HMS only when asked; sub-30 s spacing warned of.
file(WRITE ${WORK}/hms.txt "\n# seconds\n2026-11-20 00:00:30, 1.5\n2026-11-20;00:00:40;1.6\r\n")
vex(0 "warning: loading the file keeps only 1 of them" "" tide import hms.txt -o hms.tid)
vex(0 "1 loaded of 2" "" tide show hms.tid)
file(WRITE ${WORK}/hm.txt "2026-11-20 00:00 1.5\n")
vex(0 "1 tide values" "" tide import hm.txt -o hm.tid --time-format hm)
vex(3 "" "hms.txt:3: malformed line" tide import hms.txt -o x.tid --time-format HM)
vex(3 "" "hm.txt:1: malformed line" tide import hm.txt -o x.tid --time-format HMS)
vex(2 "" "--time-format" tide import hm.txt -o x.tid --time-format HMSS)

# Malformed tables are named by line and write nothing, not even over an old file.
foreach(bad "2026-11-20 00:00" "2026-02-30 00:00 1.0" "2026-11-20 24:00 1.0"
            "2026-11-20 00:00 high" "2026-11-20 00:00 nan" "20-11-2026 00:00 1.0"
            "2026-11-20 00:00 1.0 extra")
  file(WRITE ${WORK}/bad.txt "# table\r\n2026-11-20 00:00 1.0\r\n\r\n${bad}\r\n")
  vex(3 "" "bad.txt:4: malformed line" tide import bad.txt -o harbour.tid)
endforeach()
file(SHA256 ${WORK}/harbour.tid unchanged)
if(NOT unchanged STREQUAL first)
  message(SEND_ERROR "a failed import changed harbour.tid")
endif()

# Broken tide files open: any length and content.
file(WRITE ${WORK}/empty.tid "")
vex(0 "0 loaded of 0" "" tide show empty.tid)
vex(3 "" "fewer than two drawable" tide plot empty.tid -o empty.svg)
file(COPY_FILE ${VEX} ${WORK}/garbage.tid)
vex(0 "loaded of" "" tide show garbage.tid)
vex(0 "" "" tide export garbage.tid -o garbage.csv)
vex(3 "" "missing.tid: no such file" tide show missing.tid)
vex(3 "" "no-such-folder" tide import tide.txt -o no-such-folder/x.tid)
vex(3 "" "no-such-folder" tide plot harbour.tid -o no-such-folder/x.svg)
vex(2 "" "" tide plot harbour.tid -o x.svg --width 10)
vex(0 "Example: vex tide show" "" tide show --help)
