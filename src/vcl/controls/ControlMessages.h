#pragma once

#include <QtGlobal>

/// The numbers of the messages that controls understand. Where a parameter is said to be a pointer it is passed as
/// qintptr; see MessagePointer() for the way back.
namespace kt {

// Windows. A control that lets one of these come to DefaultHandler() leaves it to the window's own behaviour.
inline constexpr quint32 WM_SETFOCUS = 0x0007;
inline constexpr quint32 WM_KILLFOCUS = 0x0008;  ///< WParam: the TWinControl* that gets the focus, or 0
inline constexpr quint32 WM_SETTEXT = 0x000C;    ///< LParam: const QString*
inline constexpr quint32 WM_CANCELMODE = 0x001F;
/// WParam: 0; LParam: MessagePoint() on the screen, or -1 for the menu key; Result 1: a menu was open
inline constexpr quint32 WM_CONTEXTMENU = 0x007B;
inline constexpr quint32 WM_KEYDOWN = 0x0100;  ///< WParam: virtual key code; LParam: bits of TShiftState
inline constexpr quint32 WM_KEYUP = 0x0101;
inline constexpr quint32 WM_CHAR = 0x0102;  ///< WParam: UTF-16 code unit
inline constexpr quint32 WM_SYSKEYDOWN = 0x0104;
inline constexpr quint32 WM_SYSKEYUP = 0x0105;
inline constexpr quint32 WM_SYSCHAR = 0x0106;
inline constexpr quint32 WM_MOUSEMOVE = 0x0200;  ///< mouse: WParam: bits of TShiftState; LParam: MessagePoint()
inline constexpr quint32 WM_LBUTTONDOWN = 0x0201;
inline constexpr quint32 WM_LBUTTONUP = 0x0202;
inline constexpr quint32 WM_LBUTTONDBLCLK = 0x0203;
inline constexpr quint32 WM_RBUTTONDOWN = 0x0204;
inline constexpr quint32 WM_RBUTTONUP = 0x0205;
inline constexpr quint32 WM_RBUTTONDBLCLK = 0x0206;
inline constexpr quint32 WM_MBUTTONDOWN = 0x0207;
inline constexpr quint32 WM_MBUTTONUP = 0x0208;
inline constexpr quint32 WM_MBUTTONDBLCLK = 0x0209;
inline constexpr quint32 WM_COPY = 0x0301;
inline constexpr quint32 WM_PASTE = 0x0302;
inline constexpr quint32 WM_USER = 0x0400;  ///< the first number for a class's own messages

// Controls.
inline constexpr quint32 CM_BASE = 0xB000;
inline constexpr quint32 CM_CANCELMODE = CM_BASE + 4;  ///< LParam: the TControl* that wants the others to let go
inline constexpr quint32 CM_DIALOGKEY = CM_BASE + 5;   ///< WParam: virtual key code; Result 1: taken
/// To all of a form: a letter was typed together with Alt. WParam: UTF-16 code unit; Result 1: taken
inline constexpr quint32 CM_DIALOGCHAR = CM_BASE + 6;
/// To all of a form; LParam: the TWinControl* that has the keyboard now, or 0
inline constexpr quint32 CM_FOCUSCHANGED = CM_BASE + 7;
inline constexpr quint32 CM_PARENTFONTCHANGED = CM_BASE + 8;
inline constexpr quint32 CM_PARENTCOLORCHANGED = CM_BASE + 9;
inline constexpr quint32 CM_VISIBLECHANGED = CM_BASE + 11;  ///< WParam: 1 when it becomes visible
inline constexpr quint32 CM_ENABLEDCHANGED = CM_BASE + 12;
inline constexpr quint32 CM_COLORCHANGED = CM_BASE + 13;
inline constexpr quint32 CM_FONTCHANGED = CM_BASE + 14;
inline constexpr quint32 CM_CURSORCHANGED = CM_BASE + 15;
inline constexpr quint32 CM_CTL3DCHANGED = CM_BASE + 16;
inline constexpr quint32 CM_PARENTCTL3DCHANGED = CM_BASE + 17;
inline constexpr quint32 CM_TEXTCHANGED = CM_BASE + 18;
inline constexpr quint32 CM_MOUSEENTER = CM_BASE + 19;
inline constexpr quint32 CM_MOUSELEAVE = CM_BASE + 20;
inline constexpr quint32 CM_SHOWINGCHANGED = CM_BASE + 25;
inline constexpr quint32 CM_ENTER = CM_BASE + 26;
inline constexpr quint32 CM_EXIT = CM_BASE + 27;
/// LParam: MessagePoint(); Result 1: the control itself has a use for the mouse there, in a designer too
inline constexpr quint32 CM_DESIGNHITTEST = CM_BASE + 28;
inline constexpr quint32 CM_WANTSPECIALKEY = CM_BASE + 30;  ///< WParam: virtual key code; Result 1: wanted
inline constexpr quint32 CM_RELEASE = CM_BASE + 33;
inline constexpr quint32 CM_SHOWHINTCHANGED = CM_BASE + 34;
inline constexpr quint32 CM_PARENTSHOWHINTCHANGED = CM_BASE + 35;
inline constexpr quint32 CM_TABSTOPCHANGED = CM_BASE + 40;
inline constexpr quint32 CM_CONTROLLISTCHANGE = CM_BASE + 44;  ///< WParam: the TControl*; LParam: 1 added, 0 removed
inline constexpr quint32 CM_CHILDKEY = CM_BASE + 46;           ///< WParam: key code; LParam: the child; Result 1: taken
/// WParam: TDragMessage; LParam: TDragRec*; Result: whether it is accepted, or the TControl* that is the target
inline constexpr quint32 CM_DRAG = CM_BASE + 47;
inline constexpr quint32 CM_HINTSHOW = CM_BASE + 48;  ///< LParam: THintInfo*; Result 1: show none
inline constexpr quint32 CM_RECREATEWND = CM_BASE + 51;
inline constexpr quint32 CM_BIDIMODECHANGED = CM_BASE + 60;
inline constexpr quint32 CM_PARENTBIDIMODECHANGED = CM_BASE + 61;
inline constexpr quint32 CM_ORDERTABS = CM_BASE + 200;  ///< the windows are to be visited in another order
/// To all of a form; LParam: const QString*, the long hint of what the mouse is over; Result 1: somebody shows it
inline constexpr quint32 CM_APPLICATIONHINT = CM_BASE + 201;
/// To a modal form: ModalResult was set, and the code that has set it is done.
inline constexpr quint32 CM_MODALANSWERED = CM_BASE + 202;

}  // namespace kt
