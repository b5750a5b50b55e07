#pragma once

#include "kt/vcl/graphics/Graphic.h"

#include <QImage>

namespace kt {

/// Stands in for a picture of a class that the program does not know, so that a form that is loaded and saved loses
/// nothing. Where Qt can read the bytes it is shown all the same.
class TKeptGraphic : public TGraphic {
 public:
  using Inherited = TGraphic;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// The class that the bytes were written by.
  const QString& GetStreamedClass() const { return FStreamedClass; }
  void SetStreamedClass(const QString& value) { FStreamedClass = value; }

  bool IsEmpty() const override { return FBytes.isEmpty(); }
  /// 0 where the bytes are no picture that Qt can read; setting does nothing.
  int GetWidth() const override { return FImage.width(); }
  void SetWidth(int) override {}
  int GetHeight() const override { return FImage.height(); }
  void SetHeight(int) override {}
  QImage ToImage() const override { return FImage; }

  void Assign(TPersistent* source) override;
  void LoadFromStream(QIODevice& stream) override;
  void SaveToStream(QIODevice& stream) override;
  void DrawOn(TCanvas& canvas, const QRect& rect) override;

 protected:
  TKeptGraphic() = default;

 private:
  QString FStreamedClass;
  QByteArray FBytes;
  QImage FImage;
};

}  // namespace kt
