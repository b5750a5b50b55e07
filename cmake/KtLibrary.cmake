# What every library of the project has in common.
include(GNUInstallDirs)
include(KtPrecompile)
if(PROJECT_IS_TOP_LEVEL)
  include(KtHeaders)
endif()

# Headers are reached as <kt/rtl/Collections.h> both here and after installation: in the build tree `kt` is a link to src/.
set(KT_INCLUDE_ROOT ${PROJECT_BINARY_DIR}/include)
file(MAKE_DIRECTORY ${KT_INCLUDE_ROOT})
file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src ${KT_INCLUDE_ROOT}/kt SYMBOLIC COPY_ON_ERROR)

# Options that only the project's own code is compiled with; they never reach people who embed the package.
add_library(kt_own_options INTERFACE)
target_compile_options(
  kt_own_options
  INTERFACE
    $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall;-Wextra;-Wpedantic;-Wshadow;-Wnon-virtual-dtor;-Woverloaded-virtual;-Wimplicit-fallthrough>
    # False alarms on functions that return references into their arguments.
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_GREATER_EQUAL:$<CXX_COMPILER_VERSION>,13>>:-Wno-dangling-reference>
    $<$<AND:$<BOOL:${KT_WARNINGS_AS_ERRORS}>,$<CXX_COMPILER_ID:GNU,Clang>>:-Werror>)
target_compile_definitions(kt_own_options INTERFACE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_FOREACH)

# Until 1.0 the interface may change with every minor version, so the name that programs load has it too.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(KT_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
else()
  set(KT_SOVERSION ${PROJECT_VERSION_MAJOR})
endif()

# kt_library(<name> SOURCES ... LINKS ...): a library exported as kt::<name>.
function(kt_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(kt_${name} ${ARG_SOURCES})
  add_library(kt::${name} ALIAS kt_${name})
  set_target_properties(
    kt_${name}
    PROPERTIES EXPORT_NAME ${name}
               VERSION ${PROJECT_VERSION}
               SOVERSION ${KT_SOVERSION}
               DEFINE_SYMBOL "" # compiled alike for both kinds of library, so that changing the kind only links anew
               POSITION_INDEPENDENT_CODE ON)
  target_compile_features(kt_${name} PUBLIC cxx_std_20)
  target_include_directories(kt_${name} PUBLIC $<BUILD_INTERFACE:${KT_INCLUDE_ROOT}>
                                               $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_link_libraries(kt_${name} PUBLIC ${ARG_LINKS} PRIVATE $<BUILD_INTERFACE:kt_own_options>)
  kt_precompile(kt_${name})
  set_property(GLOBAL APPEND PROPERTY KT_LIBRARIES ${name})
  set_property(GLOBAL PROPERTY KT_LINKS_OF_${name} ${ARG_LINKS})
  if(COMMAND kt_check_headers)
    kt_check_headers(kt_${name} ${ARG_SOURCES})
  endif()
endfunction()
