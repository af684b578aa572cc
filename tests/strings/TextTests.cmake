# Tests of the text helpers, value conversions, fixed-column and CSV records.
set(VEXBASE_STRINGS_TEXT_TESTS
  ${CMAKE_CURRENT_LIST_DIR}/CVexCsvStringTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/CVexFixedStringTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileNameTextTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/HexTextTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/StringViewsTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TextCompareTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TextFunctionsTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TextTrimTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToStrTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/XmlTextTest.cpp)
