#include "kt/rtl/streams/ByteSource.h"

#include <QIODevice>

#include <algorithm>

namespace kt {
namespace {

constexpr qsizetype kSourceBlock = 64 * 1024;

}  // namespace

TByteSource::TByteSource(QByteArray data) : FBuffer(std::move(data)) {
  FCursor = FBuffer.constData();
  FEnd = FCursor + FBuffer.size();
}

TByteSource::TByteSource(QIODevice& device) : FDevice(&device) {
  FCursor = FBuffer.constData();
  FEnd = FCursor;
}

TByteSource::~TByteSource() {
  if (FDevice != nullptr && FEnd > FCursor && !FDevice->isSequential())
    FDevice->seek(FDevice->pos() - (FEnd - FCursor));
}

bool TByteSource::Fill(qsizetype count) {
  if (FDevice == nullptr) return false;
  DropTaken();
  // Grows by what has come so far, so a huge count in a short file costs nothing.
  while (FBuffer.size() < count)
    if (!ReadBlock(std::max(kSourceBlock, FBuffer.size()))) return false;
  return true;
}

void TByteSource::DropTaken() {
  const qsizetype taken = FCursor - FBuffer.constData();
  FBase += taken;
  FBuffer.remove(0, taken);
  FCursor = FBuffer.constData();
  FEnd = FCursor + FBuffer.size();
}

bool TByteSource::ReadBlock(qsizetype size) {
  const qsizetype held = FBuffer.size();
  FBuffer.resize(held + size);
  const qint64 got = FDevice->read(FBuffer.data() + held, size);
  FBuffer.resize(held + std::max<qint64>(got, 0));
  FCursor = FBuffer.constData();
  FEnd = FCursor + FBuffer.size();
  return got > 0;
}

}  // namespace kt
