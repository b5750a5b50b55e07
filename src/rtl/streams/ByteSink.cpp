#include "kt/rtl/streams/ByteSink.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FormErrors.h"

#include <QIODevice>

#include <algorithm>

namespace kt {
namespace {

constexpr qsizetype kSinkBlock = 64 * 1024;

}  // namespace

TByteSink::TByteSink(QByteArray& target) : FTarget(&target) { Restart(4096); }

TByteSink::TByteSink(QIODevice& device) : FDevice(&device) { Restart(kSinkBlock); }

void TByteSink::Restart(qsizetype size) {
  FBuffer.resize(size);
  FCursor = FBuffer.data();
  FEnd = FCursor + size;
}

void TByteSink::Grow(qsizetype count) {
  if (FDevice != nullptr) {
    WriteOut();
    if (count > FBuffer.size()) Restart(count);
    return;
  }
  const qsizetype used = FCursor - FBuffer.constData();
  const qsizetype size = std::max(used + count, FBuffer.size() * 2);
  FBuffer.reserve(size);  // resize() alone would take twice as much again.
  FBuffer.resize(size);
  FCursor = FBuffer.data() + used;
  FEnd = FBuffer.data() + FBuffer.size();
}

void TByteSink::WriteOut() {
  const char* from = FBuffer.constData();
  while (from < FCursor) {
    const qint64 done = FDevice->write(from, FCursor - from);
    if (done <= 0) throw EWriteError(AtOffset(QString(SWriteError), FWritten, QString()));
    FWritten += done;
    from += done;
  }
  FCursor = FBuffer.data();
}

void TByteSink::Flush() {
  if (FDevice != nullptr) return WriteOut();
  FBuffer.truncate(FCursor - FBuffer.constData());
  if (FWritten == 0) {
    FWritten = FBuffer.size();
    *FTarget = std::move(FBuffer);
  } else {
    FWritten += FBuffer.size();
    FTarget->append(FBuffer);
  }
  FBuffer = QByteArray();
  Restart(0);
}

}  // namespace kt
