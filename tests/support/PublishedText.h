#pragma once

#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/vcl/controls/Control.h"

#include <QStringList>

#include <string>

namespace kt::tests {

/// What a class of controls publishes beside what all controls do, with the declared defaults, in publishing order:
/// "Align=alNone Anchors Max=100".
inline std::string PublishedBy(const TClassInfo* info) {
  QStringList words;
  for (const TPropInfo* property : info->Props()) {
    if (TControl::Class()->FindProp(property->Name())) continue;
    QString word = property->Name();
    if (property->HasDefault()) {
      const bool isNamed = property->Kind() == tkEnumeration;
      word += u'=' + (isNamed ? GetEnumName(property->PropType(), static_cast<int>(property->Default()))
                              : QString::number(property->Default()));
    }
    words += word;
  }
  return words.join(u' ').toStdString();
}

}  // namespace kt::tests
