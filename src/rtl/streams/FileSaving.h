#pragma once

#include "kt/rtl/streams/FormConversion.h"

#include <QByteArrayView>
#include <QString>

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

}  // namespace kt
