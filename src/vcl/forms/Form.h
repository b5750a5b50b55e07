#pragma once

#include "kt/vcl/forms/FormTypes.h"
#include "kt/vcl/forms/ScrollingControl.h"

#include <memory>
#include <vector>

class QEventLoop;

namespace kt {

class TCustomActionList;
class TFormMenuBar;
class TIcon;
class TMainMenu;
class TMenuItem;

/// A window of its own with controls in it.
///
/// Its descendants are built from form files: ReadFormText() fills one from the text format; the form owns the
/// components that are read. Appears with Show() or ShowModal(), goes with Close(), which asks first.
class TCustomForm : public TScrollingWinControl {
 public:
  using Inherited = TScrollingWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TCustomForm() override;

  const QString& GetCaption() const { return GetText(); }
  void SetCaption(const QString& value) { SetText(value); }
  TFormBorderStyle GetBorderStyle() const { return FBorderStyle; }
  void SetBorderStyle(TFormBorderStyle value);
  /// A border that lets the user change the size brings AutoScroll along, and another one takes it away.
  void SetAutoScroll(bool value);
  bool IsAutoScrollStored() const;
  TBorderIcons GetBorderIcons() const { return FBorderIcons; }
  void SetBorderIcons(TBorderIcons value);
  TPosition GetPosition() const { return FPosition; }
  void SetPosition(TPosition value) { FPosition = value; }
  TWindowState GetWindowState() const { return FWindowState; }
  void SetWindowState(TWindowState value);
  /// Whether the form sees the keys of its controls first.
  bool IsKeyPreview() const { return FKeyPreview; }
  void SetKeyPreview(bool value) { FKeyPreview = value; }
  bool IsOldCreateOrder() const { return FOldCreateOrder; }
  void SetOldCreateOrder(bool value) { FOldCreateOrder = value; }
  int GetPixelsPerInch() const { return FPixelsPerInch; }
  void SetPixelsPerInch(int value) { FPixelsPerInch = value; }
  int GetTextHeight() const { return FTextHeight; }
  void SetTextHeight(int value) { FTextHeight = value; }

  // The window.
  TFormStyle GetFormStyle() const { return FFormStyle; }
  void SetFormStyle(TFormStyle value);
  /// Where there is none, the program's is shown. Setting copies.
  TIcon& GetIcon() { return *FIcon; }
  void SetIcon(TIcon* value);
  bool IsIconStored() const;
  /// Whether the window lets through what is below, as far as the value says: 255 nothing, 0 all.
  bool IsAlphaBlend() const { return FAlphaBlend; }
  void SetAlphaBlend(bool value);
  quint8 GetAlphaBlendValue() const { return FAlphaBlendValue; }
  void SetAlphaBlendValue(quint8 value);
  TDefaultMonitor GetDefaultMonitor() const { return FDefaultMonitor; }
  void SetDefaultMonitor(TDefaultMonitor value) { FDefaultMonitor = value; }

  // Kept for the forms that say them. Sizes are those of the form file, nothing can be docked, and what prints a form
  // is not the form. The menu items would be those of windows within a window; not owned.
  bool IsScaled() const { return FScaled; }
  void SetScaled(bool value) { FScaled = value; }
  TPrintScale GetPrintScale() const { return FPrintScale; }
  void SetPrintScale(TPrintScale value) { FPrintScale = value; }
  const QString& GetHelpFile() const { return FHelpFile; }
  void SetHelpFile(const QString& value) { FHelpFile = value; }
  bool IsTransparentColor() const { return FTransparentColor; }
  void SetTransparentColor(bool value) { FTransparentColor = value; }
  TColor GetTransparentColorValue() const { return FTransparentColorValue; }
  void SetTransparentColorValue(TColor value) { FTransparentColorValue = value; }
  bool IsDockSite() const { return FDockSite; }
  void SetDockSite(bool value) { FDockSite = value; }
  bool IsUseDockManager() const { return FUseDockManager; }
  void SetUseDockManager(bool value) { FUseDockManager = value; }
  bool IsScreenSnap() const { return FScreenSnap; }
  void SetScreenSnap(bool value) { FScreenSnap = value; }
  int GetSnapBuffer() const { return FSnapBuffer; }
  void SetSnapBuffer(int value) { FSnapBuffer = value; }
  TMenuItem* GetObjectMenuItem() const { return FObjectMenuItem; }
  void SetObjectMenuItem(TMenuItem* value);
  TMenuItem* GetWindowMenu() const { return FWindowMenu; }
  void SetWindowMenu(TMenuItem* value);

  /// The menu that is shown at the top, above the client area, and whose short cuts work on the form; the Height of the
  /// form is that of the whole. A dialog (bsDialog) shows none, nor does a menu without visible items show. The first
  /// main menu that a designer puts on a form without one becomes its menu. Not owned. Raises EInvalidOperation "Menu
  /// '%s' is already being used by another form".
  TMainMenu* GetMenu() const { return FMenu; }
  void SetMenu(TMainMenu* value);
  /// What a form file says holds for the form with its menu, which comes later.
  void SetClientHeight(int value);

  /// The control with the focus, or the one that gets it when the form is shown. Raises EInvalidOperation for one that
  /// is not on the form.
  TWinControl* GetActiveControl() const { return FActiveControl; }
  void SetActiveControl(TWinControl* value);
  bool IsActive() const;

