#pragma once

#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/controls/Control.h"

#include <QStringList>

#include <string>

namespace kt::tests {

/// What a class of controls publishes beyond what all controls do, in its order: "AutoSize=True Caption TabOrder=-1",
/// with the declared defaults.
inline std::string PublishedOf(const TClassInfo* info) {
  QStringList names;
  for (const TPropInfo* prop : info->Props()) {
    if (TControl::Class()->FindProp(prop->Name())) continue;
    names += prop->Name();
    if (!prop->HasDefault()) continue;
    const bool isEnum = prop->Kind() == tkEnumeration;
    const QString value = isEnum ? GetEnumName(prop->PropType(), prop->Default()) : QString::number(prop->Default());
    names.back() += u'=' + value;
  }
  return names.join(u' ').toStdString();
}

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
