#include "InplaceEditListFixture.h"

namespace kt::tests {
namespace {

/// Titles that come and go while the in-place editor shows.
class ItemListEditorTitlesTest : public TInplaceEditListTest {
 protected:
  std::string Where() const { return std::to_string(Editor.GetCol()) + ',' + std::to_string(Editor.GetRow()); }
  void PutTitles(bool value) {
    TILEDisplayOptions options = Editor.GetDisplayOptions();
    options.Put(doColumnTitles, value);
    Editor.SetDisplayOptions(options);
  }
};

TEST_F(ItemListEditorTitlesTest, AskingForTheTitlesThatAreThereLeavesTheEditorAsItIs) {
  Show();
  Editor.SetRow(2);
  Type(QStringLiteral("x"));
  Editor.SetColumnTitles(true);
  EXPECT_TRUE(Edit().Visible());
  EXPECT_TRUE(Edit().IsModified());
  EXPECT_EQ("1,2", Where());
}

TEST_F(ItemListEditorTitlesTest, AnEditorThatShowsComesBackWhenTitlesGo) {
  Show();
  Editor.SetColumnTitles(false);
  EXPECT_EQ(0, Editor.GetFixedRows());
  EXPECT_TRUE(Edit().Visible());
  EXPECT_EQ(Editor.CellRect(1, 0), Edit().GetBoundsRect());
}

TEST_F(ItemListEditorTitlesTest, AnEditorThatShowsComesBackWhenTitlesCome) {
  PutTitles(false);
  Show();
  Editor.SetColumnTitles(true);
  EXPECT_EQ(1, Editor.GetFixedRows());
  EXPECT_TRUE(Edit().Visible());
  EXPECT_EQ(Editor.CellRect(1, 1), Edit().GetBoundsRect());
}

TEST_F(ItemListEditorTitlesTest, WhereItemsAreColumnsTheEditorComesBackAsWell) {
  Editor.SetOrientation(goHorizontal);
  Show();
  Editor.SetColumnTitles(false);
  EXPECT_TRUE(Edit().Visible());
  EXPECT_EQ(Editor.CellRect(0, 1), Edit().GetBoundsRect());
}

TEST_F(ItemListEditorTitlesTest, AnEditorThatDoesNotShowStaysAway) {
  Editor.SetOptions(Editor.GetOptions() - TGridOptions{goAlwaysShowEditor});
  Show();
  Editor.SetEditorMode(false);
  Editor.SetColumnTitles(false);
  EXPECT_FALSE(Edit().Visible());
}

TEST_F(ItemListEditorTitlesTest, WithoutTitlesTheCursorIsStillOnAValue) {
  Show();
  PutTitles(false);
  EXPECT_EQ("1,0", Where());
  EXPECT_EQ("1", Edit().GetText());
  PutTitles(true);
  EXPECT_EQ("1,1", Where());
  EXPECT_EQ("1", Edit().GetText());
}

TEST_F(ItemListEditorTitlesTest, TheEditorReadsNoCellBeforeAllIsSet) {
  Show();
  QStringList read;
  Editor.OnGetEditText = [&read](TObject*, int col, int row, QString& text) {
    read += QStringLiteral("%1,%2=%3").arg(col).arg(row).arg(text);
  };
  PutTitles(false);
  Editor.OnGetEditText = nullptr;
  EXPECT_EQ("1,0=1", read.join(u' ').toStdString());
}

}  // namespace
}  // namespace kt::tests
