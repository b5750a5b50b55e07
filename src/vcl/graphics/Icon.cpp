#include "kt/vcl/graphics/Icon.h"

#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/GraphicsErrors.h"
#include "kt/vcl/graphics/GraphicsMessages.h"
#include "kt/vcl/graphics/Picture.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <cstdlib>

namespace kt {
namespace {

constexpr int kUsualSize = 32;
/// More pictures than any icon has; what follows is left alone.
constexpr int kMostImages = 64;

QList<QImage> ImagesOf(const QByteArray& file) {
  QBuffer buffer;
  buffer.setData(file);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  QList<QImage> images;
  do {
    const QImage image = reader.read();
    if (image.isNull()) break;
    images.append(image);
  } while (images.size() < kMostImages && reader.jumpToNextImage());
  return images;
}

}  // namespace

const TClassInfo* TIcon::Class() {
  static const TClassInfo info = TClassBuilder<TIcon>("TIcon").Creatable().Done();
  return &info;
}

QImage TIcon::ToImage() const {
  const auto distance = [](const QImage& image) { return std::abs(image.width() - kUsualSize); };
  const auto nearest = std::min_element(FImages.begin(), FImages.end(),
                                        [&](const QImage& a, const QImage& b) { return distance(a) < distance(b); });
  return nearest == FImages.end() ? QImage() : *nearest;
}

void TIcon::SetWidth(int value) {
  if (value != GetWidth()) throw EInvalidGraphicOperation(SChangeIconSize.toString());
}

void TIcon::SetHeight(int value) {
  if (value != GetHeight()) throw EInvalidGraphicOperation(SChangeIconSize.toString());
}

void TIcon::Assign(TPersistent* source) {
  if (auto* picture = dynamic_cast<TPicture*>(source)) return Assign(picture->GetGraphic());
  const auto* icon = dynamic_cast<TIcon*>(source);
  if (source && !icon) return TGraphic::Assign(source);
  FFile = icon ? icon->FFile : QByteArray();
  FImages = icon ? icon->FImages : QList<QImage>();
  Changed();
}

void TIcon::LoadFromStream(QIODevice& stream) {
  const QByteArray file = stream.readAll();
  const QList<QImage> images = ImagesOf(file);
  if (images.isEmpty()) throw EInvalidGraphic(SInvalidIcon.toString());
  FFile = file;
  FImages = images;
  Changed();
}

void TIcon::SaveToStream(QIODevice& stream) {
  if (stream.write(FFile) != FFile.size()) throw EWriteError(SWriteError.toString());
}

void TIcon::DrawOn(TCanvas& canvas, const QRect& rect) { DrawImageOn(canvas, rect, ToImage()); }

}  // namespace kt
