#include "kt/vcl/stdctrls/FloatingListBox.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <QApplication>
#include <QScreen>

#include <algorithm>

namespace kt {

/// Sees all events of the program while a list is open.
class TFloatingListBox::TWatch : public QObject {
 public:
  explicit TWatch(TFloatingListBox& list) : FList(&list) { qApp->installEventFilter(this); }

  /// May be called from within an event that is being watched.
  void Retire() {
    FList = nullptr;
    qApp->removeEventFilter(this);
    deleteLater();
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (FList && object->isWidgetType() && EndsIt(*static_cast<QWidget*>(object), *event)) {
      GuardedCall([this] { FList->LoseHold(); });
    }
    return false;
  }

 private:
  bool EndsIt(const QWidget& widget, const QEvent& event) const {
    if (!FList->HandleAllocated() || !FList->FAnchor.HandleAllocated()) return false;
    const QWidget* const host = FList->FAnchor.GetHandle()->window();
    switch (event.type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonDblClick:
      case QEvent::NonClientAreaMouseButtonPress:
        return !FList->IsInside(widget);
      case QEvent::Move:
      case QEvent::Resize:
      case QEvent::Hide:
      case QEvent::WindowDeactivate:
        return &widget == host;
      default:
        return false;
    }
  }

  TFloatingListBox* FList;
};

const TClassInfo* TFloatingListBox::Class() {
  static const TClassInfo info = TClassBuilder<TFloatingListBox>("TFloatingListBox").Done();
  return &info;
}

TFloatingListBox::TFloatingListBox(TComponent* owner, TWinControl& anchor) : TCustomListBox(owner), FAnchor(anchor) {}

TFloatingListBox::~TFloatingListBox() = default;

void TFloatingListBox::Construct() {
  TCustomListBox::Construct();
  SetTabStop(false);
  SetVisibleFlag(false);
}

QWidget* TFloatingListBox::CreateBody(QWidget*) {
  // Belongs to the control's window, above which it stays.
  QWidget* view = CreateListView(FAnchor.GetHandle());
  // The kind of window that no platform activates, and that all of them place where they are told.
  view->setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus);
  view->setAttribute(Qt::WA_ShowWithoutActivating);
  view->setAttribute(Qt::WA_WindowPropagation);
  view->setAttribute(Qt::WA_X11NetWmWindowTypeCombo);
  return view;
}

void TFloatingListBox::CreateWnd() {
  TCustomListBox::CreateWnd();
  Window()->setFocusPolicy(Qt::NoFocus);
}

void TFloatingListBox::DestroyWnd() {
  Close();
  TCustomListBox::DestroyWnd();
}

void TFloatingListBox::CMShowingChanged(TMessage& message) {
  TCustomListBox::CMShowingChanged(message);
  if (FIsOpen && !IsShowing()) LoseHold();
}

bool TFloatingListBox::IsInside(const QWidget& widget) const {
  const QWidget* const anchor = FAnchor.GetHandle();
  return &widget == anchor || &widget == Window() || Window()->isAncestorOf(&widget);
}

QRect TFloatingListBox::PlaceBeside(TWinControl& anchor, QSize size) {
  const QWidget* const body = anchor.GetHandle();
  const QRect beside(body->mapToGlobal(QPoint(0, 0)), body->size());
  const QScreen* screen = QGuiApplication::screenAt(beside.center());
  // What panels of the desktop take is not there to open in.
  const QRect area = (screen ? screen : body->screen())->availableGeometry();
  const int below = area.y() + area.height() - (beside.y() + beside.height());
  const int above = beside.y() - area.y();
  // Above only where that helps: a list that fits on neither side shows more of itself on the roomier one.
  const bool isBelow = size.height() <= below || below >= above;
  const int height = std::min(size.height(), std::max(isBelow ? below : above, 1));
  const int width = std::min(size.width(), area.width());
  const int left = anchor.UseRightToLeftAlignment() ? beside.x() + beside.width() - width : beside.x();
  return {std::clamp(left, area.x(), area.x() + area.width() - width),
          isBelow ? beside.y() + beside.height() : beside.y() - height, width, height};
}

void TFloatingListBox::Open() {
  if (FIsOpen) return;
  HandleNeeded();
  const QRect place = PlaceBeside(FAnchor, {GetWidth(), GetHeight()});
  SetBounds(place.x(), place.y(), place.width(), place.height());
  // What the height was cut by belongs to the far side of the list.
  const bool isAbove = place.y() < FAnchor.GetHandle()->mapToGlobal(QPoint(0, 0)).y();
  Window()->move(place.x(), isAbove ? place.y() + place.height() - GetHeight() : place.y());
  SetVisibleFlag(true);
  Window()->show();
  Window()->raise();
  FIsOpen = true;
  // Deleted as Qt's own: it may be at work when the list closes.
  FWatch.reset(new TWatch(*this));
  ShowSelected();
}

void TFloatingListBox::Close() {
  if (!FIsOpen) return;
  FIsOpen = false;
  SetVisibleFlag(false);
  if (FWatch) FWatch.release()->Retire();
  if (Window()) Window()->hide();
}

}  // namespace kt
