#pragma once

#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <QStringList>

#include <string>

namespace kt::tests {

/// The properties that the class of an object publishes itself, in their order; where there is a default, with the
/// value that the object has: "Enabled=True Interval=1000 OnTimer".
inline std::string PublishedOf(TPersistent& object) {
  QStringList texts;
  const TClassInfo* parent = object.ClassParent();
  for (const TPropInfo* property : object.ClassType()->Props()) {
    if (parent && parent->FindProp(property->Name()) == property) continue;
    QString text = property->Name();
    if (property->HasDefault()) text += u'=' + VarToStr(GetPropValue(&object, property));
    texts += text;
  }
  return texts.join(u' ').toStdString();
}

}  // namespace kt::tests
