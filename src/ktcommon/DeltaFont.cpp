#include "kt/ktcommon/DeltaFont.h"

#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <utility>

namespace kt {
namespace {

/// What can differ on its own, one bit each; the styles come last, in the order of TFontStyle.
enum TFontAttribute : quint32 {
  faCharset = 1 << 0,
  faColor = 1 << 1,
  faHeight = 1 << 2,
  faName = 1 << 3,
  faOrientation = 1 << 4,
  faPitch = 1 << 5
};
constexpr int kFirstStyle = 6;

quint32 DifferencesOf(const TFontData& a, const TFontData& b) {
  quint32 different = (a.Style.Bits() ^ b.Style.Bits()) << kFirstStyle;
  if (a.Charset != b.Charset) different |= faCharset;
  if (a.Color != b.Color) different |= faColor;
  if (a.Height != b.Height) different |= faHeight;
  if (a.Name != b.Name) different |= faName;
  if (a.Orientation != b.Orientation) different |= faOrientation;
  if (a.Pitch != b.Pitch) different |= faPitch;
  return different;
}

void CopyAttributes(const TFontData& source, quint32 attributes, TFontData& target) {
  if (attributes & faCharset) target.Charset = source.Charset;
  if (attributes & faColor) target.Color = source.Color;
  if (attributes & faHeight) target.Height = source.Height;
  if (attributes & faName) target.Name = source.Name;
  if (attributes & faOrientation) target.Orientation = source.Orientation;
  if (attributes & faPitch) target.Pitch = source.Pitch;
  const auto styles = TFontStyles::FromBits(attributes >> kFirstStyle);
  target.Style = target.Style - styles + source.Style * styles;
}

}  // namespace

const TClassInfo* TKTCustomDeltaFont::Class() {
  static const TClassInfo info = TClassBuilder<TKTCustomDeltaFont>("TKTCustomDeltaFont").Creatable().Done();
  return &info;
}

void TKTCustomDeltaFont::SetOnGetOriginalFont(const TKTGetOriginalFontEvent& value) {
  if (FOnGetOriginalFont == value) return;
  FOnGetOriginalFont = value;
  TFont* base = nullptr;
  const TKTGetOriginalFontEvent handler = value;
  handler(this, base);
  if (!base) return;
  FBase = DataAtOwnScale(*base);
  FOwn &= DifferencesOf(Data(), *std::as_const(FBase));
}

void TKTCustomDeltaFont::BaseFontChanged(const TFont* base) {
  if (!base) return;
  FBase = DataAtOwnScale(*base);
  TFontDataPointer derived = FBase;
  if (FOwn) CopyAttributes(Data(), FOwn, *derived);
  // Known before it happens: what comes from the base is no difference.
  FKnown = derived;
  SetData(derived);
}

void TKTCustomDeltaFont::Changed() {
  const quint32 touched = DifferencesOf(*std::as_const(FKnown), Data());
  const quint32 different = DifferencesOf(*std::as_const(FBase), Data());
  FOwn = (FOwn & ~touched) | (different & touched);
  FKnown = SharedData();
  TFont::Changed();
}

}  // namespace kt
