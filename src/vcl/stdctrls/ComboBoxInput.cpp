// What is typed in TCustomComboBox, and the wheel.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/stdctrls/ComboBoxView.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

namespace kt {

bool TCustomComboBox::WantsKey(quint16 key) {
  const bool isForList = IsDroppedDown() && (key == VK_RETURN || key == VK_ESCAPE);
  return isForList || (key >= VK_LEFT && key <= VK_DOWN) || TWinControl::WantsKey(key);
}

bool TCustomComboBox::InputText(const QString& text) {
  if (HasState(csDesigning)) return true;
  if (InCharCase(text, FCharCase) != text) return TWinControl::InputText(text);
  if (!Line()) return false;
  const TLifeWatch self(this);
  RunTyping();
  if (self.IsAlive() && HandleAllocated()) TextTyped();
  return true;
}

/// The text may change twice by one key: when it is typed, and when the rest is filled in.
void TCustomComboBox::RunTyping() {
  const TLiveFlag typing(this, FIsTyping);
  TControlBody::Of(Window())->RunInherited();
}

void TCustomComboBox::TextTyped() {
  if (FIsShowing || FIsTyping || !Line()) return;
  const QString shown = Line()->text();
  const QString text = InCharCase(shown, FCharCase);
  if (text == GetText()) return;
  StoreText(text);
  FItemIndex = FAutoComplete ? FLines->IndexOf(text) : -1;
  if (FItemIndex >= 0 && FLines->GetStrings(FItemIndex) != text) FItemIndex = -1;
  const int caret = Line()->cursorPosition();
  const bool outer = std::exchange(FIsShowing, true);
  UpdateLimit();
  if (shown != text) Line()->setText(text);
  if (Line()->cursorPosition() != caret && !Line()->hasSelectedText()) Line()->setCursorPosition(caret);
  FIsShowing = outer;
  const TLifeWatch self(this);
  Perform(CM_TEXTCHANGED);
  if (self.IsAlive()) Change();
}

void TCustomComboBox::TypeCharacter(QChar character) {
  if (!Line()) return;
  if (character == u'\b') return Line()->backspace();
  if (character.isPrint() || character.isSurrogate()) Line()->insert(QString(character));
}

void TCustomComboBox::DefaultHandler(TMessage& message) {
  TWinControl::DefaultHandler(message);
  TControlBody* const body = TControlBody::Of(Window());
  if (!body || HasState(csDesigning)) return;
  if (message.Msg >= WM_MOUSEMOVE && message.Msg <= WM_MBUTTONDBLCLK) return body->RunInherited();
  const bool isCharacter = message.Msg == WM_CHAR;
  if (!isCharacter && message.Msg != WM_KEYDOWN && message.Msg != WM_SYSKEYDOWN) return;
  const QEvent* event = body->CurrentEvent();
  const bool isKey = event && event->type() == QEvent::KeyPress;
  const bool isTyping = isKey && TControlBody::TypesText(*static_cast<const QKeyEvent*>(event));
  // Keys that type do it with their character, which a handler may have changed.
  if (!isCharacter && (!isKey || isTyping)) return;
  const QString text = isKey ? static_cast<const QKeyEvent*>(event)->text() : QString();
  const QString typed = InCharCase(QString(QChar(static_cast<char16_t>(message.WParam))), FCharCase);
  const TLifeWatch self(this);
  const auto shift = TShiftState::FromBits(static_cast<quint32>(message.LParam));
  const bool isCommand = shift.Has(ssCtrl) && !shift.Has(ssAlt);
  const bool opens = isCharacter && FAutoDropDown && !IsEditable() && typed.front().isPrint();
  if (opens && !IsDroppedDown()) SetDroppedDown(true);
  if (!self.IsAlive() || !HandleAllocated()) return;
  if (isCharacter && (!isKey || (Line() && !isCommand && !text.contains(typed)))) {
    TypeCharacter(typed.front());
  } else {
    RunTyping();
  }
  if (self.IsAlive() && HandleAllocated()) TextTyped();
}

bool TCustomComboBox::DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) {
  const TLifeWatch self(this);
  if (TWinControl::DoMouseWheel(shift, delta, isHorizontal, position)) return true;
  // Nobody picks by passing over it.
  if (!self.IsAlive() || !Focused() || HasState(csDesigning)) return !self.IsAlive();
  TControlBody::Of(Window())->RunInherited();
  return true;
}

}  // namespace kt
