#include "kt/vcl/stdctrls/CustomEdit.h"

#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/graphics/RealFont.h"
#include "kt/vcl/stdctrls/WindowColors.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace kt {

namespace {

/// What Qt's line editor takes for "any number".
constexpr int kAnyLength = 32767;
/// The room that it always leaves around its text, besides its margins.
constexpr int kInnerX = 2;
constexpr int kInnerY = 1;

int WindowLength(int maxLength) { return maxLength > 0 ? maxLength : kAnyLength; }

}  // namespace

const TClassInfo* TCustomEdit::Class() {
  static const TClassInfo info = TClassBuilder<TCustomEdit>("TCustomEdit").Done();
  return &info;
}

void TCustomEdit::Construct() {
  TWinControl::Construct();
  SetParentColor(false);
  SetTabStop(true);
  SetBounds(0, 0, 121, 25);
}

QWidget* TCustomEdit::CreateBody(QWidget* parent) {
  auto* line = new TBodyOf<QLineEdit>(this, parent);
  FLineEdit = line;
  // What they tell may be outdated: whoever heard of the change first can have taken it back.
  QObject::connect(line, &QLineEdit::textEdited, line, [this, line] {
    if (line->Control()) GuardedCall([&] { WindowTextChanged(line->text(), true); });
  });
  QObject::connect(line, &QLineEdit::textChanged, line, [this, line] {
    if (line->Control() && !FIsSettingText) GuardedCall([&] { WindowTextChanged(line->text(), false); });
  });
  return line;
}

void TCustomEdit::CreateWnd() {
  TWinControl::CreateWnd();
  FLineEdit->setFrame(FBorderStyle == bsSingle);
  UpdateMaxLength();
  FLineEdit->setReadOnly(FReadOnly);
  FLineEdit->setAccessibleName(FAccessibleName);
  FLineEdit->setContextMenuPolicy(Qt::DefaultContextMenu);
  ShowText();
  FLineEdit->setModified(FModified);
  Select(FSelStart, FSelStart + FSelLength);
  UpdateColors();
}

void TCustomEdit::DestroyWnd() {
  FSelStart = GetSelStart();
  FSelLength = GetSelLength();
  FLineEdit = nullptr;
  TWinControl::DestroyWnd();
}

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

void TCustomEdit::UpdateColors() {
  if (!FLineEdit || !HandleAllocated()) return;
  FLineEdit->setFont(QtFont(GetFont()));
  const bool outer = std::exchange(FIsUpdatingColors, true);
  FLineEdit->setPalette(PaletteOf(*FLineEdit, GetColor(), GetFont().GetColor()));
  FIsUpdatingColors = outer;
}

bool TCustomEdit::WindowEvent(QEvent& event) {
  const bool isPaletteChange = event.type() == QEvent::PaletteChange && !FIsUpdatingColors && FLineEdit;
  // System colours are other ones now. What somebody else has set besides is left to him.
  if (isPaletteChange && !HasColors(*FLineEdit, GetColor(), GetFont().GetColor())) UpdateColors();
  return TWinControl::WindowEvent(event);
}

void TCustomEdit::CMFontChanged(TMessage& message) {
  TWinControl::CMFontChanged(message);
  UpdateColors();
}

void TCustomEdit::CMColorChanged(TMessage& message) {
  TWinControl::CMColorChanged(message);
  UpdateColors();
}

void TCustomEdit::CMCursorChanged(TMessage&) { ShowCursor(GetCursor() == crDefault ? crIBeam : GetCursor()); }

void TCustomEdit::SetAccessibleName(const QString& value) {
  if (FAccessibleName == value) return;
  FAccessibleName = value;
  if (FLineEdit) FLineEdit->setAccessibleName(value);
}

void TCustomEdit::CMTextChanged(TMessage& message) {
  TWinControl::CMTextChanged(message);
  // A message that somebody else sent asks to look at the text again: it has not changed.
  if (message.WParam == kTextHasChanged || !HandleAllocated()) Change();
}

void TCustomEdit::SetText(const QString& value) {
  if (GetText() == value) return;
  SetTextSilently(value);
  Perform(CM_TEXTCHANGED, kTextHasChanged);
}

