#include "KTItemListEditor/ItemListEditorInputFixture.h"

#include <QLineEdit>

namespace kt::tests {
namespace {

/// When typed values are validated, in which order, and what becomes of those that are refused.
class ItemListEditorValidateTest : public TItemListInputTest {
 protected:
  static QString NameIn(const TKTItemProp* item) { return item ? item->GetName() : QStringLiteral("nil"); }
  /// Writes down what is validated, and whether the editor is open when the grid is left: "OnExit[x]".
  void LogValidation() {
    FEditor->OnValidate = [this](TObject*, TKTItemProp* item, int) {
      FLog += QStringLiteral("OnValidate(%1=%2)").arg(NameIn(item), item ? item->GetValue() : QString());
    };
    FEditor->OnValidated = [this](TObject*, TKTItemProp* item, int column) {
      FLog += QStringLiteral("OnValidated(%1,%2)").arg(NameIn(item)).arg(column);
    };
    FEditor->OnExit = [this](TObject*) { FLog += QStringLiteral("OnExit[%1]").arg(EditorText()); };
  }
  void RefuseAll() {
    FEditor->OnValidate = [](TObject*, TKTItemProp*, int) { throw EConvertError("no number"); };
  }
  void ShowWithOther(const std::string& tree) {
    Show(tree);
    FWindow->Window()->layout()->addWidget(&FOther);
  }
  void LeaveFocus() {
    FOther.setFocus();
    TWindowProbe::Settle();
  }

  /// Where the keyboard can go.
  QLineEdit FOther;
};

// When.

TEST_F(ItemListEditorValidateTest, AnAcceptedValueIsValidatedBeforeAndAfter) {
  Show("a b");
  LogValidation();
  Type("x");
  Key(Qt::Key_Down);
  EXPECT_EQ("OnValidate(a=x) OnValidated(a,1)", TakeLog());
}

TEST_F(ItemListEditorValidateTest, EnterOnAnUnchangedItemValidatesNothing) {
  Show("a b");
  LogValidation();
  Key(Qt::Key_Return);
  Key(Qt::Key_Down);
  EXPECT_EQ("", TakeLog());
}

TEST_F(ItemListEditorValidateTest, WhatEnterHasValidatedIsNotValidatedAgain) {
  Show("a b");
  LogValidation();
  Type("x");
  Key(Qt::Key_Return);
  EXPECT_EQ("OnValidate(a=x) OnValidated(a,1)", TakeLog());
  EXPECT_FALSE(FEditor->InplaceEditor()->IsModified());
  Key(Qt::Key_Down);
  EXPECT_EQ("", TakeLog());
}

TEST_F(ItemListEditorValidateTest, EnterOnAnUnchangedItemWritesNothing) {
  Show("a b");
  Item("a").SetValue("stored");
  FEditor->OnGetEditText = [](TObject*, int, int, QString& text) { text = QStringLiteral("shown"); };
  FEditor->OnSetEditText = [this](TObject*, int, int, const QString& text) { FErrors += text; };
  FEditor->SetEditorMode(true);
  FErrors.clear();
  Key(Qt::Key_Return);
  EXPECT_EQ(QStringList(), FErrors);
  EXPECT_EQ("stored", Item("a").GetValue());
}

TEST_F(ItemListEditorValidateTest, ACellIsAskedForOnlyAfterTheValueIsValidated) {
  Show("a b");
  LogValidation();
  FEditor->OnSelectCell = [this](TObject*, int col, int row, bool&) {
    FLog += QStringLiteral("OnSelectCell(%1,%2)").arg(col).arg(row);
  };
  Type("x");
  Key(Qt::Key_Down);
  EXPECT_EQ("OnValidate(a=x) OnValidated(a,1) OnSelectCell(1,2)", TakeLog());
}

TEST_F(ItemListEditorValidateTest, OnSelectCellCanRefuseACellWhoseItemIsValidatedAllTheSame) {
  Show("a b");
  LogValidation();
  FEditor->OnSelectCell = [](TObject*, int, int, bool& canSelect) { canSelect = false; };
  Type("x");
  Key(Qt::Key_Down);
  EXPECT_EQ("1,1", Where());
  EXPECT_EQ("OnValidate(a=x) OnValidated(a,1)", TakeLog());
}

TEST_F(ItemListEditorValidateTest, WhatOnSelectCellRefusesNeitherRowSelectNorEditableNamesAllow) {
  Show("a b");
  FEditor->SetPropertyOptions({propEdit});
  FEditor->OnSelectCell = [](TObject*, int, int, bool& canSelect) { canSelect = false; };
  FEditor->SetCol(0);
  EXPECT_EQ("1,1", Where());
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goRowSelect});
  FEditor->SetRow(2);
  EXPECT_EQ(1, FEditor->GetRow());
}

TEST_F(ItemListEditorValidateTest, AMoveAlongTheLineValidatesToo) {
  Show("a b");
  FEditor->SetPropertyOptions({propEdit});
  LogValidation();
  Type("x");
  FEditor->SetCol(0);
  EXPECT_EQ("OnValidate(a=x) OnValidated(a,1)", TakeLog());
  EXPECT_EQ("0,1", Where());
}

TEST_F(ItemListEditorValidateTest, WithItemsAcrossTheColumnsTheRowOfTheValueIsTold) {
  FEditor->SetColCount(3);
  TurnAcross();
  Show("a b c");
  FEditor->SetRow(2);
  LogValidation();
  Type("x");
  FEditor->SetCol(2);
  EXPECT_EQ("OnValidate(a=x) OnValidated(a,2)", TakeLog());
  EXPECT_EQ("2,2", Where());
}

