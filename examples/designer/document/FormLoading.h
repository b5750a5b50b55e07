#pragma once

#include "kt/rtl/conversions/EightBit.h"
#include "kt/rtl/streams/FormErrors.h"
#include "kt/vcl/forms/Form.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace designer {

/// The whole file. Raises kt::EFOpenError with the reason.
QByteArray FileContent(const QString& fileName);

/// A form in whatever format as binary without a resource header. Raises what kt::ReadForm() raises.
QByteArray BinaryOf(const QByteArray& form, kt::TEightBitEncoding encoding);

/// How errors of a binary form that was made of `form` tell their place: as line and column when that is text.
kt::TPlaceWording PlacesIn(const QByteArray& form, kt::TEightBitEncoding encoding);

/// A live form in design mode. What nobody knows is kept.
std::unique_ptr<kt::TCustomForm> LoadDesignForm(const QByteArray& binary, const kt::TPlaceWording& places = {});

}  // namespace designer
