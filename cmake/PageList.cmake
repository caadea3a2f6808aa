# ov_page_list(OUTPUT PATTERN LINE [EXCEPT...]): a page exists by its files, so
# that adding one touches no list. Writes an include for every header of the
# calling folder that matches the pattern and is not excepted, and the macro
# OV_PAGE_LIST with a line for each. In LINE, %NAME% stands for the header's
# name in capitals: cell_handling_rows.h gives CellHandlingRows.
function(ov_page_list OUTPUT PATTERN LINE)
  file(GLOB HEADERS CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${PATTERN}")
  set(INCLUDES "")
  set(LINES "")
  foreach(HEADER IN LISTS HEADERS)
    cmake_path(GET HEADER STEM STEM)
    if(STEM IN_LIST ARGN)
      continue()
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
