#include "kt/vcl/comctrls/TrackBarView.h"

#include <QStyle>
#include <QStyleOptionSlider>
#include <QStylePainter>

#include <algorithm>

namespace kt {

namespace {

/// The thickness of the mark in the bar.
constexpr int kMark = 3;

}  // namespace

void TTrackBar::TView::SetSelection(int start, int end) {
  FSelStart = start;
  FSelEnd = end;
  update();
}

void TTrackBar::TView::SetSliderShown(bool value) {
  FIsSliderShown = value;
  update();
}

QRect TTrackBar::TView::GrooveBetween(int start, int end) const {
  QStyleOptionSlider option;
  initStyleOption(&option);
  const bool isUpright = orientation() == Qt::Vertical;
  const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
  const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
  const int length = isUpright ? handle.height() : handle.width();
  const int room = (isUpright ? groove.height() : groove.width()) - length;
  const auto placeOf = [&](int value) {
    return QStyle::sliderPositionFromValue(minimum(), maximum(), value, room, option.upsideDown) + length / 2;
  };
  const auto [first, last] = std::minmax({placeOf(start), placeOf(end)});
  if (isUpright) return {groove.center().x() - kMark / 2, groove.y() + first, kMark, last - first};
  return {groove.x() + first, groove.center().y() - kMark / 2, last - first, kMark};
}

void TTrackBar::TView::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionSlider option;
  initStyleOption(&option);
  option.subControls = QStyle::SC_SliderGroove;
  if (tickPosition() != NoTicks) option.subControls |= QStyle::SC_SliderTickmarks;
  painter.drawComplexControl(QStyle::CC_Slider, option);
  const int start = std::max(FSelStart, minimum());
  const int end = std::min(FSelEnd, maximum());
  if (start < end) painter.fillRect(GrooveBetween(start, end), palette().brush(QPalette::Highlight));
  if (!FIsSliderShown) return;
  option.subControls = QStyle::SC_SliderHandle;
  if (isSliderDown()) {
    option.activeSubControls = QStyle::SC_SliderHandle;
    option.state |= QStyle::State_Sunken;
  }
  painter.drawComplexControl(QStyle::CC_Slider, option);
}

}  // namespace kt
