#include "kt/vcl/imagelist/ImageListStream.h"

#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

namespace kt {
namespace {

constexpr quint16 kListMagic = 0x4C49;
constexpr quint16 kListVersion = 0x0101;
constexpr quint16 kWithMask = 0x0001;
/// The kinds of pixels: those that say themselves how translucent they are, and those of the screen.
constexpr quint16 kKindOfPixels = 0x00FE;
constexpr quint16 kWithAlpha = 0x0020;
constexpr quint16 kOfScreen = 0x00FE;
constexpr quint32 kNoColor = 0xFFFFFFFF;
constexpr qsizetype kListHeader = 28;
constexpr int kOverlays = 4;

constexpr quint16 kBitmapMagic = 0x4D42;
constexpr quint32 kBitmapFileHeader = 14;
constexpr quint32 kBitmapInfoHeader = 40;
/// Pictures stand in rows of so many.
constexpr int kColumns = 4;
/// More than any list has, and little enough for all sums below.
constexpr qint32 kLargest = 1 << 20;

struct TListHeader {
  quint16 Magic = 0;
  quint16 Version = 0;
  quint16 Count = 0;
  quint16 Capacity = 0;
  quint16 Grow = 0;
  quint16 Width = 0;
  quint16 Height = 0;
  quint32 Ground = kNoColor;
  quint16 Flags = 0;
};

struct TBitmapInfo {
  qint32 Width = 0;
  qint32 Height = 0;
  int Depth = 0;
  quint32 OffsetOfBits = 0;
  qint64 LineSize = 0;
  qint64 Size() const { return OffsetOfBits + LineSize * std::abs(Height); }
};

template <class T>
T At(const QByteArray& bytes, qsizetype offset) {
  return qFromLittleEndian<T>(bytes.constData() + offset);
}

std::optional<TListHeader> ReadListHeader(const QByteArray& bytes) {
  if (bytes.size() < kListHeader) return {};
  TListHeader header;
  QDataStream in(bytes);
  in.setByteOrder(QDataStream::LittleEndian);
  in >> header.Magic >> header.Version >> header.Count >> header.Capacity >> header.Grow >> header.Width >>
      header.Height >> header.Ground >> header.Flags;
  const bool isKnown = header.Magic == kListMagic && header.Version == kListVersion;
  if (!isKnown || header.Width == 0 || header.Height == 0 || header.Count > header.Capacity) return {};
  return header;
}

std::optional<TBitmapInfo> ReadInfo(const QByteArray& bytes) {
  if (bytes.size() < kBitmapFileHeader + kBitmapInfoHeader || At<quint16>(bytes, 0) != kBitmapMagic) return {};
  const auto headerSize = At<quint32>(bytes, 14);
  TBitmapInfo info;
  info.Width = At<qint32>(bytes, 18);
  info.Height = At<qint32>(bytes, 22);
  info.Depth = At<quint16>(bytes, 28);
  const auto compression = At<quint32>(bytes, 30);
  const auto colors = At<quint32>(bytes, 46);
  static constexpr std::array kDepths = {1, 4, 8, 16, 24, 32};
  const bool isPlain = headerSize == kBitmapInfoHeader && compression == 0 &&
                       std::find(kDepths.begin(), kDepths.end(), info.Depth) != kDepths.end();
  const bool isOfSize = info.Width > 0 && info.Width <= kLargest && info.Height != 0 && info.Height >= -kLargest &&
                        info.Height <= kLargest && colors <= 256;
  if (!isPlain || !isOfSize) return {};
  const quint32 paletteSize = colors != 0 ? colors : info.Depth <= 8 ? 1U << info.Depth : 0;
  info.OffsetOfBits = kBitmapFileHeader + kBitmapInfoHeader + paletteSize * 4;
  info.LineSize = (qint64{info.Width} * info.Depth + 31) / 32 * 4;
  if (info.Size() > bytes.size()) return {};
  return info;
}

bool HasAlpha(const QByteArray& file, const TBitmapInfo& info) {
  for (qint64 at = info.OffsetOfBits + 3; at < info.Size(); at += 4) {
    if (file[at] != 0) return true;
  }
  return false;
}

QImage TranslucentImage(const QByteArray& file, const TBitmapInfo& info) {
  QImage image(info.Width, std::abs(info.Height), QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    const int line = info.Height > 0 ? image.height() - 1 - y : y;
    auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      pixels[x] = At<quint32>(file, info.OffsetOfBits + line * info.LineSize + qint64{x} * 4);
    }
  }
  return image;
}

/// Takes one bitmap file from the front of `bytes`. Translucent when `mayBeTranslucent` and it has what it takes.
QImage TakeBitmap(QByteArray& bytes, bool mayBeTranslucent) {
  const auto info = ReadInfo(bytes);
  if (!info) return {};
  QByteArray file = bytes.left(info->Size());
  bytes.remove(0, info->Size());
  if (mayBeTranslucent && info->Depth == 32 && HasAlpha(file, *info)) return TranslucentImage(file, *info);
  // These two do not always say where the pixels are.
  qToLittleEndian(static_cast<quint32>(file.size()), file.data() + 2);
  qToLittleEndian(info->OffsetOfBits, file.data() + 10);
  return QImage::fromData(file, "BMP").convertToFormat(QImage::Format_RGB32);
}

/// Makes transparent what is white in the mask.
void ApplyMask(QImage& image, const QImage& mask) {
  image.convertTo(QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
    const auto* masked = reinterpret_cast<const QRgb*>(mask.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(masked[x]) >= 128) pixels[x] = 0;
    }
  }
}

