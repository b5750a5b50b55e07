#include "kt/vcl/graphics/Font.h"

#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace kt {
namespace {

constexpr int kPointsPerInch = 72;

/// value * numerator / denominator, rounded to the nearest, halves away from zero; cut to what can be negated.
int Scaled(int value, int numerator, int denominator) {
  const qint64 product = qint64{value} * numerator;
  const qint64 half = product < 0 ? -denominator / 2 : denominator / 2;
  constexpr qint64 limit = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp((product + half) / denominator, -limit, limit));
}

}  // namespace

const TClassInfo* TFont::Class() {
  static const TClassInfo info = TClassBuilder<TFont>("TFont")
                                     .Property<&TFont::GetCharset, &TFont::SetCharset>("Charset")
                                     .Property<&TFont::GetColor, &TFont::SetColor>("Color")
                                     .Property<&TFont::GetHeight, &TFont::SetHeight>("Height")
                                     .Property<&TFont::GetName, &TFont::SetName>("Name", &FontNameTypeInfo)
                                     .Property<&TFont::GetOrientation, &TFont::SetOrientation>("Orientation")
                                     .Default(0)
                                     .Property<&TFont::GetPitch, &TFont::SetPitch>("Pitch")
                                     .Default(fpDefault)
                                     .Property<&TFont::GetSize, &TFont::SetSize>("Size")
                                     .NotStored()
                                     .Property<&TFont::GetStyle, &TFont::SetStyle>("Style")
                                     .Creatable()
                                     .Done();
  return &info;
}

template <auto Field, class V>
void TFont::Store(const V& value) {
  if (std::as_const(FData)->*Field == value) return;
  (*FData).*Field = value;
  Changed();
}

void TFont::SetCharset(TFontCharset value) { Store<&TFontData::Charset>(value); }
void TFont::SetColor(TColor value) { Store<&TFontData::Color>(value); }
void TFont::SetHeight(int value) { Store<&TFontData::Height>(value); }
void TFont::SetOrientation(int value) { Store<&TFontData::Orientation>(value); }
void TFont::SetPitch(TFontPitch value) { Store<&TFontData::Pitch>(value); }
void TFont::SetStyle(TFontStyles value) { Store<&TFontData::Style>(value); }

void TFont::SetName(const QString& value) {
  if (!value.isEmpty()) Store<&TFontData::Name>(value);
}

int TFont::GetSize() const { return -Scaled(FData->Height, kPointsPerInch, FData->PixelsPerInch); }
void TFont::SetSize(int value) { SetHeight(-Scaled(value, FData->PixelsPerInch, kPointsPerInch)); }

void TFont::SetPixelsPerInch(int value) {
  Q_ASSERT(value > 0);
  if (GetPixelsPerInch() != value) FData->PixelsPerInch = value;
}

void TFont::SetData(const TFontDataPointer& data) {
  const bool isSame = FData == data || *std::as_const(FData) == *data;
  FData = data;
  if (!isSame) Changed();
}

TFontDataPointer TFont::DataAtOwnScale(const TFont& source) const {
  TFontDataPointer data = source.FData;
  const int scale = GetPixelsPerInch();
  if (source.GetPixelsPerInch() == scale) return data;
  data->Height = -Scaled(source.GetSize(), scale, kPointsPerInch);
  data->PixelsPerInch = scale;
  return data;
}

void TFont::Assign(TPersistent* source) {
  const auto* font = dynamic_cast<TFont*>(source);
  if (!font) return TPersistent::Assign(source);
  SetData(DataAtOwnScale(*font));
}

}  // namespace kt
