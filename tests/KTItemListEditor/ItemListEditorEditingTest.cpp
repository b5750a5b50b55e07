#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/ItemLists.h"

#include <QStringList>

namespace kt::tests {
namespace {

/// An editor whose protected operations tests can call.
class TEditingProbe : public TKTItemListEditor {
 public:
  using Inherited = TKTItemListEditor;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TEditingProbe>("TEditingProbe").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  using TKTItemListEditor::CanEditModify;
  using TKTItemListEditor::EditButtonClick;
  using TKTItemListEditor::GetEditMask;
  using TKTItemListEditor::GetEditText;
  using TKTItemListEditor::GetExpressionMask;
  using TKTItemListEditor::SetEditText;

  void Refresh() override {
    if (!IsEditUpdateLocked()) ++Refreshes;
    TKTItemListEditor::Refresh();
  }
  /// Those that did something.
  int Refreshes = 0;

 protected:
  explicit TEditingProbe(TComponent* owner = nullptr) : TKTItemListEditor(owner) {}
};

class ItemListEditorEditingTest : public testing::Test {
 protected:
  ItemListEditorEditingTest() {
    A.SetName(QStringLiteral("a"));
    A.SetValue(QStringLiteral("1"));
    B.SetName(QStringLiteral("b"));
    B.SetValue(QStringLiteral("2"));
  }
  /// Names and values of the rows: "a=1 b=2".
  std::string Text() {
    QStringList rows;
    for (int i = 0; i < Editor.GetVisibleItemCount(); ++i) rows += Editor.GetVisibleItem(i)->GetDisplayName();
    return rows.join(u' ').toStdString();
  }

