#pragma once

#include "kt/rtl/objects/ObjectRef.h"
#include "kt/vcl/controls/Control.h"
#include "kt/vcl/controls/WheelSteps.h"

#include <QPoint>
#include <QRect>
#include <QRegion>
#include <QWidget>

#include <span>
#include <vector>

namespace kt {

class TControlBody;

/// What forms say of the frame of a window. It is kept for them: borders look as Qt's style draws them.
struct TWindowFrame {
  TBevelEdges Edges = {beLeft, beTop, beRight, beBottom};
  TBevelCut Inner = bvRaised;
  TBevelCut Outer = bvLowered;
  TBevelKind Kind = bkNone;
  int Width = 1;
  bool IsCtl3D = true;
  bool IsParentCtl3D = true;
};

/// A control that can have a window, the focus, and other controls inside.
///
/// The window, a Qt widget, is made when it is needed: asked for by GetHandle(), or because the parent has one. Until
/// then everything else works without. The handle of a control without parent can be put into any Qt layout or window;
/// when Qt destroys it together with its surroundings, the control lives on without a window and can make another one.
///
/// Tabs: the children are visited in the order of their TabOrder, whoever the window around them belongs to. A new
/// order holds for the next key that is pressed in here, and everywhere else when control is back at the event queue.
class TWinControl : public TControl {
 public:
  using Inherited = TControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  // Children.
  int GetControlCount() const { return static_cast<int>(FControls.size()); }
  /// In the order they lie on each other, the lowest first. Raises EListError.
  TControl* GetControls(int index) const;
  bool ContainsControl(const TControl* control) const;
  /// The topmost child at a place of the client area, or null. Only those without a window count, which lie below the
  /// others, unless `allowWindows`.
  TControl* ControlAtPos(QPoint pos, bool allowDisabled, bool allowWindows = false) const;
  void InsertControl(TControl* control);
  void RemoveControl(TControl* control);

  // Tabs.
  /// The place among the parent's children, -1 without a parent. Setting moves it there, cut to the valid range.
  int GetTabOrder() const;
  void SetTabOrder(int value);
  bool IsTabStop() const { return FTabStop; }
  void SetTabStop(bool value);
  /// The children in tab order.
  std::span<TWinControl* const> GetTabList() const { return FTabList; }

  // Alignment of the children.
  /// Puts off aligning until EnableAlign() was called as often.
  void DisableAlign() { ++FAlignLevel; }
  void EnableAlign();
  /// Brings the children to the places that their Align and Anchors ask for.
  void Realign() { AlignControl(nullptr); }

  /// Moves all children. Their anchors hold as they are.
  void ScrollBy(int deltaX, int deltaY);

  // The window.
  bool HandleAllocated() const { return FWindow != nullptr; }
  /// Makes the window if there is none. Needs a QApplication.
  void HandleNeeded();
  /// Null when a handler has freed the control while its window was made.
  QWidget* GetHandle();
  /// Whether the window is on the screen, as far as the program can tell.
  bool IsShowing() const { return FShowing; }
  void Invalidate() override;
  void Repaint() override;
  void Update() override;
  QPoint ClientToScreen(QPoint point) override;
  QPoint ScreenToClient(QPoint point) override;
  /// Gets all mouse events until it is released, or another one captures the mouse.
  void SetMouseCapture(bool value);
  bool HasMouseCapture() const;

  // The frame, which is kept for the forms that say it: the border is Qt's.
  TBevelEdges GetBevelEdges() const { return FFrame.Edges; }
  void SetBevelEdges(TBevelEdges value) { FFrame.Edges = value; }
  TBevelCut GetBevelInner() const { return FFrame.Inner; }
  void SetBevelInner(TBevelCut value) { FFrame.Inner = value; }
  TBevelCut GetBevelOuter() const { return FFrame.Outer; }
  void SetBevelOuter(TBevelCut value) { FFrame.Outer = value; }
  TBevelKind GetBevelKind() const { return FFrame.Kind; }
  void SetBevelKind(TBevelKind value) { FFrame.Kind = value; }
  bool IsCtl3D() const { return FFrame.IsCtl3D; }
  void SetCtl3D(bool value);
  bool IsParentCtl3D() const { return FFrame.IsParentCtl3D; }
  void SetParentCtl3D(bool value);
  bool IsCtl3DStored() const { return !FFrame.IsParentCtl3D; }

  // Input methods.
  /// With imDisable none is asked while the control has the keyboard. What the other modes say is kept for the forms.
  TImeMode GetImeMode() const { return FImeMode; }
  void SetImeMode(TImeMode value);
  const QString& GetImeName() const { return FImeName; }
  void SetImeName(const QString& value) { FImeName = value; }

  // Focus.
  /// Whether this very window has the keyboard.
  bool Focused() const;
  /// Whether it and all its parents are visible and enabled.
  bool CanFocus() const;
  virtual void SetFocus();

