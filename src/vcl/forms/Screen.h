#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/vcl/graphics/Cursor.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace kt {

class TCustomForm;
class TWinControl;

/// What the program has on the screen: its forms, the focus, the fonts that can be had.
class TScreen : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// The form that is active, or null.
  TCustomForm* GetActiveForm() const { return FActiveForm; }
  /// The control that has the focus, or null.
  TWinControl* GetActiveControl() const;
  int GetFormCount() const { return static_cast<int>(FForms.size()); }
  /// In the order they were made. Raises EListError.
  TCustomForm* GetForms(int index) const;
  /// A pointer shape for the whole program; crDefault leaves each control its own.
  TCursor GetCursor() const { return FCursor; }
  void SetCursor(TCursor value);
  /// The names of all fonts, by the alphabet. Needs a QGuiApplication.
  QStringList GetFonts() const;
  /// The first screen's size in pixels. Needs a QGuiApplication.
  int GetWidth() const;
  int GetHeight() const;

 protected:
  friend class TCustomForm;
  friend class TDragSession;
  friend TScreen& Screen();

  TScreen() = default;

 private:
  void AddForm(TCustomForm* form) { FForms.push_back(form); }
  void RemoveForm(TCustomForm* form);
  void SetActiveForm(TCustomForm* form) { FActiveForm = form; }
  /// While something is dragged there is one pointer everywhere.
  void ShowDragCursor(TCursor value);
  void HideDragCursor();
  void UpdateCursor();

  std::vector<TCustomForm*> FForms;
  TCustomForm* FActiveForm = nullptr;
  TCursor FCursor = crDefault;
  std::optional<TCursor> FDragCursor;
  /// Qt has one from here.
  bool FIsCursorSet = false;
};

/// The program's one.
TScreen& Screen();

}  // namespace kt
