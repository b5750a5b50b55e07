#include "kt/vcl/graphics/Graphic.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/Filer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/Canvas.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QSaveFile>

namespace kt {

const TClassInfo* TGraphic::Class() {
  static const TClassInfo info = TClassBuilder<TGraphic>("TGraphic").Done();
  return &info;
}

void TGraphic::Changed() {
  FModified = true;
  const TNotifyEvent handler = OnChange;
  handler(this);
}

void TGraphic::SetModified(bool value) {
  if (value) return Changed();
  FModified = false;
}

void TGraphic::SetTransparent(bool value) {
  if (value == FTransparent) return;
  FTransparent = value;
  Changed();
}

void TGraphic::LoadFromFile(const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) throw EFOpenError(Format(SFOpenError, {fileName, file.errorString()}));
  LoadFromStream(file);
}

void TGraphic::SaveToFile(const QString& fileName) {
  QSaveFile file(fileName);
  if (!file.open(QIODevice::WriteOnly)) throw EFCreateError(Format(SFCreateError, {fileName, file.errorString()}));
  SaveToStream(file);
  if (!file.commit()) throw EFCreateError(Format(SFCreateError, {fileName, file.errorString()}));
}

bool TGraphic::Equals(TGraphic* other) {
  if (!other || other->ClassType() != ClassType() || other->IsEmpty() != IsEmpty()) return false;
  return other == this || IsEmpty() || WriteData() == other->WriteData();
}

void TGraphic::DrawImageOn(TCanvas& canvas, const QRect& rect, const QImage& image) {
  QPainter& painter = canvas.Painter();
  const bool isMirrored = painter.worldTransform().m11() < 0;
  painter.drawImage(rect, isMirrored ? image.mirrored(true, false) : image);
}

void TGraphic::ReadData(const QByteArray& data) {
  QBuffer buffer;
  buffer.setData(data);
  buffer.open(QIODevice::ReadOnly);
  LoadFromStream(buffer);
}

QByteArray TGraphic::WriteData() {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  SaveToStream(buffer);
  return buffer.data();
}

void TGraphic::DefineProperties(TFiler& filer) {
  TPersistent::DefineProperties(filer);
  auto* ancestor = dynamic_cast<TGraphic*>(filer.GetAncestor());
  const bool differs = ancestor ? !Equals(ancestor) : !IsEmpty();
  filer.DefineBinaryProperty(
      u"Data", [this](const QByteArray& data) { ReadData(data); }, [this] { return WriteData(); }, differs);
}

}  // namespace kt
