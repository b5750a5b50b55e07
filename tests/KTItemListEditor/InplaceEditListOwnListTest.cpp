#include "KTItemListEditor/InplaceEditListFixture.h"
#include "kt/KTItemListEditor/DropDownList.h"

#include <QScreen>

namespace kt::tests {
namespace {

/// What kind of list a descendant brings along.
enum class TOwnList { Floating, WithoutParent, InTheGrid };

void PrintTo(TOwnList list, std::ostream* out) {
  *out << (list == TOwnList::Floating ? "Floating" : list == TOwnList::InTheGrid ? "InTheGrid" : "WithoutParent");
}

/// A floating list of somebody else's making.
class TForeignList : public TFloatingListBox {
 public:
  using Inherited = TFloatingListBox;

 protected:
  explicit TForeignList(TComponent* owner, TWinControl& anchor) : TFloatingListBox(owner, anchor) {}
};

/// An in-place editor with a list of its own.
class TOwnListEdit : public TKTInplaceEditList {
 public:
  using Inherited = TKTInplaceEditList;
  using TKTInplaceEditList::DropDown;
  using TKTInplaceEditList::ListMouseUp;

  int Cancels = 0;
  TCustomListBox* Own = nullptr;

 protected:
  explicit TOwnListEdit(TComponent* owner, TOwnList kind, TComponent& lists)
      : TKTInplaceEditList(owner), FKind(kind), FLists(lists) {}

  TCustomListBox& GetPickList() override {
    if (Own) return *Own;
    if (FKind == TOwnList::Floating) {
      Own = New<TForeignList>(this, *this);
    } else {
      Own = New<TListBox>(&FLists);
      Own->SetVisible(false);
      if (FKind == TOwnList::InTheGrid) Own->SetParent(&GetGrid());
    }
    Own->OnMouseUp = [this](TObject* sender, TMouseButton button, TShiftState shift, int x, int y) {
      ListMouseUp(sender, button, shift, x, y);
    };
    return *Own;
  }
  void Notification(TComponent* component, TOperation operation) override {
    TKTInplaceEditList::Notification(component, operation);
    if (operation == opRemove && component == Own) Own = nullptr;
  }
  void DefaultHandler(TMessage& message) override {
    if (message.Msg == WM_CANCELMODE) ++Cancels;
    TKTInplaceEditList::DefaultHandler(message);
  }

 private:
  TOwnList FKind;
  TComponent& FLists;
};

class TOwnListEditor : public TKTItemListEditor {
 protected:
  explicit TOwnListEditor(TOwnList kind) : FKind(kind) {}
  TInplaceEdit* CreateEditor() override {
    auto* editor = New<TOwnListEdit>(this, FKind, *FLists);
    editor->SetDropDownRows(GetDropDownRows());
    editor->OnGetPickListItems = [this](int col, int row, TStrings& items) { EditListGetItems(col, row, items); };
    return editor;
  }

 private:
  TOwnList FKind;
  /// Owns what the in-place editor does not.
  std::unique_ptr<TComponent> FLists = Make<TComponent>();
};

class InplaceEditListOwnListTest : public TInplaceEditListTest, public testing::WithParamInterface<TOwnList> {
 protected:
  InplaceEditListOwnListTest() : TInplaceEditListTest(Make<TOwnListEditor>(GetParam())) {}

