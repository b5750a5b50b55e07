#include "kt/KTItemListEditor/Registration.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/PropInfo.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/Picture.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

namespace kt::tests {
namespace {

/// What a new editor has, what of it is written to forms, and what is painted when it changes.
class ItemListEditorDefaultsTest : public TItemListTest {
 protected:
  ItemListEditorDefaultsTest() { FEditor = Make<TProbeEditor>(); }

  static qint64 Declared(const char* name) {
    const TPropInfo* property = TKTItemListEditor::Class()->FindProp(QString::fromLatin1(name));
    return property ? property->Default() : TPropInfo::NoDefault;
  }
  void Show(TILEDisplayOption option, bool isOn) {
    TILEDisplayOptions options = FEditor->GetDisplayOptions();
    options.Put(option, isOn);
    FEditor->SetDisplayOptions(options);
  }
};

TEST_F(ItemListEditorDefaultsTest, TheOptionsAreThoseOfTheNumberInForms) {
  EXPECT_EQ(25743U, FEditor->GetOptions().Bits());
  EXPECT_EQ(25743, Declared("Options"));
}

TEST_F(ItemListEditorDefaultsTest, TheDisplayOptionsAreThoseOfTheNumberInForms) {
  EXPECT_EQ(15U, FEditor->GetDisplayOptions().Bits());
  EXPECT_EQ(15, Declared("DisplayOptions"));
  EXPECT_EQ(16U, TILEDisplayOptions{doMultiColValues}.Bits());
}

TEST_F(ItemListEditorDefaultsTest, ThePropertyOptionsAreThoseOfTheNumbersInForms) {
  EXPECT_EQ(1U, TILEPropOptions{propEdit}.Bits());
  EXPECT_EQ(2U, TILEPropOptions{propAdd}.Bits());
  EXPECT_EQ(4U, TILEPropOptions{propDelete}.Bits());
  EXPECT_EQ(8U, TILEPropOptions{propUnique}.Bits());
}

TEST_F(ItemListEditorDefaultsTest, TheSizesAreThoseOfASmallWindow) {
  EXPECT_EQ(QSize(306, 300), QSize(FEditor->GetWidth(), FEditor->GetHeight()));
  EXPECT_EQ(150, FEditor->GetDefaultColWidth());
  EXPECT_EQ(18, FEditor->GetDefaultRowHeight());
  EXPECT_EQ(1, FEditor->GetGridLineWidth());
}

TEST_F(ItemListEditorDefaultsTest, TheColoursAreThoseOfTheSystem) {
  EXPECT_EQ(clWindow, FEditor->GetColor());
  EXPECT_EQ(clBtnFace, FEditor->GetFixedColor());
  EXPECT_EQ(clWindow, Declared("Color"));
  EXPECT_EQ(clBtnFace, Declared("FixedColor"));
}

TEST_F(ItemListEditorDefaultsTest, TheGridDrawsAndScrollsByItself) {
  EXPECT_TRUE(FEditor->IsDefaultDrawing());
  EXPECT_EQ(ssBoth, FEditor->GetScrollBars());
}

TEST_F(ItemListEditorDefaultsTest, ItemsRunDownwardsAndTheSelectionHidesWithoutTheFocus) {
  EXPECT_EQ(goVertical, FEditor->GetOrientation());
  EXPECT_TRUE(FEditor->GetHideSelection());
  EXPECT_EQ(shValueAndHint, FEditor->GetShowItemHintStyle());
}

TEST_F(ItemListEditorDefaultsTest, TheTitlesAreTwo) {
  EXPECT_EQ("Property,Value", FEditor->GetTitleCaptions().GetCommaText());
}

// The indentation.

TEST_F(ItemListEditorDefaultsTest, TheIndentationIsElevenAndDeclaredAsSeventeenDeliberately) {
  EXPECT_EQ(11, FEditor->GetIndent());
  EXPECT_EQ(17, Declared("Indent"));
}

TEST_F(ItemListEditorDefaultsTest, AnIndentationOfElevenIsAlwaysWritten) {
  RegisterItemListEditor();
  const auto editor = Make<TKTItemListEditor>();
  EXPECT_NE(std::string::npos, TextOf(editor.get()).find("\n  Indent = 11\n"));
}

TEST_F(ItemListEditorDefaultsTest, AnIndentationOfSeventeenIsNeverWrittenAndComesBackAsEleven) {
  RegisterItemListEditor();
  const auto editor = Make<TKTItemListEditor>();
  editor->SetIndent(17);
  const std::string form = TextOf(editor.get());
  EXPECT_EQ(std::string::npos, form.find("Indent"));
  TReader reader(BinaryOf(form.c_str()));
  EXPECT_EQ(11, reader.ReadRoot<TKTItemListEditor>()->GetIndent());
}

// Fonts.

TEST_F(ItemListEditorDefaultsTest, OnlyTheFontOfCategoriesDiffersFromTheFont) {
  EXPECT_EQ(FEditor->GetFont().GetColor(), FEditor->GetValueFont().GetColor());
  EXPECT_EQ(FEditor->GetFont().GetColor(), FEditor->GetTitleCaptionFont().GetColor());
  EXPECT_EQ(0x800080, FEditor->GetCategoryFont().GetColor());
  EXPECT_EQ(TFontStyles{fsBold}, FEditor->GetCategoryFont().GetStyle());
  EXPECT_EQ(FEditor->GetFont().GetHeight(), FEditor->GetCategoryFont().GetHeight());
}

TEST_F(ItemListEditorDefaultsTest, AllFontsFollowTheFont) {
  FEditor->GetFont().SetHeight(-25);
  EXPECT_EQ(-25, FEditor->GetValueFont().GetHeight());
  EXPECT_EQ(-25, FEditor->GetTitleCaptionFont().GetHeight());
  EXPECT_EQ(-25, FEditor->GetCategoryFont().GetHeight());
}

TEST_F(ItemListEditorDefaultsTest, TheFontOfCategoriesStaysBoldAndPurpleWhenItFollows) {
  FEditor->GetFont().SetColor(clRed);
  FEditor->GetFont().SetStyle({fsItalic});
  EXPECT_EQ(clPurple, FEditor->GetCategoryFont().GetColor());
  EXPECT_EQ((TFontStyles{fsBold, fsItalic}), FEditor->GetCategoryFont().GetStyle());
}

TEST_F(ItemListEditorDefaultsTest, AFontKeepsWhatItHasOfItsOwnWhenItFollows) {
  FEditor->GetTitleCaptionFont().SetColor(clGreen);
  FEditor->GetFont().SetColor(clRed);
  EXPECT_EQ(clGreen, FEditor->GetTitleCaptionFont().GetColor());
  EXPECT_EQ(clRed, FEditor->GetValueFont().GetColor());
}

TEST_F(ItemListEditorDefaultsTest, TheItemsAreToldOfAFontWhetherOrNotTheyShow) {
  Fill("a b");
  Item("b").SetVisible(false);
  const QString log = QString::fromStdString(Heard([&] { FEditor->GetFont().SetColor(clRed); }));
  EXPECT_TRUE(log.contains(QStringLiteral("a.ParentFontChanged(nil)")));
  EXPECT_TRUE(log.contains(QStringLiteral("b.ParentFontChanged(nil)")));
}

TEST_F(ItemListEditorDefaultsTest, TheItemsAreToldOfAValueFontWhetherOrNotTheyShow) {
  Fill("a b");
  Item("b").SetVisible(false);
  EXPECT_EQ("a.ParentValueFontChanged b.ParentValueFontChanged",
            Heard([&] { FEditor->GetValueFont().SetColor(clRed); }));
}

// What is painted anew.

TEST_F(ItemListEditorDefaultsTest, TheFontOfCategoriesIsPaintedOnlyWhileTheyAreShown) {
  EXPECT_EQ("", Heard([&] { FEditor->GetCategoryFont().SetColor(clRed); }));
  FEditor->SetArrangeByCategory(true);
  EXPECT_EQ("editor.Invalidate", Heard([&] { FEditor->GetCategoryFont().SetColor(clBlue); }));
}

TEST_F(ItemListEditorDefaultsTest, TheFontOfTitlesIsPaintedOnlyWhileTheyAreShown) {
  EXPECT_EQ("editor.Invalidate", Heard([&] { FEditor->GetTitleCaptionFont().SetColor(clRed); }));
  Show(doColumnTitles, false);
  EXPECT_EQ("", Heard([&] { FEditor->GetTitleCaptionFont().SetColor(clBlue); }));
}

TEST_F(ItemListEditorDefaultsTest, TitlesRefreshTheGridOnlyWhileTheyAreShown) {
  EXPECT_EQ("editor.Refresh editor.AdjustGridCount editor.Invalidate",
            Heard([&] { FEditor->GetTitleCaptions().Add(QStringLiteral("More")); }));
  Show(doColumnTitles, false);
  EXPECT_EQ("", Heard([&] { FEditor->GetTitleCaptions().Clear(); }));
}

TEST_F(ItemListEditorDefaultsTest, TheIndentationIsPaintedWhenItChanges) {
  EXPECT_EQ("editor.Invalidate", Heard([&] { FEditor->SetIndent(12); }));
  EXPECT_EQ("", Heard([&] { FEditor->SetIndent(12); }));
  EXPECT_EQ("", Heard([&] { FEditor->SetIndent(-1); }));
}

TEST_F(ItemListEditorDefaultsTest, WhetherTheSelectionHidesIsPaintedWhenItChanges) {
  EXPECT_EQ("editor.Invalidate", Heard([&] { FEditor->SetHideSelection(false); }));
  EXPECT_EQ("", Heard([&] { FEditor->SetHideSelection(false); }));
}

TEST_F(ItemListEditorDefaultsTest, GlyphsArePaintedWhenTheyChange) {
  EXPECT_EQ("editor.Invalidate", Heard([&] { FEditor->GetPlusGlyph().SetGraphic(nullptr); }));
  EXPECT_EQ("editor.Invalidate", Heard([&] { FEditor->GetMinusGlyph().SetGraphic(nullptr); }));
}

}  // namespace
}  // namespace kt::tests
