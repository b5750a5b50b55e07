#pragma once

#include "kt/vcl/controls/GraphicControl.h"

namespace kt {

enum TShapeType { stRectangle, stSquare, stRoundRect, stRoundSquare, stEllipse, stCircle };
template <>
struct TEnumNames<TShapeType> {
  static constexpr char Name[] = "TShapeType";
  static constexpr const char* Values[] = {"stRectangle",   "stSquare",  "stRoundRect",
                                           "stRoundSquare", "stEllipse", "stCircle"};
};

/// A rectangle, an ellipse, or the like, as large as the control. Squares and circles stand in its middle.
class TShape : public TGraphicControl {
 public:
  using Inherited = TGraphicControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Setters copy.
  TBrush& GetBrush() { return *FBrush; }
  void SetBrush(TBrush* value) { FBrush->Assign(value); }
  TPen& GetPen() { return *FPen; }
  void SetPen(TPen* value) { FPen->Assign(value); }
  TShapeType GetShape() const { return FShape; }
  void SetShape(TShapeType value);

 protected:
  explicit TShape(TComponent* owner = nullptr) : TGraphicControl(owner) {}

  void Construct() override;
  void Paint() override;

 private:
  void ToolChanged(TObject*) { Invalidate(); }
  QRect Outline() const;

  std::unique_ptr<TBrush> FBrush;
  std::unique_ptr<TPen> FPen;
  TShapeType FShape = stRectangle;
};

}  // namespace kt
