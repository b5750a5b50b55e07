#include "designer/surface/DesignClicks.h"

#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/TabSheet.h"

#include <QTabBar>

#include <map>

namespace designer {

using namespace kt;

namespace {

std::map<const TClassInfo*, TDesignClick>& Clicks() {
  static std::map<const TClassInfo*, TDesignClick> clicks;
  return clicks;
}

bool ClickTab(TWinControl& control, QPoint point) {
  QWidget* window = control.GetHandle();
  QWidget* clicked = window->childAt(point);
  auto* bar = dynamic_cast<QTabBar*>(clicked ? clicked : window);
  const int tab = bar ? bar->tabAt(bar->mapFrom(window, point)) : -1;
  if (tab < 0 || tab == bar->currentIndex()) return false;
  bar->setCurrentIndex(tab);
  return true;
}

/// The tabs of a page control are no widgets for the mouse while it is designed.
bool ClickPage(TWinControl& control, QPoint point) {
  auto& pages = dynamic_cast<TPageControl&>(control);
  TTabSheet* page = pages.FindPageOfTabAt(point.x(), point.y());
  if (!page || page == pages.GetActivePage()) return false;
  pages.SetActivePage(page);
  return true;
}

}  // namespace

void RegisterDesignClick(const TClassInfo* classInfo, TDesignClick click) { Clicks()[classInfo] = std::move(click); }

bool DesignClick(TWinControl& control, QPoint point) {
  for (const TClassInfo* info = control.ClassType(); info; info = info->ClassParent()) {
    const auto found = Clicks().find(info);
    if (found != Clicks().end() && found->second(control, point)) return true;
  }
  return false;
}

void RegisterOwnDesignClicks() {
  RegisterDesignClick(TWinControl::Class(), &ClickTab);
  RegisterDesignClick(TPageControl::Class(), &ClickPage);
}

}  // namespace designer
