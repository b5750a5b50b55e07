#pragma once

/// The object inspector: TKTObjectInspector and what it is made of.
#include "kt/KTObjectInspector/InspectorObject.h"
#include "kt/KTObjectInspector/InspectorObjects.h"
#include "kt/KTObjectInspector/InspectorTypes.h"
#include "kt/KTObjectInspector/ItemProperties.h"
#include "kt/KTObjectInspector/ItemProperty.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTObjectInspector/Registration.h"
#include "kt/KTObjectInspector/ResetCommand.h"
