// The window of TPageControl.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/PagesView.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/graphics/LegibleColor.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/graphics/RealFont.h"
#include "kt/vcl/imagelist/ImageList.h"
#include "kt/vcl/stdctrls/WindowColors.h"

#include <QPixmap>

#include <utility>

namespace kt {

namespace {

/// What a page leaves to the frame, and to the tabs, as long as no window says it better.
constexpr int kPageFrame = 4;
constexpr int kPageTabs = 24;

QTabBar::Shape ShapeOf(TTabPosition position) {
  switch (position) {
    case tpBottom:
      return QTabBar::RoundedSouth;
    case tpLeft:
      return QTabBar::RoundedWest;
    case tpRight:
      return QTabBar::RoundedEast;
    default:
      return QTabBar::RoundedNorth;
  }
}

}  // namespace

TPagesView* TPageControl::View() const { return static_cast<TPagesView*>(Window()); }

QWidget* TPageControl::CreateBody(QWidget* parent) {
  auto* view = new TBodyOf<TPagesView>(this, parent);
  view->OnChosen = [view](int tab) {
    // Also without an event of the view, for Alt with a letter.
    const TControlBody::TInEvent running;
    auto* self = static_cast<TPageControl*>(view->Control());
    if (self && !self->FIsUpdatingTabs) GuardedCall([&] { self->Choose(self->FindPageOfTab(tab)); });
  };
  return view;
}

void TPageControl::CreateWnd() {
  TWinControl::CreateWnd();
  UpdateLook();
  TabsChanged();
}

// Places.

QRect TPageControl::GetDisplayRect() const {
  if (View() && !HasState(csLoading)) return View()->ContentsRect();
  const int tabs = GetTabCount() > 0 ? kPageTabs : kPageFrame;
  return GetClientRect().adjusted(FTabPosition == tpLeft ? tabs : kPageFrame, FTabPosition == tpTop ? tabs : kPageFrame,
                                  FTabPosition == tpRight ? -tabs : -kPageFrame,
                                  FTabPosition == tpBottom ? -tabs : -kPageFrame);
}

void TPageControl::AlignControls(QRect& rect) {
  rect = GetDisplayRect();
  // Those that do not show as well, so that what is anchored on them knows where it is.
  const TLifeWatch self(this);
  const bool isMeasured = View() && !HasState(csLoading);
  const bool isMeasuredAnew = std::exchange(FIsMeasured, isMeasured) != isMeasured;
  for (size_t i = 0; self.IsAlive() && i < FPages.size(); ++i) {
    if (FPages[i]->GetAlign() == alClient) PlacePage(*FPages[i], rect, isMeasuredAnew);
  }
  if (self.IsAlive()) TWinControl::AlignControls(rect);
}

/// The room on a page is known for certain with the window only. That it differs by some pixels from what was expected
/// must not move what stands on the page: it would not be where its form says.
void TPageControl::PlacePage(TTabSheet& page, const QRect& rect, bool isMeasuredAnew) {
  const TLifeWatch life(&page);
  if (isMeasuredAnew) page.DisableAlign();
  page.SetBounds(rect.x(), rect.y(), qMax(rect.width(), 0), qMax(rect.height(), 0));
  if (!isMeasuredAnew || !life.IsAlive()) return;
  page.RebaseAnchors();
  page.EnableAlign();
}

int TPageControl::IndexOfTabAt(int x, int y) const { return View() ? View()->TabAt({x, y}) : -1; }

QRect TPageControl::TabRect(int tab) const {
  if (!View()) return {};
  QTabBar& tabs = View()->Tabs();
  return tabs.tabRect(tab).translated(tabs.pos());
}

// Tabs.

void TPageControl::TabsChanged() {
  if (HasState(csDestroying) || HasState(csLoading)) return;
  const TLifeWatch self(this);
  UpdateActivePage();
  if (!self.IsAlive()) return;
  UpdateTabs();
  Realign();
}

void TPageControl::ShowTab(int tab, const TTabSheet& page) {
  QTabBar& tabs = View()->Tabs();
  tabs.setTabText(tab, page.GetCaption());
  tabs.setTabEnabled(tab, page.IsEnabled() || HasState(csDesigning));
  const QPalette& palette = tabs.palette();
  tabs.setTabTextColor(tab, page.IsHighlighted() ? QtColor(LegibleColor(ColorOf(palette.color(QPalette::Highlight)),
                                                                        palette.color(QPalette::Window)))
                                                 : QColor());
  int imageIndex = page.GetImageIndex();
  const TLifeWatch self(this);
  if (!HasState(csDesigning)) OnGetImageIndex(this, tab, imageIndex);
  if (!self.IsAlive() || !View() || tab >= View()->Tabs().count()) return;
  const QImage image = GetImages() ? GetImages()->GetImage(imageIndex) : QImage();
  View()->Tabs().setTabIcon(tab, image.isNull() ? QIcon() : QIcon(QPixmap::fromImage(image)));
}

void TPageControl::UpdateTabs() {
  TPagesView* view = View();
  if (!view) return;
  const TLiveFlag updating(this, FIsUpdatingTabs);
  QTabBar& tabs = view->Tabs();
  if (GetImages()) tabs.setIconSize({GetImages()->GetWidth(), GetImages()->GetHeight()});
  const int count = GetTabCount();
  while (tabs.count() > count) tabs.removeTab(tabs.count() - 1);
  while (tabs.count() < count) tabs.addTab(QString());
  const TLifeWatch self(this);
  for (int i = 0; self.IsAlive() && View() && i < GetTabCount(); ++i) ShowTab(i, *FindPageOfTab(i));
  if (!self.IsAlive() || !View()) return;
  View()->Tabs().setCurrentIndex(GetTabIndex());
  View()->TabsChanged();
}

void TPageControl::ShowActiveTab() {
  if (!View()) return;
  const TLiveFlag updating(this, FIsUpdatingTabs);
  View()->Tabs().setCurrentIndex(GetTabIndex());
  View()->update();
}

// Looks.

void TPageControl::UpdateLook() {
  TPagesView* view = View();
  if (!view) return;
  const bool outer = std::exchange(FIsUpdatingLook, true);
  QTabBar& tabs = view->Tabs();
  tabs.setFont(QtFont(GetFont()));
  tabs.setLayoutDirection(UseRightToLeftAlignment() ? Qt::RightToLeft : Qt::LeftToRight);
  tabs.setShape(ShapeOf(FTabPosition));
  view->SetTabSize({FTabWidth, FTabHeight});
  view->SetHotTrack(FHotTrack);
  view->SetButtons(FStyle != tsTabs, FStyle == tsFlatButtons);
  QPalette palette;
  const QPalette around = PaletteAround(*view);
  const TColor color = GetFont().GetColor();
  if (!IsSystemColor(color)) {
    const QColor text = QtColor(LegibleColor(color, around.color(QPalette::Window)), around);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::ButtonText, text);
  }
  tabs.setPalette(palette);
  view->TabsChanged();
  FIsUpdatingLook = outer;
}

