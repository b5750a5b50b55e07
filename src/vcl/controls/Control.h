#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Message.h"
#include "kt/vcl/controls/ControlMessages.h"
#include "kt/vcl/controls/ControlTypes.h"
#include "kt/vcl/controls/DragTypes.h"
#include "kt/vcl/controls/SizeConstraints.h"
#include "kt/vcl/graphics/Color.h"
#include "kt/vcl/graphics/Cursor.h"
#include "kt/vcl/graphics/Font.h"

#include <QMargins>
#include <QRect>
#include <QString>

#include <memory>

class QPainter;

namespace kt {

class TBasicAction;
class TControlActionLink;
class TMessageAddress;
class TPopupMenu;
class TWinControl;
struct TExplicitBounds;

/// Something with a place on a form, a look, and the mouse.
///
/// All of it works without a window, a display or an application object; what has a window is a TWinControl. Sizes and
/// positions are pixels; positions are those in the parent's client area, mouse positions those in the control's own.
///
/// Which properties are published is up to the final class; Publish.h has a line for each. Used from the thread of the
/// user interface alone. Handlers may free whatever they like, the control whose event they handle as well.
class TControl : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  // Place.
  int GetLeft() const { return FLeft; }
  int GetTop() const { return FTop; }
  int GetWidth() const { return FWidth; }
  int GetHeight() const { return FHeight; }
  void SetLeft(int value) { SetBounds(value, FTop, FWidth, FHeight); }
  void SetTop(int value) { SetBounds(FLeft, value, FWidth, FHeight); }
  void SetWidth(int value) { SetBounds(FLeft, FTop, value, FHeight); }
  void SetHeight(int value) { SetBounds(FLeft, FTop, FWidth, value); }
  QRect GetBoundsRect() const { return {FLeft, FTop, FWidth, FHeight}; }
  /// The size is cut to Constraints and is never negative; the alignment may move the control on.
  virtual void SetBounds(int left, int top, int width, int height);
  /// The size without border and scroll bars. Setting it resizes the whole control.
  int GetClientWidth() const { return GetClientRect().width(); }
  int GetClientHeight() const { return GetClientRect().height(); }
  void SetClientWidth(int value);
  void SetClientHeight(int value);
  /// The client area in its own coordinates: its top left is (0, 0).
  QRect GetClientRect() const;
  TAlign GetAlign() const { return FAlign; }
  void SetAlign(TAlign value);
  TAnchors GetAnchors() const { return FAnchors; }
  void SetAnchors(TAnchors value);
  TSizeConstraints& GetConstraints() { return *FConstraints; }
  void SetConstraints(const TSizeConstraints& value);

  // Parent.
  TWinControl* GetParent() const { return FParent; }
  /// The parent does not own the control; it frees it all the same when it is destroyed.
  virtual void SetParent(TWinControl* value);
  TComponent* GetParentComponent() override;
  bool HasParent() override { return FParent != nullptr; }
  /// Over or below all other children of the parent. Those with a window are always over those without.
  void BringToFront() { SetZOrder(true); }
  void SendToBack() { SetZOrder(false); }

  // Look.
  TColor GetColor() const { return FColor; }
  void SetColor(TColor value);
  bool IsParentColor() const { return FParentColor; }
  void SetParentColor(bool value);
  TFont& GetFont() { return *FFont; }
  void SetFont(const TFont& value);
  bool IsParentFont() const { return FParentFont; }
  void SetParentFont(bool value);
  TCursor GetCursor() const { return FCursor; }
  void SetCursor(TCursor value);
  TBiDiMode GetBiDiMode() const { return FBiDiMode; }
  void SetBiDiMode(TBiDiMode value);
  bool IsParentBiDiMode() const { return FParentBiDiMode; }
  void SetParentBiDiMode(bool value);
  /// Whether texts are aligned to the right, and scroll bars placed on the left.
  bool UseRightToLeftAlignment() const { return FBiDiMode == bdRightToLeft; }
  /// Whether texts are read from right to left.
  bool UseRightToLeftReading() const { return FBiDiMode != bdLeftToRight; }
  bool IsVisible() const { return FVisible; }
  virtual void SetVisible(bool value);
  bool IsEnabled() const { return FEnabled; }
  virtual void SetEnabled(bool value);
  void Show() { SetVisible(true); }
  void Hide() { SetVisible(false); }
  /// Asks for a paint later. Several requests make one paint.
  virtual void Invalidate() {}
  /// Asks for a paint and has it done at once.
  virtual void Repaint() {}
  /// Does at once what Invalidate() asked for.
  virtual void Update() {}  // NOLINT(bugprone-virtual-near-miss): the framework's name
  /// Between places of the client area and of the screen. Raise EInvalidOperation "Control '%s' has no parent window"
  /// for a control that has no window, neither its own nor a parent's.
  virtual QPoint ClientToScreen(QPoint point);
  virtual QPoint ScreenToClient(QPoint point);

