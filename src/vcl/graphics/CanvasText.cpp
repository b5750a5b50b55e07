#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/RealFont.h"

#include <QPainter>
#include <QTransform>

namespace kt {
namespace {

/// More characters than a cut text can show are not worth shaping.
constexpr qsizetype kLongestCutText = 4096;

/// Orientation is in tenths of a degree.
constexpr double kTenthsPerDegree = 10.0;

}  // namespace

TRealFont& TCanvas::RealFont() {
  if (!FRealFont || !FHasTextTools) {
    std::shared_ptr<TRealFont> font = TRealFont::Of(*FFont);
    if (font != FRealFont) FHasTextTools = false;
    FRealFont = std::move(font);
  }
  return *FRealFont;
}

void TCanvas::UseTextTools(TRealFont& font) {
  if (FHasTextTools) return;
  FPainter->setFont(font.Qt());
  FPainter->setPen(RealColor(FFont->GetColor()));
  FHasTextTools = true;
}

QSize TCanvas::TextExtent(const QString& text) {
  TRealFont& font = RealFont();
  return {text.isEmpty() ? 0 : font.Prepared(text).Width, font.Height()};
}

int TCanvas::TextWidth(const QString& text) { return TextExtent(text).width(); }
int TCanvas::TextHeight(const QString& text) { return TextExtent(text).height(); }

void TCanvas::FillBehindText(const QRect& rect) {
  if (FBrush->GetStyle() != bsClear && FBrush->GetColor() != clNone) {
    FPainter->fillRect(rect, RealColor(FBrush->GetColor()));
  }
}

void TCanvas::TextOut(int x, int y, const QString& text) {
  Usable();
  const QSize size = TextExtent(text);
  FPenPos = {x + size.width(), y};
  if (text.isEmpty()) return;
  if (FFont->GetOrientation() == 0) FillBehindText({QPoint(x, y), size});
  DrawText(x, y, RealFont(), text);
  Drawn();
}

void TCanvas::TextRect(const QRect& rect, int x, int y, const QString& text) {
  QPainter& painter = Usable();
  // Qt takes a rectangle of negative size for one that is turned round.
  if (rect.isEmpty()) return;
  FillBehindText(rect);
  if (!text.isEmpty()) {
    TRealFont& font = RealFont();
    const QString shown = text.size() > kLongestCutText ? text.left(kLongestCutText) : text;
    // Slanted letters reach beyond their width.
    const int reach = font.Height() / 4;
    const QRect inked = QRect(x, y, font.Prepared(shown).Width, font.Height()).adjusted(-reach, 0, reach, 0);
    const bool isCut = FFont->GetOrientation() != 0 || !rect.contains(inked);
    if (isCut) {
      painter.save();
      painter.setClipRect(rect, Qt::IntersectClip);
      FHasTextTools = false;
    }
    DrawText(x, y, font, shown);
    if (isCut) {
      painter.restore();
      FHasTextTools = false;
    }
  }
  Drawn();
}

void TCanvas::DrawText(int x, int y, TRealFont& font, const QString& text) {
  UseTextTools(font);
  const bool isMirrored = FPainter->worldTransform().m11() < 0;
  if (isMirrored || FFont->GetOrientation() != 0) return DrawTurned(x, y, font, text);
  const TPreparedText& prepared = font.Prepared(text);
  FPainter->drawStaticText(QPointF(x, y - prepared.Rise), prepared.Text);
}

/// Text on a mirrored canvas keeps its place and is not mirrored itself.
void TCanvas::DrawTurned(int x, int y, TRealFont& font, const QString& text) {
  const TPreparedText& prepared = font.Prepared(text);
  const QTransform before = FPainter->worldTransform();
  QTransform turned = before;
  turned.translate(x, y);
  if (before.m11() < 0) {
    turned.translate(prepared.Width, 0);
    turned.scale(-1, 1);
  }
  turned.rotate(-FFont->GetOrientation() / kTenthsPerDegree);
  FPainter->setWorldTransform(turned);
  FPainter->drawStaticText(QPointF(0, -prepared.Rise), prepared.Text);
  FPainter->setWorldTransform(before);
}

}  // namespace kt
