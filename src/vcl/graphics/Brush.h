#pragma once

#include "kt/vcl/graphics/Color.h"
#include "kt/vcl/graphics/GraphicsObject.h"
#include "kt/vcl/graphics/PenBrushTypes.h"

namespace kt {

/// What areas are filled with, and text is drawn on.
class TBrush : public TGraphicsObject {
 public:
  using Inherited = TGraphicsObject;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TColor GetColor() const { return FColor; }
  /// A clear brush becomes a solid one by it.
  void SetColor(TColor value);
  TBrushStyle GetStyle() const { return FStyle; }
  void SetStyle(TBrushStyle value);

  void Assign(TPersistent* source) override;

 protected:
  TBrush() = default;

 private:
  void Store(TColor color, TBrushStyle style);

  TColor FColor = clWhite;
  TBrushStyle FStyle = bsSolid;
};

}  // namespace kt
