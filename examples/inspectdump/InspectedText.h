#pragma once

#include "kt/KTObjectInspector.h"

#include <QString>

/// What `inspector` lists for a component, a line each, indented by so many levels: what is modified has a star before
/// it. Line breaks in values show as \r and \n. The inspector goes on inspecting the component.
QString TextOfProperties(kt::TKTObjectInspector& inspector, kt::TComponent* component, int level);
