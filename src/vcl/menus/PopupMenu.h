#pragma once

#include "kt/rtl/typeinfo/TypeOf.h"
#include "kt/vcl/menus/Menu.h"

#include <QPoint>
#include <QPointer>

class QMenu;

namespace kt {

/// Which part of a pop-up menu stands at the point that it is opened for.
enum TPopupAlignment { paLeft, paRight, paCenter };

template <>
struct TEnumNames<TPopupAlignment> {
  static constexpr char Name[] = "TPopupAlignment";
  static constexpr const char* Values[] = {"paLeft", "paRight", "paCenter"};
};

/// The menu of a control, opened with the right mouse button or the menu key. The menu on the screen is Qt's; it is
/// made from the items each time that it opens, and does not follow changes while it is open.
class TPopupMenu : public TMenu {
 public:
  using Inherited = TMenu;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TPopupAlignment GetAlignment() const { return FAlignment; }
  void SetAlignment(TPopupAlignment value) { FAlignment = value; }
  /// Whether controls open it by themselves.
  bool IsAutoPopup() const { return FAutoPopup; }
  void SetAutoPopup(bool value) { FAutoPopup = value; }
  int GetHelpContext() const { return FItemsHelpContext; }
  void SetHelpContext(int value) { FItemsHelpContext = value; }
  TMenuAnimation GetMenuAnimation() const { return FMenuAnimation; }
  void SetMenuAnimation(TMenuAnimation value) { FMenuAnimation = value; }
  TTrackButton GetTrackButton() const { return FTrackButton; }
  void SetTrackButton(TTrackButton value) { FTrackButton = value; }
  /// What it was opened for; null when nobody said so.
  TComponent* GetPopupComponent() const { return FPopupComponent; }
  void SetPopupComponent(TComponent* value);
  /// Where it was opened last, on the screen; (-1, -1) before.
  QPoint GetPopupPoint() const { return FPopupPoint; }

  /// Raises OnPopup, lets the user choose, and clicks what was chosen. Returns when that is done. Needs a QApplication.
  virtual void Popup(int x, int y);
  /// Takes the menu from the screen; nothing is chosen.
  void CloseMenu();

  /// Before the menu opens; the handler may change its items.
  TNotifyEvent OnPopup;

 protected:
  explicit TPopupMenu(TComponent* owner = nullptr) : TMenu(owner) {}

  void Destruct() override;
  void Notification(TComponent* component, TOperation operation) override;

 private:
  /// The item that was chosen, or null.
  TMenuItem* Choose();
  bool IsRightToLeft() const;
  QPoint PlaceOf(const QMenu& menu) const;

  QPointer<QMenu> FMenu;
  TComponent* FPopupComponent = nullptr;
  QPoint FPopupPoint{-1, -1};
  int FItemsHelpContext = 0;
  TPopupAlignment FAlignment = paLeft;
  TMenuAnimation FMenuAnimation;
  TTrackButton FTrackButton = tbRightButton;
  bool FAutoPopup = true;
};

}  // namespace kt
