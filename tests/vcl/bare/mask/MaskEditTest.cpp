#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/mask/MaskEdit.h"
#include "kt/vcl/mask/MaskErrors.h"
#include "support/Expect.h"

#include <QStringList>

namespace kt {
namespace {

using tests::MessageOf;

/// Writes each change down.
class TMaskProbe : public TMaskEdit {
 public:
  using TComponent::SetDesigning;
  using TMaskEdit::ValidateError;
  QString Log() { return std::exchange(FLog, {}).join(u'|'); }

 protected:
  explicit TMaskProbe(TComponent* owner = nullptr) : TMaskEdit(owner) {}
  void Change() override { FLog += GetText(); }

 private:
  QStringList FLog;
};

/// A masked line without a window.
class MaskEditTest : public testing::Test {
 protected:
  void Begin(const char16_t* mask, const char16_t* text = u"") {
    Edit.SetEditMask(QString::fromUtf16(mask));
    Edit.SetText(QString::fromUtf16(text));
    Edit.Log();
  }
  std::unique_ptr<TMaskProbe> FEdit = Make<TMaskProbe>();
  TMaskProbe& Edit = *FEdit;
};

TEST_F(MaskEditTest, WithoutAMaskItIsALineOfText) {
  Edit.SetText(QStringLiteral("any text"));
  EXPECT_FALSE(Edit.IsMasked());
  EXPECT_EQ(Edit.GetText(), "any text");
  EXPECT_EQ(Edit.GetEditText(), "any text");
  Edit.SetMaxLength(3);
  EXPECT_EQ(Edit.GetMaxLength(), 3);
}

TEST_F(MaskEditTest, ShowsItsTextInTheMask) {
  Begin(u"(00) 00;0;*", u"123");
  EXPECT_TRUE(Edit.IsMasked());
  EXPECT_EQ(Edit.GetEditText(), "(12) 3*");
  EXPECT_EQ(Edit.GetText(), "123");
}

TEST_F(MaskEditTest, ItsTextHasTheLiteralsWhenTheMaskSavesThem) {
  Begin(u"(00) 00;1;*", u"(12) 3");
  EXPECT_EQ(Edit.GetEditText(), "(12) 3*");
  EXPECT_EQ(Edit.GetText(), "(12) 3 ");
}

TEST_F(MaskEditTest, AnEmptyTextShowsTheLiterals) {
  Begin(u"99\\/99");
  EXPECT_EQ(Edit.GetEditText(), "__/__");
  EXPECT_EQ(Edit.GetText(), "  /  ");
}

TEST_F(MaskEditTest, AMaskFitsTheTextThatIsThere) {
  Edit.SetText(QStringLiteral("1234"));
  Edit.SetEditMask(QStringLiteral("00-00;0"));
  EXPECT_EQ(Edit.GetEditText(), "12-34");
}

TEST_F(MaskEditTest, AnotherMaskTakesWhatWasEnteredAlong) {
  Begin(u"00-00", u"12-34");
  Edit.SetEditMask(QStringLiteral("(0) 000;0"));
  EXPECT_EQ(Edit.GetEditText(), "(1) 234");
}

TEST_F(MaskEditTest, WithoutItsMaskTheValueIsLeft) {
  Begin(u"00-00;0", u"1234");
  Edit.SetEditMask(QString());
  EXPECT_EQ(Edit.GetText(), "1234");
  EXPECT_EQ(Edit.GetEditText(), "1234");
  EXPECT_EQ(Edit.GetMaxLength(), 0);
}

TEST_F(MaskEditTest, TheLengthIsTheMasks) {
  Begin(u"(00) 00;0");
  EXPECT_EQ(Edit.GetMaxLength(), 7);
  Edit.SetMaxLength(3);
  EXPECT_EQ(Edit.GetMaxLength(), 7);
}

TEST_F(MaskEditTest, TheEditTextKeepsItsPlaces) {
  Begin(u"00-00;0");
  Edit.SetEditText(QStringLiteral("_2+3"));
  EXPECT_EQ(Edit.GetEditText(), "_2-3_");
  EXPECT_EQ(Edit.GetText(), " 23");
  EXPECT_EQ(Edit.Log(), " 23");
}

TEST_F(MaskEditTest, SettingTellsOfItOnceAndOnlyWhenItChanges) {
  Begin(u"00-00;0");
  Edit.SetText(QStringLiteral("12"));
  Edit.SetText(QStringLiteral("12"));
  EXPECT_EQ(Edit.Log(), "12");
}

TEST_F(MaskEditTest, TheCaretStandsAtACell) {
  Begin(u"(00) 00;0", u"1234");
  EXPECT_EQ(Edit.GetSelStart(), 1);
  Edit.SetSelStart(3);
  EXPECT_EQ(Edit.GetSelStart(), 5);
  Edit.SetSelStart(99);
  EXPECT_EQ(Edit.GetSelStart(), 7);
}

TEST_F(MaskEditTest, TheSelectionIsOneOfTheTextThatIsShown) {
  Begin(u"(00) 00;0", u"1234");
  Edit.Select(1, 6);
  EXPECT_EQ(Edit.GetSelText(), "12) 3");
  Edit.SelectAll();
  EXPECT_EQ(Edit.GetSelLength(), 7);
}

TEST_F(MaskEditTest, ReplacingTheSelectionGoesThroughTheMask) {
  Begin(u"(00) 00;0", u"1234");
  Edit.Select(1, 6);
  Edit.SetSelText(QStringLiteral("x9"));
  EXPECT_EQ(Edit.GetEditText(), "(9_) _4");
  EXPECT_EQ(Edit.GetSelStart(), 2);
  EXPECT_TRUE(Edit.IsModified());
  EXPECT_EQ(Edit.Log(), "9  4");
}

TEST_F(MaskEditTest, ClearingTheSelectionLeavesBlanks) {
  Begin(u"(00) 00;0", u"1234");
  Edit.Select(2, 6);
  Edit.ClearSelection();
  EXPECT_EQ(Edit.GetEditText(), "(1_) _4");
}

TEST_F(MaskEditTest, ClearingTheTextLeavesTheLiterals) {
  Begin(u"(00) 00;0", u"1234");
  Edit.Clear();
  EXPECT_EQ(Edit.GetEditText(), "(__) __");
}

TEST_F(MaskEditTest, TheMessageThatSetsTheTextGoesThroughTheMaskAndTellsNobody) {
  Begin(u"00-00;0");
  const QString text = QStringLiteral("34");
  Edit.Perform(WM_SETTEXT, 0, PointerMessage(&text));
  EXPECT_EQ(Edit.GetEditText(), "34-__");
  EXPECT_EQ(Edit.Log(), "");
}

TEST_F(MaskEditTest, ResetBringsTheTextBackThatWasSet) {
  Begin(u"00-00;0", u"1234");
  Edit.SelectAll();
  Edit.SetSelText(QStringLiteral("9"));
  Edit.Log();
  Edit.Reset();
  EXPECT_EQ(Edit.GetEditText(), "12-34");
  EXPECT_FALSE(Edit.IsModified());
  EXPECT_EQ(Edit.Log(), "1234");
}

TEST_F(MaskEditTest, ResetWithoutAMaskDoesTheSame) {
  Edit.SetText(QStringLiteral("abc"));
  Edit.SelectAll();
  Edit.SetSelText(QStringLiteral("x"));
  Edit.Reset();
  EXPECT_EQ(Edit.GetText(), "abc");
}

TEST_F(MaskEditTest, UndoTakesChangesBackOneByOne) {
  Begin(u"00-00;0", u"1234");
  Edit.SetSelText(QStringLiteral("9"));
  Edit.SetSelText(QStringLiteral("8"));
  EXPECT_TRUE(Edit.CanUndo());
  Edit.Undo();
  EXPECT_EQ(Edit.GetEditText(), "92-34");
  EXPECT_TRUE(Edit.IsModified());
  Edit.Undo();
  EXPECT_EQ(Edit.GetEditText(), "12-34");
  EXPECT_FALSE(Edit.IsModified());
  EXPECT_FALSE(Edit.CanUndo());
  Edit.Undo();
  EXPECT_EQ(Edit.GetEditText(), "12-34");
}

TEST_F(MaskEditTest, UndoStopsAtTheTextThatWasSet) {
  Begin(u"00-00;0", u"1234");
  Edit.SetSelText(QStringLiteral("9"));
  Edit.SetText(QStringLiteral("5678"));
  EXPECT_FALSE(Edit.CanUndo());
}

TEST_F(MaskEditTest, ATextThatTheUserDidNotTouchIsValid) {
  Begin(u"0000", u"12");
  EXPECT_NO_THROW(Edit.ValidateEdit());
}

TEST_F(MaskEditTest, AChangedTextThatIsIncompleteIsNot) {
  Begin(u"00-00;0", u"1234");
  Edit.Select(1, 4);
  Edit.ClearSelection();
  EXPECT_EQ(MessageOf<EDBEditError>([&] { Edit.ValidateEdit(); }),
            "Invalid input value.  Use escape key to abandon changes");
  EXPECT_EQ(Edit.GetSelStart(), 1);
}

TEST_F(MaskEditTest, AChangedTextThatIsCompleteIsValid) {
  Begin(u"00-99;0");
  Edit.SetSelText(QStringLiteral("12"));
  EXPECT_NO_THROW(Edit.ValidateEdit());
}

TEST_F(MaskEditTest, WithoutAMaskEveryTextIsValid) {
  Edit.SetSelText(QStringLiteral("x"));
  EXPECT_NO_THROW(Edit.ValidateEdit());
}

TEST_F(MaskEditTest, ValidatingMovesWhatIsFilledFromTheRight) {
  Begin(u"!990;0");
  Edit.SetSelText(QStringLiteral("12"));
  Edit.Log();
  Edit.ValidateEdit();
  EXPECT_EQ(Edit.GetEditText(), "_12");
  EXPECT_EQ(Edit.Log(), "12");
}

TEST_F(MaskEditTest, AtDesignTimeTheErrorSpeaksOfNoKey) {
  Edit.SetDesigning(true);
  EXPECT_EQ(MessageOf<EMaskError>([&] { Edit.ValidateError(); }), "Invalid input value");
}

TEST_F(MaskEditTest, FormsCanLoadIt) {
  RegisterVisualPlatform();
  EXPECT_EQ(FindClass(QStringLiteral("TMaskEdit")), TMaskEdit::Class());
}

TEST_F(MaskEditTest, PublishesMaskAndText) {
  SetStrProp(FEdit.get(), u"EditMask", QStringLiteral("00-00;0"));
  SetStrProp(FEdit.get(), u"Text", QStringLiteral("12"));
  EXPECT_EQ(GetStrProp(FEdit.get(), u"Text"), "12");
  EXPECT_EQ(Edit.GetEditText(), "12-__");
  EXPECT_EQ(TMaskEdit::Class()->FindProp(u"EditMask")->PropType()->Name(), "TEditMask");
}

}  // namespace
}  // namespace kt
