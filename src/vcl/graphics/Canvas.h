#pragma once

#include "kt/vcl/graphics/Brush.h"
#include "kt/vcl/graphics/Font.h"
#include "kt/vcl/graphics/Pen.h"

#include <QImage>
#include <QPalette>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>
#include <span>

class QPainter;
class QPen;

namespace kt {

class TGraphic;
class TRealFont;

/// A surface to draw on with a pen, a brush and a font.
///
/// A control's canvas can draw between Begin() and End(), which the control calls around its painting; at other times
/// drawing raises EInvalidOperation "Canvas does not allow drawing". Measuring text works at any time once there is a
/// QGuiApplication. Rectangles are in pixels of the framework, which a high resolution makes larger than those of the
/// screen; their right and lower edge is outside.
///
/// Drawing a text again costs no shaping (see TRealFont). Text is drawn on the brush, unless that is clear.
class TCanvas : public TPersistent {
 public:
  using Inherited = TPersistent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TCanvas() override;

  /// Setters copy.
  TBrush& GetBrush() { return *FBrush; }
  void SetBrush(TBrush* value) { FBrush->Assign(value); }
  TFont& GetFont() { return *FFont; }
  void SetFont(TFont* value) { FFont->Assign(value); }
  TPen& GetPen() { return *FPen; }
  void SetPen(TPen* value) { FPen->Assign(value); }

  /// Where lines start.
  QPoint GetPenPos() const { return FPenPos; }
  void SetPenPos(QPoint value) { FPenPos = value; }
  /// What can be seen of what is drawn; empty when nothing can be drawn.
  QRect GetClipRect();
  /// The pixel at a place; clNone outside the picture, and on canvases that cannot be read, as those of controls.
  virtual TColor GetPixel(int x, int y) const;
  void SetPixel(int x, int y, TColor value);

  /// After each change of the drawing tools.
  TNotifyEvent OnChange;

  void MoveTo(int x, int y) { FPenPos = {x, y}; }
  /// Draws from the pen's place to the given one, that itself left out, and moves there.
  void LineTo(int x, int y);
  void Polyline(std::span<const QPoint> points);
  /// Filled with the brush, outlined with the pen.
  void Polygon(std::span<const QPoint> points);
  void Rectangle(const QRect& rect);
  void RoundRect(const QRect& rect, int width, int height);
  void Ellipse(const QRect& rect);
  void FillRect(const QRect& rect);
  /// Outlines the inside of `rect`, one pixel wide, in the colour of the brush.
  void FrameRect(const QRect& rect);
  /// Outlines with dots that invert what is there: drawing it again takes it away.
  void DrawFocusRect(const QRect& rect);

  /// Draws one line of text, its upper left at (x, y), and moves the pen behind it.
  void TextOut(int x, int y, const QString& text);
  /// As TextOut(), cut off at `rect`, which is filled with the brush first; does not move the pen.
  void TextRect(const QRect& rect, int x, int y, const QString& text);
  QSize TextExtent(const QString& text);
  int TextWidth(const QString& text);
  int TextHeight(const QString& text);

  /// Draws a graphic in its own size, or stretched to `rect`. An empty or missing one draws nothing.
  void Draw(int x, int y, TGraphic* graphic);
  void StretchDraw(const QRect& rect, TGraphic* graphic);
  /// Copies a part of a canvas that can be read; raises EInvalidOperation for others.
  void CopyRect(const QRect& dest, TCanvas& source, const QRect& part);

  /// Allows drawing through `painter`, which has to live until End(). `clip` is what will be seen of it, if less than
  /// all.
  void Begin(QPainter& painter, const QRect& clip = {});
  void End();
  bool IsDrawing() const { return FPainter != nullptr; }
  /// The palette that system colours come from; the application's unless set.
  void SetPalette(const QPalette& palette) { FPalette = palette; }
  QPalette GetPalette() const;
  /// For what this class cannot draw. The canvas makes no assumption about the painter's state afterwards. Raises
  /// EInvalidOperation "Canvas does not allow drawing".
  QPainter& Painter();
  /// What a colour is on this canvas.
  QColor RealColor(TColor color) const;

 protected:
  TCanvas() = default;

  void Construct() override;
  void Destruct() override;
  /// Called when something is to be drawn and there is no painter: a descendant may call Begin(). The present one
  /// raises EInvalidOperation "Canvas does not allow drawing".
  virtual void CreateHandle();
  /// Called after something was drawn.
  virtual void Drawn() {}
  /// A copy of part of the picture; null for canvases that cannot be read.
  virtual QImage Snapshot(const QRect& part) const;

 private:
  QPainter& Usable();
  void ToolChanged(TObject* tool);
  TRealFont& RealFont();
  QPen PenForLines() const;
  QBrush BrushForAreas() const;
  void UseTextTools(TRealFont& font);
  template <class F>
  void DrawLines(F&& draw);
  template <class F>
  void DrawArea(F&& draw);
  void FillBehindText(const QRect& rect);
  void DrawText(int x, int y, TRealFont& font, const QString& text);
  void DrawTurned(int x, int y, TRealFont& font, const QString& text);

  std::unique_ptr<TBrush> FBrush;
  std::unique_ptr<TFont> FFont;
  std::unique_ptr<TPen> FPen;
  QPainter* FPainter = nullptr;
  QRect FClip;
  QPoint FPenPos;
  std::optional<QPalette> FPalette;
  /// The font and the colour that the painter draws text with, as long as nothing else was drawn.
  std::shared_ptr<TRealFont> FRealFont;
  bool FHasTextTools = false;
};

}  // namespace kt
