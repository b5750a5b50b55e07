#include "designer/document/FormLoading.h"

#include "designer/document/DesignForm.h"
#include "kt/KTObjectInspector.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/ReadAll.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/TextPlaces.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace designer {

QByteArray FileContent(const QString& fileName) {
  QFile file(fileName);
  const auto fail = [&fileName](const QString& reason) {
    throw kt::EFOpenError(kt::Format(kt::SFOpenError, {QFileInfo(fileName).absoluteFilePath(), reason}));
  };
  if (QFileInfo(fileName).isDir()) fail(QStringLiteral("It is a folder"));
  if (!file.open(QIODevice::ReadOnly)) fail(file.errorString());
  return kt::ReadAll(file);
}

QByteArray BinaryOf(const QByteArray& form, kt::TEightBitEncoding encoding) {
  kt::TFormOptions options;
  options.Encoding = encoding;
  return kt::FormToBinary(form, options);
}

kt::TPlaceWording PlacesIn(const QByteArray& form, kt::TEightBitEncoding encoding) {
  const kt::TStreamOriginalFormat format = kt::TestStreamFormat(form);
  const bool isText = format != kt::sofBinary && format != kt::sofResource;
  return isText ? kt::PlacesInText(form, encoding) : kt::TPlaceWording();
}

std::unique_ptr<kt::TCustomForm> LoadDesignForm(const QByteArray& binary, const kt::TPlaceWording& places) {
  kt::RegisterObjectInspector();
  kt::TReader reader(binary);
  reader.UnknownClasses = kt::upKeep;
  reader.UnknownProperties = kt::upKeep;
  if (places) reader.SetPlaceWording(places);
  // The root is asked for first.
  reader.OnFindComponentClass = [isRoot = true](const QString& className) mutable {
    return std::exchange(isRoot, false) ? TDesignForm::ClassNamed(className) : nullptr;
  };
  return reader.ReadRoot<kt::TCustomForm>();
}

}  // namespace designer
