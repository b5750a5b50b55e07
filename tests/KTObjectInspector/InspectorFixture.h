#pragma once

#include "kt/KTObjectInspector.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringList.h"
#include "support/Print.h"
#include "support/Samples.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace kt::tests {

/// An inspector with no window, for tests of what it lists and writes.
class TInspectorTest : public testing::Test {
 protected:
  /// Has the inspector do what it has asked itself for.
  static void Deliver() { QCoreApplication::sendPostedEvents(); }

  void Inspect(std::initializer_list<TObject*> objects) {
    for (TObject* object : objects) FInspector->GetObjects().Add(object);
    Deliver();
  }
  void Rescan() { FInspector->Rescan(); }
  /// A value column for each object.
  void UseSeveralColumns(bool value = true) {
    TILEDisplayOptions options = FInspector->GetDisplayOptions();
    options.Put(doMultiColValues, value);
    FInspector->SetDisplayOptions(options);
  }

  TKTItemProperties& Items() { return FInspector->GetItems(); }
  TKTItemProperty* Find(const QString& path) { return Items().FindItemByFullPathName(path); }
  /// By its full path name; the test fails without it.
  TKTItemProperty& Item(const QString& path) {
    TKTItemProperty* item = Find(path);
    if (!item) throw std::runtime_error("no item " + path.toStdString());
    return *item;
  }
  QString Value(const QString& path) { return Item(path).GetValueLine(0); }

  /// Types a text into an item and has it accepted, as the grid does.
  void Edit(const QString& path, const QString& text) {
    Item(path).SetValueLine(0, text);
    Item(path).Validate();
  }

  /// The names of a level: "a b c".
  static QString Names(TKTItemProperties& items) {
    QStringList names;
    for (int i = 0; i < items.GetCount(); ++i) names += items.GetItem(i)->GetName();
    return names.join(u' ');
  }
  /// The names below an item.
  QString NamesBelow(const QString& path) {
    TKTItemProperty& item = Item(path);
    return item.HasItems() ? Names(item.GetItems()) : QString();
  }

  std::unique_ptr<TKTObjectInspector> FInspector = Make<TKTObjectInspector>();
};

}  // namespace kt::tests
