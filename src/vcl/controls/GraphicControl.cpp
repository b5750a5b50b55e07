#include "kt/vcl/controls/GraphicControl.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/WinControl.h"

namespace kt {

const TClassInfo* TGraphicControl::Class() {
  static const TClassInfo info = TClassBuilder<TGraphicControl>("TGraphicControl").Done();
  return &info;
}

TGraphicControl::TGraphicControl(TComponent* owner) : TControl(owner) {}

TGraphicControl::~TGraphicControl() = default;

void TGraphicControl::Construct() {
  FCanvas = Make<TCanvas>();
  TControl::Construct();
}

void TGraphicControl::Invalidate() {
  if (ShowsInParent()) InvalidateInParent(GetBoundsRect());
}

void TGraphicControl::Repaint() {
  Invalidate();
  Update();
}

void TGraphicControl::Update() {
  if (GetParent()) GetParent()->Update();
}

void TGraphicControl::BoundsUpdated() {
  TControl::BoundsUpdated();
  Invalidate();
}

void TGraphicControl::CMVisibleChanged(TMessage& message) {
  TControl::CMVisibleChanged(message);
  // Where it was, there is the parent now.
  InvalidateInParent(GetBoundsRect());
}

void TGraphicControl::PaintInWindow(QPainter& painter, const QRect& clip) {
  FCanvas->SetPalette(GetParent()->GetHandle()->palette());
  FCanvas->Begin(painter, clip);
  // A handler may free the control.
  struct TEnd {
    TCanvas& Canvas;
    const TLifeWatch Life{&Canvas};
    ~TEnd() {
      if (Life.IsAlive()) Canvas.End();
    }
  } end{*FCanvas};
  FCanvas->SetFont(&GetFont());
  FCanvas->GetBrush().SetColor(GetColor());
  Paint();
}

}  // namespace kt
