// Elements of collections: in what order they are listed, and what becomes of them.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt::tests {
namespace {

/// Refers to an element, besides having some.
class TChoosingSample : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TChoosingSample>("TChoosingSample")
                                       .Property<&TChoosingSample::Chosen>("Chosen")
                                       .Property<&TChoosingSample::GetItems, &TChoosingSample::SetItems>("Items")
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  TSampleItems& GetItems() { return *FItems; }
  void SetItems(TSampleItems* value) { FItems->Assign(value); }

  TSampleItem* Chosen = nullptr;

 protected:
  explicit TChoosingSample(TComponent* owner = nullptr) : TComponent(owner) {}

 private:
  std::unique_ptr<TSampleItems> FItems = Make<TSampleItems>(nullptr);
};

class InspectorElementsTest : public TInspectorTest {
 protected:
  InspectorElementsTest() { FInspector->SetInplaceCollections(true); }
  static TSampleItem* AddBelow(TSampleItem* item, const QString& caption) {
    return static_cast<TSampleItems&>(item->GetChildren()).AddItem(caption);
  }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
};

TEST_F(InspectorElementsTest, ElementsOfElementsAreListedInTheirOrder) {
  TSampleItem* outer = FSample->GetItems().AddItem("outer");
  for (int i = 0; i < 11; ++i) AddBelow(outer, QString::number(i));
  Inspect({FSample.get()});
  TKTItemProperties& below = Item("Items.Items[0].Children").GetItems();
  ASSERT_EQ(11, below.GetCount());
  EXPECT_EQ("Items[2]", below.GetItem(2)->GetName());
  EXPECT_EQ("Items[10]", below.GetItem(10)->GetName());
  EXPECT_EQ("10", Value("Items.Items[0].Children.Items[10].Caption"));
}

TEST_F(InspectorElementsTest, APropertyOfAnElementsElementIsWritten) {
  FSample->GetItems().AddItem("first");
  TSampleItem* outer = FSample->GetItems().AddItem("second");
  AddBelow(outer, "one");
  TSampleItem* inner = AddBelow(outer, "two");
  Inspect({FSample.get()});
  Edit("Items.Items[1].Children.Items[1].Caption", "changed");
  EXPECT_EQ("changed", inner->GetCaption());
  EXPECT_EQ("one", static_cast<TSampleItem*>(outer->GetChildren().GetItem(0))->GetCaption());
  EXPECT_EQ("second", outer->GetCaption());
  FInspector->RefreshProperties();
  EXPECT_EQ("changed", Value("Items.Items[1].Children.Items[1].Caption"));
}

TEST_F(InspectorElementsTest, AnElementsPropertyIsWrittenToTheSameElementOfAllObjects) {
  FSample->GetItems().AddItem("a");
  FOther->GetItems().AddItem("b");
  Inspect({FSample.get(), FOther.get()});
  Edit("Items.Items[0].Caption", "c");
  EXPECT_EQ("c", FSample->GetItems().ItemAt(0)->GetCaption());
  EXPECT_EQ("c", FOther->GetItems().ItemAt(0)->GetCaption());
}

TEST_F(InspectorElementsTest, WithSeveralValueColumnsElementsOfOneObjectAloneAreListed) {
  UseSeveralColumns();
  FSample->GetItems().AddItem("a");
  FOther->GetItems().AddItem("b");
  Inspect({FSample.get()});
  EXPECT_EQ("a", Value("Items.Items[0].Caption"));
  // Where each object has a column, the collections do not count as equal.
  Inspect({FOther.get()});
  EXPECT_EQ("", NamesBelow("Items"));
}

TEST_F(InspectorElementsTest, WhereOneObjectsElementWasEnteredAlreadyTheOthersIsListed) {
  const auto first = Make<TChoosingSample>();
  const auto second = Make<TChoosingSample>();
  const auto elsewhere = Make<TSampleItems>(nullptr);
  first->Chosen = first->GetItems().AddItem("entered as the chosen one");
  second->Chosen = elsewhere->AddItem("chosen");
  second->GetItems().AddItem("not entered before");
  Inspect({first.get(), second.get()});
  EXPECT_EQ("Caption Children", NamesBelow("Chosen"));
  EXPECT_EQ("Caption Children", NamesBelow("Items.Items[0]"));
  // Both entered: nothing is listed twice.
  second->Chosen = second->GetItems().ItemAt(0);
  Rescan();
  EXPECT_EQ("", NamesBelow("Items.Items[0]"));
}

TEST_F(InspectorElementsTest, AnElementThatIsGoneHasTheTreeBuiltAnewByARefresh) {
  FSample->GetItems().AddItem("one");
  FSample->GetItems().AddItem("two");
  Inspect({FSample.get()});
  delete FSample->GetItems().ItemAt(0);
  FInspector->RefreshProperties();
  EXPECT_EQ("Items[0] Items[1]", NamesBelow("Items"));
  Deliver();
  EXPECT_EQ("Items[0]", NamesBelow("Items"));
  EXPECT_EQ("two", Value("Items.Items[0].Caption"));
}

TEST_F(InspectorElementsTest, AnInterfaceThatLeadsNowhereAnyMoreHasTheTreeBuiltAnewByARefresh) {
  FSample->Reference = FOther.get();
  Inspect({FSample.get()});
  EXPECT_NE("", NamesBelow("Reference"));
  FSample->Reference = nullptr;
  FInspector->RefreshProperties();
  EXPECT_NE("", NamesBelow("Reference"));
  Deliver();
  EXPECT_EQ("", NamesBelow("Reference"));
}

}  // namespace
}  // namespace kt::tests