// Refusals.

TEST_F(ItemListEditorValidateTest, ARefusedValueKeepsTheCellAndIsTakenBack) {
  Show("a b");
  Item("a").SetValue("old");
  RefuseAll();
  Type("x");
  Key(Qt::Key_Down);
  EXPECT_EQ("a", SelectedText());
  EXPECT_EQ("\"x\" is not a valid property value: no number", TakeErrors());
  EXPECT_EQ("old", Item("a").GetValue());
}

TEST_F(ItemListEditorValidateTest, ARefusalLeavesNothingToValidate) {
  Show("a b");
  Item("a").SetValue("old");
  RefuseAll();
  Type("x");
  Key(Qt::Key_Return);
  EXPECT_EQ("\"x\" is not a valid property value: no number", TakeErrors());
  EXPECT_FALSE(FEditor->InplaceEditor()->IsModified());
  Key(Qt::Key_Return);
  Key(Qt::Key_Down);
  EXPECT_EQ("", TakeErrors());
  EXPECT_EQ("1,2", Where());
}

TEST_F(ItemListEditorValidateTest, ARefusedCellIsNotAskedFor) {
  Show("a b");
  RefuseAll();
  FEditor->OnSelectCell = [this](TObject*, int, int, bool&) { FLog += QStringLiteral("asked"); };
  Type("x");
  Key(Qt::Key_Down);
  EXPECT_EQ("", TakeLog());
}

TEST_F(ItemListEditorValidateTest, AHandlerForErrorsSwallowsThem) {
  Show("a b");
  RefuseAll();
  FEditor->OnValidateError = [this](TObject*, TKTItemProp* item, int column, const Exception& error) {
    FLog += QStringLiteral("%1,%2: %3").arg(NameIn(item)).arg(column).arg(error.Message());
  };
  Type("x");
  Key(Qt::Key_Down);
  EXPECT_EQ("a,1: \"x\" is not a valid property value: no number", TakeLog());
  EXPECT_EQ("", TakeErrors());
  EXPECT_EQ("b", SelectedText());
}

TEST_F(ItemListEditorValidateTest, ARefusalWithoutAnOpenEditorIsToldAsItIs) {
  Show("a");
  RefuseAll();
  CloseEditor();
  EXPECT_EQ("no number", MessageOf<EConvertError>([this] { Item("a").Validate(); }));
}

// The focus.

TEST_F(ItemListEditorValidateTest, LosingTheFocusValidatesBeforeTheGridIsLeftAndHidesTheEditorAfterwards) {
  ShowWithOther("a b");
  LogValidation();
  Type("x");
  LeaveFocus();
  EXPECT_EQ("OnValidate(a=x) OnValidated(a,1) OnExit[x]", TakeLog());
  EXPECT_FALSE(FEditor->IsEditorMode());
  EXPECT_EQ("-", EditorText());
  EXPECT_TRUE(FOther.hasFocus());
}

TEST_F(ItemListEditorValidateTest, ARefusedValueGivesTheFocusBackAndTheGridIsNotLeft) {
  ShowWithOther("a b");
  LogValidation();
  RefuseAll();
  Type("x");
  LeaveFocus();
  EXPECT_FALSE(FOther.hasFocus());
  EXPECT_EQ("\"x\" is not a valid property value: no number", TakeErrors());
  EXPECT_EQ("", TakeLog());
  EXPECT_TRUE(FEditor->InplaceEditor()->Focused());
}

// The blank line, which has no item.

TEST_F(ItemListEditorValidateTest, TheBlankLineIsOnlyToldAsValidated) {
  Show("");
  LogValidation();
  FEditor->InplaceEditor()->SetModified(true);
  Key(Qt::Key_Return);
  EXPECT_EQ("OnValidated(nil,0)", TakeLog());
  EXPECT_FALSE(FEditor->InplaceEditor()->IsModified());
}

TEST_F(ItemListEditorValidateTest, TheBlankLineUnchangedIsNotValidated) {
  Show("");
  LogValidation();
  Key(Qt::Key_Return);
  EXPECT_EQ("", TakeLog());
}

TEST_F(ItemListEditorValidateTest, AnErrorAboutTheBlankLineGoesToTheHandlerAsItIs) {
  Show("");
  FEditor->OnValidated = [](TObject*, TKTItemProp*, int) { throw EConvertError("no"); };
  FEditor->OnValidateError = [this](TObject*, TKTItemProp* item, int column, const Exception& error) {
    FLog += QStringLiteral("%1,%2: %3").arg(NameIn(item)).arg(column).arg(error.Message());
  };
  FEditor->InplaceEditor()->SetModified(true);
  Key(Qt::Key_Return);
  EXPECT_EQ("nil,0: no", TakeLog());
  EXPECT_EQ("", TakeErrors());
}

TEST_F(ItemListEditorValidateTest, AnErrorAboutTheBlankLineThatNobodyHandlesIsRaised) {
  Show("");
  FEditor->OnValidated = [](TObject*, TKTItemProp*, int) { throw EConvertError("no"); };
  FEditor->InplaceEditor()->SetModified(true);
  EXPECT_EQ("no", MessageOf<EConvertError>([this] { FEditor->Validate(); }));
  EXPECT_FALSE(FEditor->InplaceEditor()->IsModified());
}

}  // namespace
}  // namespace kt::tests
