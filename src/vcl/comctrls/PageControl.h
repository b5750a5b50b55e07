#pragma once

#include "kt/vcl/comctrls/TabTypes.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/imagelist/ChangeLink.h"

#include <memory>
#include <vector>

namespace kt {

class TCustomImageList;
class TPagesView;
class TTabSheet;

/// Pages one upon the other, with tabs to choose among them. Its children are the pages (TTabSheet); the tabs are Qt's.
///
/// Events come for what the user does, by mouse, arrow keys, Ctrl+Tab and Alt with a letter; not for what the program
/// sets, and not in a designer, where tabs still change the page.
class TPageControl : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  // Pages.
  int GetPageCount() const { return static_cast<int>(FPages.size()); }
  /// Raises EListError.
  TTabSheet* GetPages(int index) const;
  /// -1 for a page of somebody else's.
  int IndexOfPage(const TTabSheet* page) const;
  /// The page that is to be seen; the first one with a tab until another one is set. Pages of somebody else's are not
  /// taken.
  TTabSheet* GetActivePage() const { return FActivePage; }
  void SetActivePage(TTabSheet* value);
  int GetActivePageIndex() const { return IndexOfPage(FActivePage); }
  /// None for an index outside.
  void SetActivePageIndex(int value);
  /// The page behind or before `page`, round and round; null when there is none. `checkTabVisible`: with a tab.
  TTabSheet* FindNextPage(TTabSheet* page, bool forward, bool checkTabVisible) const;
  /// As the user does it.
  void SelectNextPage(bool forward, bool checkTabVisible = true);

  // Tabs: those of the pages that have one.
  int GetTabCount() const;
  TTabSheet* FindPageOfTab(int tab) const;
  /// The tab of the active page, or -1.
  int GetTabIndex() const { return TabOfPage(FActivePage); }
  void SetTabIndex(int value);
  /// The tab at a point of the control, -1 for none and as long as there is no window.
  int IndexOfTabAt(int x, int y) const;
  /// The page whose tab is there, or null; for designers, which show a page when its tab is clicked. The message
  /// CM_DESIGNHITTEST answers whether it is another one than the active page.
  TTabSheet* FindPageOfTabAt(int x, int y) const { return FindPageOfTab(IndexOfTabAt(x, y)); }
  /// Where a tab is in the control; empty for none, and as long as there is no window.
  QRect TabRect(int tab) const;
  /// The room of the pages. Without a window an estimate.
  QRect GetDisplayRect() const;

  // Looks.
  bool IsHotTrack() const { return FHotTrack; }
  void SetHotTrack(bool value);
  TCustomImageList* GetImages() const { return ImagesOf(FImages); }
  void SetImages(TCustomImageList* value);
  /// Kept for the forms that say them: tabs stand in one line, with arrows when there are too many.
  bool IsMultiLine() const { return FMultiLine; }
  void SetMultiLine(bool value) { FMultiLine = value; }
  bool IsRaggedRight() const { return FRaggedRight; }
  void SetRaggedRight(bool value) { FRaggedRight = value; }
  bool IsScrollOpposite() const { return FScrollOpposite; }
  void SetScrollOpposite(bool value) { FScrollOpposite = value; }
  TTabStyle GetStyle() const { return FStyle; }
  void SetStyle(TTabStyle value);
  /// The size of all tabs; 0 for what their texts need.
  int GetTabHeight() const { return FTabHeight; }
  void SetTabHeight(int value);
  int GetTabWidth() const { return FTabWidth; }
  void SetTabWidth(int value);
  TTabPosition GetTabPosition() const { return FTabPosition; }
  void SetTabPosition(TTabPosition value);

  void Dispatch(TMessage& message) override;
  void DefaultHandler(TMessage& message) override;

  /// Another page is to be seen.
  TNotifyEvent OnChange;
  TTabChangingEvent OnChanging;
  TTabGetImageEvent OnGetImageIndex;

 protected:
  friend class TTabSheet;

  explicit TPageControl(TComponent* owner = nullptr) : TWinControl(owner) {}

  void Construct() override;
  void Destruct() override;
  void Loaded() override;
  void GetChildren(const TGetChildProc& proc, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;
  void AlignControls(QRect& rect) override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  bool WindowEvent(QEvent& event) override;
  void CMFontChanged(TMessage& message) override;
  void CMBiDiModeChanged(TMessage& message) override;
  /// Whether the present page may be left.
  virtual bool CanChange();
  virtual void Change();

 private:
  /// Null without a window.
  TPagesView* View() const;
  void InsertPage(TTabSheet* page);
  void RemovePage(TTabSheet* page);
  void MovePage(TTabSheet* page, int index);
  int TabOfPage(const TTabSheet* page) const;
  /// What tabs there are, or what they show.
  void TabsChanged();
  /// Has the first page with a tab be the active one, when none is.
  void UpdateActivePage();
  /// A page has no tab any more.
  void TabOfPageGoes(TTabSheet* page);
  void UpdateLook();
  void UpdateTabs();
  void ShowTab(int tab, const TTabSheet& page);
  void ShowActiveTab();
  void PlacePage(TTabSheet& page, const QRect& rect, bool isMeasuredAnew);
  void LeaveFocusTo(TTabSheet* page);
  void Choose(TTabSheet* page);

  std::vector<TTabSheet*> FPages;
  TTabSheet* FActivePage = nullptr;
  std::unique_ptr<TChangeLink> FImages;
  /// Whether the pages lie where the window says, and not where a window is expected to.
  bool FIsMeasured = false;
  int FTabHeight = 0;
  int FTabWidth = 0;
  TTabPosition FTabPosition = tpTop;
  TTabStyle FStyle = tsTabs;
  bool FHotTrack = false;
  bool FMultiLine = false;
  bool FRaggedRight = false;
  bool FScrollOpposite = false;
  bool FIsUpdatingTabs = false;
  bool FIsUpdatingLook = false;
};

}  // namespace kt