QRect PlaceOf(int index, const QSize& size, int columns) {
  return {{index % columns * size.width(), index / columns * size.height()}, size};
}

bool HoldsAll(const QImage& image, const TListHeader& header) {
  const int columns = image.width() / header.Width;
  return columns > 0 && qint64{columns} * (image.height() / header.Height) >= header.Count;
}

// Writing.

void WriteBitmapHeader(QDataStream& out, const QSize& size, quint16 depth, quint32 colors) {
  const quint32 lineSize = (static_cast<quint32>(size.width()) * depth + 31) / 32 * 4;
  const quint32 dataSize = lineSize * static_cast<quint32>(size.height());
  const quint32 offset = kBitmapFileHeader + kBitmapInfoHeader + colors * 4;
  out << kBitmapMagic << (offset + dataSize) << quint32{0} << offset;
  out << kBitmapInfoHeader << qint32{size.width()} << qint32{size.height()} << quint16{1} << depth << quint32{0}
      << dataSize << qint32{0} << qint32{0} << colors << quint32{0};
}

/// The pixels of all pictures, from below; with `withAlpha` those of them that say how translucent they are.
void WritePixels(QDataStream& out, const QImage& all, bool withAlpha) {
  WriteBitmapHeader(out, all.size(), 32, 0);
  for (int y = all.height() - 1; y >= 0; --y) {
    const auto* line = reinterpret_cast<const QRgb*>(all.constScanLine(y));
    for (int x = 0; x < all.width(); ++x) {
      const QRgb shown = qAlpha(line[x]) == 0 ? 0 : line[x];
      out << (withAlpha ? shown : shown & RGB_MASK);
    }
  }
}

void WriteMask(QDataStream& out, const QImage& all) {
  WriteBitmapHeader(out, all.size(), 1, 2);
  out << quint32{0} << quint32{RGB_MASK};
  const int lineSize = (all.width() + 31) / 32 * 4;
  for (int y = all.height() - 1; y >= 0; --y) {
    const auto* line = reinterpret_cast<const QRgb*>(all.constScanLine(y));
    QByteArray bits(lineSize, '\0');
    for (int x = 0; x < all.width(); ++x) {
      if (qAlpha(line[x]) == 0) bits[x / 8] = static_cast<char>(bits[x / 8] | 0x80 >> x % 8);
    }
    out.writeRawData(bits.constData(), lineSize);
  }
}

QImage AllInRows(const TImageListData& data, int rows) {
  QImage all(data.Size.width() * kColumns, data.Size.height() * rows, QImage::Format_ARGB32);
  all.fill(Qt::transparent);
  for (int i = 0; i < static_cast<int>(data.Images.size()); ++i) {
    const QRect place = PlaceOf(i, data.Size, kColumns);
    const QImage image = data.Images[i].convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < place.height(); ++y) {
      const auto* from = reinterpret_cast<const QRgb*>(image.constScanLine(y));
      auto* to = reinterpret_cast<QRgb*>(all.scanLine(place.y() + y));
      std::copy(from, from + place.width(), to + place.x());
    }
  }
  return all;
}

bool IsTranslucent(const QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    const auto isBetween = [](QRgb pixel) { return qAlpha(pixel) != 0 && qAlpha(pixel) != 255; };
    if (std::any_of(line, line + image.width(), isBetween)) return true;
  }
  return false;
}

}  // namespace

std::optional<TImageListData> ReadImageListStream(const QByteArray& bytes) {
  const auto header = ReadListHeader(bytes);
  if (!header) return {};
  QByteArray rest = bytes.mid(kListHeader);
  QImage all = TakeBitmap(rest, (header->Flags & kKindOfPixels) == kWithAlpha);
  if (all.isNull() || !HoldsAll(all, *header)) return {};
  TImageListData data;
  data.Size = {header->Width, header->Height};
  data.Grow = header->Grow;
  data.IsMasked = (header->Flags & kWithMask) != 0;
  if (data.IsMasked) {
    const QImage mask = TakeBitmap(rest, false);
    if (mask.width() < all.width() || mask.height() < all.height()) return {};
    ApplyMask(all, mask);
  }
  const int columns = all.width() / header->Width;
  for (int i = 0; i < header->Count; ++i) data.Images.push_back(all.copy(PlaceOf(i, data.Size, columns)));
  return data;
}

QByteArray WriteImageListStream(const TImageListData& data) {
  const auto count = static_cast<int>(data.Images.size());
  const int rows = std::max((count + kColumns - 1) / kColumns, 1);
  const QImage all = AllInRows(data, rows);
  const bool withAlpha = IsTranslucent(all);
  const auto flags = static_cast<quint16>((data.IsMasked ? kWithMask : 0) | (withAlpha ? kWithAlpha : kOfScreen));
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  out << kListMagic << kListVersion << static_cast<quint16>(count) << static_cast<quint16>(rows * kColumns)
      << static_cast<quint16>(data.Grow) << static_cast<quint16>(data.Size.width())
      << static_cast<quint16>(data.Size.height()) << kNoColor << flags;
  for (int i = 0; i < kOverlays; ++i) out << qint16{-1};
  WritePixels(out, all, withAlpha);
  if (data.IsMasked) WriteMask(out, all);
  return bytes;
}

}  // namespace kt
