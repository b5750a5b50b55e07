#include "kt/rtl/streams/FormEvents.h"

#include <array>

namespace kt {
namespace {

constexpr std::array<QStringView, 4> kConstantNames{u"Null", u"nil", u"False", u"True"};

}  // namespace

std::optional<TFormConstant> FindFormConstant(QStringView identifier) {
  if (identifier.size() < 3 || identifier.size() > 5) return std::nullopt;
  for (size_t i = 0; i < kConstantNames.size(); ++i)
    if (identifier.compare(kConstantNames[i], Qt::CaseInsensitive) == 0) return TFormConstant(i);
  return std::nullopt;
}

QStringView FormConstantName(TFormConstant value) { return kConstantNames[value]; }

}  // namespace kt
