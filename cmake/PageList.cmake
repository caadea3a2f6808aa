# ov_page_list(OUTPUT PATTERN LINE [EXCEPT...]): a page exists by its files, so
# that adding one touches no list. Writes an include for every header in pages/
# that matches one of the patterns and is not excepted, and the macro
# OV_PAGE_LIST with a line for each. In LINE, %NAME% is the header's name in
# capitals: page_cell_handling.h gives PageCellHandling. The headers in a page's
# own folder have the folder in their name: cell_handling/rows.h gives
# CellHandlingRows, misc/page.h gives PageMisc.
function(ov_page_list OUTPUT PATTERNS LINE)
  list(TRANSFORM PATTERNS PREPEND "${CMAKE_SOURCE_DIR}/pages/")
  file(GLOB HEADERS CONFIGURE_DEPENDS ${PATTERNS})
  set(INCLUDES "")
  set(LINES "")
  foreach(HEADER IN LISTS HEADERS)
    cmake_path(GET HEADER STEM STEM)
    if(STEM IN_LIST ARGN)
      continue()
    endif()
    cmake_path(GET HEADER PARENT_PATH FOLDER)
    cmake_path(GET FOLDER FILENAME FOLDER)
    if(STEM STREQUAL "rows")
      set(STEM "${FOLDER}_rows")
    elseif(STEM STREQUAL "page")
      set(STEM "page_${FOLDER}")
    endif()
    file(RELATIVE_PATH PATH "${CMAKE_SOURCE_DIR}" "${HEADER}")
    string(APPEND INCLUDES "#include \"${PATH}\"\n")
    set(NAME "")
    string(REPLACE "_" ";" WORDS "${STEM}")
    foreach(WORD IN LISTS WORDS)
      string(SUBSTRING "${WORD}" 0 1 INITIAL)
      string(SUBSTRING "${WORD}" 1 -1 REST)
      string(TOUPPER "${INITIAL}" INITIAL)
      string(APPEND NAME "${INITIAL}${REST}")
    endforeach()
    # The one class whose name keeps an abbreviation in capitals.
    string(REPLACE "PageUrls" "PageURLs" NAME "${NAME}")
    string(REPLACE "%NAME%" "${NAME}" ROW "${LINE}")
    string(APPEND LINES " \\\n    ${ROW}")
  endforeach()
  file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/generated/${OUTPUT}" CONTENT
       "${INCLUDES}\n#define OV_PAGE_LIST${LINES}\n")
endfunction()
