#include "designer/surface/Stage.h"

#include "designer/surface/Grid.h"
#include "designer/surface/Surface.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QEvent>
#include <QPainter>

#include <utility>

namespace designer {

using namespace kt;

namespace {

constexpr int kMargin = 24;
constexpr int kBorder = 4;

bool IsTool(const TCustomForm& form) {
  return form.GetBorderStyle() == bsToolWindow || form.GetBorderStyle() == bsSizeToolWin;
}

enum TCaptionButton { cbClose, cbMaximize, cbMinimize, cbHelp };

/// From the outside inwards.
std::vector<TCaptionButton> ButtonsOf(const TCustomForm& form) {
  const TBorderIcons icons = form.GetBorderIcons();
  const bool hasAll = form.GetBorderStyle() == bsSingle || form.GetBorderStyle() == bsSizeable;
  std::vector<TCaptionButton> buttons;
  if (!icons.Has(biSystemMenu)) return buttons;
  buttons.push_back(cbClose);
  if (hasAll && icons.Has(biMaximize)) buttons.push_back(cbMaximize);
  if (hasAll && icons.Has(biMinimize)) buttons.push_back(cbMinimize);
  if (icons.Has(biHelp)) buttons.push_back(cbHelp);
  return buttons;
}

/// With the present pen. Styles have pictures of their own, but for the colours of their own captions.
void PaintButton(QPainter& painter, TCaptionButton button, const QRectF& box) {
  switch (button) {
    case cbClose:
      painter.drawLine(box.topLeft(), box.bottomRight());
      return painter.drawLine(box.topRight(), box.bottomLeft());
    case cbMaximize:
      return painter.drawRect(box);
    case cbMinimize:
      return painter.drawLine(box.bottomLeft(), box.bottomRight());
    case cbHelp:
      return painter.drawText(box.adjusted(-4, -4, 4, 4), Qt::AlignCenter, QStringLiteral("?"));
  }
}

}  // namespace

TStage::TStage(TSession& session)
    : FSession(session), FInside(new QWidget(this, Qt::SubWindow)), FSurface(new TSurface(session, this)) {
  setObjectName(QStringLiteral("stage"));
  // How the form reads is its own business, not the designer's.
  FInside->setLayoutDirection(Qt::LeftToRight);
  setBackgroundRole(QPalette::Mid);
  setAutoFillBackground(true);
  FSurface->OnFocusChanged = [this] { update(); };
  session.Listen([this](TNews news) { Heard(news); });
  Refresh();
}

void TStage::Heard(TNews news) {
  // What the inspector looks at may fill in what it has not had.
  if (news == nwSelection) SettleLater();
  // The form's widget goes with the form.
  if (news == nwForm || news == nwEdited) GuardedCall([this] { Refresh(); });
}

void TStage::Refresh() {
  TakeForm();
  Quiet();
  const TCustomForm& form = FSession.Form();
  // A file may say any size.
  const QSize shown = QSize(form.GetWidth(), form.GetHeight()).boundedTo(QSize(kLargestSize, kLargestSize));
  FInside->setGeometry(QRect(QPoint(kMargin + kBorder, kMargin + kBorder + CaptionHeight()), shown));
  const QSize needed(FrameRect().right() + 1 + kMargin, FrameRect().bottom() + 1 + kMargin);
  if (minimumSize() != needed) setMinimumSize(needed);
  if (!parentWidget()) resize(needed);
  FSurface->setGeometry(rect());
  FSurface->raise();
  update();
}

void TStage::TakeForm() {
  QWidget* body = FSession.Form().GetHandle();
  if (FBody == body) return;
  FBody = body;
  body->installEventFilter(this);
  body->setParent(FInside);
  body->move(0, 0);
  body->show();
  FIsPainted = false;
  Settle();
  // And again when layouts are done.
  SettleLater();
}

void TStage::SettleLater() { QMetaObject::invokeMethod(this, &TStage::Settle, Qt::QueuedConnection); }

/// What windows bring about is no edit, nor what comes of looking; but what is in the middle of being dragged is one.
void TStage::Settle() {
  if (FSurface->IsDragging()) return;
  GuardedCall([this] { FSession.Document().Settle(); });
}

/// A form would take over the place of its widget as its own. When it is painted for the first time, its controls may
/// fill in what they have not had.
bool TStage::eventFilter(QObject* object, QEvent* event) {
  if (object == FBody && event->type() == QEvent::Paint && !std::exchange(FIsPainted, true)) SettleLater();
  const bool tellsPlace = event->type() == QEvent::Move || event->type() == QEvent::Resize;
  return object == FBody && tellsPlace;
}

void TStage::Quiet() {
  FBody->setFocusPolicy(Qt::NoFocus);
  for (QWidget* widget : FBody->findChildren<QWidget*>()) widget->setFocusPolicy(Qt::NoFocus);
}

// The frame.

int TStage::CaptionHeight() const {
  const TCustomForm& form = FSession.Form();
  if (form.GetBorderStyle() == bsNone) return 0;
  return fontMetrics().height() + (IsTool(form) ? 6 : 12);
}

QRect TStage::FrameRect() const {
  return FInside->geometry().adjusted(-kBorder, -kBorder - CaptionHeight(), kBorder, kBorder);
}

void TStage::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool isActive = FSurface->hasFocus();
  const QRect frame = FrameRect();
  painter.fillRect(frame.translated(3, 3), QColor(0, 0, 0, 50));
  painter.fillRect(frame, palette().color(isActive ? QPalette::Highlight : QPalette::Dark));
  if (CaptionHeight() > 0) PaintCaption(painter, {frame.left(), frame.top(), frame.width(), CaptionHeight() + kBorder});
}

void TStage::PaintCaption(QPainter& painter, const QRect& place) {
  const bool isActive = FSurface->hasFocus();
  const QColor text = isActive ? palette().color(QPalette::HighlightedText) : QColor(Qt::white);
  const TCustomForm& form = FSession.Form();
  QRect rest = place.adjusted(8, 0, -4, 0);
  painter.setPen(QPen(text, 1.5));
  painter.setRenderHint(QPainter::Antialiasing);
  const int size = fontMetrics().height() * 2 / 3;
  for (const TCaptionButton button : ButtonsOf(form)) {
    const int top = rest.center().y() - size / 2;
    const QRectF box(rest.right() - size, top, size, size);
    PaintButton(painter, button, box);
    rest.setRight(qRound(box.left()) - size);
  }
  painter.setRenderHint(QPainter::Antialiasing, false);
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(text);
  const QString caption = painter.fontMetrics().elidedText(form.GetCaption(), Qt::ElideRight, rest.width());
  // On the left whichever way the designer reads, as the form stands that way, too.
  painter.drawText(rest, Qt::AlignVCenter | Qt::AlignLeft | Qt::AlignAbsolute, caption);
}

void TStage::resizeEvent(QResizeEvent*) { FSurface->setGeometry(rect()); }

void TStage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    GuardedCall([this] { Refresh(); });
  }
}

}  // namespace designer
