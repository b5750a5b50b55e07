#pragma once

#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <QPoint>

namespace kt {

/// The side of the parent that a control keeps to.
enum TAlign { alNone, alTop, alBottom, alLeft, alRight, alClient, alCustom };

/// The sides of the parent that a control keeps its distance from when the parent is resized.
enum TAnchorKind { akLeft, akTop, akRight, akBottom };
using TAnchors = TSet<TAnchorKind>;

/// The reading direction, and what of the control is mirrored with it.
enum TBiDiMode { bdLeftToRight, bdRightToLeft, bdRightToLeftNoAlign, bdRightToLeftReadingOnly };

enum TDragMode { dmManual, dmAutomatic };
enum TDragKind { dkDrag, dkDock };

/// How help finds what is to be said: by the word of HelpKeyword, or the number of HelpContext.
enum THelpType { htKeyword, htContext };

enum TMouseButton { mbLeft, mbRight, mbMiddle };

/// The keys and buttons that are held while something happens.
enum TShiftStateItem { ssShift, ssAlt, ssCtrl, ssLeft, ssRight, ssMiddle, ssDouble };
using TShiftState = TSet<TShiftStateItem>;

/// What a kind of control does and looks like.
enum TControlStyleItem {
  csAcceptsControls,  ///< becomes the parent of what a designer drops on it
  csCaptureMouse,     ///< gets the mouse moves and the release of a button that was pressed on it
  csDesignInteractive,
  csClickEvents,  ///< raises OnClick
  csFramed,
  csSetCaption,
  csOpaque,        ///< paints every pixel of itself
  csDoubleClicks,  ///< raises OnDblClick
  csFixedWidth,
  csFixedHeight,
  csNoDesignVisible,
  csReplicatable,
  csNoStdEvents,
  csDisplayDragImage,
  csReflector,
  csActionClient,
  csMenuEvents
};
using TControlStyle = TSet<TControlStyleItem>;

/// What a control is going through.
enum TControlStateItem {
  csLButtonDown,
  csClicked,
  csPalette,
  csReadingState,
  csAlignmentNeeded,
  csFocusing,
  csCreating
};
using TControlState = TSet<TControlStateItem>;

/// The border of a form.
enum TFormBorderStyle { bsNone, bsSingle, bsSizeable, bsDialog, bsToolWindow, bsSizeToolWin };
/// The border of a control: bsNone or bsSingle. Published with BorderStyleTypeInfo().
using TBorderStyle = TFormBorderStyle;

/// The scroll bars of a control.
enum TScrollStyle { ssNone, ssHorizontal, ssVertical, ssBoth };

/// How an edge looks. bvSpace only takes room.
enum TBevelCut { bvNone, bvLowered, bvRaised, bvSpace };
using TPanelBevel = TBevelCut;
/// The sides that a control has edges on.
enum TBevelEdge { beLeft, beTop, beRight, beBottom };
using TBevelEdges = TSet<TBevelEdge>;
/// The kind of edges that a window has around its border: none, or those of a tile, soft or flat.
enum TBevelKind { bkNone, bkTile, bkSoft, bkFlat };

/// Whether input methods are on while a control has the keyboard, and in which mode.
enum TImeMode {
  imDisable,
  imClose,
  imOpen,
  imDontCare,
  imSAlpha,
  imAlpha,
  imHira,
  imSKata,
  imKata,
  imChinese,
  imSHanguel,
  imHanguel
};

/// Where a text stands in its room. From right to left the sides are exchanged.
enum TAlignment { taLeftJustify, taRightJustify, taCenter };
/// On which side of a sign its caption stands: taLeftJustify or taRightJustify. Published with LeftRightTypeInfo().
using TLeftRight = TAlignment;

/// `key` is a virtual key code; a handler that sets it to 0 has consumed it.
struct TKeyEvent : TEvent<TObject*, quint16&, TShiftState> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKeyEvent";
};
/// `key` is the character typed; a handler that sets it to 0 has consumed it.
struct TKeyPressEvent : TEvent<TObject*, QChar&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TKeyPressEvent";
};
/// Positions are pixels in the client area.
struct TMouseEvent : TEvent<TObject*, TMouseButton, TShiftState, int, int> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TMouseEvent";
};
/// The wheel was turned by `delta` eighths of a degree, away from the user if positive, at a place on the screen; a
/// handler that sets the last one to true has used it.
struct TMouseWheelEvent : TEvent<TObject*, TShiftState, int, const QPoint&, bool&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TMouseWheelEvent";
};
/// The wheel was turned by a step.
struct TMouseWheelUpDownEvent : TEvent<TObject*, TShiftState, const QPoint&, bool&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TMouseWheelUpDownEvent";
};
/// A menu is asked for at a place of the client area, (-1, -1) with the keyboard; a handler that sets the last one to
/// true has seen to it.
struct TContextPopupEvent : TEvent<TObject*, const QPoint&, bool&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TContextPopupEvent";
};
/// The size that a control is about to get, which the handler may change, or refuse with the last one.
struct TCanResizeEvent : TEvent<TObject*, int&, int&, bool&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TCanResizeEvent";
};
/// The least width and height, and the greatest ones, that a control may get; 0 is no limit.
struct TConstrainedResizeEvent : TEvent<TObject*, int&, int&, int&, int&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TConstrainedResizeEvent";
};
struct TMouseMoveEvent : TEvent<TObject*, TShiftState, int, int> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TMouseMoveEvent";
};

