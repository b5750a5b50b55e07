#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstring>

class QIODevice;

namespace kt {

/// Bytes to be written to memory or to a device, through one flat buffer.
///
/// A byte array gets its new content whole when `Flush` is called, and keeps the old one if that never happens.
class TByteSink {
 public:
  explicit TByteSink(QByteArray& target);
  /// The device must outlive the sink. What is not flushed is not written.
  explicit TByteSink(QIODevice& device);
  TByteSink(const TByteSink&) = delete;
  TByteSink& operator=(const TByteSink&) = delete;

  /// Room for `count` bytes; `Commit` says how many were used.
  char* Reserve(qsizetype count) {
    if (count > FEnd - FCursor) Grow(count);
    return FCursor;
  }
  void Commit(qsizetype count) { FCursor += count; }

  void Byte(char byte) {
    *Reserve(1) = byte;
    ++FCursor;
  }
  void Bytes(QByteArrayView bytes) {
    if (bytes.isEmpty()) return;
    std::memcpy(Reserve(bytes.size()), bytes.data(), std::size_t(bytes.size()));
    FCursor += bytes.size();
  }

  /// Hands everything over. Throws EWriteError when the device does not take it.
  void Flush();
  /// Count of bytes written so far.
  qint64 Position() const { return FWritten + (FCursor - FBuffer.constData()); }

 private:
  void Grow(qsizetype count);
  void WriteOut();
  void Restart(qsizetype size);

  QByteArray* FTarget = nullptr;
  QIODevice* FDevice = nullptr;
  QByteArray FBuffer;
  char* FCursor = nullptr;
  char* FEnd = nullptr;
  qint64 FWritten = 0;
};

}  // namespace kt
