// A font as an object with members.
#include "kt/qobjects/ValueShapes.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <QFont>

namespace kt {

namespace {

void Require(bool isValid) {
  if (!isValid) throw EPropertyError(SInvalidPropertyValue.toString());
}

/// In points; -1 for a font that is measured in pixels.
void SetSize(QFont& font, double value) {
  Require(value > 0);
  font.setPointSizeF(value);
}

/// -1 for a font that is measured in points.
void SetPixelSize(QFont& font, int value) {
  Require(value > 0);
  font.setPixelSize(value);
}

void SetWeight(QFont& font, QFont::Weight value) {
  Require(value >= 1 && value <= 1000);
  font.setWeight(value);
}

void SetStretch(QFont& font, int value) {
  Require(value >= 0 && value <= 4000);
  font.setStretch(value);
}

}  // namespace

std::vector<TValueMember> FontMembers() {
  using T = QFont;
  return TShapeBuilder<T>()
      .Member("family", &T::family, &T::setFamily)
      .Member("size", &T::pointSizeF, &SetSize)
      .Member("pixelSize", &T::pixelSize, &SetPixelSize)
      .Member("bold", &T::bold, &T::setBold)
      .Member("italic", &T::italic, &T::setItalic)
      .Member("underline", &T::underline, &T::setUnderline)
      .Member("strikeout", &T::strikeOut, &T::setStrikeOut)
      .Member("overline", &T::overline, &T::setOverline)
      .Member("weight", &T::weight, &SetWeight)
      .Member("style", &T::style, &T::setStyle)
      .Member("stretch", &T::stretch, &SetStretch)
      .Member("fixedPitch", &T::fixedPitch, &T::setFixedPitch)
      .Member("kerning", &T::kerning, &T::setKerning)
      .Member("capitalization", &T::capitalization, &T::setCapitalization)
      .Member("wordSpacing", &T::wordSpacing, &T::setWordSpacing)
      .Member("styleHint", &T::styleHint,
              [](T& font, T::StyleHint value) { font.setStyleHint(value, font.styleStrategy()); })
      .Member("styleStrategy", &T::styleStrategy, &T::setStyleStrategy)
      .Member("hinting", &T::hintingPreference, &T::setHintingPreference)
      .Done();
}

}  // namespace kt
