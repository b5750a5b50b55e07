#include "kt/vcl/controls/KeyCodes.h"

#include "kt/vcl/controls/VirtualKeys.h"

#include <QKeyEvent>

#include <algorithm>
#include <iterator>

namespace kt {

namespace {

struct TKeyPair {
  int Key;
  quint16 Code;
};

constexpr TKeyPair kKeys[] = {
    {Qt::Key_Backspace, VK_BACK},
    {Qt::Key_Tab, VK_TAB},
    {Qt::Key_Backtab, VK_TAB},
    {Qt::Key_Clear, VK_CLEAR},
    {Qt::Key_Return, VK_RETURN},
    {Qt::Key_Enter, VK_RETURN},
    {Qt::Key_Shift, VK_SHIFT},
    {Qt::Key_Control, VK_CONTROL},
    {Qt::Key_Alt, VK_MENU},
    {Qt::Key_Pause, VK_PAUSE},
    {Qt::Key_CapsLock, VK_CAPITAL},
    {Qt::Key_Escape, VK_ESCAPE},
    {Qt::Key_Space, VK_SPACE},
    {Qt::Key_PageUp, VK_PRIOR},
    {Qt::Key_PageDown, VK_NEXT},
    {Qt::Key_End, VK_END},
    {Qt::Key_Home, VK_HOME},
    {Qt::Key_Left, VK_LEFT},
    {Qt::Key_Up, VK_UP},
    {Qt::Key_Right, VK_RIGHT},
    {Qt::Key_Down, VK_DOWN},
    {Qt::Key_Print, VK_PRINT},
    {Qt::Key_Insert, VK_INSERT},
    {Qt::Key_Delete, VK_DELETE},
    {Qt::Key_Help, VK_HELP},
    {Qt::Key_Menu, VK_APPS},
    {Qt::Key_NumLock, VK_NUMLOCK},
    {Qt::Key_ScrollLock, VK_SCROLL},
};

constexpr TKeyPair kKeypadKeys[] = {
    {Qt::Key_Asterisk, VK_MULTIPLY}, {Qt::Key_Plus, VK_ADD},     {Qt::Key_Minus, VK_SUBTRACT},
    {Qt::Key_Period, VK_DECIMAL},    {Qt::Key_Slash, VK_DIVIDE},
};

template <std::size_t N>
quint16 Find(const TKeyPair (&keys)[N], int key) {
  const auto* found =
      std::find_if(std::begin(keys), std::end(keys), [key](const TKeyPair& pair) { return pair.Key == key; });
  return found == std::end(keys) ? 0 : found->Code;
}

}  // namespace

quint16 VirtualKeyOf(const QKeyEvent& event) {
  const int key = event.key();
  if (event.modifiers().testFlag(Qt::KeypadModifier)) {
    if (const quint16 code = Find(kKeypadKeys, key)) return code;
  }
  if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z))
    return static_cast<quint16>(key);
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return static_cast<quint16>(VK_F1 + (key - Qt::Key_F1));
  return Find(kKeys, key);
}

TShiftState ShiftStateOf(Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons) {
  TShiftState state;
  state.Put(ssShift, modifiers.testFlag(Qt::ShiftModifier));
  state.Put(ssAlt, modifiers.testFlag(Qt::AltModifier));
  state.Put(ssCtrl, modifiers.testFlag(Qt::ControlModifier));
  state.Put(ssLeft, buttons.testFlag(Qt::LeftButton));
  state.Put(ssRight, buttons.testFlag(Qt::RightButton));
  state.Put(ssMiddle, buttons.testFlag(Qt::MiddleButton));
  return state;
}

}  // namespace kt
