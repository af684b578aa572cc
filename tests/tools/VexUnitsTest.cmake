# Runs `vex units` end to end; each check names what failed.
# -DVEX=program -DEMULATOR=wine-or-empty -DSAMPLES=folder -DWORK=scratch folder
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
file(COPY ${SAMPLES}/vessel.ini DESTINATION ${WORK})

include(${CMAKE_CURRENT_LIST_DIR}/VexRun.cmake)

# The catalogue, by group.
vex(0 "Depth Units" "" units list)
vex(0 "US survey foot" "" units list)
vex(0 "galUS" "" units list)

# Conversions through the unit table, with the quantity's decimals: 12.5 ft
# is 3.81 m exactly; a nautical mile is 6076.115... international feet; a US
# gallon is 3.785411784 litres; 100 degrees Celsius are 212 Fahrenheit.
vex(0 "3.81 m" "" units convert 12.5 ft m)
vex(0 "6076.12 ft" "" units convert 1 NM ft)
vex(0 "6076.1154856 ft" "" units convert 1 nm FT --decimals 7)
vex(0 "3.785411784 l" "" units convert 1 galUS l --decimals 9)
vex(0 "212.0 " "" units convert 100 C F)
vex(0 "1.94 kn" "" units convert 1 m/s kn)
vex(0 "3' 6\" ft" "" units convert 3.5 ft ft --feet-mode 2)
vex(2 "" "different quantities" units convert 1 kn m)
vex(2 "" "unknown unit \"furlong\"" units convert 1 furlong m)
vex(2 "" "not a number" units convert deep ft m)
vex(2 "" "" units convert 1 ft)
vex(2 "" "" units)

# The units a settings file selects.
vex(0 "Speed        kn       Knot" "" units show vessel.ini)
vex(0 "Depth        m        Metre" "" units show vessel.ini)
file(WRITE ${WORK}/feet.ini "[Units]\r\nLength = ft\r\nDepth = fm\r\nSpeed = Furlong\r\n")
vex(3 "Depth        fm       Fathom" "unknown unit \"Furlong\" for Speed" units show feet.ini)
vex(3 "Speed        m/s      (default)" "" units show feet.ini)
file(WRITE ${WORK}/plain.ini "[General]\r\nName = Hydra\r\n")
vex(0 "no [Units] section" "" units show plain.ini)
vex(3 "" "missing.ini" units show missing.ini)
vex(0 "vex units show vessel.ini" "" units show --help)
