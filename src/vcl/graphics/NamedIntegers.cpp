#include "kt/vcl/graphics/NamedIntegers.h"

#include <algorithm>

namespace kt {

std::optional<qint32> TNamedIntegers::ValueOf(QStringView name) const {
  const auto found = std::find_if(FEntries.begin(), FEntries.end(), [&](const TNamedInteger& entry) {
    return name.compare(QLatin1StringView(entry.Name), Qt::CaseInsensitive) == 0;
  });
  if (found == FEntries.end()) return std::nullopt;
  return found->Value;
}

QString TNamedIntegers::NameOf(qint64 value) const {
  const auto found =
      std::find_if(FEntries.begin(), FEntries.end(), [&](const TNamedInteger& entry) { return entry.Value == value; });
  return found == FEntries.end() ? QString() : QString::fromLatin1(found->Name);
}

void TNamedIntegers::RegisterFor(const TTypeInfo* type) const {
  const TNamedIntegers names = *this;
  RegisterIntegerConsts(type, {[names](QStringView ident) -> std::optional<qint64> { return names.ValueOf(ident); },
                               [names](qint64 value) { return names.NameOf(value); }});
}

}  // namespace kt
