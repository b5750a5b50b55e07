#pragma once

#include "kt/vcl/controls/WinControl.h"

namespace kt {

class TPageControl;

/// A page of a page control, which is its parent: controls lie on it. Visible while it is the active page.
class TTabSheet : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Null for a page outside any.
  TPageControl* GetPageControl() const;
  void SetPageControl(TPageControl* value);
  /// The text of the tab; the letter behind "&" chooses it together with Alt.
  const QString& GetCaption() const { return GetText(); }
  void SetCaption(const QString& value) { SetText(value); }
  /// The place among the pages, -1 outside any. Setting raises EListError "%d is an invalid PageIndex value. PageIndex
  /// must be between 0 and %d"; nothing happens outside any.
  int GetPageIndex() const;
  void SetPageIndex(int value);
  /// The place among the pages that have a tab; -1 for one that has none.
  int GetTabIndex() const;
  /// Whether the page has a tab. The active page without one gives way to a neighbour.
  bool IsTabVisible() const { return FTabVisible; }
  void SetTabVisible(bool value);
  /// The number of the tab's picture in the Images of the page control.
  int GetImageIndex() const { return FImageIndex; }
  void SetImageIndex(int value);
  /// Whether the text of the tab stands out.
  bool IsHighlighted() const { return FHighlighted; }
  void SetHighlighted(bool value);

  /// Another page takes its place on the screen, or it has appeared there; not when the form disappears and comes back,
  /// and not in a designer.
  TNotifyEvent OnHide;
  TNotifyEvent OnShow;

 protected:
  explicit TTabSheet(TComponent* owner = nullptr) : TWinControl(owner) {}

  void Construct() override;
  void CMShowingChanged(TMessage& message) override;
  void CMVisibleChanged(TMessage& message) override;
  void CMTextChanged(TMessage& message) override;

 private:
  friend class TPageControl;

  void TabChanged();
  void UpdateShown();

  int FImageIndex = 0;
  bool FHighlighted = false;
  /// Whether it has appeared and not been replaced since.
  bool FIsShown = false;
  bool FTabVisible = true;
};

}  // namespace kt
