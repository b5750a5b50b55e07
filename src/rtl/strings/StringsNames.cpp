#include "kt/rtl/strings/Strings.h"

namespace kt {

QString TStrings::ExtractName(const QString& line) const {
  const qsizetype separator = line.indexOf(GetNameValueSeparator());
  return separator < 0 ? QString() : line.left(separator);
}

int TStrings::IndexOfName(QStringView name) {
  const QChar separator = GetNameValueSeparator();
  for (int i = 0; i < GetCount(); ++i) {
    const QString line = Get(i);
    const qsizetype end = line.indexOf(separator);
    if (end >= 0 && CompareStrings(QStringView(line).left(end), name) == 0) return i;
  }
  return -1;
}

QString TStrings::GetNames(int index) { return ExtractName(Get(index)); }

QString TStrings::GetValues(QStringView name) {
  const int index = IndexOfName(name);
  return index < 0 ? QString() : GetValueFromIndex(index);
}

void TStrings::SetValues(const QString& name, const QString& value) {
  int index = IndexOfName(name);
  if (!value.isEmpty()) {
    // Two steps, and two notifications, as watchers of the framework's lists know it.
    if (index < 0) index = Add(QString());
    Put(index, name + GetNameValueSeparator() + value);
  } else if (index >= 0) {
    Delete(index);
  }
}

QString TStrings::GetValueFromIndex(int index) {
  if (index < 0) return {};
  const QString line = Get(index);
  return line.mid(ExtractName(line).size() + 1);
}

void TStrings::SetValueFromIndex(int index, const QString& value) {
  if (!value.isEmpty()) {
    if (index < 0) index = Add(QString());
    Put(index, GetNames(index) + GetNameValueSeparator() + value);
  } else if (index >= 0) {
    Delete(index);
  }
}

}  // namespace kt
