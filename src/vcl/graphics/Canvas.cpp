#include "kt/vcl/graphics/Canvas.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/Graphic.h"
#include "kt/vcl/graphics/GraphicsMessages.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/graphics/RealFont.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <utility>

namespace kt {

const TClassInfo* TCanvas::Class() {
  static const TClassInfo info = TClassBuilder<TCanvas>("TCanvas")
                                     .Property<&TCanvas::GetBrush, &TCanvas::SetBrush>("Brush")
                                     .Property<&TCanvas::GetFont, &TCanvas::SetFont>("Font")
                                     .Property<&TCanvas::GetPen, &TCanvas::SetPen>("Pen")
                                     .Creatable()
                                     .Done();
  return &info;
}

TCanvas::~TCanvas() = default;

void TCanvas::Construct() {
  TPersistent::Construct();
  FBrush = Make<TBrush>();
  FFont = Make<TFont>();
  FPen = Make<TPen>();
  FBrush->OnChange = {this, &TCanvas::ToolChanged};
  FFont->OnChange = {this, &TCanvas::ToolChanged};
  FPen->OnChange = {this, &TCanvas::ToolChanged};
}

void TCanvas::Destruct() {
  End();
  TPersistent::Destruct();
}

void TCanvas::ToolChanged(TObject* tool) {
  if (tool == FFont.get()) FHasTextTools = false;
  const TNotifyEvent handler = OnChange;
  handler(this);
}

void TCanvas::Begin(QPainter& painter, const QRect& clip) {
  FPainter = &painter;
  FClip = clip;
  FHasTextTools = false;
}

void TCanvas::End() {
  FPainter = nullptr;
  FHasTextTools = false;
}

void TCanvas::CreateHandle() { throw EInvalidOperation(SNoCanvasHandle.toString()); }

QPainter& TCanvas::Usable() {
  if (!FPainter) CreateHandle();
  if (!FPainter) throw EInvalidOperation(SNoCanvasHandle.toString());
  return *FPainter;
}

QPainter& TCanvas::Painter() {
  QPainter& painter = Usable();
  FHasTextTools = false;
  return painter;
}

QRect TCanvas::GetClipRect() {
  if (!FPainter) return {};
  const QRect surface = FClip.isNull() ? FPainter->window() : FClip;
  return FPainter->hasClipping() ? surface & FPainter->clipBoundingRect().toAlignedRect() : surface;
}

QPalette TCanvas::GetPalette() const { return FPalette ? *FPalette : QGuiApplication::palette(); }

QColor TCanvas::RealColor(TColor color) const {
  if (FPalette) return QtColor(color, *FPalette);
  return QtColor(color);
}

TColor TCanvas::GetPixel(int x, int y) const {
  const QImage pixel = Snapshot({x, y, 1, 1});
  return pixel.isNull() ? clNone : ColorOf(pixel.pixelColor(0, 0));
}

void TCanvas::SetPixel(int x, int y, TColor value) {
  Usable().fillRect(x, y, 1, 1, RealColor(value));
  Drawn();
}

QImage TCanvas::Snapshot(const QRect&) const { return {}; }

void TCanvas::Draw(int x, int y, TGraphic* graphic) {
  if (graphic) StretchDraw({x, y, graphic->GetWidth(), graphic->GetHeight()}, graphic);
}

void TCanvas::StretchDraw(const QRect& rect, TGraphic* graphic) {
  if (!graphic || graphic->IsEmpty()) return;
  Usable();
  graphic->DrawOn(*this, rect);
  Drawn();
}

void TCanvas::CopyRect(const QRect& dest, TCanvas& source, const QRect& part) {
  const QImage copy = source.Snapshot(part);
  if (copy.isNull()) throw EInvalidOperation(SNoCanvasHandle.toString());
  Usable().drawImage(dest, copy);
  Drawn();
}

}  // namespace kt
