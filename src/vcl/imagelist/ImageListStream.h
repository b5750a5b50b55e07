#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <optional>
#include <vector>

namespace kt {

/// The pictures of an image list, all of one size, as streams of image lists hold them.
struct TImageListData {
  QSize Size;
  /// By how many pictures the list grows when it is full.
  int Grow = 4;
  /// Whether there is a mask beside the pixels.
  bool IsMasked = true;
  /// Transparent where the mask says so.
  std::vector<QImage> Images;
};

/// Reads the stream that operating systems write an image list as: "IL" and a version, the numbers of pictures, their
/// size, and two bitmap files that hold all pictures in rows, pixels and mask. Pixels of 1 to 32 bits are understood.
/// Nothing for anything else, and for whatever is cut off.
std::optional<TImageListData> ReadImageListStream(const QByteArray& bytes);
/// Writes such a stream, with 32 bits a pixel.
QByteArray WriteImageListStream(const TImageListData& data);

}  // namespace kt
