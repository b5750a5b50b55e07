// An inspector in a window: what its cells show, and editing by keyboard.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/controls/ControlMessages.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "support/WindowProbe.h"

namespace kt::tests {
namespace {

class InspectorGridTest : public TInspectorTest {
 protected:
  InspectorGridTest() {
    Application().OnException = [this](TObject*, const Exception& error) { FErrors += error.Message(); };
    FSample->SetName("First");
    FOther->SetName("Second");
  }
  ~InspectorGridTest() override { Application().OnException = nullptr; }

  void Show(std::initializer_list<TObject*> objects) {
    Inspect(objects);
    FWindow = std::make_unique<TWindowProbe>(*FInspector, QSize(400, 600));
    FInspector->SetFocus();
    TWindowProbe::Settle();
  }
  void Select(const QString& path) {
    FInspector->SetSelected(&Item(path));
    TWindowProbe::Settle();
  }
  int RowOf(const QString& path) { return Item(path).GetAbsoluteVIndex() + 1; }
  QString Cell(const QString& path, int col = 1) { return FInspector->GetCell(col, RowOf(path)); }
  TInplaceEdit& Editor() { return *FInspector->InplaceEditor(); }
  bool IsEditorOpen() const { return FInspector->InplaceEditor() && FInspector->InplaceEditor()->Visible(); }
  void Retype(const QString& text) {
    Editor().SelectAll();
    TWindowProbe::Type(text);
  }
  void UseSeveralColumns() {
    FInspector->SetDisplayOptions(FInspector->GetDisplayOptions() + TILEDisplayOptions{doMultiColValues});
  }
  QString TakeErrors() { return std::exchange(FErrors, {}).join(u'|'); }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
  std::unique_ptr<TWindowProbe> FWindow;
  QStringList FErrors;
};

// Cells.

TEST_F(InspectorGridTest, AValueThatIsNotTheSameInAllObjectsShowsOnlyWhereTheCursorIs) {
  FSample->Whole = 1;
  FOther->Whole = 2;
  Show({FSample.get(), FOther.get()});
  Select("Tag");
  EXPECT_EQ("", Cell("Whole"));
  EXPECT_EQ("0", Cell("Tag"));
  Select("Whole");
  EXPECT_EQ("1", Cell("Whole"));
}

TEST_F(InspectorGridTest, SeveralColumnsShowTheValuesOfTheirObjects) {
  FOther->Whole = 2;
  UseSeveralColumns();
  Show({FSample.get(), FOther.get()});
  EXPECT_EQ("Whole", Cell("Whole", 0));
  EXPECT_EQ("0", Cell("Whole", 1));
  EXPECT_EQ("2", Cell("Whole", 2));
}

TEST_F(InspectorGridTest, DynamicTitlesAreTheNamesOfTheObjects) {
  const auto part = Make<TSamplePart>();
  const auto items = Make<TSampleItems>(nullptr);
  UseSeveralColumns();
  Show({FSample.get(), part.get(), items->AddItem("x")});
  EXPECT_EQ("Value", FInspector->GetCell(1, 0));
  EXPECT_EQ("", FInspector->GetCell(2, 0));
  FInspector->SetDynamicTitleCaptions(true);
  EXPECT_EQ("Property", FInspector->GetCell(0, 0));
  EXPECT_EQ("First", FInspector->GetCell(1, 0));
  EXPECT_EQ("TSamplePart", FInspector->GetCell(2, 0));
  EXPECT_EQ("TSampleItem", FInspector->GetCell(3, 0));
}

TEST_F(InspectorGridTest, ReadOnlyPropertiesHaveNoDropDown) {
  Show({FSample.get()});
  Select("Align");
  auto* editor = dynamic_cast<TKTInplaceEditList*>(&Editor());
  ASSERT_TRUE(editor);
  EXPECT_EQ(esPickList, editor->GetEditStyle());
  Item("Align").SetReadOnly(true);
  Select("Big");
  Select("Align");
  EXPECT_EQ(esSimple, editor->GetEditStyle());
}

TEST_F(InspectorGridTest, TakingTheTitlesAwayLeavesTheCursorInAValueColumn) {
  FInspector->SetPropertyOptions({propEdit});
  Show({FSample.get()});
  FInspector->SetCol(0);
  FInspector->SetColumnTitles(false);
  EXPECT_EQ(1, FInspector->GetCol());
}

// Editing.

TEST_F(InspectorGridTest, WhatIsTypedReachesTheObjectsWhenTheRowIsLeft) {
  Show({FSample.get(), FOther.get()});
  Select("Whole");
  Retype("42");
  EXPECT_EQ(0, FSample->Whole);
  TWindowProbe::Key(Qt::Key_Up);
  EXPECT_EQ(42, FSample->Whole);
  EXPECT_EQ(42, FOther->Whole);
  TWindowProbe::Settle();
  EXPECT_EQ("84", Cell("Double"));
}

TEST_F(InspectorGridTest, EnterAcceptsWhatIsTyped) {
  Show({FSample.get()});
  Select("Text");
  Retype("new");
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ("new", FSample->Text);
}

TEST_F(InspectorGridTest, ARefusedValueIsToldWithItsTypeAndTakenBack) {
  FSample->Whole = 7;
  Show({FSample.get()});
  Select("Whole");
  Retype("abc");
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_TRUE(TakeErrors().startsWith("\"abc\" is not a valid Integer value: Could not convert"));
  EXPECT_EQ(7, FSample->Whole);
  EXPECT_EQ("7", Editor().GetText());
}

TEST_F(InspectorGridTest, LeavingAValueThatDiffersWritesNothing) {
  FSample->Whole = 1;
  FOther->Whole = 2;
  Show({FSample.get(), FOther.get()});
  Select("Whole");
  TWindowProbe::Key(Qt::Key_Up);
  EXPECT_EQ(1, FSample->Whole);
  EXPECT_EQ(2, FOther->Whole);
}

// Refreshing.

TEST_F(InspectorGridTest, ARefreshThatChangesNothingInTheCellLeavesTheEditorAlone) {
  FSample->Text = "some text";
  Show({FSample.get()});
  Select("Text");
  Editor().SetSelStart(3);
  Editor().SetSelLength(2);
  FSample->Whole = 5;
  FInspector->RefreshProperties();
  TWindowProbe::Settle();
  EXPECT_TRUE(IsEditorOpen());
  EXPECT_EQ(3, Editor().GetSelStart());
  EXPECT_EQ(2, Editor().GetSelLength());
  EXPECT_EQ("5", Cell("Whole"));
}

TEST_F(InspectorGridTest, ARefreshShowsANewValueInTheOpenEditor) {
  Show({FSample.get()});
  Select("Text");
  FSample->Text = "new";
  FInspector->RefreshProperties();
  EXPECT_TRUE(IsEditorOpen());
  EXPECT_EQ("new", Editor().GetText());
  EXPECT_EQ(3, Editor().GetSelLength());
}

TEST_F(InspectorGridTest, ARefreshKeepsExpansionAndScrollPosition) {
  Show({FSample.get()});
  Item("Part").Expand();
  FInspector->SetHeight(120);
  FInspector->SetTopRow(4);
  FInspector->RefreshProperties();
  TWindowProbe::Settle();
  EXPECT_TRUE(Item("Part").IsExpanded());
  EXPECT_EQ(4, FInspector->GetTopRow());
}

TEST_F(InspectorGridTest, AnObjectMayDieWhileItsValueIsTyped) {
  Show({FSample.get(), FOther.get()});
  Select("Whole");
  Retype("4");
  FSample.reset();
  TWindowProbe::Settle();
  EXPECT_EQ(1, FInspector->GetObjects().GetCount());
  EXPECT_EQ("Whole", FInspector->GetSelected()->GetName());
  EXPECT_EQ("", TakeErrors());
}

TEST_F(InspectorGridTest, AllObjectsMayDieWhileAListIsDroppedDown) {
  Show({FSample.get(), FOther.get()});
  Select("Align");
  TWindowProbe::Key(Qt::Key_Down, Qt::AltModifier);
  FSample.reset();
  FOther.reset();
  TWindowProbe::Settle();
  EXPECT_EQ(0, Items().GetCount());
  EXPECT_EQ("", TakeErrors());
}

// The clipboard.

/// A component that writes down the messages it gets.
class TClipboardSample : public TSample {
 public:
  QList<quint32> Messages;
  void Dispatch(TMessage& message) override { Messages += message.Msg; }

 protected:
  TClipboardSample() = default;
};

TEST_F(InspectorGridTest, CopyingAndPastingAreSentToTheSelectedPropertysObjects) {
  const auto first = Make<TClipboardSample>();
  const auto second = Make<TClipboardSample>();
  FSample->Partner = first.get();
  FOther->Partner = second.get();
  Show({FSample.get(), FOther.get()});
  Select("Partner");
  FInspector->CopyToClipboard();
  EXPECT_EQ(QList<quint32>{WM_COPY}, first->Messages);
  EXPECT_EQ(QList<quint32>(), second->Messages);
  FInspector->PasteFromClipboard();
  EXPECT_EQ((QList<quint32>{WM_COPY, WM_PASTE}), first->Messages);
  EXPECT_EQ(QList<quint32>{WM_PASTE}, second->Messages);
  Select("Whole");
  FInspector->CopyToClipboard();
  FInspector->PasteFromClipboard();
  EXPECT_EQ(2, first->Messages.size());
}

}  // namespace
}  // namespace kt::tests
