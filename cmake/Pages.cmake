# A page of the dialog is a folder in pages/; docs/pages.md describes its files.
# This file finds the folders and combines their parts, so that no list of pages
# has to be maintained:
#
#   OV_PAGES                                 the names of the folders
#   generated/pages/page_list.inc            OV_PAGE(Name) for each page
#   generated/pages/page_classes.inc         the class of each page: an include of its
#                                            page.h, or OV_PLAIN_PAGE(Name)
#   generated/pages/page_strings.inc         their ids and strings
#   generated/pages/page_templates.inc       their ids and templates; each template is between
#                                            OV_TEMPLATE_BEGIN and OV_TEMPLATE_END
#
# Name is the folder's name in capitals: cell_handling gives CellHandling. It
# is in the name of the rows, kCellHandlingRows, and in that of the class,
# CPageCellHandling.
file(
  GLOB PAGE_FILES
  LIST_DIRECTORIES false
  RELATIVE "${PROJECT_SOURCE_DIR}/pages"
  CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/pages/*/*")
set(OV_PAGES ${PAGE_FILES})
list(TRANSFORM OV_PAGES REPLACE "/.*" "")
list(REMOVE_DUPLICATES OV_PAGES)
list(REMOVE_ITEM OV_PAGES core)
set(MISSING "")
foreach(PAGE IN LISTS OV_PAGES)
  foreach(FILE IN ITEMS ids.h page.rc rows.cpp strings.inc)
    if(NOT "${PAGE}/${FILE}" IN_LIST PAGE_FILES)
      string(APPEND MISSING "\n  pages/${PAGE}/${FILE}")
    endif()
  endforeach()
  if("${PAGE}/page.cpp" IN_LIST PAGE_FILES AND NOT "${PAGE}/page.h" IN_LIST PAGE_FILES)
    string(APPEND MISSING "\n  pages/${PAGE}/page.h")
  endif()
endforeach()
if(MISSING)
  message(FATAL_ERROR "A page needs these files, too (docs/pages.md):${MISSING}")
endif()

set(LIST "")
set(CLASSES "")
set(STRINGS "")
set(TEMPLATES "")
foreach(PAGE IN LISTS OV_PAGES)
  set(NAME "")
  string(REPLACE "_" ";" WORDS "${PAGE}")
  foreach(WORD IN LISTS WORDS)
    string(SUBSTRING "${WORD}" 0 1 INITIAL)
    string(SUBSTRING "${WORD}" 1 -1 REST)
    string(TOUPPER "${INITIAL}" INITIAL)
    string(APPEND NAME "${INITIAL}${REST}")
  endforeach()
  if(PAGE STREQUAL "urls")
    set(NAME "URLs") # an abbreviation
  endif()
  string(APPEND LIST "OV_PAGE(${NAME})\n")
  if("${PAGE}/page.h" IN_LIST PAGE_FILES)
    string(APPEND CLASSES "#include \"pages/${PAGE}/page.h\"\n")
  else()
    string(APPEND CLASSES "OV_PLAIN_PAGE(${NAME})\n")
  endif()
  string(APPEND STRINGS "#include \"pages/${PAGE}/ids.h\"\n#include \"pages/${PAGE}/strings.inc\"\n")
  string(APPEND TEMPLATES "#include \"pages/${PAGE}/ids.h\"\nOV_TEMPLATE_BEGIN\n"
         "#include \"pages/${PAGE}/page.rc\"\nOV_TEMPLATE_END\n")
endforeach()
set(GENERATED "${PROJECT_BINARY_DIR}/generated/pages")
file(CONFIGURE OUTPUT "${GENERATED}/page_list.inc" CONTENT "${LIST}" @ONLY)
file(CONFIGURE OUTPUT "${GENERATED}/page_classes.inc" CONTENT "${CLASSES}" @ONLY)
file(CONFIGURE OUTPUT "${GENERATED}/page_strings.inc" CONTENT "${STRINGS}" @ONLY)
file(CONFIGURE OUTPUT "${GENERATED}/page_templates.inc" CONTENT "${TEMPLATES}" @ONLY)

# Everything in a page's folder except its class is portable.
set(OV_PAGE_ROWS ${PAGE_FILES})
list(FILTER OV_PAGE_ROWS INCLUDE REGEX "\\.cpp$")
list(FILTER OV_PAGE_ROWS EXCLUDE REGEX "^core/|/page\\.cpp$")
list(TRANSFORM OV_PAGE_ROWS PREPEND "${PROJECT_SOURCE_DIR}/pages/")
set(OV_PAGE_CLASSES ${PAGE_FILES})
list(FILTER OV_PAGE_CLASSES INCLUDE REGEX "/page\\.cpp$")
list(TRANSFORM OV_PAGE_CLASSES PREPEND "${PROJECT_SOURCE_DIR}/pages/")