  void Dispatch(TMessage& message) override;
  void DefaultHandler(TMessage& message) override;
  void SetBounds(int left, int top, int width, int height) override;

  TNotifyEvent OnEnter;
  TNotifyEvent OnExit;
  TKeyEvent OnKeyDown;
  TKeyPressEvent OnKeyPress;
  TKeyEvent OnKeyUp;
  /// The wheel, turned up and down. What no handler uses goes by its steps to the two below, then to the control's own
  /// behaviour, then to the parent.
  TMouseWheelEvent OnMouseWheel;
  TMouseWheelUpDownEvent OnMouseWheelDown;
  TMouseWheelUpDownEvent OnMouseWheelUp;

 protected:
  friend class TControl;
  friend class TControlBody;
  friend class TFocus;

  explicit TWinControl(TComponent* owner = nullptr) : TControl(owner) {}

  void Destruct() override;
  void Loaded() override;
  void WndProc(TMessage& message) override;
  void GetChildren(const TGetChildProc& proc, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;
  /// The client size that a form was designed with, as forms with anchored controls say it.
  void DefineProperties(TFiler& filer) override;

  /// Places the aligned and anchored children in `rect`, the client area.
  virtual void AlignControls(QRect& rect);
  /// Cuts `rect`, the client area, to what aligned children share: a border that the control draws in its client area
  /// stays free. Places in the client area are counted from its corner all the same.
  virtual void AdjustClientRect(QRect&) {}
  bool IsAligning() const { return FIsAligning; }
  /// The client area as it is now is the one that the anchored children were placed in: it is measured in another way,
  /// and they stay where they are.
  void RebaseAnchors();
  void BoundsUpdated() override;
  void SetZOrder(bool isTopmost) override;
  /// Sends a message to all children.
  void NotifyControls(quint32 msg);

  // The window.
  /// Makes the window; overrides call the inherited one and then finish it. Those of the children are made afterwards.
  virtual void CreateWnd();
  virtual void DestroyWnd();
  /// Makes the widget itself. `parent` may be null.
  virtual QWidget* CreateBody(QWidget* parent);
  void DestroyHandle();
  /// Makes the window anew, in the place where it was: in the parent, or in the layout that it was embedded in. In
  /// surroundings without a layout it gets the old parent widget and geometry.
  void RecreateWnd();
  /// Whether the window appears on the screen by itself when it has no parent, and not with what it is embedded in.
  virtual bool StandsAlone() const { return false; }
  /// Paints the window; what the widget shows by itself is painted by the inherited one. `clip` lies in the window.
  virtual void PaintWindow(const QRect& clip);
  /// Any event of Qt's that is not turned into a message; true when nothing is left to do.
  virtual bool WindowEvent(QEvent&) { return false; }
  void InvalidateRect(const QRect& clientRect);
  /// The places of the children with a window, and of those without one that paint every pixel of themselves, in the
  /// client area: nothing that is drawn there by the control itself will be seen.
  QRegion WindowsArea() const;
  QRegion OpaqueArea() const;
  /// The top left of the client area in the window.
  QPoint GetClientOrigin() const;
  /// Brings the children's windows to where the client area is now; to be called when its margins have changed.
  void PlaceChildWindows();
  QWidget* Window() const { return FWindow; }
  /// Shows a pointer other than Cursor for the time being.
  void ShowCursor(TCursor cursor);

  /// Whether the pointer, which the platform says has left the window, is over something that lies before it and lets
  /// the mouse through, as a hint does; the inherited one asks the children.
  virtual bool KeepsPointer() const;

  // Keys and focus.
  virtual void KeyDown(quint16& key, TShiftState shift) { OnKeyDown(this, key, shift); }
  virtual void KeyUp(quint16& key, TShiftState shift) { OnKeyUp(this, key, shift); }
  virtual void KeyPress(QChar& key) { OnKeyPress(this, key); }
  virtual void DoEnter() { OnEnter(this); }
  virtual void DoExit() { OnExit(this); }
  /// The control that counts as focused when this window has the keyboard: itself, or whom it works for.
  virtual TWinControl* FocusOwner() { return this; }
  /// A control in here has got the focus.
  virtual void ControlFocused(TWinControl*) {}
  /// Lets a parent see a key message before its control; true when the parent took it.
  virtual bool PreviewKey(TMessage&) { return false; }
  /// Whether a key that would otherwise move the focus is wanted here.
  virtual bool WantsKey(quint16 key);
  /// Text from an input method; false leaves it to the widget.
  virtual bool InputText(const QString& text);
  /// Turns of the wheel, in eighths of a degree; true when used. The inherited one asks the handlers of upright turns.
  /// After a handler the control may be gone; then the answer is true.
  virtual bool DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position);

  /// The keyboard goes to the first control in here that the Tab key comes to, or to the first that can have it.
  void SelectFirst();