template <>
struct TEnumNames<TAlign> {
  static constexpr char Name[] = "TAlign";
  static constexpr const char* Values[] = {"alNone", "alTop", "alBottom", "alLeft", "alRight", "alClient", "alCustom"};
};
template <>
struct TEnumNames<TAnchorKind> {
  static constexpr char Name[] = "TAnchorKind";
  static constexpr const char* Values[] = {"akLeft", "akTop", "akRight", "akBottom"};
  static constexpr char SetName[] = "TAnchors";
};
template <>
struct TEnumNames<TBiDiMode> {
  static constexpr char Name[] = "TBiDiMode";
  static constexpr const char* Values[] = {"bdLeftToRight", "bdRightToLeft", "bdRightToLeftNoAlign",
                                           "bdRightToLeftReadingOnly"};
};
template <>
struct TEnumNames<TDragMode> {
  static constexpr char Name[] = "TDragMode";
  static constexpr const char* Values[] = {"dmManual", "dmAutomatic"};
};
template <>
struct TEnumNames<TDragKind> {
  static constexpr char Name[] = "TDragKind";
  static constexpr const char* Values[] = {"dkDrag", "dkDock"};
};
template <>
struct TEnumNames<THelpType> {
  static constexpr char Name[] = "THelpType";
  static constexpr const char* Values[] = {"htKeyword", "htContext"};
};
template <>
struct TEnumNames<TFormBorderStyle> {
  static constexpr char Name[] = "TFormBorderStyle";
  static constexpr const char* Values[] = {"bsNone",   "bsSingle",     "bsSizeable",
                                           "bsDialog", "bsToolWindow", "bsSizeToolWin"};
};
template <>
struct TEnumNames<TScrollStyle> {
  static constexpr char Name[] = "TScrollStyle";
  static constexpr const char* Values[] = {"ssNone", "ssHorizontal", "ssVertical", "ssBoth"};
};
template <>
struct TEnumNames<TBevelCut> {
  static constexpr char Name[] = "TBevelCut";
  static constexpr const char* Values[] = {"bvNone", "bvLowered", "bvRaised", "bvSpace"};
};
template <>
struct TEnumNames<TBevelEdge> {
  static constexpr char Name[] = "TBevelEdge";
  static constexpr const char* Values[] = {"beLeft", "beTop", "beRight", "beBottom"};
  static constexpr char SetName[] = "TBevelEdges";
};
template <>
struct TEnumNames<TBevelKind> {
  static constexpr char Name[] = "TBevelKind";
  static constexpr const char* Values[] = {"bkNone", "bkTile", "bkSoft", "bkFlat"};
};
template <>
struct TEnumNames<TImeMode> {
  static constexpr char Name[] = "TImeMode";
  static constexpr const char* Values[] = {"imDisable", "imClose", "imOpen", "imDontCare", "imSAlpha",   "imAlpha",
                                           "imHira",    "imSKata", "imKata", "imChinese",  "imSHanguel", "imHanguel"};
};
template <>
struct TEnumNames<TAlignment> {
  static constexpr char Name[] = "TAlignment";
  static constexpr const char* Values[] = {"taLeftJustify", "taRightJustify", "taCenter"};
};
/// "TLeftRight", the two sides of TAlignment.
const TTypeInfo* LeftRightTypeInfo();
/// "TBorderStyle", the two border styles that controls have.
const TTypeInfo* BorderStyleTypeInfo();

}  // namespace kt
