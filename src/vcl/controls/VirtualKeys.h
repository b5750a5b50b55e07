#pragma once

#include <QtGlobal>

/// Virtual key codes: what a key is, whatever is written on it. Letters and digits have the code of their ASCII
/// character ('A'..'Z', '0'..'9').
namespace kt {

inline constexpr quint16 VK_BACK = 0x08;
inline constexpr quint16 VK_TAB = 0x09;
inline constexpr quint16 VK_CLEAR = 0x0C;
inline constexpr quint16 VK_RETURN = 0x0D;
inline constexpr quint16 VK_SHIFT = 0x10;
inline constexpr quint16 VK_CONTROL = 0x11;
inline constexpr quint16 VK_MENU = 0x12;
inline constexpr quint16 VK_PAUSE = 0x13;
inline constexpr quint16 VK_CAPITAL = 0x14;
inline constexpr quint16 VK_ESCAPE = 0x1B;
inline constexpr quint16 VK_SPACE = 0x20;
inline constexpr quint16 VK_PRIOR = 0x21;
inline constexpr quint16 VK_NEXT = 0x22;
inline constexpr quint16 VK_END = 0x23;
inline constexpr quint16 VK_HOME = 0x24;
inline constexpr quint16 VK_LEFT = 0x25;
inline constexpr quint16 VK_UP = 0x26;
inline constexpr quint16 VK_RIGHT = 0x27;
inline constexpr quint16 VK_DOWN = 0x28;
inline constexpr quint16 VK_PRINT = 0x2A;
inline constexpr quint16 VK_INSERT = 0x2D;
inline constexpr quint16 VK_DELETE = 0x2E;
inline constexpr quint16 VK_HELP = 0x2F;
inline constexpr quint16 VK_APPS = 0x5D;
inline constexpr quint16 VK_MULTIPLY = 0x6A;
inline constexpr quint16 VK_ADD = 0x6B;
inline constexpr quint16 VK_SUBTRACT = 0x6D;
inline constexpr quint16 VK_DECIMAL = 0x6E;
inline constexpr quint16 VK_DIVIDE = 0x6F;
inline constexpr quint16 VK_F1 = 0x70;
inline constexpr quint16 VK_F2 = 0x71;
inline constexpr quint16 VK_F4 = 0x73;
inline constexpr quint16 VK_F24 = 0x87;
inline constexpr quint16 VK_NUMLOCK = 0x90;
inline constexpr quint16 VK_SCROLL = 0x91;

}  // namespace kt
