#include "kt/vcl/graphics/BitmapFile.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <QBuffer>
#include <QDataStream>
#include <QImage>

namespace kt {
namespace {

constexpr quint32 kFileHeaderSize = 14;
/// The fourth version of the picture header, the first with a mask for the alpha channel.
constexpr quint32 kHeaderSize = 108;
constexpr quint32 kWithMasks = 3;
constexpr quint32 kSRgb = 0x73524742;

QByteArray TranslucentFile(const QImage& image) {
  const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
  const auto lineSize = static_cast<quint32>(pixels.width()) * 4;
  const quint32 dataSize = lineSize * static_cast<quint32>(pixels.height());
  QByteArray file;
  QDataStream out(&file, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  out << quint8{'B'} << quint8{'M'} << (kFileHeaderSize + kHeaderSize + dataSize) << quint32{0}
      << (kFileHeaderSize + kHeaderSize);
  out << kHeaderSize << qint32{pixels.width()} << qint32{pixels.height()} << quint16{1} << quint16{32} << kWithMasks
      << dataSize << qint32{pixels.dotsPerMeterX()} << qint32{pixels.dotsPerMeterY()} << quint32{0} << quint32{0};
  out << quint32{0x00FF0000} << quint32{0x0000FF00} << quint32{0x000000FF} << quint32{0xFF000000} << kSRgb;
  // The end points and gammas of a colour space, which sRGB needs none of.
  out.writeRawData(QByteArray(48, '\0').constData(), 48);
  for (int y = pixels.height() - 1; y >= 0; --y) {
    const auto* line = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
    for (int x = 0; x < pixels.width(); ++x) out << line[x];
  }
  return file;
}

QByteArray OpaqueFile(const QImage& image) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "BMP");
  return buffer.data();
}

}  // namespace

void WriteBitmapFile(const QImage& image, QIODevice& stream) {
  const QByteArray file = image.hasAlphaChannel() ? TranslucentFile(image) : OpaqueFile(image);
  if (file.isEmpty() || stream.write(file) != file.size()) throw EWriteError(SWriteError.toString());
}

}  // namespace kt
