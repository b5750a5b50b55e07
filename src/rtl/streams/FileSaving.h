#pragma once

#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/Reader.h"

#include <QByteArrayView>
#include <QString>

#include <memory>

namespace kt {

class TComponent;

/// Replaces a file as a whole: afterwards it holds all of `bytes`, or, when saving fails in whatever way, what it held
/// before, and nothing else is left in its folder. Raises EFCreateError "Cannot create file "%s". %s" when the file or
/// its folder cannot be written at all, and EWriteError "Cannot write file "%s". %s" when not all bytes could be
/// stored.
void SaveBytesToFile(const QString& fileName, QByteArrayView bytes);

/// Saves a component and its children in that way, as binary, as text or as a resource; sofUnknown stands for binary.
/// Raises also what WriteComponentToBinary() raises, before the file is touched.
void SaveComponentToFile(const QString& fileName, TComponent* component, TStreamOriginalFormat format = sofBinary);

/// How a file is loaded.
struct TLoadOptions {
  /// What to do with unknown classes and with unknown properties.
  TUnknownPolicy UnknownClasses = upRaise;
  TUnknownPolicy UnknownProperties = upRaise;
  /// Of 8-bit strings in binary, and of text that is not Unicode.
  TEightBitEncoding Encoding = eeWindows1252;
};

/// Reads a component and its children from a file in any of these formats; into `root`, which must not be null, or into
/// a new one. What is neither binary nor a resource is taken for text. The form must be all there is in the file, but
/// for zero bytes. Raises EFOpenError "Cannot open file "%s". %s"; what the content makes a reader raise (see TReader;
/// of a text EParserError) has the file's name before its message, and of a text line and column as its place.
void LoadComponentFromFile(const QString& fileName, TComponent* root, const TLoadOptions& options = {});
std::unique_ptr<TComponent> LoadComponentFromFile(const QString& fileName, const TLoadOptions& options = {});

}  // namespace kt
