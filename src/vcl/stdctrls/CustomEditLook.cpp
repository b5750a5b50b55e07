// How TCustomEdit looks.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/RealFont.h"
#include "kt/vcl/stdctrls/CustomEdit.h"
#include "kt/vcl/stdctrls/EditLine.h"
#include "kt/vcl/stdctrls/WindowColors.h"

#include <QEvent>
#include <QPainter>

#include <utility>

namespace kt {

namespace {

/// What the height of a line with a border has besides the text.
constexpr int kAroundText = 8;
/// The room that Qt always leaves around the text, besides its margins.
constexpr int kInnerX = 2;
constexpr int kInnerY = 1;

}  // namespace

void TCustomEdit::PaintWindow(const QRect& clip) {
  TWinControl::PaintWindow(clip);
  if (!HasOverlay()) return;
  if (!FCanvas) FCanvas = Make<TCanvas>();
  QPainter painter(Window());
  FCanvas->SetPalette(Window()->palette());
  FCanvas->Begin(painter, clip);
  struct TEnd {
    TCanvas& Canvas;
    ~TEnd() { Canvas.End(); }
  } end{*FCanvas};
  FCanvas->SetFont(&GetFont());
  PaintOver(*FCanvas);
}

QPalette TCustomEdit::WindowPalette() const {
  return PaletteOf(*Window(), GetColor(), const_cast<TCustomEdit*>(this)->GetFont().GetColor());
}

bool TCustomEdit::HasWindowColors() const {
  return HasColors(*Window(), GetColor(), const_cast<TCustomEdit*>(this)->GetFont().GetColor());
}

void TCustomEdit::UpdateColors() {
  if (!Editor()) return;
  Window()->setFont(QtFont(GetFont()));
  const bool outer = std::exchange(FIsUpdatingColors, true);
  Window()->setPalette(WindowPalette());
  FIsUpdatingColors = outer;
}

bool TCustomEdit::WindowEvent(QEvent& event) {
  const bool isPaletteChange = event.type() == QEvent::PaletteChange && !FIsUpdatingColors && Editor();
  // System colours are other ones now. What somebody else has set besides is left to him.
  if (isPaletteChange && !HasWindowColors()) UpdateColors();
  return TWinControl::WindowEvent(event);
}

void TCustomEdit::CMFontChanged(TMessage& message) {
  TWinControl::CMFontChanged(message);
  UpdateColors();
  FitHeight();
}

void TCustomEdit::CMColorChanged(TMessage& message) {
  TWinControl::CMColorChanged(message);
  UpdateColors();
}

void TCustomEdit::CMCursorChanged(TMessage&) { ShowCursor(GetCursor() == crDefault ? crIBeam : GetCursor()); }

void TCustomEdit::Loaded() {
  TWinControl::Loaded();
  FitHeight();
}

void TCustomEdit::FitHeight() {
  const bool isFree = GetAlign() == alNone || GetAlign() == alTop || GetAlign() == alBottom;
  if (!FAutoSize || FBorderStyle == bsNone || !isFree) return;
  // Somebody else's layout knows by itself what a window needs.
  if (!HandleAllocated() || !GetParent() || HasState(csLoading)) return;
  SetHeight(TRealFont::Of(GetFont())->Height() + kAroundText);
}

void TCustomEdit::SetAutoSize(bool value) {
  FAutoSize = value;
  FitHeight();
}

void TCustomEdit::SetHideSelection(bool value) {
  if (FHideSelection == value) return;
  FHideSelection = value;
  if (Editor()) Editor()->SetSelectionKept(!value);
  UpdateColors();
}

void TCustomEdit::SetPasswordChar(QChar value) {
  if (FPasswordChar == value) return;
  FPasswordChar = value;
  if (auto* line = dynamic_cast<TEditLine*>(Window())) line->SetMaskCharacter(value);
}

void TCustomEdit::SetBorderStyle(TBorderStyle value) {
  FBorderStyle = value;
  if (Editor()) Editor()->SetBordered(value == bsSingle);
  FitHeight();
}

void TCustomEdit::SetFormatRect(const QRect& rect) {
  QLineEdit* line = LineEdit();
  if (!line) return;
  const Qt::Alignment alignment = Qt::AlignTop | (UseRightToLeftAlignment() ? Qt::AlignRight : Qt::AlignLeft);
  const QMargins margins(rect.left() - kInnerX, rect.top() - kInnerY, GetWidth() - rect.left() - rect.width() - kInnerX,
                         0);
  // Qt repaints for each of them, also when nothing is different.
  if (line->alignment() != alignment) line->setAlignment(alignment);
  if (line->textMargins() != margins) line->setTextMargins(margins);
}

void TCustomEdit::UpdateDirection() {
  QLineEdit* line = LineEdit();
  if (!line) return;
  // In somebody's layout the window reads as its surroundings do, and the control asks it.
  if (GetParent() || !IsParentBiDiMode()) {
    line->setLayoutDirection(UseRightToLeftReading() ? Qt::RightToLeft : Qt::LeftToRight);
  }
  const Qt::Alignment side = UseRightToLeftAlignment() ? Qt::AlignRight : Qt::AlignLeft;
  line->setAlignment(side | Qt::AlignAbsolute | Qt::AlignVCenter);
}

}  // namespace kt
