#pragma once

#include "kt/rtl/conversions/EightBit.h"

#include <QByteArray>
#include <QString>

namespace ktform {

/// The whole file. Throws EFOpenError with the reason.
QByteArray LoadFile(const QString& fileName);

/// A form of whatever format as binary without a resource header; `encoding` is that of its text with bytes from 128
/// up. Throws what kt::ReadForm() throws.
QByteArray BinaryOf(const QByteArray& form, kt::TEightBitEncoding encoding);

/// Replaces the file as a whole: it holds the old content or the new, never a part. Throws EFCreateError or
/// EWriteError with the reason.
void SaveFile(const QString& fileName, const QByteArray& content);

}  // namespace ktform
