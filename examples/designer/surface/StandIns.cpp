#include "designer/surface/StandIns.h"

#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/streams/UnknownComponent.h"

#include <QtEndian>

#include <algorithm>

namespace designer {

using namespace kt;

namespace {

/// A whole number of the binary object format, its type code included.
std::optional<int> NumberIn(const QByteArray& value) {
  const char* const bytes = value.constData() + 1;
  if (value.size() == 2) return static_cast<qint8>(*bytes);
  if (value.size() == 3) return qFromLittleEndian<qint16>(bytes);
  if (value.size() == 5) return qFromLittleEndian<qint32>(bytes);
  return std::nullopt;
}

std::optional<int> NumberOf(const TKeptData& kept, QStringView name) {
  for (const TKeptData::TProperty& property : kept.Properties) {
    if (property.Path.compare(name, Qt::CaseInsensitive) == 0) return NumberIn(property.Value);
  }
  return std::nullopt;
}

}  // namespace

bool IsStandIn(const TComponent& component) { return AsUnknown(const_cast<TComponent*>(&component)) != nullptr; }

bool IsOnStandIn(const TComponent& component) {
  const TKeptData* kept = FindKeptData(&component);
  return kept && kept->StandInParent;
}

std::optional<QRect> StandInBounds(const TComponent& component) {
  const TKeptData* kept = IsStandIn(component) ? FindKeptData(&component) : nullptr;
  if (!kept) return std::nullopt;
  const std::optional<int> left = NumberOf(*kept, u"Left");
  const std::optional<int> top = NumberOf(*kept, u"Top");
  if (!left || !top) return std::nullopt;
  const QSize size(NumberOf(*kept, u"Width").value_or(0), NumberOf(*kept, u"Height").value_or(0));
  return QRect(QPoint(*left, *top), size);
}

}  // namespace designer
