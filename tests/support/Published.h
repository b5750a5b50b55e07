#pragma once

#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/vcl/controls/Control.h"

#include <QStringList>

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

}  // namespace kt::tests
