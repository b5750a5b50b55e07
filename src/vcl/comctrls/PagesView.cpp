#include "kt/vcl/comctrls/PagesView.h"

#include <QCoreApplication>
#include <QHoverEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionTabWidgetFrame>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace kt {

namespace {

/// How much darker than the window the button of the present page is, in percent.
constexpr int kPressed = 130;

}  // namespace

/// The tabs themselves. They have neither mouse nor focus of their own.
class TPagesView::TTabs : public QTabBar {
 public:
  explicit TTabs(QWidget* parent) : QTabBar(parent) {
    setDrawBase(false);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoMousePropagation);
  }

  using QTabBar::keyPressEvent;

  QSize Size;
  bool AreButtons = false;
  bool AreFlat = false;

 protected:
  QSize tabSizeHint(int index) const override {
    const QSize hint = QTabBar::tabSizeHint(index);
    return {Size.width() > 0 ? Size.width() : hint.width(), Size.height() > 0 ? Size.height() : hint.height()};
  }

  void initStyleOption(QStyleOptionTab* option, int index) const override {
    QTabBar::initStyleOption(option, index);
    const bool hasKeyboard = parentWidget()->hasFocus() && index == currentIndex();
    if (hasKeyboard) option->state |= QStyle::State_HasFocus;
  }

  void paintEvent(QPaintEvent* event) override {
    if (!AreButtons) return QTabBar::paintEvent(event);
    QStylePainter painter(this);
    for (int i = 0; i < count(); ++i) PaintButton(painter, i);
  }

 private:
  void PaintButton(QStylePainter& painter, int index) {
    QStyleOptionTab tab;
    initStyleOption(&tab, index);
    QStyleOptionToolButton button;
    static_cast<QStyleOption&>(button) = tab;
    button.type = QStyleOption::SO_ToolButton;
    button.subControls = QStyle::SC_ToolButton;
    button.text = tab.text;
    button.icon = tab.icon;
    button.iconSize = tab.iconSize;
    button.font = font();
    button.toolButtonStyle = tab.icon.isNull() ? Qt::ToolButtonTextOnly : Qt::ToolButtonTextBesideIcon;
    if (tabTextColor(index).isValid()) button.palette.setColor(QPalette::ButtonText, tabTextColor(index));
    const bool isCurrent = index == currentIndex();
    // Some styles show hardly a difference between dark buttons.
    if (isCurrent) button.palette.setColor(QPalette::Button, palette().color(QPalette::Window).darker(kPressed));
    button.state.setFlag(QStyle::State_Selected, false);
    button.state.setFlag(QStyle::State_On, isCurrent);
    button.state.setFlag(QStyle::State_Sunken, isCurrent);
    button.state.setFlag(QStyle::State_Raised, !AreFlat && !isCurrent);
    button.state.setFlag(QStyle::State_AutoRaise, AreFlat);
    painter.drawComplexControl(QStyle::CC_ToolButton, button);
  }
};

TPagesView::TPagesView(QWidget* parent) : QWidget(parent), FTabs(new TTabs(this)) {
  QObject::connect(FTabs, &QTabBar::currentChanged, this, [this](int tab) {
    if (OnChosen) OnChosen(tab);
  });
}

QTabBar& TPagesView::Tabs() { return *FTabs; }

void TPagesView::SetTabSize(QSize size) {
  FTabs->Size = size;
  // Has it measure its tabs anew.
  FTabs->setIconSize(FTabs->iconSize());
}

void TPagesView::SetButtons(bool areButtons, bool areFlat) {
  FAreButtons = areButtons;
  FTabs->AreButtons = areButtons;
  FTabs->AreFlat = areFlat;
  FTabs->update();
}

void TPagesView::TabsChanged() {
  FTabs->setVisible(FTabs->count() > 0);
  PlaceTabs();
  update();
}

int TPagesView::TabAt(QPoint point) const { return FTabs->tabAt(FTabs->mapFrom(this, point)); }

