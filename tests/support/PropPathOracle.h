#pragma once

#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/streams/BinaryWriter.h"
#include "kt/rtl/streams/Fixups.h"
#include "kt/rtl/streams/FormPath.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropPath.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "support/LiveOracle.h"

#include <QStringList>

/// What must hold for any text that is taken for the path of a property or a component. Shared by the fuzz target and
/// by the tests that run its corpus.
namespace kt::oracle {

/// The object that one part of a path leads to, found in the simplest way; null where there is none.
inline TObject* SimpleStep(TObject* object, const QString& part) {
  const TPropInfo* property = GetPropInfo(object, part.section(u'[', 0, 0), {tkClass});
  TObject* value = property ? GetObjectProp(object, property) : nullptr;
  if (!part.contains(u'[')) return value;
  auto* collection = dynamic_cast<TCollection*>(value);
  bool isNumber = false;
  const QString brackets = part.section(u'[', 1);
  const int index = brackets.chopped(brackets.endsWith(u']') ? 1 : 0).toInt(&isNumber);
  const bool isItem = collection && isNumber && brackets.endsWith(u']') && index >= 0 && index < collection->GetCount();
  return isItem ? collection->GetItem(index) : nullptr;
}

inline TPropTarget SimpleTarget(TObject* object, const QString& path) {
  const QStringList parts = path.split(u'.');
  for (qsizetype i = 0; object && i + 1 < parts.size(); ++i) object = SimpleStep(object, parts[i]);
  return {object, object ? GetPropInfo(object, parts.last()) : nullptr};
}

/// A form that gives the property of that path a number.
inline QByteArray FormWithPath(const QString& path) {
  QByteArray form = "TPF0\7TSample" + QByteArray(1, '\0');
  const QByteArray name = path.toUtf8();
  form += static_cast<char>(name.size()) + name + "\2\1" + QByteArray(2, '\0');
  return form;
}

/// What a component publishes by DefineProperties().
inline bool IsDefined(const QString& path) {
  const QString name = path.section(u'.', -1);
  return SameText(name, u"Left") || SameText(name, u"Top");
}

/// A form takes a value only where the path leads.
inline void CheckPathInForm(tests::TSample& root, const QString& path, const TPropTarget& target) {
  const QByteArray name = path.toUtf8();
  if (name.isEmpty() || name.size() > 255 || name.contains('\0')) return;
  try {
    TReader(FormWithPath(path)).ReadRootComponent(&root);
    Require(target.Property || IsDefined(path), "a form sets what its path leads to");
  } catch (const Exception& error) {
    RequirePlace(error);
  }
}

inline void CheckPropPath(const QByteArray& bytes) {
  RegisterClass(tests::TSample::Class());
  const QString path = QString::fromUtf8(bytes).left(1024);
  const std::unique_ptr<tests::TSample> root = ExistingForm();
  root->Partner = root.get();
  root->GetItems().ItemAt(1)->GetChildren().Add();
  const TPropTarget expected = SimpleTarget(root.get(), path);
  TPropTarget found{nullptr, nullptr};
  try {
    found = FindPropTarget(root.get(), path);
  } catch (const EPropertyError&) {
  } catch (const EListError&) {
  }
  Require(found.Property == expected.Property, "the path leads where a simple walk leads");
  Require(!found.Property || found.Instance == expected.Instance, "the object is that of a simple walk");
  const TComponent* component = FindNestedComponent(root.get(), path);
  Require(!component || component == root.get() || component->GetOwnerComponent(), "a component is one of the form");
  CheckPathInForm(*root, path, expected);
}

}  // namespace kt::oracle
