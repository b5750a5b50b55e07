#include "KTItemListEditor/InplaceEditListFixture.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

/// Handlers that free what they were called for: nothing crashes, no lock stays held, and the next edit works.
namespace kt::tests {
namespace {

class TLifeTest : public TInplaceEditListTest {
 protected:
  /// What a handler does to its surroundings.
  enum TDeed { FreesItem, ClearsTree, FreesInplaceEdit, FreesEditor, Refreshes, LeavesCell, Throws };

  void Do(TDeed deed) {
    if (std::exchange(FIsDone, true)) return;
    switch (deed) {
      case FreesItem:
        return delete Editor.GetSelected();
      case ClearsTree:
        return Editor.GetItems().Clear();
      case FreesInplaceEdit:
        return delete Editor.InplaceEditor();
      case FreesEditor:
        return FEditor.reset();
      case Refreshes:
        return Editor.Refresh();
      case LeavesCell:
        return Editor.SetRow(3);
      case Throws:
        throw Exception(QStringLiteral("no"));
    }
  }
  void ExpectSound() {
    EXPECT_TRUE(FIsDone);
    Settle();
    if (!FEditor) return;
    EXPECT_FALSE(Editor.IsEditUpdateLocked());
    EXPECT_EQ(nullptr, QWidget::mouseGrabber());
    Editor.OnGetPickList = nullptr;
    Editor.OnSetEditText = nullptr;
    Editor.OnGetEditText = nullptr;
    Editor.OnGetEditMask = nullptr;
    Editor.OnEditButtonClick = nullptr;
    Editor.OnValidate = nullptr;
    Editor.GetItems().Clear();
    Editor.GetItems().Add()->SetName(QStringLiteral("n"));
    Editor.SetFocus();
    Editor.SetEditorMode(true);
    Edit().SelectAll();
    Type(QStringLiteral("z"));
    EXPECT_EQ("z", Value(0));
  }

  bool FIsDone = false;
};

class InplaceEditListLifeTest : public TLifeTest, public testing::WithParamInterface<int> {
 protected:
  TDeed Deed() const { return static_cast<TDeed>(GetParam()); }
};

TEST_P(InplaceEditListLifeTest, AHandlerOfThePickListWhileItOpens) {
  ShowColors();
  Editor.OnGetPickList = [this](TObject*, const QString&, TStrings& values) {
    values.Add(QStringLiteral("x"));
    Do(Deed());
  };
  OpenList();
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerOfThePickListOnADoubleClick) {
  ShowColors();
  Editor.OnGetPickList = [this](TObject*, const QString&, TStrings&) { Do(Deed()); };
  QWidget* const body = Edit().GetHandle();
  QTest::mouseDClick(body, Qt::LeftButton, Qt::NoModifier, {4, 8});
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerOfTheButton) {
  ShowEllipsis();
  Editor.OnEditButtonClick = [this](TObject*) { Do(Deed()); };
  ClickAt(OnButton());
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerOfTheButtonOnADoubleClick) {
  ShowEllipsis();
  Editor.OnEditButtonClick = [this](TObject*) { Do(Deed()); };
  QTest::mouseDClick(Edit().GetHandle(), Qt::LeftButton, Qt::NoModifier, {4, 8});
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerOfTheTextWhileTyping) {
  Show();
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { Do(Deed()); };
  Type(QStringLiteral("x"));
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerOfTheTextWhileALineIsTakenOver) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { Do(Deed()); };
  Key(Qt::Key_Return);
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerOfTheTextWhileALineIsClicked) {
  ShowColors();
  OpenList();
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { Do(Deed()); };
  ClickLine(1);
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerOfTheTextWhileACharacterIsUndone) {
  ShowExpression(QStringLiteral("[0-9]+"));
  Edit().Select(1, 1);
  Type(QStringLiteral("23"));
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { Do(Deed()); };
  Type(QStringLiteral("x"));
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerOfTheTextOnADoubleClick) {
  ShowColors();
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { Do(Deed()); };
  QTest::mouseDClick(Edit().GetHandle(), Qt::LeftButton, Qt::NoModifier, {4, 8});
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerOfTheValidationOnEnter) {
  Show();
  Type(QStringLiteral("x"));
  Editor.OnValidate = [this](TObject*, TKTItemProp*, int) { Do(Deed()); };
  Key(Qt::Key_Return);
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerOfTheValidationWhileALineIsTakenOver) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Editor.OnValidate = [this](TObject*, TKTItemProp*, int) { Do(Deed()); };
  Key(Qt::Key_Return);
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerOfTheValidationWhileALineIsClicked) {
  ShowColors();
  OpenList();
  Editor.OnValidate = [this](TObject*, TKTItemProp*, int) { Do(Deed()); };
  ClickLine(1);
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerThatAllowsTheNextCell) {
  Show();
  Editor.OnSelectCell = [this](TObject*, int, int, bool&) { Do(Deed()); };
  Key(Qt::Key_Down);
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerThatGivesTheMaskOfTheNextCell) {
  Show();
  Editor.OnGetEditMask = [this](TObject*, int, int, QString&) { Do(Deed()); };
  Key(Qt::Key_Down);
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerThatGivesTheTextOfTheNextCell) {
  Show();
  Editor.OnGetEditText = [this](TObject*, int, int, QString&) { Do(Deed()); };
  Key(Qt::Key_Down);
  ExpectSound();
}

TEST_P(InplaceEditListLifeTest, AHandlerThatGivesTheTextWhenItIsReadAgain) {
  Show();
  Editor.OnGetEditText = [this](TObject*, int, int, QString&) { Do(Deed()); };
  GuardedCall([this] { Editor.Refresh(); });
  ExpectSound();
}

INSTANTIATE_TEST_SUITE_P(Deeds, InplaceEditListLifeTest, testing::Range(0, 7));

using InplaceEditListOpenListTest = TInplaceEditListTest;

TEST_F(InplaceEditListOpenListTest, TheEditorDiesWithAnOpenList) {
  ShowColors();
  OpenList();
  FEditor.reset();
  Settle();
  EXPECT_EQ(1, QApplication::topLevelWidgets().size());
}

TEST_F(InplaceEditListOpenListTest, TheHostWindowDiesWithAnOpenList) {
  ShowColors();
  OpenList();
  Window->Close();
  Settle();
  EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
  EXPECT_FALSE(Editor.HandleAllocated());
}

TEST_F(InplaceEditListOpenListTest, ThePickListItselfMayDie) {
  ShowColors();
  OpenList();
  delete Edit().GetActiveList();
  EXPECT_FALSE(Edit().IsListVisible());
  Editor.Refresh();
  OpenList();
  EXPECT_EQ("red green blue", Lines());
}

}  // namespace
}  // namespace kt::tests
