#include "support/Images.h"

#include <QBuffer>
#include <QDataStream>

namespace kt::tests {
namespace {

QRgb PixelOf(QChar letter) {
  switch (letter.unicode()) {
    case u'#':
      return 0xFF000000;
    case u'r':
      return 0xFFFF0000;
    case u' ':
      return 0;
    default:
      return 0xFFFFFFFF;
  }
}

QChar LetterOf(QRgb pixel) {
  if (qAlpha(pixel) == 0) return u' ';
  if (pixel == 0xFF000000) return u'#';
  if (pixel == 0xFFFF0000) return u'r';
  return pixel == 0xFFFFFFFF ? u'.' : u'?';
}

}  // namespace

QImage ImageOf(const QStringList& rows) {
  const bool hasAlpha = rows.join(QString()).contains(u' ');
  QImage image(static_cast<int>(rows.first().size()), static_cast<int>(rows.size()),
               hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) image.setPixel(x, y, PixelOf(rows[y][x]));
  return image;
}

std::string LettersOf(const QImage& image) {
  QStringList rows;
  for (int y = 0; y < image.height(); ++y) {
    QString row;
    for (int x = 0; x < image.width(); ++x) row += LetterOf(image.pixel(x, y));
    rows.append(row);
  }
  return rows.join(u'/').toStdString();
}

QByteArray FileOf(const QImage& image, const char* format) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return buffer.data();
}

QByteArray IconOf(const QList<QImage>& images) {
  constexpr int kHeader = 6;
  constexpr int kEntry = 16;
  QByteArray file;
  QByteArray pictures;
  QDataStream out(&file, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  out << quint16{0} << quint16{1} << static_cast<quint16>(images.size());
  const auto start = static_cast<quint32>(kHeader + kEntry * images.size());
  for (const QImage& image : images) {
    const QByteArray picture = FileOf(image, "PNG");
    out << static_cast<quint8>(image.width()) << static_cast<quint8>(image.height()) << quint8{0} << quint8{0}
        << quint16{1} << quint16{32} << static_cast<quint32>(picture.size())
        << static_cast<quint32>(start + pictures.size());
    pictures += picture;
  }
  return file + pictures;
}

}  // namespace kt::tests
