#include "kt/vcl/graphics/KeptGraphic.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <QIODevice>

namespace kt {
namespace {

/// Some classes write their number of bytes first.
constexpr int kCountSize = 4;

QImage ImageIn(const QByteArray& bytes) {
  QImage image;
  if (!image.loadFromData(bytes)) image.loadFromData(bytes.mid(kCountSize));
  return image;
}

}  // namespace

const TClassInfo* TKeptGraphic::Class() {
  static const TClassInfo info = TClassBuilder<TKeptGraphic>("TKeptGraphic").Creatable().Done();
  return &info;
}

void TKeptGraphic::Assign(TPersistent* source) {
  const auto* kept = dynamic_cast<TKeptGraphic*>(source);
  if (!kept) return TGraphic::Assign(source);
  FStreamedClass = kept->FStreamedClass;
  FBytes = kept->FBytes;
  FImage = kept->FImage;
  Changed();
}

void TKeptGraphic::LoadFromStream(QIODevice& stream) {
  FBytes = stream.readAll();
  FImage = ImageIn(FBytes);
  Changed();
}

void TKeptGraphic::SaveToStream(QIODevice& stream) {
  if (stream.write(FBytes) != FBytes.size()) throw EWriteError(SWriteError.toString());
}

void TKeptGraphic::DrawOn(TCanvas& canvas, const QRect& rect) {
  if (!FImage.isNull()) DrawImageOn(canvas, rect, FImage);
}

}  // namespace kt
