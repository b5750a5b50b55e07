#include "kt/vcl/extctrls/Panel.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/ControlText.h"
#include "kt/vcl/graphics/DrawText.h"

#include <QPainter>
#include <qdrawutil.h>

#include <algorithm>

namespace kt {

namespace {

/// Of the frame of bsSingle.
constexpr int kSingleBorder = 2;

/// Draws an edge along the inside of `rect` and takes its room away from it.
void DrawBevel(QPainter& painter, const QPalette& palette, TPanelBevel bevel, int width, QRect& rect) {
  if (bevel == bvNone || rect.isEmpty()) return;
  if (bevel != bvSpace) qDrawShadePanel(&painter, rect, palette, bevel == bvLowered, width);
  rect.adjust(width, width, -width, -width);
}

/// What a control asks for of its parent's width or height.
struct TNeed {
  int FarEdge = 0;
  int Sum = 0;
  bool IsAny = false;

  void Reach(int edge) {
    FarEdge = std::max(FarEdge, edge);
    IsAny = true;
  }
  void Add(int size) {
    Sum += size;
    IsAny = true;
  }
};

void CountNeeds(const TControl& control, TNeed& width, TNeed& height) {
  switch (control.GetAlign()) {
    case alLeft:
    case alRight:
      return width.Add(control.GetWidth());
    case alTop:
    case alBottom:
      return height.Add(control.GetHeight());
    case alClient:
      return;
    default:
      if (!control.GetAnchors().Has(akRight)) width.Reach(control.GetLeft() + control.GetWidth());
      if (!control.GetAnchors().Has(akBottom)) height.Reach(control.GetTop() + control.GetHeight());
  }
}

}  // namespace

void TCustomPanel::Construct() {
  TCustomControl::Construct();
  SetControlStyle({csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks, csReplicatable});
  SetColor(clBtnFace);
  SetBounds(0, 0, 185, 41);
}

QMargins TCustomPanel::GetClientMargins() const {
  const int border = FBorderStyle == bsSingle ? kSingleBorder : 0;
  return {border, border, border, border};
}

// The controls in it.

void TCustomPanel::AdjustClientRect(QRect& rect) {
  TCustomControl::AdjustClientRect(rect);
  const int bevels = (FBevelInner != bvNone ? FBevelWidth : 0) + (FBevelOuter != bvNone ? FBevelWidth : 0);
  const int edge = bevels + FBorderWidth;
  rect.adjust(edge, edge, -edge, -edge);
}

void TCustomPanel::AlignControls(QRect& rect) {
  const QRect client = rect;
  const TLifeWatch self(this);
  TCustomControl::AlignControls(rect);
  if (!self.IsAlive() || !FAutoSize || HasState(csLoading)) return;
  const QSize needed = NeededSize();
  if (needed == QSize(GetWidth(), GetHeight())) return;
  SetBounds(GetLeft(), GetTop(), needed.width(), needed.height());
  // What is aligned has to follow.
  if (!self.IsAlive() || GetClientRect() == client) return;
  rect = GetClientRect();
  TCustomControl::AlignControls(rect);
}

QSize TCustomPanel::NeededSize() const {
  TNeed width;
  TNeed height;
  for (int i = 0; i < GetControlCount(); ++i) {
    if (GetControls(i)->IsVisible() || HasState(csDesigning)) CountNeeds(*GetControls(i), width, height);
  }
  QRect inside(0, 0, 0, 0);
  const_cast<TCustomPanel*>(this)->AdjustClientRect(inside);
  const int edge = inside.x();
  const QMargins border = GetClientMargins();
  const auto total = [&](const TNeed& need) {
    return std::max(need.FarEdge, need.Sum + edge) + edge + 2 * border.top();
  };
  const bool isWidthFree = GetAlign() != alTop && GetAlign() != alBottom && GetAlign() != alClient;
  const bool isHeightFree = GetAlign() != alLeft && GetAlign() != alRight && GetAlign() != alClient;
  return {width.IsAny && isWidthFree ? total(width) : GetWidth(),
          height.IsAny && isHeightFree ? total(height) : GetHeight()};
}

void TCustomPanel::SetAutoSize(bool value) {
  if (FAutoSize == value) return;
  FAutoSize = value;
  if (value) Realign();
}

// Its look.

void TCustomPanel::PaintBorder(QPainter& painter) {
  if (FBorderStyle == bsSingle) qDrawShadePanel(&painter, Window()->rect(), Window()->palette(), true, kSingleBorder);
}

void TCustomPanel::Paint() {
  TCanvas& canvas = GetCanvas();
  QPainter& painter = canvas.Painter();
  QRect rect = GetClientRect();
  const QPalette palette = canvas.GetPalette();
  DrawBevel(painter, palette, FBevelOuter, FBevelWidth, rect);
  rect.adjust(FBorderWidth, FBorderWidth, -FBorderWidth, -FBorderWidth);
  DrawBevel(painter, palette, FBevelInner, FBevelWidth, rect);
  if (GetText().isEmpty() || rect.isEmpty()) return;
  // Captions are often left behind below what covers them, which may be translucent.
  painter.save();
  painter.setClipRegion(QRegion(rect) - WindowsArea(), Qt::IntersectClip);
  const TColor ground = IsParentBackground() && GetParent() ? GetParent()->GetColor() : GetColor();
  DrawControlText(canvas, *this, GetText(), rect, DT_SINGLELINE | DT_VCENTER | TextFlags(*this, FAlignment), ground);
  painter.restore();
}

void TCustomPanel::CMTextChanged(TMessage& message) {
  TCustomControl::CMTextChanged(message);
  Invalidate();
}

void TCustomPanel::SetParentBackground(bool value) {
  if (FGround.Set(*this, value)) Invalidate();
}

void TCustomPanel::SetAlignment(TAlignment value) {
  if (FAlignment == value) return;
  FAlignment = value;
  Invalidate();
}

void TCustomPanel::EdgesChanged() {
  Realign();
  Invalidate();
}

void TCustomPanel::SetBevelInner(TPanelBevel value) {
  if (FBevelInner == value) return;
  FBevelInner = value;
  EdgesChanged();
}

void TCustomPanel::SetBevelOuter(TPanelBevel value) {
  if (FBevelOuter == value) return;
  FBevelOuter = value;
  EdgesChanged();
}

void TCustomPanel::SetBevelWidth(int value) {
  value = std::max(value, 1);
  if (FBevelWidth == value) return;
  FBevelWidth = value;
  EdgesChanged();
}

void TCustomPanel::SetBorderWidth(int value) {
  value = std::max(value, 0);
  if (FBorderWidth == value) return;
  FBorderWidth = value;
  EdgesChanged();
}

void TCustomPanel::SetBorderStyle(TBorderStyle value) {
  if (FBorderStyle == value) return;
  FBorderStyle = value;
  PlaceChildWindows();
  EdgesChanged();
}

}  // namespace kt
