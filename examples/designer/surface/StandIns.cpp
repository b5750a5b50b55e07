#include "designer/surface/StandIns.h"

#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/streams/BinaryWriter.h"
#include "kt/rtl/streams/UnknownComponent.h"

#include <QtEndian>

#include <algorithm>

namespace designer {

using namespace kt;

namespace {

/// A whole number of the binary object format.
std::optional<int> NumberIn(const QByteArray& value) {
  const char* const bytes = value.constData() + 1;
  switch (value.isEmpty() ? vaNull : TValueType(value.front())) {
    case vaInt8:
      return static_cast<qint8>(*bytes);
    case vaInt16:
      return qFromLittleEndian<qint16>(bytes);
    case vaInt32:
      return qFromLittleEndian<qint32>(bytes);
    default:
      return std::nullopt;
  }
}

QByteArray ValueOf(int number) {
  QByteArray value;
  TBinaryWriter writer(value);
  writer.WriteInteger(number);
  writer.Flush();
  return value;
}

auto FindKept(auto& kept, QStringView name) {
  return std::find_if(kept.Properties.begin(), kept.Properties.end(), [name](const TKeptData::TProperty& property) {
    return property.Path.compare(name, Qt::CaseInsensitive) == 0;
  });
}

std::optional<int> NumberOf(const TKeptData& kept, QStringView name) {
  const auto found = FindKept(kept, name);
  return found == kept.Properties.end() ? std::nullopt : NumberIn(found->Value);
}

/// Of what the file says.
void SetNumber(TKeptData& kept, QStringView name, int number) {
  const auto found = FindKept(kept, name);
  if (found != kept.Properties.end() && NumberIn(found->Value) != number) found->Value = ValueOf(number);
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

void SetStandInPlace(TComponent& component, QPoint place) {
  TKeptData& kept = EnsureKeptData(&component);
  SetNumber(kept, u"Left", place.x());
  SetNumber(kept, u"Top", place.y());
}

void SetStandInSize(TComponent& component, QSize size) {
  TKeptData& kept = EnsureKeptData(&component);
  SetNumber(kept, u"Width", std::max(size.width(), 0));
  SetNumber(kept, u"Height", std::max(size.height(), 0));
}

bool IsStandInSized(const TComponent& component) {
  const std::optional<QRect> bounds = StandInBounds(component);
  return bounds && !bounds->isEmpty();
}

bool IsStandInAligned(const TComponent& component) {
  const TKeptData* kept = IsStandIn(component) ? FindKeptData(&component) : nullptr;
  if (!kept) return false;
  const auto found = FindKept(*kept, u"Align");
  return found != kept->Properties.end() && !found->Value.endsWith("alNone") && !found->Value.endsWith("alCustom");
}

}  // namespace designer
