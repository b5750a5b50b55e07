#pragma once

#include "kt/rtl/typeinfo/Event.h"
#include "kt/vcl/graphics/Font.h"

namespace kt {

/// Asks for the font that `sender`, a delta font, is based on; left null when there is none.
struct TKTGetOriginalFontEvent : TEvent<TObject*, TFont*& /*font*/> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKTGetOriginalFontEvent";
};

/// A font that differs from a base font in some respects and follows it in all others.
///
/// Whoever sets a property to another value than the base has makes it the font's own; setting it to the base's value
/// gives it up again. Each style counts for itself: a font that is bold on its own follows the base into italics.
/// An own difference stays when the base comes to look the same, and so is still there when the base changes back.
///
/// The base is not watched. The font asks for it when it gets a callback for that, and is told of changes by
/// BaseFontChanged(); until then it is based on what a new font looks like. Costs three pointers more than a font.
class TKTCustomDeltaFont : public TFont {
 public:
  using Inherited = TFont;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Where the base font comes from. Setting it changes nothing that is seen; what equals the base is no difference
  /// any more.
  const TKTGetOriginalFontEvent& GetOnGetOriginalFont() const { return FOnGetOriginalFont; }
  void SetOnGetOriginalFont(const TKTGetOriginalFontEvent& value);

  /// The base font is now `base`, or looks different: takes over everything but the own differences, and raises
  /// OnChange when that changes anything. Null changes nothing.
  void BaseFontChanged(const TFont* base);

 protected:
  TKTCustomDeltaFont() = default;

  void Changed() override;

 private:
  TKTGetOriginalFontEvent FOnGetOriginalFont;
  /// What the font was last based on.
  TFontDataPointer FBase = DefaultFontData();
  /// What it looked like after the last change.
  TFontDataPointer FKnown = DefaultFontData();
  /// The own differences, as bits of TFontAttributes.
  quint32 FOwn = 0;
};

}  // namespace kt
