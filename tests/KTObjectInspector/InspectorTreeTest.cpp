// What an inspector lists of its objects.
#include "KTObjectInspector/InspectorFixture.h"

namespace kt::tests {
namespace {

class InspectorTreeTest : public TInspectorTest {
 protected:
  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
};

TEST_F(InspectorTreeTest, WithoutObjectsTheTreeIsEmpty) {
  Rescan();
  EXPECT_EQ(0, Items().GetCount());
}

TEST_F(InspectorTreeTest, AFirstEntryWithoutObjectLeavesTheTreeEmptyWhateverFollows) {
  FInspector->GetObjects().Add();
  Inspect({FSample.get()});
  EXPECT_EQ(0, Items().GetCount());
  FInspector->GetObjects().GetItem(0)->SetObjects(FOther.get());
  Deliver();
  EXPECT_NE(0, Items().GetCount());
}

TEST_F(InspectorTreeTest, AFurtherEntryWithoutObjectIsPassedOver) {
  UseSeveralColumns();
  FInspector->GetObjects().Add(FSample.get());
  FInspector->GetObjects().Add();
  Inspect({FOther.get()});
  EXPECT_EQ(3, FInspector->GetColCount());
  EXPECT_NE(nullptr, Find("Whole"));
}

TEST_F(InspectorTreeTest, WithoutObjectsSeveralValueColumnsComeToOne) {
  Inspect({FSample.get(), FOther.get()});
  UseSeveralColumns();
  Deliver();
  EXPECT_EQ(3, FInspector->GetColCount());
  FInspector->GetObjects().Clear();
  Deliver();
  EXPECT_EQ(2, FInspector->GetColCount());
}

TEST_F(InspectorTreeTest, PublishedPropertiesAreListedByName) {
  const auto part = Make<TSamplePart>();
  Inspect({part.get()});
  EXPECT_EQ("Size Style Title", Names(Items()));
}

TEST_F(InspectorTreeTest, UnsortedTheyAreListedAsTheyAreDeclared) {
  const auto part = Make<TSamplePart>();
  FInspector->SetSorted(false);
  Inspect({part.get()});
  EXPECT_EQ("Size Title Style", Names(Items()));
}

TEST_F(InspectorTreeTest, OnlyTheDisplayedKindsAreListed) {
  FInspector->SetDisplayKinds({tkSet, tkChar});
  Inspect({FSample.get()});
  EXPECT_EQ("Letter Styles", Names(Items()));
}

TEST_F(InspectorTreeTest, EventsAreListedWhenTheirKindIs) {
  FInspector->SetDisplayKinds(tkMethods);
  Inspect({FSample.get()});
  EXPECT_EQ("OnAction", Names(Items()));
  EXPECT_EQ("TNotifyEvent", Value("OnAction"));
  EXPECT_TRUE(Item("OnAction").IsReadOnly());
}

TEST_F(InspectorTreeTest, APropertyWithoutSetterIsReadOnly) {
  Inspect({FSample.get()});
  EXPECT_TRUE(Item("Double").IsReadOnly());
  EXPECT_FALSE(Item("Whole").IsReadOnly());
}

TEST_F(InspectorTreeTest, AnOwnedObjectIsReadOnlyAndAReferenceIsNot) {
  FSample->Partner = FOther.get();
  Inspect({FSample.get()});
  EXPECT_TRUE(Item("Part").IsReadOnly());
  EXPECT_FALSE(Item("Partner").IsReadOnly());
  EXPECT_FALSE(Item("Sibling").IsReadOnly());
}

// Enumerations.

TEST_F(InspectorTreeTest, AnEnumerationOffersItsNamesSorted) {
  Inspect({FSample.get()});
  EXPECT_EQ("saBottom,saNone,saTop", Item("Align").GetPickList().GetCommaText());
  EXPECT_EQ(esPickList, Item("Align").GetEditStyle());
}

TEST_F(InspectorTreeTest, TruthValuesOfferFalseAndTrue) {
  Inspect({FSample.get()});
  EXPECT_EQ("False,True", Item("Flag").GetPickList().GetCommaText());
  EXPECT_EQ("False,True", Item("Wide").GetPickList().GetCommaText());
}

// Sets.

TEST_F(InspectorTreeTest, ASetHasItsMembersBelowInTheOrderOfTheirDeclaration) {
  FSample->Styles = {ssItalic};
  Inspect({FSample.get()});
  EXPECT_EQ("ssBold ssItalic ssUnderline", NamesBelow("Styles"));
  EXPECT_EQ("False", Value("Styles.ssBold"));
  EXPECT_EQ("True", Value("Styles.ssItalic"));
  EXPECT_EQ(pkSet, Item("Styles").GetPropertyKind());
  EXPECT_EQ(pkSetMember, Item("Styles.ssBold").GetPropertyKind());
  EXPECT_EQ("Boolean", Item("Styles.ssBold").GetTypeName());
  EXPECT_EQ("False,True", Item("Styles.ssBold").GetPickList().GetCommaText());
  EXPECT_FALSE(Item("Styles").GetItems().GetSorted());
}

TEST_F(InspectorTreeTest, ASetIsReadOnlyAndItsMembersAreNot) {
  Inspect({FSample.get()});
  EXPECT_TRUE(Item("Styles").IsReadOnly());
  EXPECT_FALSE(Item("Styles.ssBold").IsReadOnly());
}

// Objects.

TEST_F(InspectorTreeTest, AnOwnedObjectHasItsPropertiesBelow) {
  Inspect({FSample.get()});
  EXPECT_EQ("Size Style Title", NamesBelow("Part"));
  EXPECT_EQ("8", Value("Part.Size"));
}

TEST_F(InspectorTreeTest, AComponentHasItsPropertiesBelowWhileComponentsAreListedInPlace) {
  FSample->Partner = FOther.get();
  Inspect({FSample.get()});
  EXPECT_EQ("0", Value("Partner.Whole"));
  FInspector->SetInplaceComponents(false);
  Deliver();
  EXPECT_EQ("", NamesBelow("Partner"));
}

TEST_F(InspectorTreeTest, AnInterfaceLeadsToTheComponentBehindIt) {
  FSample->Reference = FOther.get();
  Inspect({FSample.get()});
  EXPECT_EQ("IInterfaceComponentReference", Value("Reference"));
  EXPECT_TRUE(Item("Reference").IsReadOnly());
  EXPECT_FALSE(Item("Reference").IsRealProperty());
  EXPECT_EQ("0", Value("Reference.Whole"));
}

TEST_F(InspectorTreeTest, AnObjectThatLeadsBackToItselfIsNotEnteredAgain) {
  FSample->Partner = FSample.get();
  FSample->Sibling = FOther.get();
  FOther->Sibling = FSample.get();
  Inspect({FSample.get()});
  EXPECT_EQ("", NamesBelow("Partner"));
  EXPECT_NE("", NamesBelow("Sibling"));
  EXPECT_EQ("", NamesBelow("Sibling.Sibling"));
}

TEST_F(InspectorTreeTest, AnObjectBehindTwoPropertiesIsEnteredOnce) {
  FSample->Partner = FOther.get();
  FSample->Sibling = FOther.get();
  Inspect({FSample.get()});
  EXPECT_NE("", NamesBelow("Partner"));
  EXPECT_EQ("", NamesBelow("Sibling"));
  // Anew in each scan.
  FSample->Partner = nullptr;
  Rescan();
  EXPECT_NE("", NamesBelow("Sibling"));
}

TEST_F(InspectorTreeTest, WhatOneObjectLacksIsNotListedBelow) {
  const auto partner = Make<TComponent>();
  FSample->Partner = partner.get();
  Inspect({FSample.get(), FOther.get()});
  EXPECT_EQ("", NamesBelow("Partner"));
  FOther->Partner = FOther.get();
  Rescan();
  EXPECT_EQ("", NamesBelow("Partner"));
  const auto second = Make<TComponent>();
  FOther->Partner = second.get();
  Rescan();
  EXPECT_EQ("Name Tag", NamesBelow("Partner"));
  FSample->Partner = FOther->Partner = nullptr;
}

// Collections.

TEST_F(InspectorTreeTest, ACollectionHasItsItemsBelowWhenTheyAreListedInPlace) {
  FSample->GetItems().AddItem("one");
  FSample->GetItems().AddItem("two");
  Inspect({FSample.get()});
  EXPECT_EQ(pkCollection, Item("Items").GetPropertyKind());
  EXPECT_EQ("", NamesBelow("Items"));
  FInspector->SetInplaceCollections(true);
  Deliver();
  EXPECT_EQ("Items[0] Items[1]", NamesBelow("Items"));
  EXPECT_EQ("two", Value("Items.Items[1].Caption"));
  EXPECT_EQ("TSampleItem", Value("Items.Items[1]"));
  EXPECT_EQ("TSampleItem", Item("Items.Items[1]").GetTypeName());
  EXPECT_EQ(pkCollectionItem, Item("Items.Items[1]").GetPropertyKind());
  EXPECT_TRUE(Item("Items.Items[1]").IsReadOnly());
  EXPECT_FALSE(Item("Items.Items[1]").IsRealProperty());
}

TEST_F(InspectorTreeTest, ItemsOfACollectionAreListedInTheOrderOfTheirIndexes) {
  for (int i = 0; i < 12; ++i) FSample->GetItems().AddItem("x");
  FInspector->SetInplaceCollections(true);
  Inspect({FSample.get()});
  EXPECT_EQ("Items[2]", Item("Items").GetItems().GetItem(2)->GetName());
  EXPECT_EQ("Items[11]", Item("Items").GetItems().GetItem(11)->GetName());
}

TEST_F(InspectorTreeTest, ItemsOfACollectionAreCalledAsTheFormatSays) {
  FSample->GetItems().AddItem("one");
  FInspector->SetInplaceCollections(true);
  FInspector->SetCollectionItemFormat("No. %d");
  Inspect({FSample.get()});
  EXPECT_EQ("No. 0", NamesBelow("Items"));
  // The name holds the path delimiter, and leads to the item all the same.
  TKTItemProperty* item = Item("Items").GetItems().GetItem(0);
  EXPECT_EQ("one", item->GetItems().GetItem(0)->GetValueLine(0));
  FSample->GetItems().ItemAt(0)->SetCaption("changed");
  FInspector->RefreshProperties();
  EXPECT_EQ("changed", item->GetItems().GetItem(0)->GetValueLine(0));
}

TEST_F(InspectorTreeTest, CollectionsOfUnequalSizesShowNoItems) {
  FSample->GetItems().AddItem("one");
  FInspector->SetInplaceCollections(true);
  Inspect({FSample.get(), FOther.get()});
  EXPECT_EQ("", NamesBelow("Items"));
  FOther->GetItems().AddItem("two");
  Rescan();
  EXPECT_EQ("Items[0]", NamesBelow("Items"));
  EXPECT_FALSE(Item("Items.Items[0].Caption").IsAllEqual());
}

// Several objects.

TEST_F(InspectorTreeTest, TextsThatDifferInCaseAloneCountAsEqual) {
  FSample->Text = "abc";
  FOther->Text = "ABC";
  FOther->Whole = 1;
  Inspect({FSample.get(), FOther.get()});
  EXPECT_TRUE(Item("Text").IsAllEqual());
  EXPECT_FALSE(Item("Whole").IsAllEqual());
}

TEST_F(InspectorTreeTest, SeveralValueColumnsShowEachObjectsValue) {
  FOther->Whole = 7;
  UseSeveralColumns();
  Inspect({FSample.get(), FOther.get()});
  EXPECT_EQ(3, FInspector->GetColCount());
  EXPECT_EQ("0", Item("Whole").GetValueLine(0));
  EXPECT_EQ("7", Item("Whole").GetValueLine(1));
  EXPECT_FALSE(Item("Tag").IsAllEqual());
}

// Categories.

TEST_F(InspectorTreeTest, PropertiesAreListedInEachOfTheirCategories) {
  Items().GetCategories().Add("Whole=One");
  Items().GetCategories().Add("Whole=Two");
  FInspector->SetArrangeByCategory(true);
  Inspect({FSample.get()});
  EXPECT_EQ("Whole", NamesBelow("One"));
  EXPECT_EQ("Whole", NamesBelow("Two"));
  EXPECT_NE(nullptr, Find("Miscellaneous.Tag"));
  Item("Two.Whole").SetValueLine(0, "5");
  Item("Two.Whole").Validate();
  EXPECT_EQ(5, FSample->Whole);
  FInspector->RefreshProperties();
  EXPECT_EQ("5", Value("One.Whole"));
}

TEST_F(InspectorTreeTest, MembersAndElementsStayWithWhatTheyArePartOf) {
  FSample->GetItems().AddItem("one");
  FInspector->SetInplaceCollections(true);
  FInspector->SetArrangeByCategory(true);
  Inspect({FSample.get()});
  EXPECT_EQ("ssBold ssItalic ssUnderline", NamesBelow("Miscellaneous.Styles"));
  EXPECT_EQ("Items[0]", NamesBelow("Miscellaneous.Items"));
  Edit("Miscellaneous.Styles.ssBold", "True");
  EXPECT_TRUE(FSample->Styles.Has(ssBold));
}

}  // namespace
}  // namespace kt::tests