  TOwnListEdit& Own() { return dynamic_cast<TOwnListEdit&>(Edit()); }
  bool IsShown() { return List().HandleAllocated() && List().GetHandle()->isVisible(); }
};

TEST_P(InplaceEditListOwnListTest, AltDownFillsItAndShowsIt) {
  Item(0).SetValue(QStringLiteral("green"));
  ShowColors();
  OpenList();
  EXPECT_EQ(Own().Own, &List());
  EXPECT_TRUE(Edit().IsListVisible());
  EXPECT_TRUE(IsShown());
  EXPECT_EQ("red >green blue", Lines());
  EXPECT_TRUE(Edit().Focused());
}

TEST_P(InplaceEditListOwnListTest, ItOpensBelowTheEditorAndIsAsWide) {
  ShowColors();
  OpenList();
  EXPECT_EQ(Edit().ClientToScreen({0, Edit().GetHeight()}), List().GetHandle()->mapToGlobal(QPoint(0, 0)));
  EXPECT_EQ(Edit().GetWidth(), List().GetHandle()->width());
  EXPECT_EQ(3 * List().GetItemHeight() + 4, List().GetHandle()->height());
}

TEST_P(InplaceEditListOwnListTest, ItHasTheLookOfTheEditor) {
  Editor.SetColor(clYellow);
  Item(0).GetValueFont().SetStyle({fsBold});
  Item(0).GetValueFont().SetSize(17);
  ShowColors();
  OpenList();
  EXPECT_EQ(clYellow, List().GetColor());
  EXPECT_EQ(17, List().GetFont().GetSize());
  EXPECT_TRUE(List().GetFont().GetStyle().IsEmpty());
}

TEST_P(InplaceEditListOwnListTest, KeysSelectInItAndEnterTakesOver) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ("red >green blue", Lines());
  Key(Qt::Key_Return);
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_FALSE(IsShown());
  EXPECT_EQ("green", Value(0));
  EXPECT_EQ("validate(a=green) validated(a)", TakeLog());
}

TEST_P(InplaceEditListOwnListTest, EscapeHidesItAndChangesNothing) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Key(Qt::Key_Escape);
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_FALSE(IsShown());
  EXPECT_EQ("1", Value(0));
}

TEST_P(InplaceEditListOwnListTest, ItOpensAgain) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Escape);
  OpenList();
  EXPECT_TRUE(IsShown());
  EXPECT_EQ(Edit().ClientToScreen({0, Edit().GetHeight()}), List().GetHandle()->mapToGlobal(QPoint(0, 0)));
}

TEST_P(InplaceEditListOwnListTest, AClickOnALineTakesItOver) {
  ShowColors();
  OpenList();
  ClickLine(2);
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("blue", Value(0));
  EXPECT_TRUE(Edit().Focused());
}

/// Only the left button is a pick.
TEST_P(InplaceEditListOwnListTest, ARightClickOnALineLeavesItOpen) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Own().ListMouseUp(&List(), mbRight, {}, 3, 3);
  EXPECT_TRUE(Edit().IsListVisible());
  EXPECT_EQ("1", Value(0));
}

TEST_P(InplaceEditListOwnListTest, ADoubleClickStepsThroughIt) {
  ShowColors();
  DoubleClickAt({4, 8});
  DoubleClickAt({4, 8});
  EXPECT_EQ("green", Value(0));
}

TEST_P(InplaceEditListOwnListTest, AReadOnlyItemTakesNothingOver) {
  Item(0).SetReadOnly(true);
  ShowColors();
  DoubleClickAt({4, 8});
  OpenList();
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_EQ("1", Value(0));
}

TEST_P(InplaceEditListOwnListTest, LeavingTheCellHidesIt) {
  ShowColors();
  OpenList();
  TCustomListBox& list = List();
  Editor.SetRow(2);
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_FALSE(list.GetHandle()->isVisible());
}

TEST_P(InplaceEditListOwnListTest, ItMayDieWhileItIsOpen) {
  ShowColors();
  OpenList();
  delete Own().Own;
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ(nullptr, Edit().GetActiveList());
  Editor.Refresh();
  OpenList();
  EXPECT_EQ("red green blue", Lines());
}

TEST_P(InplaceEditListOwnListTest, TheEditorMayDieWhileItIsOpen) {
  ShowColors();
  OpenList();
  FEditor.reset();
  Settle();
  EXPECT_EQ(1, QApplication::topLevelWidgets().size());
}

TEST_P(InplaceEditListOwnListTest, ACancelledPressIsToldToTheWindowAsWell) {
  ShowColors();
  const int before = Own().Cancels;
  Edit().Perform(WM_CANCELMODE);
  EXPECT_EQ(before + 1, Own().Cancels);
}

INSTANTIATE_TEST_SUITE_P(Lists, InplaceEditListOwnListTest,
                         testing::Values(TOwnList::Floating, TOwnList::WithoutParent, TOwnList::InTheGrid));

}  // namespace
}  // namespace kt::tests
