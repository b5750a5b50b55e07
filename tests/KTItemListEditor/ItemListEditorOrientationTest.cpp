#include "InplaceEditListFixture.h"
#include "kt/KTItemListEditor/Registration.h"
#include "kt/rtl/streams/Reader.h"
#include "support/FormText.h"

namespace kt::tests {
namespace {

/// Turning an editor that shows.
class ItemListEditorOrientationTest : public TInplaceEditListTest {
 protected:
  std::string Items() {
    QStringList items;
    for (int i = 0; i < Editor.GetItems().GetCount(); ++i) items += Item(i).GetName() + u'=' + Item(i).GetValue();
    return items.join(u' ').toStdString();
  }
  std::string Counts() {
    return QStringLiteral("%1x%2 fixed %3,%4 at %5,%6")
        .arg(Editor.GetColCount())
        .arg(Editor.GetRowCount())
        .arg(Editor.GetFixedCols())
        .arg(Editor.GetFixedRows())
        .arg(Editor.GetCol())
        .arg(Editor.GetRow())
        .toStdString();
  }
};

TEST_F(ItemListEditorOrientationTest, TurningWithTheEditorOpenLeavesTheItemsAsTheyAre) {
  Show();
  Editor.SetOrientation(goHorizontal);
  EXPECT_EQ("a=1 b=2 c=3", Items());
  EXPECT_EQ("1", Edit().GetText().toStdString());
  Editor.SetOrientation(goVertical);
  EXPECT_EQ("a=1 b=2 c=3", Items());
  EXPECT_EQ("1", Edit().GetText().toStdString());
}

TEST_F(ItemListEditorOrientationTest, TurningWithTheEditorOpenBringsItBackOverTheValue) {
  Show();
  Editor.SetRow(2);
  Editor.SetOrientation(goHorizontal);
  EXPECT_TRUE(Edit().Visible());
  EXPECT_EQ(Editor.CellRect(2, 1), Edit().GetBoundsRect());
  EXPECT_EQ("2", Edit().GetText());
  EXPECT_TRUE(Edit().Focused());
}

TEST_F(ItemListEditorOrientationTest, LinesThatTheItemsDoNotNeedGoWhenTheGridTurns) {
  Editor.SetRowCount(10);
  Editor.SetOrientation(goHorizontal);
  EXPECT_EQ("4x2 fixed 1,0 at 1,1", Counts());
}

TEST_F(ItemListEditorOrientationTest, TurningTwiceRestoresCountsAndSelection) {
  Show();
  Editor.SetRow(2);
  EXPECT_EQ("2x4 fixed 0,1 at 1,2", Counts());
  Editor.SetOrientation(goHorizontal);
  EXPECT_EQ("4x2 fixed 1,0 at 2,1", Counts());
  Editor.SetOrientation(goVertical);
  EXPECT_EQ("2x4 fixed 0,1 at 1,2", Counts());
}

TEST_F(ItemListEditorOrientationTest, TurningTwiceRestoresASelectionOfSeveralItems) {
  Editor.SetOptions(Editor.GetOptions() + TGridOptions{goRangeSelect});
  Editor.SetSelection({1, 1, 1, 3});
  Editor.SetOrientation(goHorizontal);
  EXPECT_EQ((TGridRect{1, 1, 3, 1}), Editor.GetSelection());
  Editor.SetOrientation(goVertical);
  EXPECT_EQ((TGridRect{1, 1, 1, 3}), Editor.GetSelection());
}

TEST_F(ItemListEditorOrientationTest, TurningToTheSameSideChangesNothing) {
  Show();
  Type(QStringLiteral("x"));
  Editor.SetOrientation(goVertical);
  EXPECT_TRUE(Edit().Visible());
  EXPECT_TRUE(Edit().IsModified());
}

TEST_F(ItemListEditorOrientationTest, TurningWithoutTitlesLeavesNoFixedCells) {
  Editor.SetDisplayOptions(Editor.GetDisplayOptions() - TILEDisplayOptions{doColumnTitles});
  Editor.SetOrientation(goHorizontal);
  EXPECT_EQ("3x2 fixed 0,0", Counts().substr(0, 13));
  Editor.SetOrientation(goVertical);
  EXPECT_EQ("2x3 fixed 0,0", Counts().substr(0, 13));
}

TEST_F(ItemListEditorOrientationTest, WhatIsTypedBeforeStaysWithItsItem) {
  Show();
  Retype(QStringLiteral("7"));
  Editor.SetOrientation(goHorizontal);
  EXPECT_EQ("a=7 b=2 c=3", Items());
}

TEST_F(ItemListEditorOrientationTest, TakingTheTitleAwayWithTheEditorOpenLeavesTheItemsAsTheyAre) {
  Show();
  Editor.SetDisplayOptions(Editor.GetDisplayOptions() - TILEDisplayOptions{doColumnTitles, doShowReadOnly});
  EXPECT_EQ("a=1 b=2 c=3", Items());
  Editor.SetDisplayOptions(Editor.GetDisplayOptions() + TILEDisplayOptions{doColumnTitles, doShowReadOnly});
  EXPECT_EQ("a=1 b=2 c=3", Items());
}

TEST_F(ItemListEditorOrientationTest, AnEditorWithItemsAcrossTheColumnsComesBackFromAForm) {
  RegisterItemListEditor();
  Editor.SetOrientation(goHorizontal);
  const std::string form = TextOf(&Editor);
  TReader reader(BinaryOf(form.c_str()));
  const auto loaded = reader.ReadRoot<TKTItemListEditor>();
  EXPECT_EQ(goHorizontal, loaded->GetOrientation());
  EXPECT_EQ(4, loaded->GetColCount());
  EXPECT_EQ(2, loaded->GetRowCount());
  EXPECT_EQ(1, loaded->GetFixedCols());
  EXPECT_EQ(0, loaded->GetFixedRows());
  EXPECT_EQ("1", loaded->GetCell(1, 1).toStdString());
  EXPECT_EQ("c", loaded->GetCell(3, 0).toStdString());
  EXPECT_EQ(form, TextOf(loaded.get()));
}

}  // namespace
}  // namespace kt::tests
