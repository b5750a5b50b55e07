#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/FormTextEdit.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/TextPlaces.h"
#include "kt/rtl/streams/UnknownComponent.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/PropPath.h"
#include "ktform/Commands.h"
#include "ktform/EncodingOption.h"
#include "ktform/FormFile.h"
#include "ktform/KeptValue.h"
#include "ktform/PublishedValue.h"

#include <memory>

namespace ktform {
namespace {

/// A property somewhere in a form: the component, and the path from there.
struct TFormProperty {
  kt::TComponent* Component;
  QStringView Path;
};

bool IsTextForm(const QByteArray& form) {
  const kt::TStreamOriginalFormat format = kt::TestStreamFormat(form);
  return format == kt::sofText || format == kt::sofUnknown;
}

/// Errors tell the line when the form is text.
std::unique_ptr<kt::TComponent> LoadForm(const QByteArray& form, const QByteArray& binary,
                                         kt::TEightBitEncoding encoding) {
  kt::TReader reader(binary);
  if (IsTextForm(form)) reader.SetPlaceWording(kt::PlacesInText(form, encoding));
  reader.UnknownClasses = kt::upKeep;
  reader.UnknownProperties = kt::upKeep;
  return std::unique_ptr<kt::TComponent>(reader.ReadRootComponent(nullptr));
}

/// Names of components first, as many as there are; the rest is the path of a property.
TFormProperty FindProperty(kt::TComponent* root, QStringView path) {
  TFormProperty found{root, path};
  const qsizetype dot = path.indexOf(u'.');
  if (dot >= 0 && path.left(dot).compare(root->GetName(), Qt::CaseInsensitive) == 0) found.Path = path.sliced(dot + 1);
  for (qsizetype next = found.Path.indexOf(u'.'); next >= 0; next = found.Path.indexOf(u'.')) {
    kt::TComponent* child = found.Component->FindComponent(found.Path.left(next));
    if (!child) break;
    found = {child, found.Path.sliced(next + 1)};
  }
  return found;
}

void SetProperty(kt::TComponent* root, const TFormProperty& property, const QString& value) {
  const bool isUnknown = dynamic_cast<kt::TUnknownComponent*>(property.Component) != nullptr;
  if (isUnknown || HasKeptValue(property.Component, property.Path)) {
    return SetKeptValue(property.Component, property.Path, value);
  }
  SetPublishedValue(root, kt::FindPropTarget(property.Component, property.Path), value);
}

void Assign(kt::TComponent* root, const QString& assignment) {
  const qsizetype equals = assignment.indexOf(u'=');
  if (equals <= 0) throw kt::EConvertError(QStringLiteral("'%1' is not of the form Path=Value").arg(assignment));
  const QString path = assignment.left(equals);
  try {
    SetProperty(root, FindProperty(root, path), assignment.mid(equals + 1));
  } catch (const kt::Exception& error) {
    throw kt::EPropertyError(QStringLiteral("cannot set %1: %2").arg(path, error.Message()));
  }
}

/// A form as the writer writes it, without and with the changes.
struct TWrittenForms {
  QByteArray Before;
  QByteArray After;
};

/// Makes the changes in memory, where nothing of the objects stays.
TWrittenForms WrittenForms(const QByteArray& form, const QByteArray& binary, const QStringList& assignments,
                           kt::TEightBitEncoding encoding) {
  const std::unique_ptr<kt::TComponent> root = LoadForm(form, binary, encoding);
  const QByteArray before = kt::WriteComponentToBinary(root.get());
  for (const QString& assignment : assignments) Assign(root.get(), assignment);
  return {before, kt::WriteComponentToBinary(root.get())};
}

/// The result has the format and manner of the file that `form` came from.
QByteArray Changed(const QByteArray& form, const QStringList& assignments, kt::TEightBitEncoding encoding) {
  const QByteArray binary = BinaryOf(form, encoding);
  const auto [before, after] = WrittenForms(form, binary, assignments, encoding);
  return kt::EditFormFile(form, before, after, encoding);
}

}  // namespace

TExitStatus RunSet(const QStringList& arguments) {
  QStringList names = arguments;
  const kt::TEightBitEncoding encoding = TakeEncoding(names);
  if (names.size() < 3 || !AreFileNames(names.mid(0, 2), 2)) return esWrongUsage;
  SaveFile(names[1], Changed(LoadFile(names[0]), names.mid(2), encoding));
  return esDone;
}

}  // namespace ktform
