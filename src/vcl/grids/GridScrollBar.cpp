#include "kt/vcl/grids/GridScrollBar.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/ControlBody.h"

#include <QSignalBlocker>

namespace kt {

TGridScrollBar::TGridScrollBar(Qt::Orientation orientation, QWidget* parent, std::function<void(int)> onMoved)
    : QScrollBar(orientation, parent), FOnMoved(std::move(onMoved)) {
  setCursor(Qt::ArrowCursor);
  connect(this, &QScrollBar::valueChanged, this, [this](int value) { GuardedCall([&] { FOnMoved(value); }); });
}

void TGridScrollBar::ShowPosition(int first, int last, int page, int position) {
  const QSignalBlocker blocker(this);
  if (minimum() != first || maximum() != last) setRange(first, last);
  if (pageStep() != page) setPageStep(page);
  // A thumb that is held stays under the hand.
  if (!isSliderDown()) setValue(position);
}

int TGridScrollBar::ThumbPixel() const {
  const int length = orientation() == Qt::Vertical ? height() : width();
  const qint64 range = qint64{maximum()} - minimum() + pageStep();
  return range <= 0 ? 0 : static_cast<int>((qint64{sliderPosition()} - minimum()) * length / range);
}

bool TGridScrollBar::event(QEvent* event) {
  if (event->type() == QEvent::Enter) GuardedCall([this] { TControlBody::PointerCameTo(*this); });
  if (event->type() == QEvent::Leave) GuardedCall([this] { TControlBody::PointerWentFrom(*this); });
  return QScrollBar::event(event);
}

void TGridScrollBar::sliderChange(SliderChange change) {
  const int pixel = ThumbPixel();
  if (change == SliderValueChange && pixel == FShownPixel && !isSliderDown()) return;
  FShownPixel = pixel;
  QScrollBar::sliderChange(change);
}

}  // namespace kt
