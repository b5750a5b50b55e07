#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QStringList>

#include <memory>

namespace kt::tests {

/// A paint device that draws nothing and writes down what it was asked to draw:
///   "fill 0,0 10x5 #ffffff"   "text 2,13 'abc' #000000"   "lines 0,0-5,0 #ff0000"   "rect 0,0 9x4 #000000"
///   "clip 0,0 10x5"           "no clip"                    "image 3,4 9x9"
/// Texts stand with their baseline. Coordinates are those of the painter's device.
class TPaintLog : public QPaintDevice {
 public:
  explicit TPaintLog(QSize size = QSize(400, 300));
  ~TPaintLog() override;

  /// What was drawn since the last call, joined by " | ".
  std::string Take();

  QPaintEngine* paintEngine() const override;

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  class TEngine;

  QSize FSize;
  std::unique_ptr<TEngine> FEngine;
};

}  // namespace kt::tests
