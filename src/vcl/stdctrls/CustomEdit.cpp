#include "kt/vcl/stdctrls/CustomEdit.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/stdctrls/EditLine.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include <algorithm>

namespace kt {

QString InCharCase(const QString& text, TEditCharCase charCase) {
  if (charCase == ecNormal) return text;
  QString result = text;
  for (QChar& character : result) character = charCase == ecUpperCase ? character.toUpper() : character.toLower();
  return result;
}

const TClassInfo* TCustomEdit::Class() {
  static const TClassInfo info = TClassBuilder<TCustomEdit>("TCustomEdit").Done();
  return &info;
}

void TCustomEdit::Construct() {
  TWinControl::Construct();
  SetParentColor(false);
  SetTabStop(true);
  SetBounds(0, 0, 121, 21);
}

QLineEdit* TCustomEdit::LineEdit() const { return dynamic_cast<QLineEdit*>(Window()); }

TEditWidget* TCustomEdit::Editor() const { return TEditWidget::Of(Window()); }

QWidget* TCustomEdit::CreateBody(QWidget* parent) {
  auto* line = new TBodyOf<TEditLine>(this, parent);
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
  TEditWidget& editor = *Editor();
  editor.SetBordered(FBorderStyle == bsSingle);
  UpdateMaxLength();
  editor.SetUserReadOnly(FReadOnly);
  editor.SetSelectionKept(!FHideSelection);
  editor.SetSelectingAll(FAutoSelect);
  if (auto* line = dynamic_cast<TEditLine*>(&editor); line && !FPasswordChar.isNull()) {
    line->SetMaskCharacter(FPasswordChar);
  }
  Window()->setAccessibleName(FAccessibleName);
  Window()->setContextMenuPolicy(Qt::DefaultContextMenu);
  ShowText();
  editor.SetShownModified(FModified);
  Select(FSelStart, FSelStart + FSelLength);
  UpdateColors();
  FitHeight();
}

void TCustomEdit::DestroyWnd() {
  FSelStart = GetSelStart();
  FSelLength = GetSelLength();
  TWinControl::DestroyWnd();
}

void TCustomEdit::SetAutoSelect(bool value) {
  FAutoSelect = value;
  if (Editor()) Editor()->SetSelectingAll(value);
}

void TCustomEdit::SetCharCase(TEditCharCase value) {
  if (FCharCase == value) return;
  FCharCase = value;
  SetText(InCharCase(GetText(), value));
}

bool TCustomEdit::CameByMouse() const {
  const TControlBody* body = TControlBody::Of(Window());
  const QEvent* event = body ? body->CurrentEvent() : nullptr;
  return event && event->type() == QEvent::FocusIn &&
         static_cast<const QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
}

void TCustomEdit::CMEnter(TMessage& message) {
  if (FAutoSelect && !CameByMouse() && !HasState(csDesigning)) SelectAll();
  TWinControl::CMEnter(message);
}

void TCustomEdit::SetAccessibleName(const QString& value) {
  if (FAccessibleName == value) return;
  FAccessibleName = value;
  if (Window()) Window()->setAccessibleName(value);
}

void TCustomEdit::CMTextChanged(TMessage& message) {
  TWinControl::CMTextChanged(message);
  // A message that somebody else sent asks to look at the text again: it has not changed.
  if (message.WParam == kTextHasChanged || !HandleAllocated()) Change();
}

void TCustomEdit::SetText(const QString& value) {
  const QString text = InCharCase(value, FCharCase);
  if (GetText() == text) return;
  SetTextSilently(text);
  Perform(CM_TEXTCHANGED, kTextHasChanged);
}

void TCustomEdit::SetWindowText(const QString& value) {
  StoreWindowText(value);
  FModified = false;
  FSelStart = std::min<int>(FSelStart, static_cast<int>(WindowText().size()));
  FSelLength = 0;
  if (Editor()) ShowText();
}

void TCustomEdit::ShowText() {
  const bool outer = std::exchange(FIsSettingText, true);
  Editor()->ShowText(WindowText());
  FIsSettingText = outer;
}

void TCustomEdit::WindowTextChanged(const QString& text, bool byUser) {
  if (byUser) FModified = true;
  // The editor says both that its text was changed, and that its user did it.
  if (WindowText() == text) return;
  FModified = FModified || Editor()->IsShownModified();
  StoreWindowText(InCharCase(text, FCharCase));
  if (WindowText() != text) ShowInCharCase();
  Perform(CM_TEXTCHANGED, kTextHasChanged);
}

/// Letters came past the keys, pasted or dropped.
void TCustomEdit::ShowInCharCase() {
  const int caret = Editor()->GetShownCaret();
  ShowText();
  Editor()->SetShownModified(FModified);
  Select(caret, caret);
}

void TCustomEdit::SetModified(bool value) {
  FModified = value;
  if (Editor()) Editor()->SetShownModified(value);
}

void TCustomEdit::SetReadOnly(bool value) {
  FReadOnly = value;
  if (Editor()) Editor()->SetUserReadOnly(value);
}

void TCustomEdit::SetMaxLength(int value) {
  FMaxLength = std::max(value, 0);
  UpdateMaxLength();
}

void TCustomEdit::UpdateMaxLength() {
  if (Editor()) Editor()->SetUserLimit(GetWindowMaxLength());
}

bool TCustomEdit::WantsKey(quint16 key) { return (key >= VK_LEFT && key <= VK_DOWN) || TWinControl::WantsKey(key); }

void TCustomEdit::DefaultHandler(TMessage& message) {
  TWinControl::DefaultHandler(message);
  if (message.Msg == WM_SETTEXT) {
    const bool isModified = FModified;
    SetTextSilently(*MessagePointer<const QString>(message.LParam));
    return SetModified(isModified);
  }
  TControlBody* body = TControlBody::Of(Window());
  if (!body) return;
  if (message.Msg >= WM_MOUSEMOVE && message.Msg <= WM_MBUTTONDBLCLK) return body->RunInherited();
  const bool isCharacter = message.Msg == WM_CHAR;
  if (!isCharacter && message.Msg != WM_KEYDOWN && message.Msg != WM_SYSKEYDOWN) return;
  const QEvent* event = body->CurrentEvent();
  const bool isKey = event && event->type() == QEvent::KeyPress;
  const QString text = isKey ? static_cast<const QKeyEvent*>(event)->text() : QString();
  // Keys that type do it with their character, which a handler may have changed.
  if (!isCharacter && isKey && !TControlBody::TypesText(*static_cast<const QKeyEvent*>(event))) body->RunInherited();
  if (!isCharacter) return;
  const QString typed = InCharCase(QString(QChar(static_cast<char16_t>(message.WParam))), FCharCase);
  const auto shift = TShiftState::FromBits(static_cast<quint32>(message.LParam));
  const bool isCommand = isKey && shift.Has(ssCtrl) && !shift.Has(ssAlt);
  if (isKey && (isCommand || text.contains(typed)) && TypesByItself(typed.front())) {
    body->RunInherited();
  } else {
    TypeCharacter(typed.front());
  }
}

bool TCustomEdit::IsDesigned(const TMessage& message) const {
  const bool isMouse = message.Msg >= WM_MOUSEMOVE && message.Msg <= WM_MBUTTONDBLCLK;
  const bool isKey = message.Msg >= WM_KEYDOWN && message.Msg <= WM_SYSCHAR;
  return (isMouse || isKey) && HasState(csDesigning);
}

void TCustomEdit::TypeCharacter(QChar character) {
  if (FReadOnly) return;
  if (character == u'\b') return Editor()->TypeBackspace();
  if (character.isPrint() || character.isSurrogate()) Editor()->TypeText(QString(character));
}

bool TCustomEdit::InputText(const QString& text) {
  const QString cased = InCharCase(text, FCharCase);
  if (cased == text || !Window()) return false;
  QInputMethodEvent committed;
  committed.setCommitString(cased);
  QCoreApplication::sendEvent(Window(), &committed);
  return true;
}

}  // namespace kt
