#pragma once

#include "kt/rtl/objects/Message.h"
#include "kt/vcl/controls/ControlTypes.h"

namespace kt {

/// Where a form appears.
enum TPosition {
  poDesigned,
  poDefault,
  poDefaultPosOnly,
  poDefaultSizeOnly,
  poScreenCenter,
  poDesktopCenter,
  poMainFormCenter,
  poOwnerFormCenter
};
enum TBorderIcon { biSystemMenu, biMinimize, biMaximize, biHelp };
using TBorderIcons = TSet<TBorderIcon>;
enum TWindowState { wsNormal, wsMinimized, wsMaximized };

/// fsStayOnTop lies above the other windows of all programs. Windows within a window there are none: a child or parent
/// of such is a form like others.
enum TFormStyle { fsNormal, fsMDIChild, fsMDIForm, fsStayOnTop };
/// The screen that a form is put in the middle of.
enum TDefaultMonitor { dmDesktop, dmPrimary, dmMainForm, dmActiveForm };
enum TPrintScale { poNone, poProportional, poPrintToFit };

/// What becomes of a form that is closed.
enum TCloseAction { caNone, caHide, caFree, caMinimize };

/// The answers of a form that was shown modally; 0 while there is none.
using TModalResult = int;
inline constexpr TModalResult mrNone = 0;
inline constexpr TModalResult mrOk = 1;
inline constexpr TModalResult mrCancel = 2;
inline constexpr TModalResult mrAbort = 3;
inline constexpr TModalResult mrRetry = 4;
inline constexpr TModalResult mrIgnore = 5;
inline constexpr TModalResult mrYes = 6;
inline constexpr TModalResult mrNo = 7;
inline constexpr TModalResult mrAll = 8;
inline constexpr TModalResult mrNoToAll = 9;
inline constexpr TModalResult mrYesToAll = 10;

/// A number that inspectors can show by its name.
const TTypeInfo* ModalResultTypeInfo();

struct TCloseEvent : TEvent<TObject*, TCloseAction&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TCloseEvent";
};
/// A key, as WM_KEYDOWN has it, that may be a short cut; a handler that sets the last one to true has used it.
struct TShortCutEvent : TEvent<TObject*, TMessage&, bool&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TShortCutEvent";
};
struct TCloseQueryEvent : TEvent<TObject*, bool&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TCloseQueryEvent";
};

template <>
struct TEnumNames<TPosition> {
  static constexpr char Name[] = "TPosition";
  static constexpr const char* Values[] = {"poDesigned",        "poDefault",        "poDefaultPosOnly",
                                           "poDefaultSizeOnly", "poScreenCenter",   "poDesktopCenter",
                                           "poMainFormCenter",  "poOwnerFormCenter"};
};
template <>
struct TEnumNames<TFormStyle> {
  static constexpr char Name[] = "TFormStyle";
  static constexpr const char* Values[] = {"fsNormal", "fsMDIChild", "fsMDIForm", "fsStayOnTop"};
};
template <>
struct TEnumNames<TDefaultMonitor> {
  static constexpr char Name[] = "TDefaultMonitor";
  static constexpr const char* Values[] = {"dmDesktop", "dmPrimary", "dmMainForm", "dmActiveForm"};
};
template <>
struct TEnumNames<TPrintScale> {
  static constexpr char Name[] = "TPrintScale";
  static constexpr const char* Values[] = {"poNone", "poProportional", "poPrintToFit"};
};
template <>
struct TEnumNames<TBorderIcon> {
  static constexpr char Name[] = "TBorderIcon";
  static constexpr const char* Values[] = {"biSystemMenu", "biMinimize", "biMaximize", "biHelp"};
  static constexpr char SetName[] = "TBorderIcons";
};
template <>
struct TEnumNames<TWindowState> {
  static constexpr char Name[] = "TWindowState";
  static constexpr const char* Values[] = {"wsNormal", "wsMinimized", "wsMaximized"};
};

}  // namespace kt