void TCustomEdit::SetWindowText(const QString& value) {
  StoreText(value);
  FModified = false;
  FSelStart = std::min<int>(FSelStart, static_cast<int>(value.size()));
  FSelLength = 0;
  if (FLineEdit) ShowText();
}

void TCustomEdit::ShowText() {
  const bool outer = std::exchange(FIsSettingText, true);
  FLineEdit->setText(WindowText());
  FIsSettingText = outer;
}

void TCustomEdit::WindowTextChanged(const QString& text, bool byUser) {
  if (byUser) FModified = true;
  // The editor says both that its text was changed, and that its user did it.
  if (WindowText() == text) return;
  FModified = FModified || FLineEdit->isModified();
  StoreText(text);
  Perform(CM_TEXTCHANGED, kTextHasChanged);
}

void TCustomEdit::SetModified(bool value) {
  FModified = value;
  if (FLineEdit) FLineEdit->setModified(value);
}

void TCustomEdit::SetReadOnly(bool value) {
  FReadOnly = value;
  if (FLineEdit && FLineEdit->isReadOnly() != value) FLineEdit->setReadOnly(value);
}

void TCustomEdit::SetMaxLength(int value) {
  FMaxLength = std::max(value, 0);
  UpdateMaxLength();
}

void TCustomEdit::UpdateMaxLength() {
  if (FLineEdit) FLineEdit->setMaxLength(WindowLength(GetWindowMaxLength()));
}

void TCustomEdit::SetBorderStyle(TBorderStyle value) {
  FBorderStyle = value;
  if (FLineEdit) FLineEdit->setFrame(value == bsSingle);
}

void TCustomEdit::SetFormatRect(const QRect& rect) {
  if (!FLineEdit) return;
  const Qt::Alignment alignment = Qt::AlignTop | (UseRightToLeftAlignment() ? Qt::AlignRight : Qt::AlignLeft);
  const QMargins margins(rect.left() - kInnerX, rect.top() - kInnerY, GetWidth() - rect.left() - rect.width() - kInnerX,
                         0);
  // Qt repaints for each of them, also when nothing is different.
  if (FLineEdit->alignment() != alignment) FLineEdit->setAlignment(alignment);
  if (FLineEdit->textMargins() != margins) FLineEdit->setTextMargins(margins);
}

bool TCustomEdit::WantsKey(quint16 key) { return (key >= VK_LEFT && key <= VK_DOWN) || TWinControl::WantsKey(key); }

void TCustomEdit::DefaultHandler(TMessage& message) {
  TWinControl::DefaultHandler(message);
  if (message.Msg == WM_SETTEXT) {
    const bool isModified = FModified;
    SetTextSilently(*MessagePointer<const QString>(message.LParam));
    return SetModified(isModified);
  }
  if (FLineEdit && message.Msg >= WM_MOUSEMOVE && message.Msg <= WM_MBUTTONDBLCLK) {
    return TControlBody::Of(FLineEdit)->RunInherited();
  }
  const bool isCharacter = message.Msg == WM_CHAR;
  if (!FLineEdit || (!isCharacter && message.Msg != WM_KEYDOWN && message.Msg != WM_SYSKEYDOWN)) return;
  auto* body = TControlBody::Of(FLineEdit);
  const QEvent* event = body->CurrentEvent();
  const bool isKey = event && event->type() == QEvent::KeyPress;
  const QString text = isKey ? static_cast<const QKeyEvent*>(event)->text() : QString();
  // Keys that type do it with their character, which a handler may have changed.
  if (!isCharacter && isKey && !TControlBody::TypesText(*static_cast<const QKeyEvent*>(event))) body->RunInherited();
  if (!isCharacter) return;
  const QChar character(static_cast<char16_t>(message.WParam));
  if (isKey && text.contains(character)) {
    body->RunInherited();
  } else {
    TypeCharacter(character);
  }
}

void TCustomEdit::TypeCharacter(QChar character) {
  if (FReadOnly) return;
  if (character == u'\b') return FLineEdit->backspace();
  if (character.isPrint() || character.isSurrogate()) FLineEdit->insert(QString(character));
}

}  // namespace kt
