#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/vcl/graphics/Font.h"

#include <QPoint>
#include <QPointer>
#include <QString>

#include <memory>

class QTimer;

namespace kt {

class THintLabel;

/// A small window above all others that shows a text, and takes neither the keyboard nor the mouse: a press on it is
/// one on the control that owns it, at the place beneath.
///
/// Its size follows the text; lines end at the breaks of the text and where the screen would. A control that owns it
/// should hide it when what it tells of is gone. Needs a QApplication while it shows.
class TKTHintWindow : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TKTHintWindow() override;

  /// Milliseconds from ActivateHint() until the window shows; 0 for at once.
  int GetInterval() const { return FInterval; }
  void SetInterval(int value) { FInterval = value; }
  /// What the text is written in.
  TFont& GetFont() { return *FFont; }
  void SetFont(TFont& value) { FFont->Assign(&value); }

  /// Shows `text`, plain, with the window's top left at a point of the screen, or nearest to it where the whole window
  /// is on that screen.
  void ActivateHint(QPoint screenPoint, const QString& text);
  /// Nothing happens when the window does not show.
  void HideHint();
  bool IsShown() const;
  /// Whether the pointer is over it while beneath is the control that owns it: then it has not left that control,
  /// whatever the platform thinks.
  bool IsUnderPointer() const;
  /// What it shows, or has shown last.
  const QString& GetText() const { return FText; }

 protected:
  explicit TKTHintWindow(TComponent* owner = nullptr);

  void Construct() override;
  void Destruct() override;

 private:
  void ShowText();
  THintLabel& Label();

  QString FText;
  QPoint FPoint;
  std::unique_ptr<TFont> FFont;
  /// Belongs to the owner's window, if that has one, and goes with it.
  QPointer<THintLabel> FLabel;
  std::unique_ptr<QTimer> FTimer;
  int FInterval = 0;
};

}  // namespace kt
