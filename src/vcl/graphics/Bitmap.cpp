#include "kt/vcl/graphics/Bitmap.h"

#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/BitmapFile.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/GraphicsErrors.h"
#include "kt/vcl/graphics/GraphicsMessages.h"
#include "kt/vcl/graphics/Picture.h"
#include "kt/vcl/graphics/QtColor.h"

#include <QIODevice>
#include <QPainter>
#include <QtEndian>

#include <algorithm>

namespace kt {
namespace {

/// A bitmap's pixels before which their number of bytes stands.
using TByteCount = quint32;

}  // namespace

/// Paints into the image of its bitmap from the first drawing until somebody wants the pixels.
class TBitmap::TBitmapCanvas : public TCanvas {
 public:
  void Flush() {
    End();
    FPainterOfImage.reset();
  }

 protected:
  explicit TBitmapCanvas(TBitmap* bitmap) : FBitmap(bitmap) {}

  void CreateHandle() override {
    if (FBitmap->FImage.isNull()) return TCanvas::CreateHandle();
    // Pixels that are numbers of a colour table cannot be painted on.
    if (FBitmap->FImage.depth() < 16) FBitmap->FImage.convertTo(QImage::Format_RGB32);
    FPainterOfImage = std::make_unique<QPainter>(&FBitmap->FImage);
    Begin(*FPainterOfImage);
  }
  void Drawn() override { FBitmap->Changed(); }
  QImage Snapshot(const QRect& part) const override {
    FBitmap->Flush();
    const QRect inside = part & FBitmap->FImage.rect();
    return inside == part ? FBitmap->FImage.copy(part) : QImage();
  }
  void Destruct() override {
    Flush();
    TCanvas::Destruct();
  }

 private:
  TBitmap* FBitmap;
  std::unique_ptr<QPainter> FPainterOfImage;
};

const TClassInfo* TBitmap::Class() {
  static const TClassInfo info = TClassBuilder<TBitmap>("TBitmap").Creatable().Done();
  return &info;
}

TBitmap::TBitmap() = default;
TBitmap::~TBitmap() = default;

void TBitmap::Destruct() {
  FCanvas.reset();
  TGraphic::Destruct();
}

void TBitmap::Flush() const {
  if (FCanvas) FCanvas->Flush();
}

bool TBitmap::IsEmpty() const { return FImage.isNull(); }

TCanvas& TBitmap::GetCanvas() {
  if (!FCanvas) FCanvas = Make<TBitmapCanvas>(this);
  return *FCanvas;
}

const QImage& TBitmap::GetImage() const {
  Flush();
  return FImage;
}

void TBitmap::SetImage(const QImage& image) { Store(image); }

void TBitmap::Store(const QImage& image) {
  Flush();
  FImage = image;
  FSize = image.isNull() ? QSize(0, 0) : image.size();
  Changed();
}

void TBitmap::Changed() {
  FMasked = {};
  TGraphic::Changed();
}

void TBitmap::SetSize(int width, int height) {
  if (width < 0 || height < 0) throw EInvalidGraphic(SInvalidBitmap.toString());
  const QSize size(width, height);
  if (size == FSize) return;
  QImage image;
  if (!size.isEmpty()) {
    image = QImage(size, FImage.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (image.isNull()) throw EInvalidGraphic(SInvalidBitmap.toString());
    image.fill(Qt::white);
    if (!GetImage().isNull()) {
      QPainter painter(&image);
      painter.setCompositionMode(QPainter::CompositionMode_Source);
      painter.drawImage(0, 0, FImage);
    }
  }
  Flush();
  FImage = image;
  FSize = size;
  Changed();
}

TColor TBitmap::GetTransparentColor() const {
  if (FTransparentColor != clDefault) return FTransparentColor;
  Flush();
  return FImage.isNull() ? clNone : ColorOf(FImage.pixelColor(0, FImage.height() - 1));
}

void TBitmap::SetTransparentColor(TColor value) {
  if (value == FTransparentColor) return;
  FTransparentColor = value;
  Changed();
}

void TBitmap::SetTransparentMode(TTransparentMode value) {
  if (value != GetTransparentMode()) SetTransparentColor(value == tmAuto ? clDefault : GetTransparentColor());
}

const QImage& TBitmap::Masked() {
  if (!FMasked.isNull()) return FMasked;
  const QRgb hidden = QtColor(GetTransparentColor()).rgb();
  FMasked = FImage.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < FMasked.height(); ++y) {
    auto* pixels = reinterpret_cast<QRgb*>(FMasked.scanLine(y));
    std::replace(pixels, pixels + FMasked.width(), hidden, QRgb{0});
  }
  FMasked.convertTo(QImage::Format_ARGB32_Premultiplied);
  return FMasked;
}

QImage TBitmap::GetVisibleImage() {
  Flush();
  return IsTransparent() && !FImage.isNull() ? Masked() : FImage;
}

void TBitmap::DrawOn(TCanvas& canvas, const QRect& rect) { DrawImageOn(canvas, rect, GetVisibleImage()); }

void TBitmap::Assign(TPersistent* source) {
  if (!source) return Store({});
  if (auto* picture = dynamic_cast<TPicture*>(source)) return Assign(picture->GetGraphic());
  if (auto* bitmap = dynamic_cast<TBitmap*>(source)) {
    FTransparentColor = bitmap->FTransparentColor;
    CopyTransparency(*bitmap);
    return Store(bitmap->GetImage());
  }
  auto* graphic = dynamic_cast<TGraphic*>(source);
  const QImage image = graphic ? graphic->ToImage() : QImage();
  if (image.isNull()) return TGraphic::Assign(source);
  Store(image);
}

void TBitmap::LoadFromStream(QIODevice& stream) {
  QImage image;
  if (!image.loadFromData(stream.readAll())) throw EInvalidGraphic(SInvalidBitmap.toString());
  Store(image);
}

void TBitmap::SaveToStream(QIODevice& stream) {
  if (!IsEmpty()) WriteBitmapFile(GetImage(), stream);
}

void TBitmap::ReadData(const QByteArray& data) {
  if (data.size() < qsizetype{sizeof(TByteCount)}) throw EInvalidGraphic(SInvalidBitmap.toString());
  const auto count = qFromLittleEndian<TByteCount>(data.constData());
  if (count == 0) return Store({});
  if (count > data.size() - sizeof(TByteCount)) throw EInvalidGraphic(SInvalidBitmap.toString());
  TGraphic::ReadData(data.mid(sizeof(TByteCount), count));
}

QByteArray TBitmap::WriteData() {
  const QByteArray pixels = TGraphic::WriteData();
  QByteArray count(sizeof(TByteCount), '\0');
  qToLittleEndian(static_cast<TByteCount>(pixels.size()), count.data());
  return count + pixels;
}

}  // namespace kt
