#include "inspectdump/InspectedForm.h"

#include "inspectdump/InspectedText.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/streams/FileSaving.h"

#include <QFile>

using namespace kt;

namespace {

TStreamOriginalFormat FormatOf(const QString& fileName) {
  QFile file(fileName);
  // Whoever loads the file next tells why it cannot be opened.
  if (!file.open(QIODevice::ReadOnly)) return sofUnknown;
  const TStreamOriginalFormat format = TestStreamFormat(file.readAll());
  return format == sofUnknown ? sofText : format;
}

}  // namespace

TInspectedForm::TInspectedForm(const QString& fileName) : FFileName(fileName), FFormat(FormatOf(fileName)) {
  RegisterObjectInspector();
  TLoadOptions options;
  options.UnknownClasses = upKeep;
  options.UnknownProperties = upKeep;
  FForm = LoadComponentFromFile(fileName, options);
  FInspector = Make<TKTObjectInspector>();
  // What a component refers to has a tree of its own.
  FInspector->SetInplaceComponents(false);
  FInspector->SetInplaceCollections(true);
  FInspector->SetInplaceTStrings(true);
}

TInspectedForm::~TInspectedForm() = default;

void TInspectedForm::Inspect(TComponent* component) {
  FInspector->SetInspectedComponent(component);
  FInspector->Rescan();
}

QString TInspectedForm::TextOf(TComponent* component, int level) {
  const QString indent(2 * level, u' ');
  QString text = QStringLiteral("%1%2: %3\n").arg(indent, component->GetName(), component->ClassName());
  text += TextOfProperties(*FInspector, component, level + 1);
  for (int i = 0; i < component->GetComponentCount(); ++i) {
    TComponent* child = component->GetComponents(i);
    if (!child->GetComponentStyle().Has(csSubComponent)) text += TextOf(child, level + 1);
  }
  return text;
}

QString TInspectedForm::Text() { return TextOf(FForm.get(), 0); }

/// Takes the names of components off the path.
TComponent* TInspectedForm::TakeComponent(QString& path) const {
  TComponent* component = FForm.get();
  const QString own = component->GetName() + u'.';
  if (path.startsWith(own, Qt::CaseInsensitive)) path.remove(0, own.size());
  for (qsizetype end = path.indexOf(u'.'); end >= 0; end = path.indexOf(u'.')) {
    TComponent* child = component->FindComponent(QStringView(path).left(end));
    if (!child) break;
    component = child;
    path.remove(0, end + 1);
  }
  return component;
}

void TInspectedForm::SetValue(const QString& path, const QString& value) {
  QString rest = path;
  TComponent* component = TakeComponent(rest);
  const bool hadCategories = FInspector->GetArrangeByCategory();
  FInspector->SetArrangeByCategory(false);
  Inspect(component);
  TKTItemProperty* item = FInspector->GetItems().FindItemByFullPathName(rest);
  FInspector->SetArrangeByCategory(hadCategories);
  if (!item) throw EPropertyError(QStringLiteral("%1: there is no such property").arg(path));
  // A set takes its members as one text, too.
  if (item->IsReadOnly() && item->GetTypeKind() != tkSet) {
    throw EPropertyError(QStringLiteral("%1: the property is read-only").arg(path));
  }
  item->SetValueLine(0, value);
  item->Validate();
}

void TInspectedForm::Save() { SaveComponentToFile(FFileName, FForm.get(), FFormat); }
