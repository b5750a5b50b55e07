// An inspector in a window: what its cells show, and editing by keyboard.
#include "KTObjectInspector/InspectorWindowFixture.h"
#include "kt/KTItemListEditor/InplaceEditList.h"

namespace kt::tests {
namespace {

using InspectorGridTest = TInspectorWindowTest;

// Cells.

TEST_F(InspectorGridTest, AValueThatIsNotTheSameInAllObjectsShowsOnlyWhereTheCursorIs) {
  FSample->Whole = 1;
  FOther->Whole = 2;
  Show({FSample.get(), FOther.get()});
  Select("Tag");
  EXPECT_EQ("", Cell("Whole"));
  EXPECT_EQ("0", Cell("Tag"));
  Select("Whole");
  EXPECT_EQ("1", Cell("Whole"));
}

TEST_F(InspectorGridTest, SeveralColumnsShowTheValuesOfTheirObjects) {
  FOther->Whole = 2;
  UseSeveralColumns();
  Show({FSample.get(), FOther.get()});
  EXPECT_EQ("Whole", Cell("Whole", 0));
  EXPECT_EQ("0", Cell("Whole", 1));
  EXPECT_EQ("2", Cell("Whole", 2));
}

TEST_F(InspectorGridTest, DynamicTitlesAreTheNamesOfTheObjects) {
  const auto part = Make<TSamplePart>();
  const auto items = Make<TSampleItems>(nullptr);
  UseSeveralColumns();
  Show({FSample.get(), part.get(), items->AddItem("x")});
  EXPECT_EQ("Value", FInspector->GetCell(1, 0));
  EXPECT_EQ("", FInspector->GetCell(2, 0));
  FInspector->SetDynamicTitleCaptions(true);
  EXPECT_EQ("Property", FInspector->GetCell(0, 0));
  EXPECT_EQ("First", FInspector->GetCell(1, 0));
  EXPECT_EQ("TSamplePart", FInspector->GetCell(2, 0));
  EXPECT_EQ("TSampleItem", FInspector->GetCell(3, 0));
}

TEST_F(InspectorGridTest, ReadOnlyPropertiesHaveNoDropDown) {
  Show({FSample.get()});
  Select("Align");
  auto* editor = dynamic_cast<TKTInplaceEditList*>(&Editor());
  ASSERT_TRUE(editor);
  EXPECT_EQ(esPickList, editor->GetEditStyle());
  Item("Align").SetReadOnly(true);
  Select("Big");
  Select("Align");
  EXPECT_EQ(esSimple, editor->GetEditStyle());
}

TEST_F(InspectorGridTest, TakingTheTitlesAwayLeavesTheCursorInAValueColumn) {
  FInspector->SetPropertyOptions({propEdit});
  Show({FSample.get()});
  FInspector->SetCol(0);
  FInspector->SetColumnTitles(false);
  EXPECT_EQ(1, FInspector->GetCol());
}

// Editing.

TEST_F(InspectorGridTest, WhatIsTypedReachesTheObjectsWhenTheRowIsLeft) {
  Show({FSample.get(), FOther.get()});
  Select("Whole");
  Retype("42");
  EXPECT_EQ(0, FSample->Whole);
  TWindowProbe::Key(Qt::Key_Up);
  EXPECT_EQ(42, FSample->Whole);
  EXPECT_EQ(42, FOther->Whole);
  TWindowProbe::Settle();
  EXPECT_EQ("84", Cell("Double"));
}

TEST_F(InspectorGridTest, SwitchingToSeveralColumnsClosesTheEditorAtOnce) {
  Show({FSample.get()});
  Select("Text");
  ASSERT_TRUE(IsEditorOpen());
  FInspector->SetOptions(FInspector->GetOptions() - TGridOptions{goAlwaysShowEditor});
  FInspector->SetEditorMode(true);
  ASSERT_TRUE(IsEditorOpen());
  UseSeveralColumns();
  EXPECT_FALSE(IsEditorOpen());
}

TEST_F(InspectorGridTest, EnterAcceptsWhatIsTyped) {
  Show({FSample.get()});
  Select("Text");
  Retype("new");
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ("new", FSample->Text);
}

TEST_F(InspectorGridTest, ARefusedValueIsToldWithItsTypeAndTakenBack) {
  FSample->Whole = 7;
  Show({FSample.get()});
  Select("Whole");
  Retype("abc");
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_TRUE(TakeErrors().startsWith("\"abc\" is not a valid Integer value: Could not convert"));
  EXPECT_EQ(7, FSample->Whole);
  EXPECT_EQ("7", Editor().GetText());
}

TEST_F(InspectorGridTest, ARefusedTextOfAMemberIsToldWithoutATypeAndTakenBack) {
  Show({FSample.get()});
  Select("Styles.ssBold");
  Retype("maybe");
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ("\"maybe\" is not a valid property value: Invalid property element: maybe", TakeErrors());
  EXPECT_EQ("False", Editor().GetText());
  EXPECT_EQ(TSampleStyles(), FSample->Styles);
}

TEST_F(InspectorGridTest, AnItemsOwnHandlerOfErrorsComesBeforeTheInspectors) {
  FSample->Whole = 7;
  UseSeveralColumns();
  Show({FSample.get(), FOther.get()});
  Select("Whole");
  FInspector->SetCol(2);
  TWindowProbe::Settle();
  QStringList log;
  FInspector->OnValidateError = [&](TObject* sender, TKTItemProp* item, int column, const Exception& error) {
    EXPECT_EQ(FInspector.get(), sender);
    log += "inspector " + item->GetName() + QString::number(column) + " " + error.Message().section(u':', 0, 0);
  };
  Retype("abc");
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ("inspector Whole2 \"abc\" is not a valid Integer value", log.join(u'|'));
  EXPECT_EQ("0", Editor().GetText());
  log.clear();
  Item("Whole").SetOnValidateError([&](TObject* sender, TKTItemProp* item, int column, const Exception& error) {
    EXPECT_EQ(FInspector.get(), sender);
    EXPECT_TRUE(dynamic_cast<const ETORVException*>(&error));
    log += "item " + item->GetName() + QString::number(column) + " " + error.Message().section(u':', 0, 0);
  });
  Retype("abc");
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ("item Whole2 \"abc\" is not a valid Integer value", log.join(u'|'));
  EXPECT_EQ("0", Editor().GetText());
  EXPECT_EQ("", TakeErrors());
}

TEST_F(InspectorGridTest, LeavingAValueThatDiffersWritesNothing) {
  FSample->Whole = 1;
  FOther->Whole = 2;
  Show({FSample.get(), FOther.get()});
  Select("Whole");
  TWindowProbe::Key(Qt::Key_Up);
  EXPECT_EQ(1, FSample->Whole);
  EXPECT_EQ(2, FOther->Whole);
}

// Refreshing.

TEST_F(InspectorGridTest, ARefreshThatChangesNothingInTheCellLeavesTheEditorAlone) {
  FSample->Text = "some text";
  Show({FSample.get()});
  Select("Text");
  Editor().SetSelStart(3);
  Editor().SetSelLength(2);
  FSample->Whole = 5;
  FInspector->RefreshProperties();
  TWindowProbe::Settle();
  EXPECT_TRUE(IsEditorOpen());
  EXPECT_EQ(3, Editor().GetSelStart());
  EXPECT_EQ(2, Editor().GetSelLength());
  EXPECT_EQ("5", Cell("Whole"));
}

TEST_F(InspectorGridTest, ARefreshShowsANewValueInTheOpenEditor) {
  Show({FSample.get()});
  Select("Text");
  FSample->Text = "new";
  FInspector->RefreshProperties();
  EXPECT_TRUE(IsEditorOpen());
  EXPECT_EQ("new", Editor().GetText());
  EXPECT_EQ(3, Editor().GetSelLength());
}

TEST_F(InspectorGridTest, ARefreshKeepsExpansionAndScrollPosition) {
  Show({FSample.get()});
  Item("Part").Expand();
  FInspector->SetHeight(120);
  FInspector->SetTopRow(4);
  FInspector->RefreshProperties();
  TWindowProbe::Settle();
  EXPECT_TRUE(Item("Part").IsExpanded());
  EXPECT_EQ(4, FInspector->GetTopRow());
}

TEST_F(InspectorGridTest, ASelectedItemThatARescanDoesNotFindAnyMoreClosesTheEditor) {
  FSample->Partner = FOther.get();
  Show({FSample.get()});
  Select("Partner.Whole");
  ASSERT_TRUE(IsEditorOpen());
  FSample->Partner = nullptr;
  FInspector->Rescan();
  EXPECT_EQ(nullptr, Find("Partner.Whole"));
  EXPECT_FALSE(IsEditorOpen());
  EXPECT_EQ("", TakeErrors());
}

TEST_F(InspectorGridTest, AnObjectMayDieWhileItsValueIsTyped) {
  Show({FSample.get(), FOther.get()});
  Select("Whole");
  Retype("4");
  FSample.reset();
  TWindowProbe::Settle();
  EXPECT_EQ(1, FInspector->GetObjects().GetCount());
  EXPECT_EQ("Whole", FInspector->GetSelected()->GetName());
  EXPECT_EQ("", TakeErrors());
}

TEST_F(InspectorGridTest, AllObjectsMayDieWhileAListIsDroppedDown) {
  Show({FSample.get(), FOther.get()});
  Select("Align");
  TWindowProbe::Key(Qt::Key_Down, Qt::AltModifier);
  FSample.reset();
  FOther.reset();
  TWindowProbe::Settle();
  EXPECT_EQ(0, Items().GetCount());
  EXPECT_EQ("", TakeErrors());
}

}  // namespace
}  // namespace kt::tests