  // Hints and help.
  const QString& GetHint() const { return FHint; }
  void SetHint(const QString& value) { FHint = value; }
  bool IsShowHint() const { return FShowHint; }
  void SetShowHint(bool value);
  bool IsParentShowHint() const { return FParentShowHint; }
  void SetParentShowHint(bool value);
  THelpType GetHelpType() const { return FHelpType; }
  void SetHelpType(THelpType value) { FHelpType = value; }
  /// Setting a word that is not empty makes it the one that help goes by; a number that is not 0 likewise.
  const QString& GetHelpKeyword() const { return FHelpKeyword; }
  void SetHelpKeyword(const QString& value);
  int GetHelpContext() const { return FHelpContext; }
  void SetHelpContext(int value);

  // The action.
  /// What the control does when it is clicked, and where it has its text, Enabled, help, Hint and Visible from, as long
  /// as nobody gives it others. Not owned.
  TBasicAction* GetAction() const;
  void SetAction(TBasicAction* value);
  /// Null while there is no action.
  TControlActionLink* GetActionLink() const { return FActionLink.get(); }

  // The menu.
  /// Opens with the right mouse button and the menu key, here and in children without a menu of their own; its short
  /// cuts work while the keyboard is in here. Not owned.
  TPopupMenu* GetPopupMenu() const { return FPopupMenu; }
  void SetPopupMenu(TPopupMenu* value);

  // Dragging: within the windows of the program. The window of the control, or of its parent, has the mouse meanwhile.
  // The Escape key and the loss of the mouse cancel. Handlers of a drag may free whatever they like.
  /// dkDock is there for the forms that say it. Nothing can be docked: such a control is not dragged at all, and
  /// presses are presses.
  TDragKind GetDragKind() const { return FDragKind; }
  void SetDragKind(TDragKind value) { FDragKind = value; }
  /// With dmAutomatic a press of the left button drags the control, which hears of no press then. A list box selects
  /// the line first. Forms are not dragged.
  TDragMode GetDragMode() const { return FDragMode; }
  void SetDragMode(TDragMode value) { FDragMode = value; }
  /// The pointer while it is over something that accepts the control, in all windows; crNoDrop elsewhere.
  TCursor GetDragCursor() const { return FDragCursor; }
  void SetDragCursor(TCursor value) { FDragCursor = value; }
  /// The control is dragged from now on, until a button is released: at once, or when the mouse has moved by so many
  /// pixels (Mouse().GetDragThreshold() if negative). OnStartDrag comes at once. When the button was pressed on the
  /// control, its release and so the click come first. Nothing happens while something is dragged already, or without a
  /// QApplication. Raises EInvalidOperation for forms.
  void BeginDrag(bool immediate, int threshold = -1);
  /// Ends the drag of this control; in OnStartDrag, and in the OnMouseUp and OnClick that come before it, keeps it from
  /// beginning. `drop`: on the control below the mouse, if that accepts it.
  void EndDrag(bool drop);
  /// Whether it is being dragged. No longer so in OnDragDrop and OnEndDrag, where another drag may begin.
  bool Dragging() const;
  /// Something was dropped here.
  virtual void DragDrop(TObject* source, int x, int y) { OnDragDrop(this, source, x, y); }

  TControlStyle GetControlStyle() const { return FControlStyle; }
  TControlState GetControlState() const { return FControlState; }

  // Messages.
  /// Sends a message to this control and answers its Result.
  qintptr Perform(quint32 msg, qintptr wParam = 0, qintptr lParam = 0);
  /// Has the message performed when control is back at the event queue, and dropped when the control dies before. Needs
  /// no window.
  void PostMessage(quint32 msg, qintptr wParam = 0, qintptr lParam = 0);
  void Dispatch(TMessage& message) override;
  /// A text that is the same as the name changes with it, as that of a new button does.
  void SetName(const QString& value) override;

