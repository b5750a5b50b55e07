#pragma once

#include <QStringView>

namespace kt {

class TClassInfo;
class TStrings;

/// Whether a class or one of its ancestors has that name, without regard to case. False for null.
bool IsMatchClassName(const TClassInfo* classInfo, QStringView name);
/// Whether that holds for one of the lines.
bool IsMatchClassName(const TClassInfo* classInfo, TStrings& names);

}  // namespace kt
