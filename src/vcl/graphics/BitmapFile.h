#pragma once

class QIODevice;
class QImage;

namespace kt {

/// Writes `image` as a BMP file: as Qt writes it, but with 32 bits a pixel and a mask for them where pixels are
/// translucent, which Qt would lose. Raises EWriteError "Stream write error".
void WriteBitmapFile(const QImage& image, QIODevice& stream);

}  // namespace kt
