#pragma once

#include "kt/vcl/graphics/Color.h"
#include "kt/vcl/graphics/GraphicsObject.h"
#include "kt/vcl/graphics/PenBrushTypes.h"

namespace kt {

/// What lines and outlines are drawn with.
class TPen : public TGraphicsObject {
 public:
  using Inherited = TGraphicsObject;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TColor GetColor() const { return FColor; }
  void SetColor(TColor value);
  TPenMode GetMode() const { return FMode; }
  void SetMode(TPenMode value);
  TPenStyle GetStyle() const { return FStyle; }
  void SetStyle(TPenStyle value);
  /// In pixels; negative widths are ignored.
  int GetWidth() const { return FWidth; }
  void SetWidth(int value);

  void Assign(TPersistent* source) override;

 protected:
  TPen() = default;

 private:
  template <class V>
  void Store(V& field, V value);

  int FWidth = 1;
  TColor FColor = clBlack;
  TPenMode FMode = pmCopy;
  TPenStyle FStyle = psSolid;
};

}  // namespace kt
