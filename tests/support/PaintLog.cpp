#include "support/PaintLog.h"

#include <QBrush>
#include <QPainterPath>
#include <QPen>
#include <QRegion>
#include <QTransform>

#include <algorithm>

namespace kt::tests {
namespace {

constexpr int kDotsPerInch = 96;
constexpr double kMillimetresPerInch = 25.4;

QString At(QPointF point) { return QStringLiteral("%1,%2").arg(qRound(point.x())).arg(qRound(point.y())); }

QString Of(const QRectF& rect) {
  return At(rect.topLeft()) + QStringLiteral(" %1x%2").arg(qRound(rect.width())).arg(qRound(rect.height()));
}

}  // namespace

class TPaintLog::TEngine : public QPaintEngine {
 public:
  TEngine() : QPaintEngine(AllFeatures) {}

  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }

  void updateState(const QPaintEngineState& now) override {
    const DirtyFlags changed = now.state();
    if (changed & DirtyPen) FPen = now.pen();
    if (changed & DirtyBrush) FBrush = now.brush();
    if (changed & DirtyTransform) FTransform = now.transform();
    if (changed & (DirtyClipEnabled | DirtyClipRegion | DirtyClipPath)) NoteClip(now);
  }

  void drawRects(const QRectF* rects, int count) override {
    for (int i = 0; i < count; ++i) NoteShape(QStringLiteral("rect "), FTransform.mapRect(rects[i]));
  }
  void drawPath(const QPainterPath& path) override {
    NoteShape(QStringLiteral("path "), FTransform.mapRect(path.boundingRect()));
  }
  void drawLines(const QLineF* lines, int count) override {
    for (int i = 0; i < count; ++i) {
      const QLineF line = FTransform.map(lines[i]);
      Note(QStringLiteral("lines ") + At(line.p1()) + u'-' + At(line.p2()) + u' ' + FPen.color().name());
    }
  }
  void drawPolygon(const QPointF* points, int count, PolygonDrawMode) override {
    QStringList places;
    std::transform(points, points + count, std::back_inserter(places),
                   [&](QPointF point) { return At(FTransform.map(point)); });
    Note(QStringLiteral("polygon ") + places.join(u' '));
  }
  void drawTextItem(const QPointF& place, const QTextItem& item) override {
    Note(QStringLiteral("text %1 '%2' %3").arg(At(FTransform.map(place)), item.text(), FPen.color().name()));
  }
  void drawPixmap(const QRectF& rect, const QPixmap&, const QRectF&) override {
    Note(QStringLiteral("image ") + Of(FTransform.mapRect(rect)));
  }
  void drawImage(const QRectF& rect, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {
    Note(QStringLiteral("image ") + Of(FTransform.mapRect(rect)));
  }

  QStringList Entries;

 private:
  void Note(const QString& entry) { Entries.append(entry); }

  void NoteShape(const QString& kind, const QRectF& rect) {
    if (FBrush.style() != Qt::NoBrush) Note(QStringLiteral("fill ") + Of(rect) + u' ' + FBrush.color().name());
    if (FPen.style() != Qt::NoPen) Note(kind + Of(rect) + u' ' + FPen.color().name());
  }

  void NoteClip(const QPaintEngineState& now) {
    const bool isClipped = now.isClipEnabled() && (!now.clipRegion().isEmpty() || !now.clipPath().isEmpty());
    const QRectF bounds =
        now.clipPath().isEmpty() ? QRectF(now.clipRegion().boundingRect()) : now.clipPath().boundingRect();
    const QString entry =
        isClipped ? QStringLiteral("clip ") + Of(FTransform.mapRect(bounds)) : QStringLiteral("no clip");
    if (entry != FClip) Note(entry);
    FClip = entry;
  }

  QPen FPen;
  QBrush FBrush;
  QTransform FTransform;
  QString FClip = QStringLiteral("no clip");
};

TPaintLog::TPaintLog(QSize size) : FSize(size), FEngine(std::make_unique<TEngine>()) {}
TPaintLog::~TPaintLog() = default;

std::string TPaintLog::Take() {
  const std::string text = FEngine->Entries.join(QStringLiteral(" | ")).toStdString();
  FEngine->Entries.clear();
  return text;
}

QPaintEngine* TPaintLog::paintEngine() const { return FEngine.get(); }

int TPaintLog::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmWidth:
      return FSize.width();
    case PdmHeight:
      return FSize.height();
    case PdmWidthMM:
      return qRound(FSize.width() * kMillimetresPerInch / kDotsPerInch);
    case PdmHeightMM:
      return qRound(FSize.height() * kMillimetresPerInch / kDotsPerInch);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
      return kDotsPerInch;
    case PdmDevicePixelRatio:
      return 1;
    case PdmDevicePixelRatioScaled:
      return static_cast<int>(devicePixelRatioFScale());
    case PdmDepth:
      return 32;
    default:
      return QPaintDevice::metric(metric);
  }
}

}  // namespace kt::tests