  // What streams ask.
  bool IsAnchorsStored() const;
  // Not what comes from the action.
  bool IsCaptionStored() const;
  bool IsEnabledStored() const;
  bool IsHelpContextStored() const;
  bool IsHelpStored() const;
  bool IsHintStored() const;
  bool IsOnClickStored() const;
  bool IsVisibleStored() const;
  bool IsColorStored() const { return !FParentColor; }
  bool IsFontStored() const { return !FParentFont; }
  bool IsBiDiModeStored() const { return !FParentBiDiMode; }
  bool IsShowHintStored() const { return !FParentShowHint; }

  TCanResizeEvent OnCanResize;
  TNotifyEvent OnClick;
  TConstrainedResizeEvent OnConstrainedResize;
  TContextPopupEvent OnContextPopup;
  TNotifyEvent OnDblClick;
  TDragDropEvent OnDragDrop;
  TDragOverEvent OnDragOver;
  TEndDragEvent OnEndDrag;
  TMouseEvent OnMouseDown;
  TMouseMoveEvent OnMouseMove;
  TMouseEvent OnMouseUp;
  TNotifyEvent OnMouseEnter;
  TNotifyEvent OnMouseLeave;
  TNotifyEvent OnResize;
  TStartDragEvent OnStartDrag;

 protected:
  friend class TSizeConstraints;
  friend class TWinControl;
  friend class TMessageAddress;
  friend class TControlActionLink;
  friend class TBaseDragControlObject;
  friend class TDragSession;

  explicit TControl(TComponent* owner = nullptr);
  ~TControl() override;

  void Construct() override;
  void BeforeDestruction() override;
  void Destruct() override;
  void Loaded() override;
  void Notification(TComponent* component, TOperation operation) override;
  void SetParentComponent(TComponent* value) override;
  /// The bounds that an aligned or anchored control had before, as forms say them; they are kept.
  void DefineProperties(TFiler& filer) override;

  virtual void SetZOrder(bool isTopmost);
  /// Whether the parent shows it: what is not Visible shows in a designer all the same, unless it does not want to.
  bool ShowsInParent() const;
  /// For controls without a window: draws them into that of the parent. `painter` is clipped to what is to be seen of
  /// the control and starts at its top left; `clip`, in the control, is what is needed of it.
  virtual void PaintInWindow(QPainter&, const QRect& /*clip*/) {}
  /// Asks the parent for a paint of a place in its client area.
  void InvalidateInParent(const QRect& place);

  /// The one way that every message takes; overrides see them first.
  virtual void WndProc(TMessage& message);

  /// The widths of what surrounds the client area: a border, scroll bars.
  virtual QMargins GetClientMargins() const { return {}; }
  /// The place or size has changed.
  virtual void BoundsUpdated() {}
  /// The size has changed: raises OnResize.
  virtual void Resize() { OnResize(this); }
  void RequestAlign();
  void SetControlStyle(TControlStyle value) { FControlStyle = value; }

  virtual const QString& GetText() const { return FText; }
  /// Compares, stores and sends CM_TEXTCHANGED.
  virtual void SetText(const QString& value);
  void StoreText(const QString& value) { FText = value; }
  /// Sets Visible without telling anybody; CM_VISIBLECHANGED has to follow.
  void SetVisibleFlag(bool value) { FVisible = value; }

  /// Takes over what `action` has. `onlyDefaults`: not where the control has a value of its own.
  virtual void ActionChange(TObject* action, bool onlyDefaults);
  virtual std::unique_ptr<TControlActionLink> MakeActionLink();