bool TPageControl::WindowEvent(QEvent& event) {
  const bool isOther = event.type() == QEvent::PaletteChange || event.type() == QEvent::StyleChange;
  if (isOther && !FIsUpdatingLook && HandleAllocated()) {
    UpdateLook();
    TabsChanged();
  }
  return TWinControl::WindowEvent(event);
}

void TPageControl::CMFontChanged(TMessage& message) {
  const TLifeWatch self(this);
  TWinControl::CMFontChanged(message);
  if (!self.IsAlive()) return;
  UpdateLook();
  Realign();
}

void TPageControl::CMBiDiModeChanged(TMessage& message) {
  const TLifeWatch self(this);
  TWinControl::CMBiDiModeChanged(message);
  if (!self.IsAlive()) return;
  UpdateLook();
  Realign();
}

void TPageControl::SetHotTrack(bool value) {
  FHotTrack = value;
  UpdateLook();
}

void TPageControl::SetImages(TCustomImageList* value) {
  if (GetImages() == value) return;
  FollowImages(FImages, value, TNotifyEvent([this](TObject*) { TabsChanged(); }));
  TabsChanged();
}

void TPageControl::SetStyle(TTabStyle value) {
  if (FStyle == value) return;
  FStyle = value;
  UpdateLook();
  Realign();
}

void TPageControl::SetTabHeight(int value) {
  if (FTabHeight == value) return;
  FTabHeight = value;
  UpdateLook();
  Realign();
}

void TPageControl::SetTabWidth(int value) {
  if (FTabWidth == value) return;
  FTabWidth = value;
  UpdateLook();
  Realign();
}

void TPageControl::SetTabPosition(TTabPosition value) {
  if (FTabPosition == value) return;
  FTabPosition = value;
  UpdateLook();
  Realign();
}

void TPageControl::DefaultHandler(TMessage& message) {
  TWinControl::DefaultHandler(message);
  const bool isMouse = message.Msg >= WM_MOUSEMOVE && message.Msg <= WM_MBUTTONDBLCLK;
  const bool isKey = message.Msg == WM_KEYDOWN || message.Msg == WM_KEYUP;
  if ((isMouse || isKey) && View()) TControlBody::Of(View())->RunInherited();
}

}  // namespace kt
