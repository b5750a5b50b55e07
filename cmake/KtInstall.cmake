# The install tree: find_package(ktinspector CONFIG) gives kt::rtl and the libraries above it.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

get_property(kt_components GLOBAL PROPERTY KT_LIBRARIES)
list(TRANSFORM kt_components PREPEND kt_ OUTPUT_VARIABLE kt_targets)
set(KT_CONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ktinspector)

# The libraries above rtl need more of Qt than Qt Core.
set(kt_qt_components Core)
if("vcl" IN_LIST kt_components)
  list(APPEND kt_qt_components Gui Widgets)
endif()
list(JOIN kt_qt_components " " kt_qt_components)

install(
  TARGETS ${kt_targets}
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
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

# Programs that people keep are installed too; with shared libraries they find them beside themselves.
if(TARGET ktform)
  file(RELATIVE_PATH kt_bin_to_lib ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(ktform PROPERTIES INSTALL_RPATH "$ORIGIN/${kt_bin_to_lib}")
  install(TARGETS ktform RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
