#include "KTItemListEditor/InplaceEditListFixture.h"

namespace kt::tests {
namespace {

using InplaceEditListKeysTest = TInplaceEditListTest;

TEST_F(InplaceEditListKeysTest, EnterHasTheTextValidated) {
  Show();
  Retype(QStringLiteral("x"));
  Key(Qt::Key_Return);
  EXPECT_EQ("validate(a=x) validated(a)", TakeLog());
}

TEST_F(InplaceEditListKeysTest, EnterOnAnUnchangedTextValidatesNothing) {
  Show();
  Key(Qt::Key_Return);
  EXPECT_EQ("", TakeLog());
}

TEST_F(InplaceEditListKeysTest, CtrlEnterOnAnEllipsisCellIsEnterAndNotTheButton) {
  ShowEllipsis();
  Retype(QStringLiteral("x"));
  Editor.OnKeyDown = [this](TObject*, quint16& key, TShiftState) { Log += QStringLiteral("key(%1)").arg(key); };
  Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ("key(17) validate(a=x) validated(a) key(13)", TakeLog());
}

TEST_F(InplaceEditListKeysTest, TheArrowsLeadToOtherCells) {
  Show();
  Key(Qt::Key_Down);
  EXPECT_EQ(2, Editor.GetRow());
  EXPECT_EQ("2", Edit().GetText());
  Key(Qt::Key_Up);
  EXPECT_EQ(1, Editor.GetRow());
}

TEST_F(InplaceEditListKeysTest, LeavingByKeySelectsTheTextInALoadedList) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Escape);
  Retype(QStringLiteral("blue"));
  Key(Qt::Key_Insert);
  EXPECT_EQ("red green >blue", Lines());
}

TEST_F(InplaceEditListKeysTest, WordsOfAMaskedTextAreThoseThatShow) {
  Item(0).SetValue(QStringLiteral("12"));
  Item(0).SetEditMask(QStringLiteral("(000) 000-0000;0;_"));
  Show();
  Edit().SetSelStart(14);
  Key(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_EQ(1, Edit().GetSelStart());
  Key(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(14, Edit().GetSelStart());
}

TEST_F(InplaceEditListKeysTest, AltDownOnAnOpenListTakesTheSelectionOver) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("red", Value(0));
  EXPECT_EQ("validate(a=red) validated(a)", TakeLog());
}

TEST_F(InplaceEditListKeysTest, EnterWithAltLeavesTheListOpen) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Return, Qt::AltModifier);
  EXPECT_TRUE(Edit().IsListVisible());
}

TEST_F(InplaceEditListKeysTest, PageDownInAnOpenListMovesThere) {
  QStringList lines;
  for (int i = 0; i < 30; ++i) lines += QString::number(i + 100);
  ShowPickList(lines);
  OpenList();
  Key(Qt::Key_PageDown);
  Key(Qt::Key_PageDown);
  EXPECT_EQ(13, List().GetItemIndex());
  Key(Qt::Key_End);
  EXPECT_EQ(29, List().GetItemIndex());
  EXPECT_EQ(1, Editor.GetRow());
}

TEST_F(InplaceEditListKeysTest, NoKeyOfAnOpenListChangesTheText) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Delete);
  Key(Qt::Key_Backspace);
  Type(QStringLiteral("r"));
  EXPECT_EQ("1", Edit().GetText());
}

// Words. The caret after a key, or the selection as "anchor..caret".

class InplaceEditListWordsTest : public TInplaceEditListTest {
 protected:
  std::string After(const char* text, int caret, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
    if (!Window) Show();
    Editor.GetItems().GetItem(0)->SetValue(QString::fromLatin1(text));
    Editor.SetEditorMode(true);
    Edit().Select(caret, caret);
    Key(key, modifiers);
    return State();
  }
  /// The same with a selection before.
  std::string AfterSelecting(const char* text, int anchor, int caret, Qt::Key key) {
    After(text, 0, Qt::Key_Shift, Qt::NoModifier);
    Edit().Select(anchor, caret);
    Key(key, Qt::ControlModifier);
    return State();
  }
  std::string State() {
    const int start = Edit().GetSelStart();
    const int end = start + Edit().GetSelLength();
    const int caret = Edit().GetCaretPos();
    if (start == end) return std::to_string(caret);
    return std::to_string(caret == start ? end : start) + ".." + std::to_string(caret);
  }
};

TEST_F(InplaceEditListWordsTest, CtrlRightGoesToTheStartOfTheNextWord) {
  EXPECT_EQ("4", After("one two", 0, Qt::Key_Right));
  EXPECT_EQ("4", After("one two", 2, Qt::Key_Right));
  EXPECT_EQ("6", After("one - two", 1, Qt::Key_Right));
}

