# kt_program(<name> SOURCES ... LINKS ...): a program of the project, in <build>/bin.
function(kt_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} kt_own_options)
endfunction()
