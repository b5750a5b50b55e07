#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/WindowProbe.h"

namespace kt::tests {
namespace {

class THintedEditor : public TKTItemListEditor {
 public:
  using TKTItemListEditor::TKTItemListEditor;
  int Asked = 0;

 protected:
  void ShowHints(TKTItemProp* item, int col, int row, QString& hint) override {
    ++Asked;
    TKTItemListEditor::ShowHints(item, col, row, hint);
  }
};

class ItemListEditorHintsTest : public TItemListTest {
 protected:
  ItemListEditorHintsTest() { FEditor = Make<THintedEditor>(); }

  void Show(const std::string& tree) {
    Fill(tree);
    FWindow = std::make_unique<TWindowProbe>(*FEditor);
    FEditor->FullExpand();
    // The cells, not an editor over one of them.
    FEditor->SetOptions(FEditor->GetOptions() - TGridOptions{goAlwaysShowEditor});
    FEditor->SetEditorMode(false);
    TWindowProbe::Settle();
  }
  void MoveTo(int col, int row, int offset = 0) {
    const QPoint cell = FEditor->CellRect(col, row).center() + QPoint(offset, 0);
    FWindow->MoveTo(FWindow->Body()->mapFromGlobal(FEditor->ClientToScreen(cell)));
  }
  /// What the hint shows, or "-".
  QString Hint() {
    TKTHintWindow& window = FEditor->GetHintWindow();
    return window.IsShown() ? window.GetText() : QStringLiteral("-");
  }
  int Asked() { return static_cast<THintedEditor&>(*FEditor).Asked; }

