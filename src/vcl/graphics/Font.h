#pragma once

#include "kt/vcl/graphics/FontData.h"
#include "kt/vcl/graphics/GraphicsObject.h"

namespace kt {

/// How text looks: face, size, style and colour.
///
/// Fonts that were assigned from one another share their data until one of them is changed; a font that nobody touched
/// shares the data of all others of that kind. So a font costs 24 bytes, and a million items can have one each. Plain
/// data: works without display and application object; what draws it is found when something is drawn.
///
/// A setter that changes something raises OnChange once; so does an Assign() that does.
class TFont : public TGraphicsObject {
 public:
  using Inherited = TGraphicsObject;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TFontCharset GetCharset() const { return FData->Charset; }
  void SetCharset(TFontCharset value);
  TColor GetColor() const { return FData->Color; }
  void SetColor(TColor value);
  /// In pixels: a negative number is the height of the letters without the leading above them, what sizes in points
  /// speak of; a positive one that of a whole line; 0 a height of the platform's choice.
  int GetHeight() const { return FData->Height; }
  void SetHeight(int value);
  /// The face. An empty name is ignored: a font always has a face.
  const QString& GetName() const { return FData->Name; }
  void SetName(const QString& value);
  /// The direction of the line of text in tenths of a degree, counter-clockwise.
  int GetOrientation() const { return FData->Orientation; }
  void SetOrientation(int value);
  TFontPitch GetPitch() const { return FData->Pitch; }
  void SetPitch(TFontPitch value);
  /// The height in points, at GetPixelsPerInch(): negative where Height is positive. Never streamed: Height is.
  int GetSize() const;
  void SetSize(int value);
  TFontStyles GetStyle() const { return FData->Style; }
  void SetStyle(TFontStyles value);

  /// The scale that GetSize() is computed with; changing it changes no pixel and raises no event. At least 1.
  int GetPixelsPerInch() const { return FData->PixelsPerInch; }
  void SetPixelsPerInch(int value);

  /// Copies a font. A source of another scale is taken over by its size in points, at the own scale.
  void Assign(TPersistent* source) override;
  /// True when both look the same in every respect. Takes constant time for fonts that share their data.
  bool IsSameAs(const TFont& other) const { return FData == other.FData || *FData == *other.FData; }

  const TFontData& Data() const { return *FData; }
  const TFontDataPointer& SharedData() const { return FData; }

 protected:
  TFont() = default;

  /// What `source` says, its height brought to this font's scale.
  TFontDataPointer DataAtOwnScale(const TFont& source) const;
  /// Takes over `data` and tells the change, if it is one.
  void SetData(const TFontDataPointer& data);

 private:
  template <auto Field, class V>
  void Store(const V& value);

  TFontDataPointer FData = DefaultFontData();
};

}  // namespace kt
