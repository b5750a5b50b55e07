#pragma once

#include "kt/vcl/graphics/Graphic.h"

#include <QImage>
#include <QList>

namespace kt {

/// A picture in several sizes, kept as the file that it came from.
class TIcon : public TGraphic {
 public:
  using Inherited = TGraphic;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  bool IsEmpty() const override { return FImages.isEmpty(); }
  /// Of the picture that is nearest to 32 pixels wide. Setting another one raises EInvalidGraphicOperation "Cannot
  /// change the size of an icon".
  int GetWidth() const override { return ToImage().width(); }
  void SetWidth(int value) override;
  int GetHeight() const override { return ToImage().height(); }
  void SetHeight(int value) override;
  bool IsTransparent() const override { return true; }
  /// Icons are always transparent.
  void SetTransparent(bool) override {}

  /// All pictures, as in the file.
  const QList<QImage>& Images() const { return FImages; }
  QImage ToImage() const override;

  /// Copies an icon; null empties it.
  void Assign(TPersistent* source) override;
  void LoadFromStream(QIODevice& stream) override;
  void SaveToStream(QIODevice& stream) override;
  void DrawOn(TCanvas& canvas, const QRect& rect) override;

 protected:
  TIcon() = default;

 private:
  QByteArray FFile;
  QList<QImage> FImages;
};

}  // namespace kt
