#pragma once

#include "kt/rtl/streams/FormEvents.h"

#include <QString>

namespace kt {

/// The header of a stored object, kept beyond the event that brings it; see TFormObject.
struct TFormObjectHeader {
  TFilerFlags Flags;
  QString ClassName;
  QString Name;
  int ChildPos = 0;
};

/// What messages call the object: its name, or its class when it has none.
inline const QString& NameIn(const TFormObjectHeader& header) {
  return header.Name.isEmpty() ? header.ClassName : header.Name;
}

}  // namespace kt
