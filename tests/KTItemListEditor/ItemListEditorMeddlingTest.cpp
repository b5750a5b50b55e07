#include "InplaceEditListFixture.h"

namespace kt::tests {
namespace {

/// Handlers that change the items while one of them is edited: what shows stays what is there.
class ItemListEditorMeddlingTest : public TInplaceEditListTest {
 protected:
  std::string Items() {
    QStringList items;
    for (int i = 0; i < Editor.GetItems().GetCount(); ++i) items += Item(i).GetName() + u'=' + Item(i).GetValue();
    return items.join(u' ').toStdString();
  }
  /// Runs `deed` the first time that it is called.
  template <class F>
  void Once(F deed) {
    if (!std::exchange(FIsDone, true)) deed();
  }

  bool FIsDone = false;
};

TEST_F(ItemListEditorMeddlingTest, WhatWasTypedForAnItemThatIsGoneIsWrittenIntoNoOther) {
  Show();
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { Once([this] { delete &Item(0); }); };
  Type(QStringLiteral("x"));
  EXPECT_EQ("b=2 c=3", Items());
  EXPECT_EQ("2", Edit().GetText());
}

TEST_F(ItemListEditorMeddlingTest, WhatWasTypedMakesANewItemWhenAllAreGoneAndShowsInIt) {
  Show();
  Retype(QStringLiteral("x"));
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { Once([this] { Editor.GetItems().Clear(); }); };
  Type(QStringLiteral("y"));
  EXPECT_EQ("=xy", Items());
  EXPECT_TRUE(Edit().Visible());
  EXPECT_EQ("xy", Edit().GetText());
}

TEST_F(ItemListEditorMeddlingTest, WhatWasTypedIntoTheBlankLineShowsThoughAHandlerHadTheEditorReadIt) {
  Editor.GetItems().Clear();
  Show();
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { Once([this] { Editor.GetItems().Clear(); }); };
  Type(QStringLiteral("x"));
  EXPECT_EQ("=x", Items());
  EXPECT_EQ("x", Edit().GetText());
}

TEST_F(ItemListEditorMeddlingTest, WhatWasTypedForAnItemThatHasMovedIsWrittenIntoNoOther) {
  Show();
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { Once([this] { Item(0).SetIndex(2); }); };
  Type(QStringLiteral("x"));
  EXPECT_EQ("b=2 c=3 a=1", Items());
}

TEST_F(ItemListEditorMeddlingTest, TypingIntoTheBlankLineStillMakesAnItem) {
  Editor.GetItems().Clear();
  Show();
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { Log += QStringLiteral("set"); };
  Type(QStringLiteral("x"));
  EXPECT_EQ("=x", Items());
}

/// The answer for the cell that is asked for comes after the other cell has its text.
TEST_F(ItemListEditorMeddlingTest, AnItemThatDiesWhileItsTextIsReadLeavesTheTextOfTheNext) {
  Show();
  Editor.OnGetEditText = [this](TObject*, int, int, QString&) { Once([this] { delete &Item(0); }); };
  Editor.Refresh();
  EXPECT_EQ("b=2 c=3", Items());
  EXPECT_TRUE(Edit().Visible());
  EXPECT_EQ("2", Edit().GetText());
}

TEST_F(ItemListEditorMeddlingTest, ACursorThatIsLedAwayWhileATextIsReadHasTheTextOfItsCell) {
  Show();
  Editor.OnGetEditText = [this](TObject*, int, int, QString&) { Once([this] { Editor.SetRow(3); }); };
  Editor.SetRow(2);
  EXPECT_EQ(3, Editor.GetRow());
  EXPECT_EQ("3", Edit().GetText());
}

TEST_F(ItemListEditorMeddlingTest, AHandlerThatHasTheTextReadAgainEachTimeEndsAllTheSame) {
  Show();
  int depth = 0;
  int calls = 0;
  Editor.OnGetEditText = [&](TObject*, int, int, QString&) {
    ++calls;
    if (++depth == 1) Editor.Refresh();
    --depth;
  };
  Editor.Refresh();
  Editor.OnGetEditText = nullptr;
  EXPECT_EQ(6, calls);
  EXPECT_EQ("1", Edit().GetText());
}

TEST_F(ItemListEditorMeddlingTest, ATextThatIsRefusedWhileRowsAreRebuiltLeavesALineForEachRow) {
  Show();
  Type("x");
  Editor.SetRowCount(10);
  Editor.OnSetEditText = [](TObject*, int, int, const QString&) { throw EConvertError("refused"); };
  EXPECT_THROW(Editor.RefreshVisibleItems(), EConvertError);
  Editor.OnSetEditText = nullptr;
  EXPECT_EQ(4, Editor.GetRowCount());
}

TEST_F(ItemListEditorMeddlingTest, AGridWhoseCursorMayNotLeaveItsItemDoesNotTurn) {
  Show();
  Editor.SetRow(3);
  Editor.OnSelectCell = [](TObject*, int, int, bool&) { throw EConvertError("stay"); };
  EXPECT_THROW(Editor.SetOrientation(goHorizontal), EConvertError);
  Editor.OnSelectCell = nullptr;
  EXPECT_EQ(goVertical, Editor.GetOrientation());
  EXPECT_EQ(2, Editor.GetColCount());
  EXPECT_EQ(4, Editor.GetRowCount());
  Editor.SetOrientation(goHorizontal);
  EXPECT_EQ(4, Editor.GetColCount());
  EXPECT_EQ(2, Editor.GetRowCount());
}

}  // namespace
}  // namespace kt::tests
