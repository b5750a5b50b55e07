#pragma once

#include "kt/vcl/stdctrls/FloatingListBox.h"

#include <QString>

#include <chrono>

namespace kt {

class TKTInplaceEditList;

/// The list that an in-place editor drops down. The keyboard stays in the editor, which hands its keys on: characters
/// search for the first line that begins with all that was typed without a pause.
class TKTDropDownList : public TFloatingListBox {
 public:
  using Inherited = TFloatingListBox;
  using TClock = std::chrono::steady_clock;
  /// The most characters that are searched for.
  static constexpr int MaxSearchLength = 32;
  /// A pause that long has the search start anew.
  static constexpr std::chrono::milliseconds SearchPause{2000};

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Takes the search along: the next time the list opens, another one begins.
  void Close() override;
  /// What pauses are measured with.
  void SetClock(TClock::time_point (*now)()) { FNow = now; }

 protected:
  friend class TKTInplaceEditList;

  explicit TKTDropDownList(TKTInplaceEditList* editor);

  void Construct() override;
  void KeyPress(QChar& key) override;
  void MouseUp(TMouseButton button, TShiftState shift, int x, int y) override;
  void LoseHold() override;

 private:
  TKTInplaceEditList& FEditor;
  QString FSearchText;
  TClock::time_point (*FNow)() = &TClock::now;
  TClock::time_point FLastKey;
};

}  // namespace kt
