# The install tree: find_package(ktinspector CONFIG) gives kt::rtl and the libraries above it.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

get_property(kt_libraries GLOBAL PROPERTY KT_LIBRARIES)
set(KT_CONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ktinspector)

install(
  TARGETS ${kt_libraries}
  EXPORT ktinspectorTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(
  DIRECTORY ${PROJECT_SOURCE_DIR}/src/
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kt
  FILES_MATCHING
  PATTERN "*.h")
install(
  EXPORT ktinspectorTargets
  NAMESPACE kt::
  DESTINATION ${KT_CONFIG_DIR})

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ktinspectorConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/ktinspectorConfig.cmake INSTALL_DESTINATION ${KT_CONFIG_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ktinspectorConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ktinspectorConfig.cmake ${PROJECT_BINARY_DIR}/ktinspectorConfigVersion.cmake
        DESTINATION ${KT_CONFIG_DIR})
