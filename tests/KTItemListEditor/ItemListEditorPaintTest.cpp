#include "kt/rtl/strings/StringList.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/QtColor.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/PaintLog.h"
#include "support/WindowProbe.h"

#include <QLineEdit>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>

namespace kt::tests {
namespace {

class TPaintedEditor : public TKTItemListEditor {
 public:
  using TKTItemListEditor::DrawCell;
  using TKTItemListEditor::TKTItemListEditor;
};

class ItemListEditorPaintTest : public TItemListTest {
 protected:
  ItemListEditorPaintTest() {
    FEditor = Make<TPaintedEditor>();
    FEditor->GetFont().SetColor(clBlack);
  }

  /// What drawing a cell into 200 x 18 pixels at the origin draws, without the lines that texts stand on.
  QString Drawn(int col, int row, TGridDrawState state = {}) {
    TPaintLog log;
    {
      QPainter painter(&log);
      FEditor->GetCanvas().Begin(painter);
      static_cast<TPaintedEditor&>(*FEditor).DrawCell(col, row, QRect(0, 0, 200, 18), state);
      FEditor->GetCanvas().End();
    }
    return QString::fromStdString(log.Take()).replace(QRegularExpression(QStringLiteral("(text \\d+),\\d+")), "\\1");
  }
  /// What Drawn() has that begins with a word.
  QString Only(const QString& word, int col, int row, TGridDrawState state = {}) {
    return Drawn(col, row, state).split(QStringLiteral(" | ")).filter(word + u' ').join(QStringLiteral(" | "));
  }
  QString Text(int col, int row, TGridDrawState state = {}) { return Only(QStringLiteral("text"), col, row, state); }
  QString Fills(int col, int row, TGridDrawState state = {}) { return Only(QStringLiteral("fill"), col, row, state); }
  /// The colour of the font that a handler finds when it draws a cell.
  TColor ColorAt(int col, int row) {
    TColor color = clNone;
    FEditor->OnDrawCell = [&](TObject*, int, int, const QRect&, TGridDrawState) {
      color = FEditor->GetCanvas().GetFont().GetColor();
    };
    Drawn(col, row);
    FEditor->OnDrawCell = nullptr;
    return color;
  }
  /// Whether a glyph is in the nine pixels that start there.
  bool HasGlyphAt(int left, int col, int row) {
    return Fills(col, row).contains(QStringLiteral("fill %1,4 9x9").arg(left));
  }
};

// Colours.

TEST_F(ItemListEditorPaintTest, PurpleCategoriesAreDrawnLighterOnADarkGround) {
  Items().AddCategory("a", false);
  EXPECT_EQ(clPurple, ColorAt(0, 1));
  QPalette dark(QColor(40, 40, 40));
  dark.setColor(QPalette::Base, QColor(20, 20, 20));
  FEditor->GetCanvas().SetPalette(dark);
  FEditor->GetCanvas().GetBrush().SetColor(clWindow);
  const TColor drawn = ColorAt(0, 1);
  EXPECT_GT(QtColor(drawn).lightness(), QtColor(clPurple).lightness());
  EXPECT_EQ(QtColor(clPurple).hslHue(), QtColor(drawn).hslHue());
  // What is drawn is no matter of what is set.
  EXPECT_EQ(clPurple, FEditor->GetCategoryFont().GetColor());
}

TEST_F(ItemListEditorPaintTest, AHiddenSelectionIsNoGroundForTheColourOfTheText) {
  Items().Add("a", "1");
  FEditor->GetValueFont().SetColor(clRed);
  ASSERT_TRUE(FEditor->GetHideSelection());
  ASSERT_EQ(1, FEditor->GetRow());
  QPalette light(QColor(240, 240, 240));
  light.setColor(QPalette::Base, Qt::white);
  light.setColor(QPalette::Highlight, QColor(48, 140, 198));
  FEditor->GetCanvas().SetPalette(light);
  FEditor->GetCanvas().GetBrush().SetColor(clHighlight);
  EXPECT_EQ(clRed, ColorAt(1, 1));
  QPalette dark(QColor(40, 40, 40));
  dark.setColor(QPalette::Base, QColor(20, 20, 20));
  dark.setColor(QPalette::Highlight, QColor(48, 140, 198));
  FEditor->GetCanvas().SetPalette(dark);
  FEditor->GetValueFont().SetColor(clNavy);
  FEditor->GetCanvas().GetBrush().SetColor(clHighlight);
  EXPECT_GT(QtColor(ColorAt(1, 1)).lightness(), QtColor(clNavy).lightness());
}

// Texts.

TEST_F(ItemListEditorPaintTest, ANameColumnWithoutRoomForTheNamePaintsNothingBeside) {
  Fill("a [b]");
  FEditor->FullExpand();
  FEditor->GetCanvas().GetBrush().SetColor(clRed);
  TPaintLog log;
  {
    QPainter painter(&log);
    FEditor->GetCanvas().Begin(painter);
    static_cast<TPaintedEditor&>(*FEditor).DrawCell(0, 2, QRect(0, 0, 10, 18), {});
    FEditor->GetCanvas().End();
  }
  EXPECT_EQ("", log.Take());
}

TEST_F(ItemListEditorPaintTest, AValueStartsTwoPixelsInside) {
  Items().Add("a", "one");
  EXPECT_EQ("text 2 'one' #000000", Text(1, 1));
}

TEST_F(ItemListEditorPaintTest, ANameStartsBehindTheRoomForTheGlyph) {
  Fill("a");
  EXPECT_EQ("text 13 'a' #000000", Text(0, 1));
  EXPECT_FALSE(HasGlyphAt(0, 0, 1));
}

TEST_F(ItemListEditorPaintTest, ANameIsIndentedByItsLevel) {
  Fill("a [b]");
  FEditor->FullExpand();
  EXPECT_EQ("text 24 'b' #000000", Text(0, 2));
}

TEST_F(ItemListEditorPaintTest, ValuesAreNeverIndented) {
  Fill("a [b]");
  FEditor->FullExpand();
  Item("a.b").SetValue("x");
  EXPECT_EQ("text 2 'x' #000000", Text(1, 2));
}

TEST_F(ItemListEditorPaintTest, AcrossTheColumnsNamesAreIndentedAndValuesAreNot) {
  FEditor->SetOrientation(goHorizontal);
  Fill("a [b]");
  FEditor->FullExpand();
  Item("a.b").SetValue("x");
  EXPECT_TRUE(HasGlyphAt(0, 1, 0));
  EXPECT_EQ("text 24 'b' #000000", Text(2, 0));
  EXPECT_EQ("text 2 'x' #000000", Text(2, 1));
}

TEST_F(ItemListEditorPaintTest, FromRightToLeftTextsEndTwoPixelsInside) {
  Fill("a");
  FEditor->SetBiDiMode(bdRightToLeft);
  const int width = FEditor->GetCanvas().TextWidth(QStringLiteral("a"));
  EXPECT_EQ(QStringLiteral("text %1 'a' #000000").arg(200 - 11 - 2 - width), Text(0, 1));
}

TEST_F(ItemListEditorPaintTest, TheBlankLineShowsNothing) {
  EXPECT_EQ("", Text(0, 1));
  EXPECT_EQ("", Text(1, 1));
}

TEST_F(ItemListEditorPaintTest, AMissingTitleIsEmpty) {
  FEditor->GetTitleCaptions().SetText("Only");
  EXPECT_EQ("text 2 'Only' #000000", Text(0, 0));
  EXPECT_EQ("", Text(1, 0));
}

// Glyphs.

TEST_F(ItemListEditorPaintTest, AnItemWithVisibleChildrenHasAGlyph) {
  Fill("a [b]");
  EXPECT_TRUE(HasGlyphAt(0, 0, 1));
}

TEST_F(ItemListEditorPaintTest, TheGlyphStandsAtTheIndentation) {
  Fill("a [b [c]]");
  FEditor->FullExpand();
  EXPECT_TRUE(HasGlyphAt(11, 0, 2));
}

TEST_F(ItemListEditorPaintTest, AnItemWhoseChildrenAreHiddenHasNoGlyph) {
  Fill("a [b]");
  Item("a.b").SetVisible(false);
  EXPECT_FALSE(HasGlyphAt(0, 0, 1));
  EXPECT_EQ("text 13 'a' #000000", Text(0, 1));
}

TEST_F(ItemListEditorPaintTest, CollapsedItemsShowAPlusAndExpandedOnesAMinus) {
  Fill("a [b]");
  EXPECT_TRUE(Fills(0, 1).contains("fill 4,6 1x5 #000000"));
  FEditor->FullExpand();
  EXPECT_FALSE(Fills(0, 1).contains("fill 4,6 1x5 #000000"));
  EXPECT_TRUE(Fills(0, 1).contains("fill 2,8 5x1 #000000"));
}

TEST_F(ItemListEditorPaintTest, WithoutIndentTheGlyphLiesOverTheName) {
  Fill("a [b]");
  FEditor->SetIndent(0);
  EXPECT_TRUE(HasGlyphAt(0, 0, 1));
  EXPECT_EQ("text 2 'a' #000000", Text(0, 1));
}

TEST_F(ItemListEditorPaintTest, AGlyphOfOnesOwnIsDrawnAsItIs) {
  Fill("a [b]");
  QImage image(7, 7, QImage::Format_RGB32);
  image.fill(Qt::red);
  FEditor->GetPlusGlyph().GetBitmap().SetImage(image);
  EXPECT_EQ("image 0,5 7x7", Only("image", 0, 1));
  FEditor->FullExpand();
  EXPECT_EQ("", Only("image", 0, 1));
}

TEST_F(ItemListEditorPaintTest, EachGlyphHasASizeOfItsOwn) {
  Fill("a [b] c [d]");
  const auto large = Make<TBitmap>();
  large->SetSize(9, 15);
  const auto picture = Make<TPicture>();
  picture->SetGraphic(large.get());
  FEditor->SetMinusGlyph(*picture);
  EXPECT_TRUE(HasGlyphAt(0, 0, 1));
  Item("a").Expand();
  EXPECT_EQ("image 0,1 9x15", Only(QStringLiteral("image"), 0, 1));
  FEditor->GetMinusGlyph().SetGraphic(nullptr);
  EXPECT_TRUE(HasGlyphAt(0, 0, 3));
}

TEST_F(ItemListEditorPaintTest, ANegativeIndentIsIgnored) {
  FEditor->SetIndent(-1);
  EXPECT_EQ(11, FEditor->GetIndent());
}

TEST_F(ItemListEditorPaintTest, TheGlyphsAreThoseOfThePackage) {
  EXPECT_EQ(QSize(9, 9), FEditor->GetMinusGlyph().GetBitmap().GetImage().size());
  EXPECT_EQ(QSize(9, 9), FEditor->GetPlusGlyph().GetBitmap().GetImage().size());
  EXPECT_FALSE(FEditor->IsMinusGlyphStored() || FEditor->IsPlusGlyphStored());
}

// Fonts and colours.

/// How many fonts share what the editor's font says.
int FontsLike(const TFont& font) { return font.SharedData()->ref.loadRelaxed(); }

TEST_F(ItemListEditorPaintTest, PaintingAnItemMakesNoFonts) {
  Items().Add("a", "one");
  FEditor->GetFont().SetHeight(-12);
  FEditor->GetValueFont().SetHeight(-13);
  const auto plain = Make<TFont>();
  const int names = FontsLike(FEditor->GetFont());
  const int values = FontsLike(FEditor->GetValueFont());
  Drawn(0, 1);
  Drawn(1, 1);
  FEditor->GetCanvas().SetFont(plain.get());
  EXPECT_EQ(names, FontsLike(FEditor->GetFont()));
  EXPECT_EQ(values, FontsLike(FEditor->GetValueFont()));
  Item("a").GetFont();
  EXPECT_EQ(names + 1, FontsLike(FEditor->GetFont()));
}

TEST_F(ItemListEditorPaintTest, ChangingTheFontOfAnItemThatWasPaintedLeavesTheEditorsAlone) {
  Items().Add("a", "one");
  Drawn(0, 1);
  Drawn(1, 1);
  Item("a").GetFont().SetColor(clRed);
  Item("a").GetIndividualValueFont(0).SetColor(clBlue);
  EXPECT_EQ("text 13 'a' #ff0000", Text(0, 1));
  EXPECT_EQ("text 2 'one' #0000ff", Text(1, 1));
  EXPECT_EQ(clBlack, FEditor->GetFont().GetColor());
  EXPECT_EQ(clBlack, FEditor->GetValueFont().GetColor());
}

TEST_F(ItemListEditorPaintTest, NamesAndValuesHaveTheFontsOfTheItem) {
  Items().Add("a", "one");
  Item("a").GetFont().SetColor(clRed);
  Item("a").GetValueFont().SetColor(clBlue);
  EXPECT_EQ("text 13 'a' #ff0000", Text(0, 1));
  EXPECT_EQ("text 2 'one' #0000ff", Text(1, 1));
}

TEST_F(ItemListEditorPaintTest, ADisabledItemHasDeliberatelyTheColourOfInactiveCaptions) {
  Fill("a");
  Item("a").SetEnabled(false);
  const QString color = FEditor->GetCanvas().RealColor(clInactiveCaptionText).name();
  EXPECT_EQ("text 13 'a' " + color, Text(0, 1));
  EXPECT_NE("#000000", color);
}

TEST_F(ItemListEditorPaintTest, TheValueOfADisabledItemHasThatColourToo) {
  Items().Add("a", "one");
  Item("a").GetValueFont().SetColor(clBlue);
  Item("a").SetEnabled(false);
  EXPECT_EQ("text 2 'one' " + FEditor->GetCanvas().RealColor(clInactiveCaptionText).name(), Text(1, 1));
}

TEST_F(ItemListEditorPaintTest, AReadOnlyItemLooksLikeAnyOther) {
  Items().Add("a", "one");
  Item("a").SetReadOnly(true);
  EXPECT_EQ("text 2 'one' #000000", Text(1, 1));
}

TEST_F(ItemListEditorPaintTest, TheBlankLineHasTheFontsOfNamesAndOfValues) {
  FEditor->GetFont().SetColor(clRed);
  FEditor->GetValueFont().SetColor(clBlue);
  EXPECT_EQ(clRed, ColorAt(0, 1));
  EXPECT_EQ(clBlue, ColorAt(1, 1));
}

TEST_F(ItemListEditorPaintTest, AFixedRowWithoutTitlesHasTheFontOfTitles) {
  FEditor->GetTitleCaptionFont().SetColor(clGreen);
  FEditor->SetDisplayOptions({doShowReadOnly});
  FEditor->SetRowCount(2);
  FEditor->SetFixedRows(1);
  EXPECT_EQ(clGreen, ColorAt(0, 0));
  EXPECT_EQ(clGreen, ColorAt(1, 0));
}

TEST_F(ItemListEditorPaintTest, TitlesWithoutAFixedRowAreDrawnAsTheFirstItemDeliberately) {
  Items().Add("a", "one");
  Item("a").GetFont().SetColor(clRed);
  FEditor->SetFixedRows(0);
  EXPECT_EQ("text 13 'Property' #ff0000", Text(0, 0));
}

TEST_F(ItemListEditorPaintTest, TitlesHaveTheirFont) {
  FEditor->GetTitleCaptionFont().SetColor(clGreen);
  EXPECT_EQ("text 2 'Property' #008000", Text(0, 0));
}

TEST_F(ItemListEditorPaintTest, CategoriesAreBoldAndPurple) {
  Items().AddCategory("c", false);
  EXPECT_EQ("text 13 'c' #800080", Text(0, 1));
  EXPECT_EQ(TFontStyles{fsBold}, FEditor->GetCategoryFont().GetStyle());
  EXPECT_EQ(TFontStyles{fsBold}, Item("c").GetFont().GetStyle());
}

TEST_F(ItemListEditorPaintTest, TheCurrentCellLooksLikeAnyOtherWhileTheEditorHasNoFocus) {
  Items().Add("a", "one");
  EXPECT_EQ("text 2 'one' #000000", Text(1, 1, {gdSelected}));
  EXPECT_TRUE(Fills(1, 1, {gdSelected}).startsWith("fill 0,0 200x18 #ffffff"));
}

TEST_F(ItemListEditorPaintTest, WithoutHideSelectionTheCurrentCellStaysSelected) {
  Items().Add("a", "one");
  FEditor->SetHideSelection(false);
  const QString color = FEditor->GetCanvas().RealColor(clHighlightText).name();
  EXPECT_EQ("text 2 'one' " + color, Text(1, 1, {gdSelected}));
}

TEST_F(ItemListEditorPaintTest, ANameUnderTheCursorLosesItsSelectionBehindTheIndentationOnly) {
  FEditor->SetPropertyOptions({propEdit});
  FEditor->SetColor(clYellow);
  Fill("a");
  FEditor->SetCol(0);
  EXPECT_TRUE(Fills(0, 1, {gdSelected}).startsWith("fill 11,0 189x18 #ffff00"));
  EXPECT_EQ("text 13 'a' #000000", Text(0, 1, {gdSelected}));
}

TEST_F(ItemListEditorPaintTest, OtherCellsKeepTheirSelectionWithoutTheFocus) {
  FEditor->SetColor(clYellow);
  Items().Add("a", "one");
  EXPECT_FALSE(Fills(0, 1, {gdSelected}).contains("#ffff00"));
}

TEST_F(ItemListEditorPaintTest, TheCurrentCellIsSelectedWhileTheEditorHasTheFocus) {
  Items().Add("a", "one");
  TWindowProbe window(*FEditor);
  const QString color = FEditor->GetCanvas().RealColor(clHighlightText).name();
  FEditor->SetFocus();
  EXPECT_EQ("text 2 'one' " + color, Text(1, 1, {gdSelected}));
  QLineEdit other;
  window.Window()->layout()->addWidget(&other);
  TWindowProbe::Settle();
  other.setFocus();
  EXPECT_EQ("text 2 'one' #000000", Text(1, 1, {gdSelected}));
}

TEST_F(ItemListEditorPaintTest, OnAFormTheCurrentCellIsSelectedWhereTheEditorIsTheActiveControl) {
  const auto form = Make<TForm>();
  FEditor->SetParent(form.get());
  Items().Add("a", "one");
  const QString color = FEditor->GetCanvas().RealColor(clHighlightText).name();
  EXPECT_EQ("text 2 'one' #000000", Text(1, 1, {gdSelected}));
  form->SetActiveControl(FEditor.get());
  EXPECT_EQ("text 2 'one' " + color, Text(1, 1, {gdSelected}));
  FEditor->SetParent(nullptr);
}

TEST_F(ItemListEditorPaintTest, WithRowSelectAFocusedCellIsSelectedToo) {
  Items().Add("a", "one");
  FEditor->SetHideSelection(false);
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goRowSelect});
  const QString color = FEditor->GetCanvas().RealColor(clHighlightText).name();
  EXPECT_EQ("text 13 'a' " + color, Text(0, 1, {gdSelected, gdFocused}));
}

