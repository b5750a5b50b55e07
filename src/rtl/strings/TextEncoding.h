#pragma once

#include <QByteArray>
#include <QString>

namespace kt {

/// The text in a file's bytes: by its byte-order mark (UTF-8, UTF-16, UTF-32), else UTF-8, else, when the bytes are no
/// valid UTF-8, Windows-1252, which covers the printable part of Latin-1. The mark is not part of the text. Never
/// fails.
QString DecodeText(const QByteArray& bytes);

/// UTF-8 that DecodeText() turns back into `text`; without a byte-order mark.
QByteArray EncodeText(const QString& text);

}  // namespace kt