  static inline const QString kLong = QString(80, u'w');
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(ItemListEditorHintsTest, ATextThatFitsHasNoHint) {
  Show("a");
  Item("a").SetValue("short");
  MoveTo(1, 1);
  EXPECT_EQ("-", Hint());
}

TEST_F(ItemListEditorHintsTest, ATextThatIsCutOffIsShown) {
  Show("a");
  Item("a").SetValue(kLong);
  MoveTo(1, 1);
  EXPECT_EQ(kLong, Hint());
}

TEST_F(ItemListEditorHintsTest, ANameThatIsCutOffIsShownOverItsText) {
  Show("a");
  Item("a").SetName(kLong);
  MoveTo(0, 1);
  EXPECT_EQ(kLong, Hint());
  const QPoint at = FEditor->ClientToScreen(FEditor->CellRect(0, 1).topLeft());
  const QWidget* label = FWindow->Body()->findChild<QWidget*>(QString(), Qt::FindChildrenRecursively);
  EXPECT_NE(nullptr, label);
  EXPECT_TRUE(at.x() >= 0);
}

TEST_F(ItemListEditorHintsTest, IndentationCountsForNames) {
  Show("a [b [c]]");
  const int room = FEditor->GetColWidths(0);
  QString name;
  while (FEditor->GetCanvas().TextWidth(name) + 6 + 3 * 11 <= room) name += u'i';
  Item("a.b.c").SetName(name);
  MoveTo(0, 3);
  EXPECT_EQ(name, Hint());
  name.chop(2);
  Items().GetItem(0)->GetItems().GetItem(0)->GetItems().GetItem(0)->SetName(name);
  MoveTo(0, 3, 1);
  EXPECT_EQ("-", Hint());
}

TEST_F(ItemListEditorHintsTest, WithNoneThereIsNoHintNotEvenForNames) {
  Show("a");
  Item("a").SetName(kLong);
  FEditor->SetShowItemHintStyle(shNone);
  MoveTo(0, 1);
  EXPECT_EQ("-", Hint());
}

TEST_F(ItemListEditorHintsTest, TheHintOfTheItemIsShownBelowTheValue) {
  Show("a");
  Item("a").SetValue("1");
  Item("a").SetHint("one");
  MoveTo(1, 1);
  EXPECT_EQ("1\r\n(one)", Hint());
}

TEST_F(ItemListEditorHintsTest, TheHintAloneIsShownWhereOnlyHintsAreWanted) {
  Show("a");
  Item("a").SetValue(kLong);
  Item("a").SetHint("one");
  FEditor->SetShowItemHintStyle(shHintOnly);
  MoveTo(1, 1);
  EXPECT_EQ("one", Hint());
}

TEST_F(ItemListEditorHintsTest, WhereOnlyHintsAreWantedAnItemWithoutOneHasNoneButItsNameHas) {
  Show("a");
  Item("a").SetValue(kLong);
  Item("a").SetName(kLong);
  FEditor->SetShowItemHintStyle(shHintOnly);
  MoveTo(1, 1);
  EXPECT_EQ("-", Hint());
  MoveTo(0, 1);
  EXPECT_EQ(kLong, Hint());
}

TEST_F(ItemListEditorHintsTest, WhereOnlyValuesAreWantedTheHintIsLeftOut) {
  Show("a");
  Item("a").SetValue("1");
  Item("a").SetHint("one");
  FEditor->SetShowItemHintStyle(shValueOnly);
  MoveTo(1, 1);
  EXPECT_EQ("-", Hint());
}

TEST_F(ItemListEditorHintsTest, OnShowHintsHasTheLastWord) {
  Show("a");
  Item("a").SetValue("1");
  FEditor->OnShowHints = [](TObject*, TKTItemProp* item, QString& hint) { hint = item->GetName() + u' ' + hint; };
  MoveTo(1, 1);
  EXPECT_EQ("a 1", Hint());
}

TEST_F(ItemListEditorHintsTest, OnShowHintsCanClearTheText) {
  Show("a");
  Item("a").SetValue(kLong);
  FEditor->OnShowHints = [](TObject*, TKTItemProp*, QString& hint) { hint.clear(); };
  MoveTo(1, 1);
  EXPECT_EQ("-", Hint());
}

TEST_F(ItemListEditorHintsTest, AnItemFreedByOnShowHintsHasNoHint) {
  Show("a");
  Item("a").SetValue(kLong);
  FEditor->OnShowHints = [this](TObject*, TKTItemProp*, QString&) { Items().Clear(); };
  MoveTo(1, 1);
  EXPECT_EQ("-", Hint());
}

TEST_F(ItemListEditorHintsTest, TheSamePixelIsNotAskedAboutTwice) {
  Show("a");
  MoveTo(1, 1);
  const int asked = Asked();
  MoveTo(1, 1);
  EXPECT_EQ(asked, Asked());
  MoveTo(1, 1, 1);
  EXPECT_EQ(asked + 1, Asked());
}

TEST_F(ItemListEditorHintsTest, TheTitleLineHidesTheHint) {
  Show("a");
  Item("a").SetValue(kLong);
  MoveTo(1, 1);
  MoveTo(1, 0);
  EXPECT_EQ("-", Hint());
}

TEST_F(ItemListEditorHintsTest, LeavingTheControlHidesTheHintAtOnce) {
  Show("a");
  Item("a").SetValue(kLong);
  MoveTo(1, 1);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(FWindow->Body(), &leave);
  EXPECT_EQ("-", Hint());
}

TEST_F(ItemListEditorHintsTest, AHintThatShowsStaysWhenTheStyleChanges) {
  Show("a");
  Item("a").SetValue(kLong);
  MoveTo(1, 1);
  FEditor->SetShowItemHintStyle(shNone);
  EXPECT_EQ(kLong, Hint());
}

TEST_F(ItemListEditorHintsTest, TheRoomForAHintIsThatOfItsTextAndALittleMore) {
  Show("a");
  TFont& font = FEditor->GetFont();
  const int width = FEditor->GetCanvas().TextWidth(QStringLiteral("some text"));
  const int height = FEditor->GetCanvas().TextHeight(QStringLiteral("some text"));
  const QRect rect = FEditor->CalcHintRect(1000, QStringLiteral("some text"), font);
  EXPECT_EQ(QPoint(0, 0), rect.topLeft());
  // Laid out as lines, a text may take a little more than its glyphs.
  EXPECT_NEAR(width + 6, rect.width(), 2);
  EXPECT_EQ(height + 2, rect.height());
}

TEST_F(ItemListEditorHintsTest, TheHintWindowIsAPartOfTheEditor) {
  EXPECT_TRUE(FEditor->GetHintWindow().GetComponentStyle().Has(csSubComponent));
  EXPECT_EQ(FEditor->GetComponents(0), &FEditor->GetHintWindow());
  EXPECT_EQ(0, FEditor->GetHintWindow().GetInterval());
}

}  // namespace
}  // namespace kt::tests
