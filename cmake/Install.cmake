# Defines what "cmake --install" installs: the programs and, for Windows, the files
# for building a host (header, import libraries, CMake package, pkg-config file).
install(TARGETS ovprefs RUNTIME DESTINATION bin)
if(WIN32)
  include(CMakePackageConfigHelpers)
  install(TARGETS ovPreferences ovPreferencesHost RUNTIME DESTINATION bin ARCHIVE DESTINATION lib)
  if(OV_MSVC_IMPORT_LIBRARY)
    install(FILES "${OV_MSVC_IMPORT_LIBRARY}" DESTINATION lib)
  endif()
  install(FILES "${PROJECT_SOURCE_DIR}/include/ovPreferences.h" DESTINATION include)
  set(OV_INSTALL_DIR "${PROJECT_BINARY_DIR}/generated/install")
  write_basic_package_version_file("${OV_INSTALL_DIR}/ovPreferencesConfigVersion.cmake"
                                   COMPATIBILITY SameMajorVersion)
  configure_file("${PROJECT_SOURCE_DIR}/packaging/cmake/ovPreferences.pc.in" "${OV_INSTALL_DIR}/ovPreferences.pc"
                 @ONLY)
  install(FILES "${PROJECT_SOURCE_DIR}/packaging/cmake/ovPreferencesConfig.cmake"
                "${OV_INSTALL_DIR}/ovPreferencesConfigVersion.cmake" DESTINATION lib/cmake/ovPreferences)
  install(FILES "${OV_INSTALL_DIR}/ovPreferences.pc" DESTINATION lib/pkgconfig)
endif()
