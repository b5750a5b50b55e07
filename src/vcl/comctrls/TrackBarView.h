#pragma once

#include "kt/vcl/comctrls/TrackBar.h"

#include <QSlider>

namespace kt {

/// Qt's slider as the window of a track bar: with a range that is marked, and without a slider where none is wanted.
class TTrackBar::TView : public QSlider {
 public:
  explicit TView(QWidget* parent) : QSlider(parent) {}

  void SetSelection(int start, int end);
  void SetSliderShown(bool value);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// The bar between two values.
  QRect GrooveBetween(int start, int end) const;

  int FSelStart = 0;
  int FSelEnd = 0;
  bool FIsSliderShown = true;
};

}  // namespace kt
