#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/BinaryFormWriter.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/UnknownComponent.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/PropPath.h"
#include "ktform/Commands.h"
#include "ktform/FormFile.h"
#include "ktform/FormTextEdit.h"
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

std::unique_ptr<kt::TComponent> LoadForm(const QByteArray& form) {
  QByteArray binary;
  kt::TBinaryWriter output(binary);
  kt::TBinaryFormWriter writer(output);
  kt::ReadForm(form, writer);
  output.Flush();
  kt::TReader reader(binary);
  reader.UnknownClasses = kt::upKeep;
  reader.UnknownProperties = kt::upKeep;
  return std::unique_ptr<kt::TComponent>(reader.ReadRootComponent(nullptr));
}

/// The changed form in the format and manner of the file it came from.
QByteArray InFormatOf(const QByteArray& original, const QByteArray& before, const QByteArray& after) {
  switch (kt::TestStreamFormat(original)) {
    case kt::sofBinary:
      return after;
    case kt::sofResource:
      return kt::WithResourceHeader(after);
    default:
      return EditFormText(original, before, after);
  }
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

}  // namespace

TExitStatus RunSet(const QStringList& arguments) {
  if (arguments.size() < 3 || !AreFileNames(arguments.mid(0, 2), 2)) return esWrongUsage;
  const QByteArray form = LoadFile(arguments[0]);
  const std::unique_ptr<kt::TComponent> root = LoadForm(form);
  const QByteArray before = kt::WriteComponentToBinary(root.get());
  for (const QString& assignment : arguments.mid(2)) Assign(root.get(), assignment);
  SaveFile(arguments[1], InFormatOf(form, before, kt::WriteComponentToBinary(root.get())));
  return esDone;
}

}  // namespace ktform
