#include "kt/vcl/stdctrls/Edit.h"
#include "vcl/stdctrls/ControlsFixture.h"

#include <QClipboard>
#include <QFontMetrics>
#include <QLineEdit>

namespace kt::tests {
namespace {

/// Two lines of text on a form that shows.
class EditWindowTest : public TControlsTest {
 protected:
  TEdit& AddEdit(const char* text, int top = 8) {
    TEdit& edit = Add<TEdit>(8, top);
    edit.SetText(QString::fromLatin1(text));
    return edit;
  }
  static QLineEdit& Line(TEdit& edit) { return *static_cast<QLineEdit*>(edit.GetHandle()); }
  static QString Clipboard() { return QGuiApplication::clipboard()->text(); }
};

TEST_F(EditWindowTest, AFormKeepsWhatIsNotUsual) {
  TEdit& edit = AddEdit("abc");
  edit.SetName(QStringLiteral("Edit"));
  edit.SetCharCase(ecUpperCase);
  edit.SetPasswordChar(u'*');
  edit.SetMaxLength(5);
  EXPECT_EQ(
      "object Edit: TEdit\n  Left = 8\n  Top = 8\n  Width = 121\n  Height = 21\n  CharCase = ecUpperCase\n"
      "  MaxLength = 5\n  PasswordChar = '*'\n  TabOrder = 0\n  Text = 'ABC'\nend\n",
      TextOf(&edit));
}

TEST_F(EditWindowTest, AFormBringsItBack) {
  ReadFormText(*FForm, R"(object Form: TForm
    object Edit: TEdit
      AutoSelect = False
      CharCase = ecLowerCase
      Text = 'Some'
    end
  end
)");
  auto* edit = dynamic_cast<TEdit*>(FForm->FindComponent(u"Edit"));
  ASSERT_NE(nullptr, edit);
  EXPECT_EQ("some", edit->GetText());
  EXPECT_FALSE(edit->IsAutoSelect());
}

TEST_F(EditWindowTest, WhatIsTypedHasTheLettersOfItsCase) {
  TEdit& edit = AddEdit("");
  edit.SetCharCase(ecUpperCase);
  edit.OnChange = [&](TObject*) { FLog += edit.GetText(); };
  Show();
  edit.SetFocus();
  Type("ab1");
  EXPECT_EQ("A AB AB1", TakeLog());
  EXPECT_EQ("AB1", Line(edit).text());
  edit.Undo();
  EXPECT_NE("AB1", edit.GetText());
}

TEST_F(EditWindowTest, WhatIsPastedOrComposedHasThemToo) {
  TEdit& edit = AddEdit("");
  edit.SetCharCase(ecUpperCase);
  Show();
  edit.SetFocus();
  Commit(edit.GetHandle(), QStringLiteral("ab"));
  QGuiApplication::clipboard()->setText(QStringLiteral("cd"));
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ("ABCD", edit.GetText());
  EXPECT_EQ("ABCD", Line(edit).text());
  EXPECT_TRUE(edit.IsModified());
}

TEST_F(EditWindowTest, TheTabKeyAndTheProgramSelectAllOfIt) {
  TEdit& first = AddEdit("first");
  TEdit& second = AddEdit("second", 40);
  Show();
  first.SetFocus();
  EXPECT_EQ("first", first.GetSelText());
  Key(Qt::Key_Tab);
  EXPECT_EQ("second", second.GetSelText());
}

TEST_F(EditWindowTest, TheMouseDoesNot) {
  TEdit& edit = AddEdit("first");
  AddEdit("second", 40).SetTabOrder(0);
  Show();
  QTest::mouseClick(edit.GetHandle(), Qt::LeftButton, {}, QPoint(100, 10));
  EXPECT_TRUE(edit.Focused());
  EXPECT_EQ("", edit.GetSelText());
}

TEST_F(EditWindowTest, WithoutAutoSelectTheSelectionIsTheOneThatWas) {
  TEdit& first = AddEdit("first");
  TEdit& second = AddEdit("second", 40);
  second.SetAutoSelect(false);
  second.Select(1, 3);
  Show();
  first.SetFocus();
  Key(Qt::Key_Tab);
  EXPECT_TRUE(second.Focused());
  EXPECT_EQ("ec", second.GetSelText());
}

TEST_F(EditWindowTest, TheSelectionOutlivesTheLossOfTheKeyboard) {
  TEdit& first = AddEdit("first");
  TEdit& second = AddEdit("second", 40);
  first.SetAutoSelect(false);
  Show();
  first.SetFocus();
  first.Select(1, 3);
  second.SetFocus();
  EXPECT_EQ("ir", first.GetSelText());
  EXPECT_FALSE(Line(first).hasSelectedText());
  first.SetFocus();
  EXPECT_EQ("ir", Line(first).selectedText());
}

TEST_F(EditWindowTest, ASelectionThatIsNotHiddenShowsAllTheTime) {
  TEdit& first = AddEdit("first");
  TEdit& second = AddEdit("second", 40);
  first.SetHideSelection(false);
  Show();
  first.SetFocus();
  second.SetFocus();
  EXPECT_EQ("first", Line(first).selectedText());
}

TEST_F(EditWindowTest, TheProgramReplacesASelectionThatDoesNotShow) {
  TEdit& first = AddEdit("first");
  TEdit& second = AddEdit("second", 40);
  Show();
  first.SetFocus();
  first.Select(1, 3);
  second.SetFocus();
  first.SetSelText(QStringLiteral("-"));
  EXPECT_EQ("f-st", first.GetText());
}

TEST_F(EditWindowTest, APasswordIsNeitherShownNorCopied) {
  TEdit& edit = AddEdit("secret");
  edit.SetPasswordChar(u'#');
  QGuiApplication::clipboard()->setText(QStringLiteral("before"));
  Show();
  edit.SelectAll();
  edit.CopyToClipboard();
  EXPECT_EQ("before", Clipboard());
  EXPECT_EQ("######", Line(edit).displayText());
  EXPECT_EQ("secret", edit.GetText());
  edit.SetPasswordChar({});
  EXPECT_EQ("secret", Line(edit).displayText());
}

TEST_F(EditWindowTest, TheClipboardTakesAndGives) {
  TEdit& edit = AddEdit("abcd");
  Show();
  edit.Select(1, 3);
  edit.CutToClipboard();
  EXPECT_EQ("bc", Clipboard());
  EXPECT_EQ("ad", edit.GetText());
  edit.PasteFromClipboard();
  edit.PasteFromClipboard();
  EXPECT_EQ("abcbcd", edit.GetText());
  edit.SetReadOnly(true);
  edit.PasteFromClipboard();
  EXPECT_EQ("abcbcd", edit.GetText());
}

TEST_F(EditWindowTest, TypingIsTakenBackUntilThatIsForgotten) {
  TEdit& edit = AddEdit("");
  Show();
  edit.SetFocus();
  Type("ab");
  EXPECT_TRUE(edit.CanUndo());
  edit.ClearUndo();
  EXPECT_FALSE(edit.CanUndo());
  EXPECT_EQ("ab", edit.GetText());
  EXPECT_TRUE(edit.IsModified());
}

TEST_F(EditWindowTest, ATextOfTheProgramIsNotCutToWhatMayBeTyped) {
  TEdit& edit = AddEdit("");
  edit.SetMaxLength(2);
  Show();
  edit.SetText(QStringLiteral("abcd"));
  EXPECT_EQ("abcd", Line(edit).text());
  edit.SetFocus();
  Key(Qt::Key_End);
  Type("x");
  EXPECT_EQ("abcd", edit.GetText());
  Key(Qt::Key_Backspace);
  Type("x");
  EXPECT_EQ("abc", edit.GetText());
}

TEST_F(EditWindowTest, ItsHeightFollowsTheFont) {
  TEdit& edit = AddEdit("abc");
  Show();
  edit.GetFont().SetSize(20);
  EXPECT_EQ(edit.GetHandle()->fontMetrics().height() + 8, edit.GetHeight());
  edit.SetAutoSize(false);
  const int before = edit.GetHeight();
  edit.GetFont().SetSize(8);
  EXPECT_EQ(before, edit.GetHeight());
}

TEST_F(EditWindowTest, FromRightToLeftItsTextStandsAtTheRight) {
  TEdit& edit = AddEdit("abc");
  Show();
  edit.SetBiDiMode(bdRightToLeft);
  EXPECT_TRUE(Line(edit).alignment().testFlag(Qt::AlignRight));
  EXPECT_EQ(Qt::RightToLeft, Line(edit).layoutDirection());
  edit.SetBiDiMode(bdRightToLeftNoAlign);
  EXPECT_TRUE(Line(edit).alignment().testFlag(Qt::AlignLeft));
}

TEST_F(EditWindowTest, TheOrderOfItsEvents) {
  TEdit& edit = AddEdit("");
  edit.OnEnter = Note("enter");
  edit.OnExit = Note("exit");
  edit.OnChange = Note("change");
  edit.OnKeyDown = [this](TObject*, quint16&, TShiftState) { FLog += "down"; };
  edit.OnKeyPress = [this](TObject*, QChar&) { FLog += "press"; };
  edit.OnKeyUp = [this](TObject*, quint16&, TShiftState) { FLog += "up"; };
  TEdit& other = AddEdit("", 40);
  other.SetTabOrder(0);
  Show();
  edit.SetFocus();
  Type("a");
  other.SetFocus();
  EXPECT_EQ("enter down press change up exit", TakeLog());
}

TEST_F(EditWindowTest, AFormMayGoWhileOneTypes) {
  TEdit& edit = AddEdit("");
  edit.OnChange = FreeForm();
  Show();
  edit.SetFocus();
  QTest::keyPress(QApplication::focusWidget(), Qt::Key_A);
  EXPECT_EQ(nullptr, FForm);
}

TEST_F(EditWindowTest, AFormMayGoWhenTheKeyboardComes) {
  TEdit& edit = AddEdit("");
  TEdit& other = AddEdit("", 40);
  other.SetTabOrder(0);
  Show();
  other.SetFocus();
  edit.OnEnter = FreeForm();
  QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(nullptr, FForm);
}

}  // namespace
}  // namespace kt::tests
