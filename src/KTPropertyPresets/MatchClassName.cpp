#include "kt/KTPropertyPresets/MatchClassName.h"

#include "kt/rtl/strings/Strings.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

namespace kt {

bool IsMatchClassName(const TClassInfo* classInfo, QStringView name) {
  while (classInfo && !classInfo->ClassNameIs(name)) classInfo = classInfo->ClassParent();
  return classInfo != nullptr;
}

bool IsMatchClassName(const TClassInfo* classInfo, TStrings& names) {
  for (int i = 0; classInfo && i < names.GetCount(); ++i) {
    if (IsMatchClassName(classInfo, names.GetStrings(i))) return true;
  }
  return false;
}

}  // namespace kt
