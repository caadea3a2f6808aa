# Writes OUTPUT/revision.h and OUTPUT/version.txt from VERSION and the git
# revision of the sources in SOURCE, or REVISION if git has none. Unchanged
# files keep their dates.
# The repository of a parent project is not the one of these sources.
execute_process(
  COMMAND git -C "${SOURCE}" rev-parse --show-prefix
  OUTPUT_VARIABLE PREFIX
  OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
execute_process(
  COMMAND git --no-optional-locks -C "${SOURCE}" describe --always --dirty --exclude * --abbrev=12
  OUTPUT_VARIABLE FOUND
  OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET
  RESULT_VARIABLE CODE)
if(CODE EQUAL 0 AND PREFIX STREQUAL "")
  set(REVISION "${FOUND}")
endif()
set(TEXT "${VERSION}")
if(REVISION)
  string(APPEND TEXT " (${REVISION})")
endif()
file(CONFIGURE OUTPUT "${OUTPUT}/revision.h" CONTENT "#define OV_VERSION_WITH_REVISION \"${TEXT}\"\n" @ONLY)
file(CONFIGURE OUTPUT "${OUTPUT}/version.txt" CONTENT "${TEXT}\n" @ONLY)
