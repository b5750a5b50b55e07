#pragma once

#include <QByteArray>

class QIODevice;

namespace kt {

/// All that is left in an open device. Raises EReadError "Stream read error at offset %d: %s" with the number of bytes
/// that could be read when reading fails or stops before the end.
QByteArray ReadAll(QIODevice& device);

}  // namespace kt