  /// Whether a menu here or further out has the key as a short cut; clicks its item.
  virtual bool IsMenuKey(quint16 key, TShiftState shift);
  /// Whether an action of this form has the key as a short cut; does it.
  virtual bool IsActionKey(quint16, TShiftState) { return false; }

  void WMContextMenu(TMessage& message) override;
  virtual void CMCtl3DChanged(TMessage&);
  virtual void CMParentCtl3DChanged(TMessage&);
  virtual void CMEnter(TMessage&) { DoEnter(); }
  virtual void CMExit(TMessage&) { DoExit(); }
  virtual void CMShowingChanged(TMessage&) {}
  virtual void CMTabStopChanged(TMessage& message);
  /// Result 1: the control wants a key that would move the focus otherwise.
  virtual void CMWantSpecialKey(TMessage&) {}
  virtual void WMSetFocus(TMessage& message) { DefaultHandler(message); }
  virtual void WMKillFocus(TMessage& message) { DefaultHandler(message); }
  // NOLINTNEXTLINE(bugprone-virtual-near-miss): CM and WM are two messages
  virtual void WMCancelMode(TMessage& message) { DefaultHandler(message); }
  void CMFontChanged(TMessage& message) override;
  void CMColorChanged(TMessage& message) override;
  void CMBiDiModeChanged(TMessage& message) override;
  void CMParentBiDiModeChanged(TMessage& message) override;
  void CMShowHintChanged(TMessage& message) override;
  void CMVisibleChanged(TMessage& message) override;
  void CMEnabledChanged(TMessage& message) override;
  void CMCursorChanged(TMessage& message) override;
  /// Asks all controls in here, till one has taken it.
  void CMDialogChar(TMessage& message) override;

 private:
  /// Who has heard that the mouse has come: the window's control, a child, or nobody while a button is held elsewhere.
  enum TPointed { poWindow, poChild, poNobody };

  void CMDrag(TMessage& message);
  /// The child without a window at a place of the client area, or this one.
  TControl* ControlAt(QPoint point);
  // The children without a window.
  void PaintControls(const QRect& clip);
  TControl* ControlForMouse(const TMessage& message);
  void PointerCame(QPoint point);
  void PointerMoved(QPoint point, bool isButtonHeld);
  void PointerWent();
  TControl* PointedNow() const;
  void PointTo(TControl* control);
  void ShowPointedCursor();
  void ChildCursorChanged(const TControl& child);
  void WMSysChar(TMessage& message);
  TWinControl* FindFirst(bool tabStopsOnly) const;

  void AlignControl(TControl* control);
  void AlignAnchored(const QRect& rect);
  void AlignSide(TAlign align, QRect& rect);
  void UpdateTabOrder(int value);
  void FixupTabList();
  /// The order of the tabs, or who is among them, has changed.
  void TabsChanged();
  void BringTabsUpToDate();
  /// Has the topmost control do it.
  void TabsNeeded();
  void OrderTabs(QWidget*& last) const;
  void MakeWindows();
  void InitializeWindow();
  void UpdateFocusPolicy();
  void TakeWindowAlong();
  void RecreateEmbedded();
  void UpdateWindowBounds();
  QRect ClientInWindow() const;
  void UpdateWindowVisible();
  void WindowDestroyed();
  void WindowShown(bool isShown);
  void WindowMoved(const QRect& geometry);
  bool OfferToParents(quint16 key, Qt::KeyboardModifiers modifiers);
  bool OfferToForm(quint16 key, Qt::KeyboardModifiers modifiers);
  /// True when somebody took it.
  bool SendKey(quint32 msg, quint16 key, qintptr shift);
  void DispatchKey(TMessage& message);
  void DispatchDown(TMessage& message);

  TWindowFrame FFrame;
  /// The size that the form file names; empty for none.
  QPoint FDesignSize;
  QString FImeName;
  std::vector<TControl*> FControls;
  std::vector<TWinControl*> FTabList;
  QWidget* FWindow = nullptr;
  TControlBody* FBody = nullptr;
  /// The child or control itself that gets the mouse until all buttons are released.
  TObjectRef FPressed;
  TObjectRef FPointedChild;
  TPointed FPointed = poWindow;
  int FTabOrder = -1;
  TWheelSteps FWheel;
  int FAlignLevel = 0;
  TImeMode FImeMode = imDontCare;
  bool FTabStop = false;
  bool FIsAligning = false;
  bool FAlignNeeded = false;
  bool FShowing = false;
  /// BringTabsUpToDate() has something to do; kept by the topmost control.
  bool FAreTabsOld = false;
  /// The client area, in the window, that the children's windows were placed in.
  QRect FPlacedClient;
  /// The window is being told its place, or tells it.
  bool FIsMovingWindow = false;
  /// A key message came to DefaultHandler().
  bool FIsKeyLeft = false;
};

}  // namespace kt
