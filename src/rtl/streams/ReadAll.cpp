#include "kt/rtl/streams/ReadAll.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FormErrors.h"

#include <QIODevice>

#include <algorithm>

namespace kt {

QByteArray ReadAll(QIODevice& device) {
  constexpr qint64 kChunk = 64 * 1024;
  QByteArray data;
  for (;;) {
    const qsizetype size = data.size();
    data.resize(size + kChunk);
    const qint64 count = device.isReadable() ? device.read(data.data() + size, kChunk) : -1;
    data.resize(size + std::max<qint64>(count, 0));
    if (count > 0) continue;
    // A sequential device tells its end by a failure.
    const bool isAtEnd = device.isReadable() && device.atEnd() && (count == 0 || device.isSequential());
    if (isAtEnd) return data;
    const QString where = AtOffset(SReadError.toString(), size, QString());
    throw EReadError(where + QStringLiteral(": ") + device.errorString());
  }
}

}  // namespace kt