  /// Setting it ends ShowModal() when control is back at the event queue, if it still holds then and the form lets
  /// itself be closed.
  TModalResult GetModalResult() const { return FModalResult; }
  void SetModalResult(TModalResult value);
  /// Shows the form, lets the user answer in it alone, hides it and answers ModalResult. Raises EInvalidOperation
  /// "Cannot make a visible window modal".
  TModalResult ShowModal();
  /// Asks CloseQuery(), then OnClose what to do; a modal form answers mrCancel.
  void Close();
  virtual bool CloseQuery();
  /// Frees the form when no code of it can be running any more.
  void Release() { PostMessage(CM_RELEASE); }

  void Dispatch(TMessage& message) override;

  TNotifyEvent OnActivate;
  TCloseEvent OnClose;
  TCloseQueryEvent OnCloseQuery;
  TNotifyEvent OnCreate;
  TNotifyEvent OnDeactivate;
  TNotifyEvent OnDestroy;
  TNotifyEvent OnHide;
  TNotifyEvent OnPaint;
  /// Before the menus and actions of the form are asked for a key.
  TShortCutEvent OnShortCut;
  TNotifyEvent OnShow;

 protected:
  friend class TFormMenuBar;

  explicit TCustomForm(TComponent* owner = nullptr);

  void Construct() override;
  void AfterConstruction() override;
  void BeforeDestruction() override;
  void Destruct() override;
  void Notification(TComponent* component, TOperation operation) override;
  void GetChildren(const TGetChildProc& proc, TComponent* root) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  QMargins GetClientMargins() const override;
  void BoundsUpdated() override;
  void CMBiDiModeChanged(TMessage& message) override;
  QWidget* CreateBody(QWidget* parent) override;
  bool WindowEvent(QEvent& event) override;
  bool StandsAlone() const override { return true; }
  void Paint() override { OnPaint(this); }
  void CMShowingChanged(TMessage& message) override;
  void CMTextChanged(TMessage& message) override;
  void CMVisibleChanged(TMessage& message) override;
  void Loaded() override;
  bool PreviewKey(TMessage& message) override;
  bool IsActionKey(quint16 key, TShiftState shift) override;
  void ControlFocused(TWinControl* control) override;
  virtual void DoClose(TCloseAction& action) { OnClose(this, action); }

 private:
  Qt::WindowFlags WindowFlags() const;
  void UpdateOpacity();
  void UpdateIcon();
  QRect AreaToCenterIn() const;
  void UpdateWindowFlags();
  void CloseModal();
  void PlaceWindow();
  bool ShowsMenu() const;
  /// Has the menu bar keep up with the menu, and the client area with the menu bar.
  void UpdateMenuBar() { UpdateMenuBar(GetClientMargins().top()); }
  /// `before`: the margin above the client area that the children stand below.
  void UpdateMenuBar(int before);
  void BecomeActive();
  void FocusActiveControl();

  TFormBorderStyle FBorderStyle = bsSizeable;
  TBorderIcons FBorderIcons = {biSystemMenu, biMinimize, biMaximize};
  TPosition FPosition = poDefaultPosOnly;
  TWindowState FWindowState = wsNormal;
  TWinControl* FActiveControl = nullptr;
  /// The lists of actions that the form owns.
  std::vector<TCustomActionList*> FActionLists;
  TMainMenu* FMenu = nullptr;
  TMenuItem* FObjectMenuItem = nullptr;
  TMenuItem* FWindowMenu = nullptr;
  std::unique_ptr<TIcon> FIcon;
  QString FHelpFile;
  /// As long as a menu is to be shown.
  std::unique_ptr<TFormMenuBar> FMenuBar;
  /// What the form file says of ClientHeight, while it is being loaded; -1 for nothing.
  int FLoadedClientHeight = -1;
  QEventLoop* FModalLoop = nullptr;
  TModalResult FModalResult = mrNone;
  int FPixelsPerInch = 96;
  int FTextHeight = 0;
  int FSnapBuffer = 10;
  TColor FTransparentColorValue = clBlack;
  TFormStyle FFormStyle = fsNormal;
  TDefaultMonitor FDefaultMonitor = dmActiveForm;
  TPrintScale FPrintScale = poProportional;
  quint8 FAlphaBlendValue = 255;
  bool FAlphaBlend = false;
  bool FKeyPreview = false;
  bool FOldCreateOrder = false;
  bool FScaled = true;
  bool FTransparentColor = false;
  bool FDockSite = false;
  bool FUseDockManager = false;
  bool FScreenSnap = false;
  /// The form that is being loaded says itself whether it scrolls.
  bool FIsAutoScrollLoaded = false;
};

/// A form as applications describe it: publishes what TCustomForm has.
class TForm : public TCustomForm {
 public:
  using Inherited = TCustomForm;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TForm(TComponent* owner = nullptr) : TCustomForm(owner) {}
};

/// The form that a control is on, or null.
TCustomForm* GetParentForm(TControl* control);

/// Fills a form from a form file in the text format. Raises what reading raises; see TReader.
void ReadFormText(TCustomForm& form, const QByteArray& text);

}  // namespace kt