TEST_F(InplaceEditListWordsTest, CtrlRightInTheLastWordGoesToTheEnd) {
  EXPECT_EQ("7", After("one two", 5, Qt::Key_Right));
}

TEST_F(InplaceEditListWordsTest, CtrlLeftGoesToTheStartOfTheWord) {
  EXPECT_EQ("4", After("one two", 7, Qt::Key_Left));
  EXPECT_EQ("0", After("one two", 3, Qt::Key_Left));
  EXPECT_EQ("0", After("one two", 4, Qt::Key_Left));
}

TEST_F(InplaceEditListWordsTest, CtrlLeftStepsOverAWordOfOneCharacter) {
  EXPECT_EQ("0", After("one x", 5, Qt::Key_Left));
  EXPECT_EQ("0", After("x", 1, Qt::Key_Left));
}

TEST_F(InplaceEditListWordsTest, LettersBeyondAToZArePartOfNoWord) {
  EXPECT_EQ("2", After("a\xe4o", 0, Qt::Key_Right));
}

TEST_F(InplaceEditListWordsTest, WithShiftTheSelectionGrowsFromWhereItBegan) {
  EXPECT_EQ("0..4", After("one two three", 0, Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier));
  Key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ("0..8", State());
  Key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ("0..4", State());
}

TEST_F(InplaceEditListWordsTest, WithShiftTheSelectionGrowsToTheLeft) {
  EXPECT_EQ("7..4", After("one two", 7, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier));
}

// Which side of the text the caret is at.

TEST_F(InplaceEditListWordsTest, WithAllSelectedFromTheEndToTheStartTheGridGetsCtrlLeft) {
  Editor.SetPropertyOptions({propEdit});
  AfterSelecting("one two", 7, 0, Qt::Key_Left);
  EXPECT_EQ(0, Editor.GetCol());
}

TEST_F(InplaceEditListWordsTest, WithAllSelectedFromTheStartToTheEndCtrlLeftStaysInTheText) {
  Editor.SetPropertyOptions({propEdit});
  EXPECT_EQ("4", AfterSelecting("one two", 0, 7, Qt::Key_Left));
  EXPECT_EQ(1, Editor.GetCol());
}

TEST_F(InplaceEditListWordsTest, WithAPartSelectedUpToTheStartCtrlLeftStaysInTheText) {
  Editor.SetPropertyOptions({propEdit});
  EXPECT_EQ("0", AfterSelecting("one two", 3, 0, Qt::Key_Left));
  EXPECT_EQ(1, Editor.GetCol());
}

TEST_F(InplaceEditListWordsTest, WithAllSelectedFromTheStartToTheEndTheGridGetsCtrlRight) {
  Editor.SetColCount(3);
  AfterSelecting("one two", 0, 7, Qt::Key_Right);
  EXPECT_EQ(2, Editor.GetCol());
}

TEST_F(InplaceEditListWordsTest, WithAllSelectedFromTheEndToTheStartCtrlRightStaysInTheText) {
  Editor.SetColCount(3);
  EXPECT_EQ("4", AfterSelecting("one two", 7, 0, Qt::Key_Right));
  EXPECT_EQ(1, Editor.GetCol());
}

TEST_F(InplaceEditListWordsTest, WithAPartSelectedUpToTheEndCtrlRightStaysInTheText) {
  Editor.SetColCount(3);
  EXPECT_EQ("7", AfterSelecting("one two", 4, 7, Qt::Key_Right));
  EXPECT_EQ(1, Editor.GetCol());
}

/// There a word of one character is a word.
TEST_F(InplaceEditListWordsTest, WithoutAPermanentEditorTheWordsAreThoseOfAnyLineOfText) {
  Editor.SetOptions(Editor.GetOptions() - TGridOptions{goAlwaysShowEditor});
  EXPECT_EQ("4", After("one x", 5, Qt::Key_Left));
}

TEST_F(InplaceEditListWordsTest, WithoutAPermanentEditorTheKeysNeverLeaveTheCell) {
  Editor.SetPropertyOptions({propEdit});
  Editor.SetOptions(Editor.GetOptions() - TGridOptions{goAlwaysShowEditor});
  EXPECT_EQ("0", After("one", 0, Qt::Key_Left));
  EXPECT_EQ(1, Editor.GetCol());
}

TEST_F(InplaceEditListWordsTest, AtTheEndsTheGridGetsTheKey) {
  Editor.SetPropertyOptions({propEdit});
  EXPECT_EQ("1", After("1", 1, Qt::Key_Right));
  EXPECT_EQ(1, Editor.GetCol());
  After("1", 0, Qt::Key_Left);
  EXPECT_EQ(0, Editor.GetCol());
}

}  // namespace
}  // namespace kt::tests
