// How the pictures of TCustomImageList are drawn.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/imagelist/ImageList.h"

#include <QPainter>

namespace kt {

namespace {

/// Of what is left of a disabled picture, and of the colour that a picture is blended with; 1 is all.
constexpr double kOfDisabled = 0.4;
constexpr double kOfFocus = 0.25;
constexpr double kOfSelected = 0.5;

/// White where nothing shows, black elsewhere.
QImage MaskOf(const QImage& image) {
  QImage mask(image.size(), QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      mask.setPixel(x, y, qAlpha(image.pixel(x, y)) == 0 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    }
  }
  return mask;
}

void Grey(QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const int grey = qGray(line[x]);
      line[x] = qRgba(grey, grey, grey, static_cast<int>(qAlpha(line[x]) * kOfDisabled));
    }
  }
}

void Blend(QImage& image, QColor color, double share) {
  color.setAlphaF(static_cast<float>(share));
  QPainter painter(&image);
  // Nothing appears where nothing was.
  painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
  painter.fillRect(image.rect(), color);
}

QImage OnGround(const QImage& image, const QColor& color) {
  QImage whole(image.size(), QImage::Format_RGB32);
  whole.fill(color);
  QPainter painter(&whole);
  painter.drawImage(0, 0, image);
  return whole;
}

}  // namespace

QImage TCustomImageList::Prepared(int index, TDrawingStyle style, TImageType type, bool enabled) const {
  if (type == itMask) return MaskOf(FImages[index]);
  QImage image = FImages[index].convertToFormat(QImage::Format_ARGB32);
  const bool isBlended = style == dsFocus || style == dsSelected;
  if (!enabled) {
    Grey(image);
  } else if (isBlended && FBlendColor != clNone) {
    const QColor color = QtColor(FBlendColor == clDefault ? clHighlight : FBlendColor);
    Blend(image, color, style == dsFocus ? kOfFocus : kOfSelected);
  }
  return style == dsTransparent || FBkColor == clNone ? image : OnGround(image, QtColor(FBkColor));
}

bool TCustomImageList::GetBitmap(int index, TBitmap& bitmap) const {
  if (index < 0 || index >= GetCount()) return false;
  bitmap.SetImage(OnGround(FImages[index], FBkColor == clNone ? QColor(Qt::white) : QtColor(FBkColor)));
  return true;
}

void TCustomImageList::Draw(TCanvas& canvas, int x, int y, int index, bool enabled) {
  Draw(canvas, x, y, index, FDrawingStyle, FImageType, enabled);
}

void TCustomImageList::Draw(TCanvas& canvas, int x, int y, int index, TDrawingStyle style, TImageType type,
                            bool enabled) {
  if (index < 0 || index >= GetCount()) return;
  const auto picture = Make<TBitmap>();
  picture->SetImage(Prepared(index, style, type, enabled));
  canvas.Draw(x, y, picture.get());
}

}  // namespace kt
