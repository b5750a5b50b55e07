#pragma once

#include <QByteArray>
#include <QString>

namespace ktform {

/// The whole file. Throws EFOpenError with the reason.
QByteArray LoadFile(const QString& fileName);

/// Replaces the file as a whole: it holds the old content or the new, never a part. Throws EFCreateError or
/// EWriteError with the reason.
void SaveFile(const QString& fileName, const QByteArray& content);

}  // namespace ktform
