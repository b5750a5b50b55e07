#include "kt/vcl/stdctrls/ListOpening.h"

#include "kt/vcl/stdctrls/FloatingListBox.h"

#include <QWidget>

namespace kt {

namespace {

/// For a list without a parent: a window above the others that no platform activates.
void MakeWindow(QWidget& body, QWidget* owner) {
  const bool isWindow = body.parentWidget() == owner && body.isWindow();
  if (isWindow) return;
  body.setParent(owner,
                 Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus);
  body.setAttribute(Qt::WA_ShowWithoutActivating);
}

}  // namespace

void OpenListBeside(TCustomListBox& list, TWinControl& anchor) {
  if (auto* floating = dynamic_cast<TFloatingListBox*>(&list)) return floating->Open();
  const QRect place = TFloatingListBox::PlaceBeside(anchor, list.GetBoundsRect().size());
  TWinControl* const parent = list.GetParent();
  QWidget* const body = list.GetHandle();
  if (!parent) MakeWindow(*body, anchor.GetHandle()->window());
  const QPoint corner = parent ? parent->ScreenToClient(place.topLeft()) : place.topLeft();
  list.SetBounds(corner.x(), corner.y(), place.width(), place.height());
  body->setFocusPolicy(Qt::NoFocus);
  list.SetVisible(true);
  if (!parent) body->move(corner);
  body->show();
  body->raise();
}

void CloseList(TCustomListBox& list) {
  if (auto* floating = dynamic_cast<TFloatingListBox*>(&list)) return floating->Close();
  list.SetVisible(false);
}

}  // namespace kt