  std::unique_ptr<TEditingProbe> FEditor = Make<TEditingProbe>();
  TEditingProbe& Editor = *FEditor;
  TKTItemProp& A = *Editor.GetItems().Add();
  TKTItemProp& B = *Editor.GetItems().Add();
  QStringList Log;
};

TEST_F(ItemListEditorEditingTest, TheDropDownListHasEightRowsAtMost) { EXPECT_EQ(8, Editor.GetDropDownRows()); }

TEST_F(ItemListEditorEditingTest, ADropDownListHasOneRowAtLeast) {
  Editor.SetDropDownRows(0);
  EXPECT_EQ(8, Editor.GetDropDownRows());
  Editor.SetDropDownRows(1);
  EXPECT_EQ(1, Editor.GetDropDownRows());
}

TEST_F(ItemListEditorEditingTest, ReadOnlyItemsCannotBeModified) {
  EXPECT_TRUE(Editor.CanEditModify());
  A.SetReadOnly(true);
  EXPECT_FALSE(Editor.CanEditModify());
  Editor.SetRow(2);
  EXPECT_TRUE(Editor.CanEditModify());
}

TEST_F(ItemListEditorEditingTest, DisabledItemsCannotBeModified) {
  A.SetEnabled(false);
  EXPECT_FALSE(Editor.CanEditModify());
}

TEST_F(ItemListEditorEditingTest, TheBlankLineCanBeModified) {
  Editor.GetItems().Clear();
  EXPECT_TRUE(Editor.CanEditModify());
}

TEST_F(ItemListEditorEditingTest, AMaskIsEitherAnEditMaskOrAnExpression) {
  A.SetEditMask(QStringLiteral("00"));
  EXPECT_EQ("00", Editor.GetEditMask(1, 1));
  EXPECT_EQ("", Editor.GetExpressionMask(1, 1));
  A.SetExpressionMask(true);
  EXPECT_EQ("", Editor.GetEditMask(1, 1));
  EXPECT_EQ("00", Editor.GetExpressionMask(1, 1));
}

TEST_F(ItemListEditorEditingTest, TheHandlerHasTheLastWordOnTheMask) {
  A.SetEditMask(QStringLiteral("00"));
  Editor.OnGetEditMask = [](TObject*, int col, int row, QString& mask) {
    mask += QStringLiteral(" %1,%2").arg(col).arg(row);
  };
  EXPECT_EQ("00 1,1", Editor.GetEditMask(1, 1));
}

TEST_F(ItemListEditorEditingTest, TheBlankLineHasNoMask) {
  Editor.GetItems().Clear();
  EXPECT_EQ("", Editor.GetEditMask(1, 1));
  EXPECT_EQ("", Editor.GetExpressionMask(1, 1));
}

TEST_F(ItemListEditorEditingTest, TheTextToEditIsThatOfTheCell) {
  EXPECT_EQ("2", Editor.GetEditText(1, 2));
  EXPECT_EQ("b", Editor.GetEditText(0, 2));
}

TEST_F(ItemListEditorEditingTest, TheHandlerHasTheLastWordOnTheText) {
  Editor.OnGetEditText = [](TObject*, int, int, QString& text) { text += u'!'; };
  EXPECT_EQ("1!", Editor.GetEditText(1, 1));
}

TEST_F(ItemListEditorEditingTest, TheFontOfACellIsThatOfItsItemsValue) {
  EXPECT_EQ(&Editor.GetValueFont(), &Editor.GetCellFont(1, 2));
  const TFont& own = B.GetValueFont();
  EXPECT_EQ(&own, &Editor.GetCellFont(1, 2));
  Editor.GetItems().Clear();
  EXPECT_EQ(&Editor.GetValueFont(), &Editor.GetCellFont(1, 1));
}

TEST_F(ItemListEditorEditingTest, WhatIsTypedIsWrittenAtOnce) {
  Editor.SetEditText(1, 2, QStringLiteral("xyz"));
  EXPECT_EQ("a=1 b=xyz", Text());
}

TEST_F(ItemListEditorEditingTest, TypingIsToldBeforeItIsWritten) {
  Editor.OnSetEditText = [this](TObject*, int col, int row, const QString& text) {
    Log += QStringLiteral("set(%1,%2)=%3 over %4").arg(col).arg(row).arg(text, Editor.GetCell(col, row));
  };
  Editor.SetEditText(1, 2, QStringLiteral("x"));
  EXPECT_EQ("set(1,2)=x over 2", Log.join(u' '));
}

TEST_F(ItemListEditorEditingTest, NothingIsWrittenWhileTheEditorIsLocked) {
  Editor.OnSetEditText = [this](TObject*, int, int, const QString& text) { Log += text; };
  Editor.DisableEditUpdate();
  Editor.SetEditText(1, 2, QStringLiteral("x"));
  Editor.EnableEditUpdate();
  EXPECT_EQ("a=1 b=2", Text());
  EXPECT_EQ("", Log.join(u' '));
}

TEST_F(ItemListEditorEditingTest, TypingIntoTheBlankLineMakesAnItemAndRefreshesNothing) {
  Editor.GetItems().Clear();
  Editor.Refreshes = 0;
  Editor.SetEditText(1, 1, QStringLiteral("x"));
  EXPECT_EQ("=x", Text());
  EXPECT_EQ("=x", Editor.GetItem(0)->GetDisplayName());
  EXPECT_EQ(0, Editor.Refreshes);
  EXPECT_FALSE(Editor.IsEditUpdateLocked());
}

TEST_F(ItemListEditorEditingTest, RowsThatComeAndGoWhileTheEditorIsLockedRefreshItOnceAtTheEnd) {
  Editor.DisableEditUpdate();
  Editor.GetItems().Add();
  Editor.Refreshes = 0;
  Editor.EnableEditUpdate();
  EXPECT_EQ(1, Editor.Refreshes);
}

TEST_F(ItemListEditorEditingTest, ALockWithoutNewRowsRefreshesNothing) {
  Editor.Refreshes = 0;
  Editor.DisableEditUpdate();
  Editor.EnableEditUpdate();
  EXPECT_EQ(0, Editor.Refreshes);
}

TEST_F(ItemListEditorEditingTest, NothingTypedIntoTheBlankLineMakesNoItem) {
  Editor.GetItems().Clear();
  Editor.SetEditText(1, 1, {});
  EXPECT_EQ("", Text());
}

/// Rows are asked for lines in either orientation.
TEST_F(ItemListEditorEditingTest, AcrossTheColumnsTypingMakesAnItemWhenThereAreFewerThanRows) {
  Editor.GetItems().Delete(1);
  Editor.SetOrientation(goHorizontal);
  Editor.SetEditText(1, 1, QStringLiteral("x"));
  EXPECT_EQ("a=x =", Text());
  Editor.SetEditText(1, 1, QStringLiteral("xy"));
  EXPECT_EQ("a=xy =", Text());
}

TEST_F(ItemListEditorEditingTest, ARejectedNameWaitsUntilItComesASecondTime) {
  Editor.SetPropertyOptions({propEdit, propUnique});
  Editor.SetEditText(0, 2, QStringLiteral("a"));
  EXPECT_EQ("a=1 b=2", Text());
  EXPECT_EQ("Property name is not unique: a",
            MessageOf<ETORVException>([&] { Editor.SetEditText(0, 2, QStringLiteral("a")); }));
  EXPECT_EQ("a=1 b=2", Text());
  EXPECT_FALSE(Editor.IsEditUpdateLocked());
}

TEST_F(ItemListEditorEditingTest, AnAcceptedNameForgetsTheRejectedOne) {
  Editor.SetPropertyOptions({propEdit, propUnique});
  Editor.SetEditText(0, 2, QStringLiteral("a"));
  Editor.SetEditText(0, 2, QStringLiteral("c"));
  Editor.SetEditText(0, 2, QStringLiteral("a"));
  EXPECT_EQ("a=1 c=2", Text());
}

TEST_F(ItemListEditorEditingTest, NamesThatNeedNotBeUniqueAreWritten) {
  Editor.SetEditText(0, 2, QStringLiteral("a"));
  EXPECT_EQ("a=1 a=2", Text());
}

TEST_F(ItemListEditorEditingTest, TheItemsHandlerGetsTheClickOfTheButton) {
  Editor.OnEditButtonClick = [this](TObject*) { Log += QStringLiteral("editor"); };
  A.SetOnEditButtonClick([this](TObject* sender) { Log += sender == &A ? "a" : "?"; });
  Editor.EditButtonClick(&Editor);
  EXPECT_EQ("a", Log.join(u' '));
}

/// And not the editor, whose handler it is.
TEST_F(ItemListEditorEditingTest, TheEditorsHandlerGetsTheItemAsTheSenderOfTheClick) {
  Editor.OnEditButtonClick = [this](TObject* sender) { Log += sender == &B ? "b" : "?"; };
  Editor.SetRow(2);
  Editor.EditButtonClick(&Editor);
  EXPECT_EQ("b", Log.join(u' '));
}

TEST_F(ItemListEditorEditingTest, TheClickOnTheBlankLineHasNoSender) {
  Editor.GetItems().Clear();
  Editor.OnEditButtonClick = [this](TObject* sender) { Log += sender ? "?" : "nil"; };
  Editor.EditButtonClick(&Editor);
  EXPECT_EQ("nil", Log.join(u' '));
}

TEST_F(ItemListEditorEditingTest, AHandlerMayClearTheTreeWhileTyping) {
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { Editor.GetItems().Clear(); };
  Editor.SetEditText(1, 2, QStringLiteral("x"));
  // The row has been the second one: an item for the blank line, and one for the text.
  EXPECT_EQ("= =x", Text());
  EXPECT_EQ(3, Editor.GetRowCount());
}

TEST_F(ItemListEditorEditingTest, AHandlerMayFreeTheEditorWhileTyping) {
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { FEditor.reset(); };
  Editor.SetEditText(1, 2, QStringLiteral("x"));
  EXPECT_EQ(nullptr, FEditor);
}

TEST_F(ItemListEditorEditingTest, AHandlerThatThrowsWhileTypingLeavesTheTextUnwritten) {
  Editor.OnSetEditText = [](TObject*, int, int, const QString&) { throw Exception(QStringLiteral("no")); };
  EXPECT_EQ("no", MessageOf<Exception>([&] { Editor.SetEditText(1, 2, QStringLiteral("x")); }));
  EXPECT_EQ("a=1 b=2", Text());
  EXPECT_FALSE(Editor.IsEditUpdateLocked());
}

}  // namespace
}  // namespace kt::tests
