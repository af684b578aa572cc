# Text helpers, value conversions, fixed-column and CSV records.
target_sources(vexbase PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/CVexCsvString.cpp
  ${CMAKE_CURRENT_LIST_DIR}/CVexFixedString.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileNameText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/HexText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/NumberScan.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TextCompare.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TextFunctions.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TextTrim.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToStr.cpp
  ${CMAKE_CURRENT_LIST_DIR}/XmlText.cpp)

# NumberScan.h is internal and not installed.
target_sources(vexbase PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}
  FILES
    ${CMAKE_CURRENT_LIST_DIR}/CVexCsvString.h
    ${CMAKE_CURRENT_LIST_DIR}/CVexFixedString.h
    ${CMAKE_CURRENT_LIST_DIR}/FileNameText.h
    ${CMAKE_CURRENT_LIST_DIR}/HexText.h
    ${CMAKE_CURRENT_LIST_DIR}/StringViews.h
    ${CMAKE_CURRENT_LIST_DIR}/TextCompare.h
    ${CMAKE_CURRENT_LIST_DIR}/TextFunctions.h
    ${CMAKE_CURRENT_LIST_DIR}/TextTrim.h
    ${CMAKE_CURRENT_LIST_DIR}/ToStr.h
    ${CMAKE_CURRENT_LIST_DIR}/XmlText.h)
