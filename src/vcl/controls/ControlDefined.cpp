// What controls stream besides their properties.
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/vcl/controls/Control.h"
#include "kt/vcl/controls/ExplicitBounds.h"
#include "kt/vcl/controls/WinControl.h"

#include <QStringView>

namespace kt {

namespace {

constexpr std::array<QStringView, 4> kExplicitNames = {u"ExplicitLeft", u"ExplicitTop", u"ExplicitWidth",
                                                       u"ExplicitHeight"};

/// What a form of that client size says of it.
void WritePoint(TWriter& writer, QPoint point) {
  writer.WriteListBegin();
  writer.WriteInteger(point.x());
  writer.WriteInteger(point.y());
  writer.WriteListEnd();
}

QPoint ReadPoint(TReader& reader) {
  reader.ReadListBegin();
  const int x = reader.ReadInteger();
  const int y = reader.ReadInteger();
  reader.ReadListEnd();
  return {x, y};
}

}  // namespace

void TControl::DefineProperties(TFiler& filer) {
  TComponent::DefineProperties(filer);
  const auto* const ancestor = dynamic_cast<const TControl*>(filer.GetAncestor());
  for (size_t i = 0; i < kExplicitNames.size(); ++i) {
    const std::optional<int> value = FExplicit ? FExplicit->Values[i] : std::nullopt;
    const bool isInherited = ancestor && ancestor->FExplicit && ancestor->FExplicit->Values[i] == value;
    const auto read = [this, i](TReader& reader) {
      if (!FExplicit) FExplicit = std::make_unique<TExplicitBounds>();
      FExplicit->Values[i] = reader.ReadInteger();
    };
    const auto write = [value](TWriter& writer) { writer.WriteInteger(value.value_or(0)); };
    filer.DefineProperty(kExplicitNames[i], read, write, value && !isInherited);
  }
}

void TWinControl::DefineProperties(TFiler& filer) {
  TControl::DefineProperties(filer);
  const auto* const ancestor = dynamic_cast<const TWinControl*>(filer.GetAncestor());
  const QPoint size = HasState(csDesigning) ? QPoint(GetClientWidth(), GetClientHeight()) : FDesignSize;
  const bool hasSize = !FDesignSize.isNull() && !(ancestor && ancestor->FDesignSize == FDesignSize);
  filer.DefineProperty(
      u"DesignSize", [this](TReader& reader) { FDesignSize = ReadPoint(reader); },
      [size](TWriter& writer) { WritePoint(writer, size); }, hasSize);
}

}  // namespace kt