TEST_F(ItemListEditorPaintTest, AFocusedCellIsPlainUnlessTheOptionsSaySo) {
  Items().Add("a", "one");
  FEditor->SetHideSelection(false);
  EXPECT_EQ("text 2 'one' #000000", Text(1, 1, {gdSelected, gdFocused}));
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goDrawFocusSelected});
  EXPECT_NE("text 2 'one' #000000", Text(1, 1, {gdSelected, gdFocused}));
}

// The event.

TEST_F(ItemListEditorPaintTest, OnDrawCellGetsTheRoomBesideTheGlyph) {
  Fill("a [b]");
  QRect got;
  FEditor->OnDrawCell = [&got](TObject*, int, int, const QRect& rect, TGridDrawState) { got = rect; };
  Drawn(0, 1);
  EXPECT_EQ(QRect(11, 0, 189, 18), got);
}

TEST_F(ItemListEditorPaintTest, OnDrawCellDrawsOverTheText) {
  Fill("a");
  FEditor->OnDrawCell = [this](TObject*, int, int, const QRect&, TGridDrawState) {
    FEditor->GetCanvas().GetBrush().SetColor(clRed);
    FEditor->GetCanvas().FillRect({1, 2, 3, 4});
  };
  EXPECT_TRUE(Drawn(0, 1).section(QStringLiteral("text 13 'a'"), 1).contains("fill 1,2 3x4 #ff0000"));
}

TEST_F(ItemListEditorPaintTest, WithoutDefaultDrawingOnlyOnDrawCellDraws) {
  Fill("a [b]");
  QRect got;
  FEditor->OnDrawCell = [&got](TObject*, int, int, const QRect& rect, TGridDrawState) { got = rect; };
  FEditor->SetDefaultDrawing(false);
  EXPECT_EQ("", Drawn(0, 1));
  EXPECT_EQ(QRect(0, 0, 200, 18), got);
}

}  // namespace
}  // namespace kt::tests
