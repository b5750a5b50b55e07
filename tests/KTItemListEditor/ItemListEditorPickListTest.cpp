#include "KTItemListEditor/InplaceEditListFixture.h"

namespace kt::tests {
namespace {

/// Opens what only descendants may call.
struct TOpenEditor : TKTItemListEditor {
  using TKTItemListEditor::EditListGetItems;
  using TKTItemListEditor::GetEditStyle;
};

/// Edit styles, and where the lines of a pick list come from.
class ItemListEditorPickListTest : public TInplaceEditListTest {
 protected:
  ItemListEditorPickListTest() { Values->SetCommaText(QStringLiteral("kept")); }

  TEditStyle StyleOf(int col, int row) { return (Editor.*&TOpenEditor::GetEditStyle)(col, row); }
  void FillFor(int col, int row) { (Editor.*&TOpenEditor::EditListGetItems)(col, row, *Values); }
  std::string LinesText() { return Values->GetCommaText().toStdString(); }
  /// Adds one line, and writes down who asks and for which name.
  TKTGetPickListEvent Adding(const QString& line) {
    return [this, line](TObject* sender, const QString& name, TStrings& values) {
      Log += (sender == &Editor ? QStringLiteral("editor:") : QStringLiteral("item:")) + name;
      values.Add(line);
    };
  }

  std::unique_ptr<TStringList> Values = Make<TStringList>();
};

// Edit styles.

TEST_F(ItemListEditorPickListTest, ValuesHaveTheStyleOfTheirItem) {
  Item(1).SetEditStyle(esEllipsis);
  Item(2).SetEditStyle(esPickList);
  EXPECT_EQ(esSimple, StyleOf(1, 1));
  EXPECT_EQ(esEllipsis, StyleOf(1, 2));
  EXPECT_EQ(esPickList, StyleOf(1, 3));
}

TEST_F(ItemListEditorPickListTest, NamesAreSimpleWhateverTheirItem) {
  Item(1).SetEditStyle(esEllipsis);
  EXPECT_EQ(esSimple, StyleOf(0, 2));
}

TEST_F(ItemListEditorPickListTest, AcrossTheColumnsNamesAreTheFirstRow) {
  Item(1).SetEditStyle(esEllipsis);
  Editor.SetOrientation(goHorizontal);
  EXPECT_EQ(esSimple, StyleOf(2, 0));
  EXPECT_EQ(esEllipsis, StyleOf(2, 1));
}

TEST_F(ItemListEditorPickListTest, TheBlankLineIsSimpleAsItHasNoNameToPickFor) {
  Editor.GetItems().Clear();
  Editor.OnGetPickList = Adding(QStringLiteral("x"));
  Show();
  EXPECT_EQ(esSimple, StyleOf(1, 1));
  EXPECT_EQ("", TakeLog());
}

TEST_F(ItemListEditorPickListTest, BehindTheItemsItIsAPickListWhereTheHandlerHasLines) {
  Show();
  EXPECT_EQ(esSimple, StyleOf(1, 4));
  Editor.OnGetPickList = Adding(QStringLiteral("x"));
  EXPECT_EQ(esPickList, StyleOf(1, 4));
}

TEST_F(ItemListEditorPickListTest, BehindTheItemsTheLinesOfAnEarlierListDoNotCount) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Escape);
  EXPECT_EQ(esSimple, StyleOf(1, 4));
}

// What the list of a cell is filled with.

TEST_F(ItemListEditorPickListTest, ForANameNothingIsFilled) {
  Item(0).GetPickList().Add(QStringLiteral("red"));
  Editor.OnGetPickList = Adding(QStringLiteral("x"));
  FillFor(0, 1);
  EXPECT_EQ("kept", LinesText());
  EXPECT_EQ("", TakeLog());
}

TEST_F(ItemListEditorPickListTest, ForAValueItIsThePickListOfTheItem) {
  Item(0).GetPickList().SetCommaText(QStringLiteral("red,green"));
  FillFor(1, 1);
  EXPECT_EQ("red,green", LinesText());
}

TEST_F(ItemListEditorPickListTest, ForAValueWithoutAPickListItIsEmptied) {
  FillFor(1, 1);
  EXPECT_EQ("", LinesText());
}

