#include "kt/KTObjectInspector.h"
#include "kt/rtl/objects/Make.h"
#include "support/Samples.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

/// The object inspector in a program that has an event queue at most.
class BareInspectorTest : public testing::Test {
 protected:
  TKTItemProperty& Item(const QString& path) { return *FInspector->GetItems().FindItemByFullPathName(path); }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TKTObjectInspector> FInspector = Make<TKTObjectInspector>();
};

TEST_F(BareInspectorTest, WithoutApplicationAnInspectorListsReadsAndWritesWhenItIsAsked) {
  EXPECT_EQ(nullptr, QCoreApplication::instance());
  FInspector->GetObjects().Add(FSample.get());
  FInspector->Rescan();
  EXPECT_EQ("0", Item("Whole").GetValueLine(0));
  Item("Whole").SetValueLine(0, "5");
  Item("Whole").Validate();
  EXPECT_EQ(5, FSample->Whole);
  FInspector->RefreshProperties();
  EXPECT_TRUE(Item("Whole").IsModified());
}

TEST_F(BareInspectorTest, WithAnEventQueueItListsAndTellsByItself) {
  int argc = 1;
  char name[] = "test";
  char* argv[] = {name, nullptr};
  const QCoreApplication application(argc, argv);
  QString told;
  FInspector->OnPropertyChanged = [&](TObject*, TKTItemProperty* item) { told = item->GetName(); };
  FInspector->GetObjects().Add(FSample.get());
  QCoreApplication::processEvents();
  Item("Big").SetValueLine(0, "5");
  Item("Big").Validate();
  EXPECT_EQ("", told);
  QCoreApplication::processEvents();
  EXPECT_EQ("Big", told);
}

}  // namespace
}  // namespace kt::tests
