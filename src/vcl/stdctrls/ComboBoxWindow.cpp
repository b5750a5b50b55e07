// The window of TCustomComboBox.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/graphics/RealFont.h"
#include "kt/vcl/stdctrls/ComboBoxView.h"
#include "kt/vcl/stdctrls/EditLine.h"
#include "kt/vcl/stdctrls/WindowColors.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>

#include <algorithm>
#include <utility>

namespace kt {

TCustomComboBox::TView* TCustomComboBox::View() const { return static_cast<TView*>(Window()); }

QLineEdit* TCustomComboBox::Line() const { return View() ? View()->lineEdit() : nullptr; }

QWidget* TCustomComboBox::CreateBody(QWidget* parent) { return new TView(*this, parent); }

void TCustomComboBox::CreateWnd() {
  TWinControl::CreateWnd();
  View()->setMaxVisibleItems(FDropDownCount);
  ShowLines();
  ShowStyle();
  UpdateDirection();
  Select(FSelStart, FSelLength);
}

void TCustomComboBox::DestroyWnd() {
  FSelStart = GetSelStart();
  FSelLength = GetSelLength();
  View()->Model().Detach();
  TWinControl::DestroyWnd();
}

void TCustomComboBox::ShowLines() {
  TView* view = View();
  if (!view) return;
  const int start = GetSelStart();
  const int length = GetSelLength();
  const bool outer = std::exchange(FIsShowing, true);
  // Qt takes the text and the present line away with it.
  view->Model().Reset();
  FIsShowing = outer;
  ShowPicked();
  Select(start, length);
}

void TCustomComboBox::ShowPicked() {
  TView* view = View();
  if (!view) return;
  const bool outer = std::exchange(FIsShowing, true);
  view->setCurrentIndex(FItemIndex);
  UpdateLimit();
  if (Line() && Line()->text() != GetText()) Line()->setText(GetText());
  FIsShowing = outer;
}

void TCustomComboBox::ShowStyle() {
  TView* view = View();
  if (!view) return;
  const bool outer = std::exchange(FIsShowing, true);
  view->SetEditable(IsEditable());
  view->SetOwnerDrawn(IsOwnerDraw());
  FIsShowing = outer;
  UpdateCompleter();
  UpdateLook();
  ShowPicked();
}

void TCustomComboBox::UpdateCompleter() {
  TView* view = View();
  if (!view || !Line()) return;
  if (!FAutoComplete) return view->setCompleter(nullptr);
  auto* completer = new QCompleter(&view->Model(), Line());
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  completer->setCompletionMode(FAutoDropDown ? QCompleter::UnfilteredPopupCompletion : QCompleter::InlineCompletion);
  completer->setMaxVisibleItems(FDropDownCount);
  view->setCompleter(completer);
}

/// Qt's limit cuts texts that were set as well.
void TCustomComboBox::UpdateLimit() {
  QLineEdit* line = Line();
  if (!line) return;
  const int limit = FMaxLength > 0 ? std::max(FMaxLength, static_cast<int>(GetText().size())) : kAnyLength;
  if (line->maxLength() == limit) return;
  const bool outer = std::exchange(FIsShowing, true);
  line->setMaxLength(limit);
  FIsShowing = outer;
}

void TCustomComboBox::UpdateDirection() {
  if (!View() || (!GetParent() && IsParentBiDiMode())) return;
  View()->setLayoutDirection(UseRightToLeftAlignment() ? Qt::RightToLeft : Qt::LeftToRight);
}

void TCustomComboBox::UpdateLook() {
  TView* view = View();
  if (!view) return;
  const bool outer = std::exchange(FIsUpdatingLook, true);
  view->setFont(QtFont(GetFont()));
  const TColor ground = GetColor();
  const TColor text = GetFont().GetColor();
  QPalette palette = PaletteOf(*view, ground, text);
  // Without an edit Qt draws a button.
  if (!IsEditable() && ground != clWindow) palette.setColor(QPalette::Button, palette.color(QPalette::Base));
  if (!IsEditable() && text != clWindowText) palette.setColor(QPalette::ButtonText, palette.color(QPalette::Text));
  view->setPalette(palette);
  FIsUpdatingLook = outer;
}

bool TCustomComboBox::WindowEvent(QEvent& event) {
  const bool isPaletteChange = event.type() == QEvent::PaletteChange && !FIsUpdatingLook && View();
  // System colours are other ones now. What somebody else has set besides is left to him.
  if (isPaletteChange && !HasColors(*View(), GetColor(), GetFont().GetColor())) UpdateLook();
  return TWinControl::WindowEvent(event);
}

void TCustomComboBox::CMFontChanged(TMessage& message) {
  TWinControl::CMFontChanged(message);
  UpdateLook();
}

void TCustomComboBox::CMColorChanged(TMessage& message) {
  TWinControl::CMColorChanged(message);
  UpdateLook();
}

void TCustomComboBox::CMBiDiModeChanged(TMessage& message) {
  TWinControl::CMBiDiModeChanged(message);
  UpdateDirection();
}

void TCustomComboBox::SetDropDownCount(int value) {
  FDropDownCount = std::max(value, 1);
  if (View()) View()->setMaxVisibleItems(FDropDownCount);
  UpdateCompleter();
}

void TCustomComboBox::SetMaxLength(int value) {
  FMaxLength = std::max(value, 0);
  UpdateLimit();
}

void TCustomComboBox::SetAutoComplete(bool value) {
  FAutoComplete = value;
  UpdateCompleter();
}

void TCustomComboBox::SetAutoDropDown(bool value) {
  FAutoDropDown = value;
  UpdateCompleter();
}

bool TCustomComboBox::IsDroppedDown() const { return View() && View()->IsOpen(); }

void TCustomComboBox::SetDroppedDown(bool value) {
  if (!View() || !IsShowing()) return;
  value ? View()->showPopup() : View()->hidePopup();
}

// The selection in the text.

int TCustomComboBox::GetSelStart() const {
  const QLineEdit* line = Line();
  if (!line) return IsEditable() ? FSelStart : 0;
  return line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
}

int TCustomComboBox::GetSelLength() const {
  if (!IsEditable()) return 0;
  return Line() ? Line()->selectionLength() : FSelLength;
}

void TCustomComboBox::Select(int start, int length) {
  const auto size = static_cast<int>(GetText().size());
  FSelStart = std::clamp(start, 0, size);
  FSelLength = std::clamp(length, 0, size - FSelStart);
  QLineEdit* line = Line();
  if (!line) return;
  FSelLength > 0 ? line->setSelection(FSelStart, FSelLength) : line->setCursorPosition(FSelStart);
}

void TCustomComboBox::SelectAll() { Select(0, static_cast<int>(GetText().size())); }

QString TCustomComboBox::GetSelText() const { return GetText().mid(GetSelStart(), GetSelLength()); }

void TCustomComboBox::SetSelText(const QString& value) {
  if (!IsEditable()) return;
  const int start = GetSelStart();
  QString text = GetText();
  text.replace(start, GetSelLength(), value);
  const TLifeWatch self(this);
  SetText(text);
  if (self.IsAlive()) Select(start + static_cast<int>(value.size()), 0);
}

}  // namespace kt
