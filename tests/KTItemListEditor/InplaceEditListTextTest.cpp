#include "KTItemListEditor/InplaceEditListFixture.h"

#include <QLineEdit>

#include <tuple>

namespace kt::tests {
namespace {

using InplaceEditListTextTest = TInplaceEditListTest;

/// Opens what only descendants may call.
struct TOpenEdit : TKTInplaceEditList {
  using TKTInplaceEditList::LoadPickList;
  using TKTInplaceEditList::RestoreContents;
  using TKTInplaceEditList::SetGrid;
  using TKTInplaceEditList::ValidateExpression;
};

TEST_F(InplaceEditListTextTest, StandsOverTheValueWithItsText) {
  Show();
  EXPECT_EQ("1", Edit().GetText());
  EXPECT_EQ(Editor.CellRect(1, 1), Edit().GetBoundsRect());
  EXPECT_EQ(&Editor, &Edit().GetGrid());
}

TEST_F(InplaceEditListTextTest, OutsideAnItemListEditorThereIsNoGrid) {
  const auto edit = Make<TOpenEdit>();
  EXPECT_EQ("Invalid class typecast", MessageOf<EInvalidCast>([&] { std::ignore = &edit->GetGrid(); }));
  const auto grid = Make<TDrawGrid>();
  edit->SetGrid(grid.get());
  EXPECT_EQ("Invalid class typecast", MessageOf<EInvalidCast>([&] { std::ignore = &edit->GetGrid(); }));
}

TEST_F(InplaceEditListTextTest, HasTheFontOfItsCell) {
  Item(0).GetValueFont().SetStyle({fsItalic});
  Show();
  EXPECT_TRUE(Edit().GetFont().GetStyle().Has(fsItalic));
  Key(Qt::Key_Down);
  EXPECT_FALSE(Edit().GetFont().GetStyle().Has(fsItalic));
}

TEST_F(InplaceEditListTextTest, IsCalledByTheNameOfItsItem) {
  Show();
  EXPECT_EQ("a", Edit().GetHandle()->accessibleName());
  Key(Qt::Key_Down);
  EXPECT_EQ("b", Edit().GetHandle()->accessibleName());
}

TEST_F(InplaceEditListTextTest, WhatIsTypedIsInTheItemAtOnce) {
  Show();
  Retype(QStringLiteral("xy"));
  EXPECT_EQ("xy", Value(0));
}

TEST_F(InplaceEditListTextTest, ReadOnlyItemsTakeNoKeys) {
  Item(0).SetReadOnly(true);
  Show();
  Retype(QStringLiteral("x"));
  EXPECT_EQ("1", Value(0));
  EXPECT_EQ("1", Edit().GetText());
}

// Expressions.

TEST_F(InplaceEditListTextTest, TheExpressionIsThatOfTheCell) {
  ShowExpression(QStringLiteral("[0-9]+"));
  EXPECT_EQ("[0-9]+", Edit().GetExpression());
  Key(Qt::Key_Down);
  EXPECT_EQ("", Edit().GetExpression());
}

TEST_F(InplaceEditListTextTest, TextThatTheExpressionMatchesWholeStays) {
  ShowExpression(QStringLiteral("[0-9]+"));
  Retype(QStringLiteral("42"));
  EXPECT_EQ("42", Edit().GetText());
  EXPECT_EQ("42", Value(0));
}

TEST_F(InplaceEditListTextTest, ACharacterThatNoLongerMatchesIsUndoneAtOnce) {
  ShowExpression(QStringLiteral("[0-9]+"));
  Edit().Select(1, 1);
  Type(QStringLiteral("x"));
  EXPECT_EQ("1", Edit().GetText());
  EXPECT_EQ("1", Value(0));
}

TEST_F(InplaceEditListTextTest, OnlyThatCharacterIsUndone) {
  ShowExpression(QStringLiteral("[0-9]+"));
  Edit().Select(1, 1);
  Type(QStringLiteral("23x4"));
  EXPECT_EQ("1234", Edit().GetText());
  EXPECT_EQ(4, Edit().GetCaretPos());
  EXPECT_EQ("1234", Value(0));
}

TEST_F(InplaceEditListTextTest, WhatWasTypedBeforeCanStillBeUndone) {
  ShowExpression(QStringLiteral("[0-9]+"));
  Edit().Select(1, 1);
  Type(QStringLiteral("23x"));
  Edit().Undo();
  EXPECT_EQ("1", Edit().GetText());
}

TEST_F(InplaceEditListTextTest, TheCaretGoesBackToWhereItWas) {
  ShowExpression(QStringLiteral("[0-9]+"));
  Retype(QStringLiteral("1234"));
  Edit().SetSelStart(2);
  Type(QStringLiteral("x"));
  EXPECT_EQ("1234", Edit().GetText());
  EXPECT_EQ(2, Edit().GetCaretPos());
}

TEST_F(InplaceEditListTextTest, ASelectionThatWasTypedOverComesBack) {
  ShowExpression(QStringLiteral("[0-9]+"));
  Retype(QStringLiteral("x"));
  EXPECT_EQ("1", Edit().GetText());
  EXPECT_EQ("1", Value(0));
}

TEST_F(InplaceEditListTextTest, DeletingTheLastCharacterIsUndoneWhereSomethingHasToStay) {
  ShowExpression(QStringLiteral("[0-9]+"));
  Edit().SelectAll();
  Key(Qt::Key_Backspace);
  EXPECT_EQ("1", Edit().GetText());
}

TEST_F(InplaceEditListTextTest, TextBesideTheMatchIsNotKept) {
  ShowExpression(QStringLiteral("a|1|b"));
  Edit().Select(1, 1);
  Type(QStringLiteral("b"));
  EXPECT_EQ("1", Edit().GetText());
}

TEST_F(InplaceEditListTextTest, AnExpressionThatCannotBeReadIsToldWhenSomethingIsTyped) {
  ShowExpression(QStringLiteral("(1"));
  Edit().Select(1, 1);
  EXPECT_EQ("", TakeErrors());
  Type(QStringLiteral("2"));
  EXPECT_EQ("Invalid regular expression \"(1\": missing closing parenthesis", TakeErrors());
}

TEST_F(InplaceEditListTextTest, TheCheckOnLeavingFindsTheExpressionAnywhere) {
  Item(0).SetValue(QStringLiteral("a1b"));
  ShowExpression(QStringLiteral("[0-9]"));
  EXPECT_TRUE((Edit().*&TOpenEdit::ValidateExpression)());
}

TEST_F(InplaceEditListTextTest, WithoutAWindowAnyTextMayLeave) {
  const auto edit = Make<TOpenEdit>();
  edit->SetText(QStringLiteral("abc"));
  edit->SetExpression(QStringLiteral("[0-9]"));
  EXPECT_TRUE(edit->ValidateExpression());
}

TEST_F(InplaceEditListTextTest, WithoutAnExpressionAnyTextMayLeave) {
  Show();
  Retype(QStringLiteral("abc"));
  EXPECT_TRUE((Edit().*&TOpenEdit::ValidateExpression)());
}

TEST_F(InplaceEditListTextTest, TheCheckOnLeavingKnowsTheEndsOfTheText) {
  Item(0).SetValue(QStringLiteral("12"));
  ShowExpression(QStringLiteral("^[0-9]+$"));
  EXPECT_TRUE((Edit().*&TOpenEdit::ValidateExpression)());
  Item(0).SetEditMask(QStringLiteral("^[0-9]$"));
  Editor.SetEditorMode(true);
  EXPECT_FALSE((Edit().*&TOpenEdit::ValidateExpression)());
}

/// A line feed before the text and a carriage return behind it are there for expressions to find.
TEST_F(InplaceEditListTextTest, TheCheckOnLeavingFindsTheEndsOfALineAroundTheText) {
  Item(0).SetValue(QStringLiteral("12"));
  ShowExpression(QStringLiteral("\\n12\\r"));
  EXPECT_TRUE((Edit().*&TOpenEdit::ValidateExpression)());
  Edit().SetExpression(QStringLiteral("\\n12"));
  EXPECT_TRUE((Edit().*&TOpenEdit::ValidateExpression)());
  Edit().SetExpression(QStringLiteral("12\\r"));
  EXPECT_TRUE((Edit().*&TOpenEdit::ValidateExpression)());
  Edit().SetExpression(QStringLiteral("\\r12"));
  EXPECT_FALSE((Edit().*&TOpenEdit::ValidateExpression)());
}

/// The message has two placeholders and one text: what reaches the user is the error of filling it in.
TEST_F(InplaceEditListTextTest, LeavingWithAnInvalidTextRaisesTheErrorOfTheMessageItself) {
  Item(0).SetValue(QStringLiteral("abc"));
  ShowExpression(QStringLiteral("[0-9]+"));
  Key(Qt::Key_Down);
  EXPECT_EQ("No argument for format '\"%s\" is not a valid property va'", TakeErrors());
  EXPECT_EQ(1, Editor.GetRow());
  EXPECT_EQ("abc", Edit().GetText());
}

class InplaceEditListLeavingTest : public TInplaceEditListTest, public testing::WithParamInterface<Qt::Key> {};

TEST_P(InplaceEditListLeavingTest, ChecksTheText) {
  Item(0).SetValue(QStringLiteral("abc"));
  ShowExpression(QStringLiteral("[0-9]+"));
  Editor.SetOptions(Editor.GetOptions() + TGridOptions{goTabs});
  Key(GetParam());
  EXPECT_EQ("No argument for format '\"%s\" is not a valid property va'", TakeErrors());
  EXPECT_EQ(1, Editor.GetRow());
}

INSTANTIATE_TEST_SUITE_P(InplaceEditListTextTest, InplaceEditListLeavingTest,
                         testing::Values(Qt::Key_Tab, Qt::Key_Escape, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Up,
                                         Qt::Key_Down, Qt::Key_Insert, Qt::Key_Return));

/// A key, and what is held with it.
struct THeldKey {
  const char* Name;
  Qt::Key Key;
  Qt::KeyboardModifiers Held;
};

void PrintTo(const THeldKey& key, std::ostream* out) { *out << key.Name; }

class InplaceEditListHeldKeyTest : public TInplaceEditListTest, public testing::WithParamInterface<THeldKey> {
 protected:
  /// The errors of the key on a text that the expression is not found in.
  std::string ErrorsOfKey() {
    Item(0).SetValue(QStringLiteral("abc"));
    ShowExpression(QStringLiteral("[0-9]+"));
    Editor.SetOptions(Editor.GetOptions() + TGridOptions{goTabs});
    Key(GetParam().Key, GetParam().Held);
    return TakeErrors();
  }
};
class InplaceEditListLeavingWithTest : public InplaceEditListHeldKeyTest {};
class InplaceEditListStayingTest : public InplaceEditListHeldKeyTest {};

TEST_P(InplaceEditListLeavingWithTest, ChecksTheText) {
  EXPECT_EQ("No argument for format '\"%s\" is not a valid property va'", ErrorsOfKey());
  EXPECT_EQ(1, Editor.GetRow());
}

INSTANTIATE_TEST_SUITE_P(InplaceEditListTextTest, InplaceEditListLeavingWithTest,
                         testing::Values(THeldKey{"Shift+Tab", Qt::Key_Backtab, Qt::ShiftModifier},
                                         THeldKey{"Shift+Up", Qt::Key_Up, Qt::ShiftModifier},
                                         THeldKey{"Ctrl+Down", Qt::Key_Down, Qt::ControlModifier},
                                         THeldKey{"Ctrl+PageDown", Qt::Key_PageDown, Qt::ControlModifier},
                                         THeldKey{"Ctrl+Enter", Qt::Key_Return, Qt::ControlModifier}));

TEST_P(InplaceEditListStayingTest, ChecksNothing) {
  EXPECT_EQ("", ErrorsOfKey());
  EXPECT_EQ(1, Editor.GetRow());
}

INSTANTIATE_TEST_SUITE_P(InplaceEditListTextTest, InplaceEditListStayingTest,
                         testing::Values(THeldKey{"Left", Qt::Key_Left, {}}, THeldKey{"Right", Qt::Key_Right, {}},
                                         THeldKey{"Home", Qt::Key_Home, {}}, THeldKey{"End", Qt::Key_End, {}},
                                         THeldKey{"F2", Qt::Key_F2, {}}, THeldKey{"Delete", Qt::Key_Delete, {}},
                                         THeldKey{"Shift+Insert", Qt::Key_Insert, Qt::ShiftModifier},
                                         THeldKey{"Ctrl+Insert", Qt::Key_Insert, Qt::ControlModifier},
                                         THeldKey{"Alt+Tab", Qt::Key_Tab, Qt::AltModifier},
                                         THeldKey{"Ctrl+Left", Qt::Key_Left, Qt::ControlModifier}));

TEST_F(InplaceEditListTextTest, TheMouseLeavesUnchecked) {
  Item(0).SetValue(QStringLiteral("abc"));
  ShowExpression(QStringLiteral("[0-9]+"));
  Window->Click(Editor.CellRect(1, 2).center() + QPoint(2, 2));
  EXPECT_EQ("", TakeErrors());
  EXPECT_EQ(2, Editor.GetRow());
}

// Restoring.

TEST_F(InplaceEditListTextTest, RestoringBringsBackTheTextOfTheCell) {
  Show();
  Retype(QStringLiteral("xy"));
  (Edit().*&TOpenEdit::RestoreContents)();
  EXPECT_EQ("1", Edit().GetText());
}

TEST_F(InplaceEditListTextTest, RestoringWritesTheTextOfTheGridIntoTheCell) {
  Show();
  Retype(QStringLiteral("xy"));
  (Edit().*&TOpenEdit::RestoreContents)();
  EXPECT_EQ("", Value(0));
}

}  // namespace
}  // namespace kt::tests
