#pragma once

#include "kt/rtl/typeinfo/TypeOf.h"
#include "kt/vcl/graphics/Color.h"
#include "kt/vcl/graphics/Graphic.h"

#include <QImage>

#include <memory>

namespace kt {

class TCanvas;

enum TTransparentMode : quint8 { tmAuto, tmFixed };

/// A picture of pixels. Reads every format that Qt reads and writes the BMP format, with 32 bits where pixels are
/// translucent. Copies share their pixels until one is changed. Works without an application object, but for text.
class TBitmap : public TGraphic {
 public:
  using Inherited = TGraphic;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TBitmap() override;

  bool IsEmpty() const override;
  /// Setters keep the pixels that still fit; new ones are white. There are no pixels while one of the sizes is 0.
  /// Raise EInvalidGraphic "Bitmap image is not valid" for negative sizes and for those that no memory is found for.
  int GetWidth() const override { return FSize.width(); }
  void SetWidth(int value) override { SetSize(value, GetHeight()); }
  int GetHeight() const override { return FSize.height(); }
  void SetHeight(int value) override { SetSize(GetWidth(), value); }
  void SetSize(int width, int height);

  /// The colour that is left out when the bitmap is transparent: in the automatic mode that of the lower left pixel,
  /// clNone when there is none. Setting it fixes it; setting clDefault makes it automatic again.
  TColor GetTransparentColor() const;
  void SetTransparentColor(TColor value);
  TTransparentMode GetTransparentMode() const { return FTransparentColor == clDefault ? tmAuto : tmFixed; }
  void SetTransparentMode(TTransparentMode value);

  /// For drawing into the bitmap and reading its pixels; each drawing tells a change. Drawing into an empty bitmap
  /// raises EInvalidOperation "Canvas does not allow drawing".
  TCanvas& GetCanvas();
  const QImage& GetImage() const;
  void SetImage(const QImage& image);
  QImage ToImage() const override { return GetImage(); }
  /// The pixels as they are drawn: without the transparent colour, when the bitmap is transparent.
  QImage GetVisibleImage();
  /// Copies another bitmap, what a picture shows as pixels, or nothing: null empties it.
  void Assign(TPersistent* source) override;

  void LoadFromStream(QIODevice& stream) override;
  void SaveToStream(QIODevice& stream) override;
  /// The pixels and their number of bytes before them.
  void ReadData(const QByteArray& data) override;
  QByteArray WriteData() override;
  void DrawOn(TCanvas& canvas, const QRect& rect) override;

 protected:
  TBitmap();

  void Destruct() override;
  void Changed() override;

 private:
  class TBitmapCanvas;

  /// Ends the painting that the canvas has under way, so that the pixels can be read.
  void Flush() const;
  void Store(const QImage& image);
  const QImage& Masked();

  QImage FImage;
  QSize FSize{0, 0};
  TColor FTransparentColor = clDefault;
  std::unique_ptr<TBitmapCanvas> FCanvas;
  /// The image as it is drawn when transparent; null until it is needed.
  QImage FMasked;
};

template <>
struct TEnumNames<TTransparentMode> {
  static constexpr char Name[] = "TTransparentMode";
  static constexpr const char* Values[] = {"tmAuto", "tmFixed"};
};

}  // namespace kt
