#pragma once

#include <QScrollBar>

#include <functional>

namespace kt {

/// A scroll bar over cells that is painted only when its thumb has moved by a pixel: telling it where the grid is costs
/// nothing as long as nobody would see it.
class TGridScrollBar : public QScrollBar {
 public:
  TGridScrollBar(Qt::Orientation orientation, QWidget* parent, std::function<void(int)> onMoved);

  /// Shows a position without telling anybody.
  void ShowPosition(int first, int last, int page, int position);

 protected:
  bool event(QEvent* event) override;
  void sliderChange(SliderChange change) override;

 private:
  int ThumbPixel() const;

  std::function<void(int)> FOnMoved;
  int FShownPixel = -1;
};

}  // namespace kt