// Places.

void TPagesView::InitOption(QStyleOptionTabWidgetFrame& option) const {
  option.initFrom(this);
  option.direction = FTabs->layoutDirection();
  option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
  option.shape = FTabs->shape();
  const bool isUpright = option.shape == QTabBar::RoundedWest || option.shape == QTabBar::RoundedEast;
  if (FTabs->count() > 0) {
    const QSize hint = FTabs->sizeHint();
    option.tabBarSize = isUpright ? QSize(hint.width(), qMin(hint.height(), height()))
                                  : QSize(qMin(hint.width(), width()), hint.height());
  }
  option.tabBarRect = FTabs->geometry();
  option.selectedTabRect = FTabs->tabRect(FTabs->currentIndex()).translated(FTabs->pos());
}

void TPagesView::PlaceTabs() {
  QStyleOptionTabWidgetFrame option;
  InitOption(option);
  FTabs->setGeometry(style()->subElementRect(QStyle::SE_TabWidgetTabBar, &option, this));
}

QRect TPagesView::ContentsRect() const {
  QStyleOptionTabWidgetFrame option;
  InitOption(option);
  const auto element = FAreButtons ? QStyle::SE_TabWidgetTabPane : QStyle::SE_TabWidgetTabContents;
  return style()->subElementRect(element, &option, this);
}

void TPagesView::paintEvent(QPaintEvent*) {
  if (FAreButtons) return;
  QStyleOptionTabWidgetFrame option;
  InitOption(option);
  option.rect = style()->subElementRect(QStyle::SE_TabWidgetTabPane, &option, this);
  QStylePainter(this).drawPrimitive(QStyle::PE_FrameTabWidget, option);
}

void TPagesView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceTabs();
}

// Mouse and keys.

bool TPagesView::event(QEvent* event) {
  if (event->type() == QEvent::Leave && FHotTrack) {
    QHoverEvent hover(QEvent::HoverLeave, QPointF(-1, -1), QPointF(-1, -1), QPointF());
    QCoreApplication::sendEvent(FTabs, &hover);
  }
  return QWidget::event(event);
}

void TPagesView::Forward(QWidget& target, QMouseEvent& event) {
  QMouseEvent forwarded(event.type(), target.mapFrom(this, event.position()), event.globalPosition(), event.button(),
                        event.buttons(), event.modifiers());
  QCoreApplication::sendEvent(&target, &forwarded);
}

void TPagesView::mousePressEvent(QMouseEvent* event) {
  if (!FTabs->geometry().contains(event->position().toPoint())) return QWidget::mousePressEvent(event);
  // The arrows beside the tabs, when there are too many of these.
  QWidget* part = FTabs->childAt(FTabs->mapFrom(this, event->position().toPoint()));
  FPressed = part ? part : FTabs;
  Forward(*FPressed, *event);
}

void TPagesView::mouseReleaseEvent(QMouseEvent* event) {
  if (!FPressed) return QWidget::mouseReleaseEvent(event);
  Forward(*FPressed, *event);
  if (event->buttons() == Qt::NoButton) FPressed = nullptr;
}

void TPagesView::mouseMoveEvent(QMouseEvent* event) {
  if (FPressed) return Forward(*FPressed, *event);
  if (!FHotTrack) return QWidget::mouseMoveEvent(event);
  const QPointF point = FTabs->mapFrom(this, event->position());
  QHoverEvent hover(QEvent::HoverMove, point, event->globalPosition(), point, event->modifiers());
  QCoreApplication::sendEvent(FTabs, &hover);
}

void TPagesView::keyPressEvent(QKeyEvent* event) { FTabs->keyPressEvent(event); }

void TPagesView::focusInEvent(QFocusEvent*) { FTabs->update(); }

void TPagesView::focusOutEvent(QFocusEvent*) { FTabs->update(); }

}  // namespace kt
