#pragma once

#include "kt/vcl/stdctrls/ListBox.h"

#include <QRect>

#include <memory>

namespace kt {

/// A list box in a window of its own that opens next to a control and lies above everything else. It takes neither the
/// keyboard nor the activation from the window that it opens for. The screen that the control is on holds all of it.
class TFloatingListBox : public TCustomListBox {
 public:
  using Inherited = TCustomListBox;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TFloatingListBox() override;

  bool IsOpen() const { return FIsOpen; }
  /// Opens in its present size below the control or, where that passes the end of the screen and there is more room
  /// above, above it. A size that the screen does not have is cut.
  void Open();
  virtual void Close();
  /// Where on the screen something of a size opens beside a control that has a window: below it, and above only when
  /// there is too little room below and more above. Within the area of the screen that windows may take.
  static QRect PlaceBeside(TWinControl& anchor, QSize size);

 protected:
  /// `anchor` is the control that the list opens for; it has to live as long.
  explicit TFloatingListBox(TComponent* owner, TWinControl& anchor);

  void Construct() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void CMShowingChanged(TMessage& message) override;

  /// Something happened that an open list does not survive: the mouse was pressed elsewhere, or the window of the
  /// control was moved or left. Closes.
  virtual void LoseHold() { Close(); }

 private:
  class TWatch;

  bool IsInside(const QWidget& widget) const;

  TWinControl& FAnchor;
  std::unique_ptr<TWatch> FWatch;
  bool FIsOpen = false;
};

}  // namespace kt
