#pragma once

#include "kt/vcl/controls/CustomControl.h"
#include "kt/vcl/forms/FormTypes.h"

#include <memory>
#include <vector>

class QEventLoop;

namespace kt {

class TCustomActionList;
class TFormMenuBar;
class TMainMenu;

/// A window of its own with controls in it.
///
/// Its descendants are built from form files: ReadFormText() fills one from the text format; the form owns the
/// components that are read. Appears with Show() or ShowModal(), goes with Close(), which asks first.
class TCustomForm : public TCustomControl {
 public:
  using Inherited = TCustomControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TCustomForm() override;

  const QString& GetCaption() const { return GetText(); }
  void SetCaption(const QString& value) { SetText(value); }
  TFormBorderStyle GetBorderStyle() const { return FBorderStyle; }
  void SetBorderStyle(TFormBorderStyle value);
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
  /// As long as a menu is to be shown.
  std::unique_ptr<TFormMenuBar> FMenuBar;
  /// What the form file says of ClientHeight, while it is being loaded; -1 for nothing.
  int FLoadedClientHeight = -1;
  QEventLoop* FModalLoop = nullptr;
  TModalResult FModalResult = mrNone;
  int FPixelsPerInch = 96;
  int FTextHeight = 0;
  bool FKeyPreview = false;
  bool FOldCreateOrder = false;
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
