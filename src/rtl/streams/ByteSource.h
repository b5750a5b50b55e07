#pragma once

#include <QByteArray>

class QIODevice;

namespace kt {

/// Bytes to be read from memory or from a device, through one flat buffer: no virtual call per byte.
///
/// Never holds more memory than a small multiple of what the device really delivered, whatever length a caller asks
/// for.
class TByteSource {
 public:
  explicit TByteSource(QByteArray data);
  /// Reads ahead in blocks; the device must outlive the source.
  explicit TByteSource(QIODevice& device);
  /// Sets a random-access device back to the first byte that was not taken.
  ~TByteSource();
  TByteSource(const TByteSource&) = delete;
  TByteSource& operator=(const TByteSource&) = delete;

  /// `count` contiguous bytes, good until the next call; null (and nothing taken) when fewer are left.
  const char* Take(qsizetype count) {
    if (count > FEnd - FCursor && !Fill(count)) return nullptr;
    const char* bytes = FCursor;
    FCursor += count;
    return bytes;
  }
  /// The next byte without taking it, or -1 at the end.
  int Peek() {
    if (FCursor == FEnd && !Fill(1)) return -1;
    return quint8(*FCursor);
  }
  /// Goes on at another offset. Only where all bytes are in memory (the first constructor).
  void Seek(qint64 position) { FCursor = FBuffer.constData() + (position - FBase); }
  /// Offset of the next byte from where reading began.
  qint64 Position() const { return FBase + (FCursor - FBuffer.constData()); }
  /// Memory held, in bytes.
  qsizetype BufferSize() const { return FBuffer.size(); }

 private:
  bool Fill(qsizetype count);
  void DropTaken();
  bool ReadBlock(qsizetype size);

  QIODevice* FDevice = nullptr;
  QByteArray FBuffer;
  const char* FCursor = nullptr;
  const char* FEnd = nullptr;
  qint64 FBase = 0;
};

}  // namespace kt
