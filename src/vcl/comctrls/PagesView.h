#pragma once

#include <QPointer>
#include <QTabBar>
#include <QWidget>

#include <functional>

class QStyleOptionTabWidgetFrame;

namespace kt {

/// Tabs of Qt's beside the frame of the page below, which is somebody else's widget. Mouse and keys come to this widget
/// and go on to the tabs from here, so that its control hears of them first.
class TPagesView : public QWidget {
 public:
  explicit TPagesView(QWidget* parent);

  /// The tabs; whoever changes them calls TabsChanged() then.
  QTabBar& Tabs();
  void TabsChanged();
  /// The size of each tab, where it is not 0.
  void SetTabSize(QSize size);
  /// Whether the tab below the mouse stands out.
  void SetHotTrack(bool value) { FHotTrack = value; }
  /// As buttons, without a frame around the page; flat ones have no border but for the present tab.
  void SetButtons(bool areButtons, bool areFlat);
  /// The room of the page.
  QRect ContentsRect() const;
  int TabAt(QPoint point) const;

  /// The user has chosen another tab.
  std::function<void(int tab)> OnChosen;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  class TTabs;

  void InitOption(QStyleOptionTabWidgetFrame& option) const;
  void PlaceTabs();
  void Forward(QWidget& target, QMouseEvent& event);

  TTabs* FTabs;
  /// What has got the press of the button that is held.
  QPointer<QWidget> FPressed;
  bool FHotTrack = false;
  bool FAreButtons = false;
};

}  // namespace kt
