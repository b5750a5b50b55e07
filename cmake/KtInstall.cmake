# The install tree: find_package(ktinspector CONFIG) gives kt::rtl and the libraries above it.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

get_property(kt_components GLOBAL PROPERTY KT_LIBRARIES)
list(JOIN kt_components ", " kt_component_names)
set(KT_CONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ktinspector)

# What the package's configuration has to know of each library: what it wants of Qt itself, and, in the order in which
# they are defined, the libraries that it is made of.
set(kt_requirements "")
foreach(component IN LISTS kt_components)
  get_property(links GLOBAL PROPERTY KT_LINKS_OF_${component})
  set(qt_of_component ${links})
  list(FILTER qt_of_component INCLUDE REGEX "^Qt6::")
  list(TRANSFORM qt_of_component REPLACE "^Qt6::" "")
  set(parts_of_${component} "")
  foreach(link IN LISTS links)
    if(link MATCHES "^kt::(.*)$")
      list(APPEND parts_of_${component} ${parts_of_${CMAKE_MATCH_1}})
    endif()
  endforeach()
  list(APPEND parts_of_${component} ${component})
  list(REMOVE_DUPLICATES parts_of_${component})
  list(JOIN qt_of_component " " qt_words)
  list(JOIN parts_of_${component} " " part_words)
  string(APPEND kt_requirements "set(_kt_qt_of_${component} ${qt_words})\nset(_kt_parts_of_${component} ${part_words})\n")
endforeach()

# Each library is exported by itself, so that who wants one need not have what the others need.
foreach(component IN LISTS kt_components)
  install(
    TARGETS kt_${component}
    EXPORT ktinspector-${component}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(
    EXPORT ktinspector-${component}
    NAMESPACE kt::
    DESTINATION ${KT_CONFIG_DIR})
endforeach()
list(JOIN kt_components " " kt_components)

# Headers of libraries that are not built stay out.
set(kt_header_folders ${PROJECT_SOURCE_DIR}/src/rtl)
if(TARGET kt_inspector)
  set(kt_header_folders ${PROJECT_SOURCE_DIR}/src/)
endif()
install(
  DIRECTORY ${kt_header_folders}
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kt
  FILES_MATCHING
  PATTERN "*.h")

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
