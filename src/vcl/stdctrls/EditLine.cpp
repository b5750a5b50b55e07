#include "kt/vcl/stdctrls/EditLine.h"

#include <QFocusEvent>
#include <QProxyStyle>
#include <QSignalBlocker>

#include <algorithm>
#include <cstdlib>

namespace kt {

namespace {

/// The style of the program with another character for what is not to be read.
class TMaskCharacterStyle : public QProxyStyle {
 public:
  explicit TMaskCharacterStyle(QChar character) : FCharacter(character) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returnData) const override {
    if (hint == SH_LineEdit_PasswordCharacter) return FCharacter.unicode();
    return QProxyStyle::styleHint(hint, option, widget, returnData);
  }

 private:
  const QChar FCharacter;
};

}  // namespace

TEditWidget* TEditWidget::Of(QWidget* widget) { return dynamic_cast<TEditWidget*>(widget); }

TEditLine::TEditLine(QWidget* parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (FLimit > 0 && maxLength() > FLimit) FitLimit(static_cast<int>(text.size()));
  });
}

TEditLine::~TEditLine() = default;

void TEditLine::SetMaskCharacter(QChar value) {
  if (value.isNull()) {
    setEchoMode(Normal);
    if (FStyle) setStyle(nullptr);
    FStyle.reset();
    return;
  }
  auto style = std::make_unique<TMaskCharacterStyle>(value);
  setStyle(style.get());
  FStyle = std::move(style);
  setEchoMode(Password);
}

void TEditLine::ShowText(const QString& text) {
  FParked.reset();
  FitLimit(static_cast<int>(text.size()));
  setText(text);
}

void TEditLine::TypeText(const QString& text) {
  Unpark();
  insert(text);
}

void TEditLine::TypeBackspace() {
  Unpark();
  backspace();
}

std::optional<TEditLine::TSpan> TEditLine::Selection() const {
  if (!hasSelectedText()) return {};
  const int caret = cursorPosition();
  return TSpan{caret == selectionStart() ? selectionEnd() : selectionStart(), caret};
}

int TEditLine::GetShownStart() const {
  if (FParked) return std::min(FParked->Anchor, FParked->Caret);
  return hasSelectedText() ? selectionStart() : cursorPosition();
}

int TEditLine::GetShownLength() const {
  return FParked ? std::abs(FParked->Anchor - FParked->Caret) : selectionLength();
}

void TEditLine::Select(int anchor, int caret) {
  FParked.reset();
  if (anchor == caret) {
    setCursorPosition(caret);
  } else {
    setSelection(anchor, caret - anchor);
  }
}

void TEditLine::SetUserReadOnly(bool value) {
  // Qt would tell its input method each time.
  if (isReadOnly() != value) setReadOnly(value);
}

void TEditLine::SetUserLimit(int value) {
  FLimit = value;
  FitLimit(static_cast<int>(text().size()));
}

/// Qt's limit cuts texts that were set as well, and loses what can be undone when it changes.
void TEditLine::FitLimit(int length) {
  const int limit = FLimit > 0 ? std::max(FLimit, length) : kAnyLength;
  if (maxLength() == limit) return;
  const std::optional<TSpan> selected = Selection();
  const int caret = cursorPosition();
  const QSignalBlocker blocker(this);
  const bool wasModified = isModified();
  setMaxLength(limit);
  setModified(wasModified);
  selected ? setSelection(selected->Anchor, selected->Caret - selected->Anchor) : setCursorPosition(caret);
}

void TEditLine::ForgetUndo() {
  const std::optional<TSpan> selected = Selection();
  const int caret = cursorPosition();
  const bool wasModified = isModified();
  const QSignalBlocker blocker(this);
  setText(text());
  setModified(wasModified);
  selected ? setSelection(selected->Anchor, selected->Caret - selected->Anchor) : setCursorPosition(caret);
}

void TEditLine::Unpark() {
  if (!FParked) return;
  const TSpan span = *FParked;
  FParked.reset();
  setSelection(span.Anchor, span.Caret - span.Anchor);
}

bool TEditLine::event(QEvent* event) {
  if (event->type() != QEvent::WindowActivate || hasFocus()) return QLineEdit::event(event);
  // Qt would take the selection away from all but the one with the keyboard.
  if (!FKeepsSelection && hasSelectedText()) {
    FParked = Selection();
    deselect();
  }
  return QWidget::event(event);  // NOLINT(bugprone-parent-virtual-call): what lies between does that alone
}

void TEditLine::focusInEvent(QFocusEvent* event) {
  Unpark();
  const std::optional<TSpan> selected = Selection();
  const int caret = cursorPosition();
  QLineEdit::focusInEvent(event);
  if (FSelectsAll) return;
  // Qt has selected all of it when a key led here.
  selected ? setSelection(selected->Anchor, selected->Caret - selected->Anchor) : setCursorPosition(caret);
}

void TEditLine::focusOutEvent(QFocusEvent* event) {
  const std::optional<TSpan> selected = Selection();
  QLineEdit::focusOutEvent(event);
  if (!selected || hasSelectedText() || hasFocus()) return;
  if (FKeepsSelection) {
    setSelection(selected->Anchor, selected->Caret - selected->Anchor);
  } else {
    FParked = selected;
  }
}

}  // namespace kt