TEST_F(ItemListEditorPickListTest, TheHandlerAddsToThePickListOfTheItem) {
  Item(0).GetPickList().SetCommaText(QStringLiteral("red,green"));
  Editor.OnGetPickList = Adding(QStringLiteral("x"));
  FillFor(1, 1);
  EXPECT_EQ("red,green,x", LinesText());
}

// Asking the handlers.

TEST_F(ItemListEditorPickListTest, OnALineWithoutANameNothingHappens) {
  Item(0).SetName({});
  Editor.OnGetPickList = Adding(QStringLiteral("x"));
  EXPECT_FALSE(Editor.GetPickList(&Item(0), *Values, true));
  EXPECT_EQ("kept", LinesText());
  EXPECT_EQ("", TakeLog());
}

/// And not that of the item that is asked about.
TEST_F(ItemListEditorPickListTest, TheNameThatCountsIsThatOfTheCurrentLineDeliberately) {
  Item(1).SetName({});
  EXPECT_TRUE(Editor.GetPickList(&Item(1), *Values, false));
  Editor.SetRow(2);
  EXPECT_FALSE(Editor.GetPickList(&Item(0), *Values, false));
}

TEST_F(ItemListEditorPickListTest, LinesThatWereThereStayUnlessTheyAreToBeCleared) {
  Editor.OnGetPickList = Adding(QStringLiteral("x"));
  EXPECT_TRUE(Editor.GetPickList(&Item(0), *Values, false));
  EXPECT_EQ("kept,x", LinesText());
  EXPECT_TRUE(Editor.GetPickList(&Item(0), *Values, true));
  EXPECT_EQ("x", LinesText());
}

TEST_F(ItemListEditorPickListTest, WithoutHandlersTheAnswerIsWhetherThereAreLinesAlready) {
  EXPECT_TRUE(Editor.GetPickList(&Item(0), *Values, false));
  EXPECT_FALSE(Editor.GetPickList(&Item(0), *Values, true));
  EXPECT_EQ("", LinesText());
}

TEST_F(ItemListEditorPickListTest, TheHandlerOfTheItemTakesThePlaceOfTheEditors) {
  Editor.OnGetPickList = Adding(QStringLiteral("x"));
  Item(0).SetOnGetPickList(Adding(QStringLiteral("y")));
  EXPECT_TRUE(Editor.GetPickList(&Item(0), *Values, true));
  EXPECT_EQ("y", LinesText());
  EXPECT_EQ("item:a", TakeLog());
}

TEST_F(ItemListEditorPickListTest, AHandlerIsToldTheFullPathName) {
  TKTItemProp* child = Item(0).GetItems().Add();
  child->SetName(QStringLiteral("x"));
  Editor.OnGetPickList = Adding(QStringLiteral("z"));
  Editor.GetPickList(child, *Values, true);
  EXPECT_EQ("editor:a.x", TakeLog());
}

TEST_F(ItemListEditorPickListTest, AllThatIsAddedIsOneChangeOfTheLines) {
  Editor.OnGetPickList = [](TObject*, const QString&, TStrings& values) {
    values.Add(QStringLiteral("x"));
    values.Add(QStringLiteral("y"));
  };
  Values->OnChange = [this](TObject*) { Log += QString::fromStdString(LinesText()); };
  Editor.GetPickList(&Item(0), *Values, true);
  EXPECT_EQ("x,y", TakeLog());
}

TEST_F(ItemListEditorPickListTest, TheInplaceEditorKnowsWhetherItsListIsFilled) {
  Show();
  EXPECT_TRUE(Editor.GetPickList(&Item(0), *Values, false));
  EXPECT_TRUE(Edit().IsPickListLoaded());
  EXPECT_FALSE(Editor.GetPickList(&Item(0), *Values, true));
  EXPECT_FALSE(Edit().IsPickListLoaded());
}

TEST_F(ItemListEditorPickListTest, AHandlerThatThrowsLeavesTheLinesInNoUpdate) {
  Editor.OnGetPickList = [](TObject*, const QString&, TStrings&) { throw Exception(QStringLiteral("no")); };
  EXPECT_EQ("no", MessageOf<Exception>([this] { Editor.GetPickList(&Item(0), *Values, false); }));
  Values->OnChange = [this](TObject*) { Log += QStringLiteral("changed"); };
  Values->Add(QStringLiteral("more"));
  EXPECT_EQ("changed", TakeLog());
}

}  // namespace
}  // namespace kt::tests
