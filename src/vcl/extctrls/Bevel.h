#pragma once

#include "kt/vcl/controls/GraphicControl.h"

namespace kt {

enum TBevelShape { bsBox, bsFrame, bsTopLine, bsBottomLine, bsLeftLine, bsRightLine, bsSpacer };
template <>
struct TEnumNames<TBevelShape> {
  static constexpr char Name[] = "TBevelShape";
  static constexpr const char* Values[] = {"bsBox",      "bsFrame",     "bsTopLine", "bsBottomLine",
                                           "bsLeftLine", "bsRightLine", "bsSpacer"};
};
enum TBevelStyle { bsLowered, bsRaised };
template <>
struct TEnumNames<TBevelStyle> {
  static constexpr char Name[] = "TBevelStyle";
  static constexpr const char* Values[] = {"bsLowered", "bsRaised"};
};

/// A line, a frame or a box that stands out of its parent or is sunk into it. A spacer only takes room.
class TBevel : public TGraphicControl {
 public:
  using Inherited = TGraphicControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TBevelShape GetShape() const { return FShape; }
  void SetShape(TBevelShape value);
  TBevelStyle GetStyle() const { return FStyle; }
  void SetStyle(TBevelStyle value);

 protected:
  explicit TBevel(TComponent* owner = nullptr) : TGraphicControl(owner) {}

  void Construct() override;
  void Paint() override;

 private:
  void DrawLine(QPainter& painter, const QPalette& palette) const;

  TBevelShape FShape = bsBox;
  TBevelStyle FStyle = bsLowered;
};

}  // namespace kt
