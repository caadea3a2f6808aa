# Used by find_package(ovPreferences). Defines the target
# ovPreferences::ovPreferences: the library, its import library for the type of
# linker that the compiler uses, and the folder of the header.
if(NOT WIN32 OR NOT CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(ovPreferences_FOUND FALSE)
  set(ovPreferences_NOT_FOUND_MESSAGE "ovPreferences.dll is a library for 64-bit Windows")
  return()
endif()
get_filename_component(_ovPreferences_prefix "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)
if(MINGW)
  set(_ovPreferences_implib "${_ovPreferences_prefix}/lib/ovPreferences.dll.a")
else()
  set(_ovPreferences_implib "${_ovPreferences_prefix}/lib/ovPreferences.lib")
endif()
foreach(_ovPreferences_file IN ITEMS "${_ovPreferences_implib}" "${_ovPreferences_prefix}/bin/ovPreferences.dll"
                                     "${_ovPreferences_prefix}/include/ovPreferences.h")
  if(NOT EXISTS "${_ovPreferences_file}")
    set(ovPreferences_FOUND FALSE)
    set(ovPreferences_NOT_FOUND_MESSAGE "${_ovPreferences_file} is missing")
    return()
  endif()
endforeach()
if(NOT TARGET ovPreferences::ovPreferences)
  add_library(ovPreferences::ovPreferences SHARED IMPORTED)
  set_target_properties(
    ovPreferences::ovPreferences
    PROPERTIES IMPORTED_LOCATION "${_ovPreferences_prefix}/bin/ovPreferences.dll"
               IMPORTED_IMPLIB "${_ovPreferences_implib}"
               INTERFACE_INCLUDE_DIRECTORIES "${_ovPreferences_prefix}/include")
endif()
unset(_ovPreferences_prefix)
unset(_ovPreferences_implib)
unset(_ovPreferences_file)
