#include "KTItemListEditor/InplaceEditListFixture.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "support/ItemLists.h"

#include <functional>

namespace kt::tests {
namespace {

/// What the in-place editor and the picture do when items change.
class ItemListEditorRowsTest : public TInplaceEditListTest {
 protected:
  bool IsOpen() { return Editor.IsEditorMode() && Editor.InplaceEditor() && Editor.InplaceEditor()->Visible(); }
  /// The lines, rows or columns, that are painted anew because of `change`, each once.
  std::string Painted(const std::function<void()>& change) {
    Settle();
    QStringList rows;
    Editor.OnDrawCell = [&](TObject*, int col, int row, const QRect&, TGridDrawState) {
      const QString text = QString::number(Editor.GetOrientation() == goVertical ? row : col);
      if (!rows.contains(text)) rows += text;
    };
    change();
    Settle();
    Editor.OnDrawCell = nullptr;
    return rows.join(u' ').toStdString();
  }
  void ShowWithoutEditor() {
    Editor.SetOptions(Editor.GetOptions() - TGridOptions{goAlwaysShowEditor});
    Show();
    Editor.SetEditorMode(false);
  }
};

TEST_F(ItemListEditorRowsTest, AnItemThatIsAboutToChangeHidesTheInplaceEditor) {
  Show();
  EXPECT_TRUE(IsOpen());
  Item(1).SetName("n");
  EXPECT_FALSE(IsOpen());
}

TEST_F(ItemListEditorRowsTest, AnItemThatChangesWhileTheEditorIsLockedLeavesTheInplaceEditorAlone) {
  Show();
  Editor.DisableEditUpdate();
  Item(1).SetName("n");
  EXPECT_TRUE(IsOpen());
  Editor.EnableEditUpdate();
}

TEST_F(ItemListEditorRowsTest, ARenamedItemInABracketLeavesTheReopenedInplaceEditorAlone) {
  Show();
  Editor.GetItems().BeginUpdate();
  EXPECT_FALSE(IsOpen());
  Editor.SetEditorMode(true);
  EXPECT_TRUE(IsOpen());
  Item(1).SetName("n");
  EXPECT_TRUE(IsOpen());
  Editor.GetItems().EndUpdate();
}

TEST_F(ItemListEditorRowsTest, SelectingNothingHidesTheInplaceEditor) {
  Show();
  Editor.SetSelected(nullptr);
  EXPECT_FALSE(IsOpen());
}

TEST_F(ItemListEditorRowsTest, SelectingTheSelectedItemLeavesTheInplaceEditorAlone) {
  Show();
  Editor.SetSelected(&Item(0));
  EXPECT_TRUE(IsOpen());
}

TEST_F(ItemListEditorRowsTest, RefreshingTheRowsHidesTheInplaceEditorAndShowsItAnew) {
  Show();
  Type("x");
  EXPECT_TRUE(Edit().IsModified());
  Editor.SetEditorMode(false);
  Editor.RefreshVisibleItems();
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ("1x", Edit().GetText());
}

TEST_F(ItemListEditorRowsTest, AStructuralChangeLeavesTheInplaceEditorOpenOnTheSelectedItem) {
  Show();
  Editor.GetItems().Exchange(1, 2);
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ("1", Edit().GetText());
}

TEST_F(ItemListEditorRowsTest, AChangedValueShowsInTheOpenInplaceEditor) {
  Show();
  Item(0).SetValuesText("7");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ("7", Edit().GetText());
}

TEST_F(ItemListEditorRowsTest, AnItemThatIsEnabledOrDisabledIsPaintedAnewAlone) {
  ShowWithoutEditor();
  EXPECT_EQ("3", Painted([&] { Item(2).SetEnabled(false); }));
}

TEST_F(ItemListEditorRowsTest, AnItemWhoseFontChangesIsPaintedAnewAlone) {
  ShowWithoutEditor();
  Item(2).GetFont();
  Item(1).GetValueFont();
  EXPECT_EQ("3", Painted([&] { Item(2).GetFont().SetColor(clRed); }));
  EXPECT_EQ("2", Painted([&] { Item(1).GetValueFont().SetColor(clRed); }));
}

TEST_F(ItemListEditorRowsTest, AcrossTheColumnsAnItemThatIsDisabledOrGetsAnotherFontIsPaintedAnewAlone) {
  Editor.SetOrientation(goHorizontal);
  ShowWithoutEditor();
  EXPECT_EQ("2", Painted([&] { Item(1).SetEnabled(false); }));
  EXPECT_EQ("2", Painted([&] { Item(1).GetValueFont().SetColor(clRed); }));
}

TEST_F(ItemListEditorRowsTest, ItemsThatChangePlacesArePainted) {
  ShowWithoutEditor();
  EXPECT_EQ("0 1 2 3", Painted([&] { Editor.GetItems().Exchange(0, 2); }));
  EXPECT_EQ("0 1 2 3", Painted([&] { Item(0).SetIndex(1); }));
}

TEST_F(ItemListEditorRowsTest, ATextThatIsRefusedWhileReadOnlyItemsGoLeavesTheRowsRight) {
  Show();
  Item(2).SetReadOnly(true);
  Type("x");
  Editor.OnSetEditText = [](TObject*, int, int, const QString&) { throw EConvertError("refused"); };
  const TILEDisplayOptions options = Editor.GetDisplayOptions() - TILEDisplayOptions{doShowReadOnly};
  EXPECT_THROW(Editor.SetDisplayOptions(options), EConvertError);
  EXPECT_EQ(WalkedRows(Editor), Rows(Editor));
}

TEST_F(ItemListEditorRowsTest, ADefaultCategoryThatDiesWhileItsCellRefusesTheTextIsNoneAnyMore) {
  Item(0).SetDefaultCategory(true);
  Show();
  Type("x");
  Editor.OnSetEditText = [](TObject*, int, int, const QString&) { throw EConvertError("refused"); };
  std::exception_ptr refused;
  const auto previous = SetExceptionHandler([&](std::exception_ptr error) { refused = error; });
  delete &Item(0);
  SetExceptionHandler(previous);
  EXPECT_TRUE(refused);
  EXPECT_EQ(nullptr, Editor.GetItems().GetDefaultCategory());
  Editor.GetItems().SetDefaultCategory(&Item(0));
  EXPECT_EQ(&Item(0), Editor.GetItems().GetDefaultCategory());
}

}  // namespace
}  // namespace kt::tests
