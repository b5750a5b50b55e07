#include "kt/vcl/forms/Screen.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/WindowProbe.h"

#include <QEnterEvent>
#include <QLabel>
#include <QScrollBar>

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
  /// Where the window of the hint is on the screen.
  QPoint HintPlace() {
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
      const auto* label = qobject_cast<const QLabel*>(widget);
      if (label && label->isVisible()) return label->geometry().topLeft();
    }
    return {-1, -1};
  }
  int NeededWidth(const QString& text, TFont& font) {
    return FEditor->CalcHintRect(Screen().GetWidth(), text, font).width();
  }
  /// The columns keep the widths that they are given.
  void KeepWidths() { FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() - TILEDisplayOptions{doAutoColResize}); }
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
  const QString name(30, u'w');
  Item("a").SetName(name);
  MoveTo(0, 1);
  EXPECT_EQ(name, Hint());
  EXPECT_EQ(FEditor->ClientToScreen(FEditor->CellRect(0, 1).topLeft() + QPoint(FEditor->GetIndent(), 0)), HintPlace());
}

TEST_F(ItemListEditorHintsTest, AValueThatIsCutOffIsShownOverItsCell) {
  Show("a");
  const QString value(30, u'w');
  Item("a").SetValue(value);
  MoveTo(1, 1);
  EXPECT_EQ(value, Hint());
  EXPECT_EQ(FEditor->ClientToScreen(FEditor->CellRect(1, 1).topLeft()), HintPlace());
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

TEST_F(ItemListEditorHintsTest, AValueThatJustFitsHasNoHint) {
  Show("a");
  KeepWidths();
  Item("a").SetValue("some text");
  const int needed = NeededWidth(QStringLiteral("some text"), Item("a").GetValueFont());
  FEditor->SetColWidths(1, needed);
  MoveTo(1, 1);
  EXPECT_EQ("-", Hint());
  FEditor->SetColWidths(1, needed - 1);
  MoveTo(1, 1, 3);
  EXPECT_EQ("some text", Hint());
}

TEST_F(ItemListEditorHintsTest, AValueIsMeasuredInTheValueFontOfItsItem) {
  Show("a b");
  for (const char* name : {"a", "b"}) Item(QLatin1String(name)).SetValue("some text");
  Item("a").GetFont().SetHeight(-60);
  Item("b").GetValueFont().SetHeight(-60);
  MoveTo(1, 1);
  EXPECT_EQ("-", Hint());
  MoveTo(1, 2);
  EXPECT_EQ("some text", Hint());
}

TEST_F(ItemListEditorHintsTest, ANameThatJustFitsBehindItsIndentationHasNoHint) {
  Show("a [some_name]");
  KeepWidths();
  const int needed = NeededWidth(QStringLiteral("some_name"), Item("a").GetFont()) + 2 * FEditor->GetIndent();
  FEditor->SetColWidths(0, needed);
  MoveTo(0, 2);
  EXPECT_EQ("-", Hint());
  FEditor->SetColWidths(0, needed - 1);
  MoveTo(0, 2, 3);
  EXPECT_EQ("some_name", Hint());
}

TEST_F(ItemListEditorHintsTest, FromRightToLeftANameThatIsCutOffIsShownOverItsText) {
  FEditor->SetBiDiMode(bdRightToLeft);
  Show("a");
  FWindow->Window()->move(300, 100);
  TWindowProbe::Settle();
  const QString name(30, u'w');
  Items().GetItem(0)->SetName(name);
  MoveTo(0, 1);
  EXPECT_EQ(name, Hint());
  const QRect cell = FEditor->CellRect(0, 1);
  const int right = cell.left() + cell.width() - FEditor->GetIndent();
  const QPoint place(right - NeededWidth(name, Items().GetItem(0)->GetFont()), cell.top());
  EXPECT_EQ(FEditor->ClientToScreen(place), HintPlace());
}

TEST_F(ItemListEditorHintsTest, AcrossTheColumnsNamesAndValuesHaveTheirHints) {
  FEditor->SetOrientation(goHorizontal);
  Show("a b");
  Item("b").SetName(kLong);
  Items().GetItem(1)->SetValue("1");
  Items().GetItem(1)->SetHint("one");
  MoveTo(2, 0);
  EXPECT_EQ(kLong, Hint());
  MoveTo(2, 1);
  EXPECT_EQ("1\r\n(one)", Hint());
}

TEST_F(ItemListEditorHintsTest, AcrossTheColumnsTheTitleColumnHidesTheHint) {
  FEditor->SetOrientation(goHorizontal);
  Show("a b");
  Item("a").SetValue(kLong);
  MoveTo(1, 1);
  EXPECT_EQ(kLong, Hint());
  MoveTo(0, 1);
  EXPECT_EQ("-", Hint());
}

TEST_F(ItemListEditorHintsTest, OverTheBlankLineAHintThatShowsStays) {
  Show("a");
  Item("a").SetValue(kLong);
  MoveTo(1, 1);
  Items().Clear();
  MoveTo(1, 1, 1);
  EXPECT_EQ(kLong, Hint());
  EXPECT_EQ(1, Asked());
}

TEST_F(ItemListEditorHintsTest, OutsideTheCellsTheHintIsHidden) {
  Show("a");
  Item("a").SetValue(kLong);
  MoveTo(1, 1);
  FWindow->MoveTo({300, 250});
  EXPECT_EQ("-", Hint());
}

TEST_F(ItemListEditorHintsTest, WithNoneNobodyIsAskedForAText) {
  Show("a");
  Item("a").SetValue(kLong);
  FEditor->SetShowItemHintStyle(shNone);
  MoveTo(1, 1);
  EXPECT_EQ(0, Asked());
  // Nor is the place remembered.
  FEditor->SetShowItemHintStyle(shValueOnly);
  MoveTo(1, 1);
  EXPECT_EQ(1, Asked());
  EXPECT_EQ(kLong, Hint());
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

TEST_F(ItemListEditorHintsTest, ThePointerOverTheInplaceEditorOrAScrollBarHasLeftTheCells) {
  Show("a b");
  Item("a").SetName(kLong);
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goAlwaysShowEditor});
  FEditor->SetFocus();
  FEditor->SetEditorMode(true);
  MoveTo(0, 1);
  EXPECT_EQ(kLong, Hint());
  QEnterEvent entered({2, 2}, {2, 2}, {2, 2});
  QApplication::sendEvent(FEditor->InplaceEditor()->GetHandle(), &entered);
  EXPECT_EQ("-", Hint());
  MoveTo(0, 1, 1);
  EXPECT_EQ(kLong, Hint());
  QApplication::sendEvent(FWindow->Body()->findChild<QScrollBar*>(), &entered);
  EXPECT_EQ("-", Hint());
}

TEST_F(ItemListEditorHintsTest, AHintThatShowsStaysWhenTheStyleChanges) {
  Show("a");
  Item("a").SetValue(kLong);
  MoveTo(1, 1);
  FEditor->SetShowItemHintStyle(shNone);
  EXPECT_EQ(kLong, Hint());
}

TEST_F(ItemListEditorHintsTest, TheHintWindowIsAPartOfTheEditor) {
  EXPECT_TRUE(FEditor->GetHintWindow().GetComponentStyle().Has(csSubComponent));
  EXPECT_EQ(FEditor->GetComponents(0), &FEditor->GetHintWindow());
  EXPECT_EQ(0, FEditor->GetHintWindow().GetInterval());
}

}  // namespace
}  // namespace kt::tests
