# Runs the vex tool through its commands; each check names what failed.
# -DVEX=program -DEMULATOR=wine-or-empty -DSAMPLES=folder -DWORK=scratch folder
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
file(COPY ${SAMPLES}/vessel.ini ${SAMPLES}/vessel-v2.ini DESTINATION ${WORK})
set(failures 0)

include(${CMAKE_CURRENT_LIST_DIR}/VexRun.cmake)

file(WRITE ${WORK}/nosections.ini "; only a comment\r\nkey = value\r\n")
# Binary garbage: the program file itself.
file(COPY_FILE ${VEX} ${WORK}/garbage.bin)
file(WRITE ${WORK}/empty.ini "")

# Reading.
vex(0 "GPS1.X = 1.235" "" ini show vessel.ini)
vex(0 "\"key\": \"VesselName\", \"value\": \"Hydra Explorer\"" "" ini show vessel.ini --json)
vex(0 "1.235" "" ini get vessel.ini Offsets GPS1.X)
vex(3 "" "missing.ini: no such file" ini show missing.ini)
vex(3 "" "no section [Nope]" ini get vessel.ini Nope X)
vex(3 "" "no key \"Nope\"" ini get vessel.ini Offsets Nope)
vex(3 "" "nosections.ini: malformed" ini show nosections.ini)

# Inputs over 512 MiB are refused before they are read, whatever the
# command; a sparse file of 600 MiB costs no disk.
find_program(TRUNCATE truncate)
if(TRUNCATE)
  execute_process(COMMAND ${TRUNCATE} -s 600M ${WORK}/huge.ini)
  vex(3 "" "huge.ini: larger than 512 MiB" ini show huge.ini)
  vex(3 "" "huge.ini: larger than 512 MiB" crc huge.ini)
  vex(3 "" "huge.ini: larger than 512 MiB" tide show huge.ini)
  vex(3 "" "huge.ini: larger than 512 MiB" colours show huge.ini)
  vex(3 "" "huge.ini: larger than 512 MiB" draw huge.ini -o huge.svg)
  file(REMOVE ${WORK}/huge.ini)
endif()
vex(3 "" "empty.ini: malformed" ini show empty.ini)
vex(3 "" "garbage.bin" ini show garbage.bin)

# Differences: diff exits 1 when files differ; applying the diff of A and B
# to A reproduces B.
vex(0 "" "" ini diff vessel.ini vessel.ini)
vex(1 "[change.Offsets]" "" ini diff vessel.ini vessel-v2.ini)
vex(1 "" "" ini diff vessel.ini vessel-v2.ini -o changes.ini)
vex(0 "" "" ini apply vessel.ini changes.ini -o patched.ini)
vex(0 "" "" ini diff patched.ini vessel-v2.ini)
vex(3 "" "no-such-folder" ini diff vessel.ini vessel-v2.ini -o no-such-folder/changes.ini)

# Changing, sealing and verifying.
vex(0 "" "" ini set patched.ini Offsets GPS1.X 1.250)
vex(0 "1.250" "" ini get patched.ini Offsets GPS1.X)
vex(3 "" "--create-section" ini set patched.ini Extra Key 1)
vex(0 "" "" ini set patched.ini Extra Key 1 --create-section)
vex(0 "" "" ini delete patched.ini Extra)
vex(0 "" "" ini seal patched.ini)
vex(0 "OK" "" ini verify patched.ini)
vex(0 "" "" ini set patched.ini Offsets GPS1.X 1.260)
vex(1 "" "patched.ini: FAILED verification" ini verify patched.ini)
vex(1 "" "not sealed" ini verify vessel.ini)

# Checksums (the CRC-32 of the sample as zlib.crc32 gives it).
vex(0 "crc32 E2AAC7A7  vessel.ini" "" crc --32 vessel.ini)
vex(3 "" "missing.bin: cannot be read" crc missing.bin)

# Times, coordinates and numbers.
vex(0 "UTC         2026-11-22 12:34:56.250" "" time --utc "2026-11-22 12:34:56.250")
vex(0 "UTC         1970-01-01 00:00:00.000" "" time --mq B2070100000000000000)
vex(0 "time value  1795350896250.000" "" time --filetime 134398244962500000)
vex(2 "" "" time --utc yesterday)
vex(0 "012°30.000'S  004°30.000'E" "" geo -12.5 4.5)
vex(0 "5' 6 3/8\"" "" number 5.53125 --feet-mode 4 --decimals 1)

# The command line itself.
vex(2 "" "" bogus)
vex(2 "" "" ini)
vex(0 "Example:" "" ini diff --help)
vex(0 "vex 0." "" --version)

# The tour.
vex(0 "patched copy equals vessel-v2.ini" "" demo)
