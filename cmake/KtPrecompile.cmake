# Headers of others that nearly every file includes, compiled once a target: for builds that do not join their files.
option(KT_PRECOMPILE "Compile the headers of Qt and the standard library once for each target" OFF)

# kt_precompile(<target>): the headers of Qt Core, and of Qt Widgets for what links it.
function(kt_precompile target)
  if(NOT KT_PRECOMPILE)
    return()
  endif()
  get_target_property(links ${target} LINK_LIBRARIES)
  set(headers <algorithm> <functional> <map> <memory> <optional> <string> <vector> <QtCore>)
  if(links MATCHES "Qt6::Widgets|kt::vcl|kt::inspector")
    list(APPEND headers <QtGui> <QtWidgets>)
  endif()
  target_precompile_headers(${target} PRIVATE ${headers})
endfunction()
