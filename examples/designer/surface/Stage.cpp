#include "designer/surface/Stage.h"

#include "designer/surface/Surface.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace designer {

using namespace kt;

namespace {

constexpr int kMargin = 24;
constexpr int kBorder = 4;

bool IsTool(const TCustomForm& form) {
  return form.GetBorderStyle() == bsToolWindow || form.GetBorderStyle() == bsSizeToolWin;
}

/// From the outside inwards.
std::vector<QStyle::StandardPixmap> ButtonsOf(const TCustomForm& form) {
  const TBorderIcons icons = form.GetBorderIcons();
  const bool hasAll = form.GetBorderStyle() == bsSingle || form.GetBorderStyle() == bsSizeable;
  std::vector<QStyle::StandardPixmap> buttons;
  if (!icons.Has(biSystemMenu)) return buttons;
  buttons.push_back(QStyle::SP_TitleBarCloseButton);
  if (hasAll && icons.Has(biMaximize)) buttons.push_back(QStyle::SP_TitleBarMaxButton);
  if (hasAll && icons.Has(biMinimize)) buttons.push_back(QStyle::SP_TitleBarMinButton);
  if (icons.Has(biHelp)) buttons.push_back(QStyle::SP_TitleBarContextHelpButton);
  return buttons;
}

/// The style's own picture in the colour of the caption's text, which it may not go with.
QPixmap Tinted(const QPixmap& picture, const QColor& color) {
  QPixmap tinted(picture.size());
  tinted.setDevicePixelRatio(picture.devicePixelRatio());
  tinted.fill(color);
  QPainter painter(&tinted);
  painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
  painter.drawPixmap(0, 0, picture);
  return tinted;
}

}  // namespace

TStage::TStage(TSession& session)
    : FSession(session), FInside(new QWidget(this, Qt::SubWindow)), FSurface(new TSurface(session, this)) {
  setObjectName(QStringLiteral("stage"));
  setBackgroundRole(QPalette::Mid);
  setAutoFillBackground(true);
  FSurface->OnFocusChanged = [this] { update(); };
  session.Listen([this](TNews news) { Heard(news); });
  Refresh();
}

void TStage::Heard(TNews news) {
  // The form's widget goes with the form.
  if (news == nwForm || news == nwEdited) GuardedCall([this] { Refresh(); });
}

void TStage::Refresh() {
  TakeForm();
  Quiet();
  const TCustomForm& form = FSession.Form();
  FInside->setGeometry(kMargin + kBorder, kMargin + kBorder + CaptionHeight(), form.GetWidth(), form.GetHeight());
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
}

/// A form would take over the place of its widget as its own.
bool TStage::eventFilter(QObject* object, QEvent* event) {
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
  for (const QStyle::StandardPixmap button : ButtonsOf(form)) {
    const int size = fontMetrics().height();
    const QRect box(rest.right() - size, rest.center().y() - size / 2, size, size);
    const QIcon icon = style()->standardIcon(button, nullptr, this);
    painter.drawPixmap(box, Tinted(icon.pixmap(box.size(), devicePixelRatioF()), text));
    rest.setRight(box.left() - 6);
  }
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(text);
  const QString caption = painter.fontMetrics().elidedText(form.GetCaption(), Qt::ElideRight, rest.width());
  painter.drawText(rest, Qt::AlignVCenter | Qt::AlignLeft, caption);
}

void TStage::resizeEvent(QResizeEvent*) { FSurface->setGeometry(rect()); }

void TStage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    GuardedCall([this] { Refresh(); });
  }
}

}  // namespace designer