  /// Before the menu opens; `handled` keeps it from doing so.
  virtual void DoContextPopup(const QPoint& position, bool& handled) { OnContextPopup(this, position, handled); }
  virtual void Click();
  virtual void DblClick() { OnDblClick(this); }
  virtual void MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
    OnMouseDown(this, button, shift, x, y);
  }
  virtual void MouseMove(TShiftState shift, int x, int y) { OnMouseMove(this, shift, x, y); }
  virtual void MouseUp(TMouseButton button, TShiftState shift, int x, int y) { OnMouseUp(this, button, shift, x, y); }

  /// A press drags the control.
  virtual void BeginAutoDrag();
  /// May make the object that is dragged in place of the control.
  virtual void DoStartDrag(TDragObject*& dragObject) { OnStartDrag(this, dragObject); }
  /// Whether something could be dropped here; the inherited one asks the handler, and accepts nothing without one.
  virtual void DragOver(TObject* source, int x, int y, TDragState state, bool& accept);
  /// Nobody took the control; comes before DoEndDrag().
  virtual void DragCanceled() {}
  virtual void DoEndDrag(TObject* target, int x, int y) { OnEndDrag(this, target, x, y); }

  virtual void CMParentFontChanged(TMessage& message);
  virtual void CMParentColorChanged(TMessage& message);
  virtual void CMParentBiDiModeChanged(TMessage& message);
  virtual void CMParentShowHintChanged(TMessage& message);
  virtual void CMFontChanged(TMessage&) { Invalidate(); }
  virtual void CMColorChanged(TMessage&) { Invalidate(); }
  virtual void CMBiDiModeChanged(TMessage&) { Invalidate(); }
  virtual void CMEnabledChanged(TMessage&) { Invalidate(); }
  virtual void CMVisibleChanged(TMessage&) {}
  virtual void CMShowHintChanged(TMessage&) {}
  virtual void CMCursorChanged(TMessage& message);
  virtual void CMTextChanged(TMessage&) {}
  virtual void CMMouseEnter(TMessage&) { OnMouseEnter(this); }
  virtual void CMMouseLeave(TMessage&) { OnMouseLeave(this); }
  virtual void CMCancelMode(TMessage&) {}
  /// A letter together with Alt. Result 1: it was meant for the control.
  virtual void CMDialogChar(TMessage&) {}
  /// Result 1: a menu was open, or a handler has seen to it.
  virtual void WMContextMenu(TMessage& message);

  TControlStyle FControlStyle = {csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
  TControlState FControlState;

 private:
  void FontChanged(TObject* sender);
  void DoActionChange(TObject* sender);
  void ConstraintsChanged();
  bool DispatchMouse(TMessage& message);
  bool IsDraggedByPress() const;
  void PressToDrag();
  /// The target's answer.
  bool DoDragMsg(TDragMessage what, const TDragRec& about);
  /// A place of the screen in the client area; in that of the nearest parent with a window, when there is none here.
  QPoint PlaceInClient(QPoint screenPos);
  void ButtonDown(const TMessage& message, TMouseButton button, bool isDouble);
  void ButtonUp(const TMessage& message, TMouseButton button);
  /// Remembers where the control stands relative to its parent, which anchors keep.
  void RememberAnchorBase();
  bool IsMovedByAnchors() const;
  void ScrollOn(int deltaX, int deltaY);
  bool CheckNewSize(int& width, int& height);
  void ApplyAnchors(QSize parentSize);

  TWinControl* FParent = nullptr;
  TPopupMenu* FPopupMenu = nullptr;
  std::unique_ptr<TSizeConstraints> FConstraints;
  std::unique_ptr<TFont> FFont;
  std::unique_ptr<TMessageAddress> FAddress;
  std::unique_ptr<TControlActionLink> FActionLink;
  QString FHelpKeyword;
  QString FHint;
  QString FText;
  int FLeft = 0;
  int FTop = 0;
  int FWidth = 0;
  int FHeight = 0;
  /// Named by the form file, or null.
  std::unique_ptr<TExplicitBounds> FExplicit;
  QRect FAnchorBase;
  QSize FAnchorParent;
  TColor FColor = clWindow;
  TAnchors FAnchors = {akLeft, akTop};
  int FHelpContext = 0;
  TCursor FCursor = crDefault;
  TCursor FDragCursor = crDrag;
  TAlign FAlign = alNone;
  THelpType FHelpType = htContext;
  TBiDiMode FBiDiMode = bdLeftToRight;
  TDragKind FDragKind = dkDrag;
  TDragMode FDragMode = dmManual;
  bool FParentColor = true;
  bool FParentFont = true;
  bool FParentBiDiMode = true;
  bool FParentShowHint = true;
  bool FShowHint = false;
  bool FVisible = true;
  bool FEnabled = true;
};

/// A position as mouse messages carry it, and back.
qintptr MessagePoint(int x, int y);
QPoint PointOfMessage(qintptr lParam);

/// The object that a message parameter points to, of the class that the message's description names.
template <class T>
T* MessagePointer(qintptr parameter) {
  return reinterpret_cast<T*>(parameter);  // NOLINT(performance-no-int-to-ptr): how messages carry pointers
}
template <class T>
qintptr PointerMessage(T* pointer) {
  return reinterpret_cast<qintptr>(pointer);
}

}  // namespace kt
