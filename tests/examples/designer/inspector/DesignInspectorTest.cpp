#include "DesignerFixture.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "kt/vcl/menus/PopupMenu.h"
#include "kt/vcl/stdctrls/Button.h"

#include <QLineEdit>

namespace designer::tests {
namespace {

using kt::TFontStyles;

class DesignInspectorTest : public TDesignerTest {
 protected:
  void SelectBoth() {
    Session().Select({&Component("Button1"), &Component("Button2")});
    Settle();
  }
  TFontStyles StyleOf(const QString& name) { return Control(name).GetFont().GetStyle(); }
  /// Writes as the grid does once something was typed.
  void Write(const QString& path, const QString& text) {
    Item(path).SetValueLine(0, text);
    Inspector().SetSelected(&Item(path));
    Item(path).Validate();
    Settle();
  }
  QString Rows() {
    QStringList names;
    for (int i = 0; i < Inspector().GetVisibleItemCount(); ++i) names.append(Inspector().GetVisibleItem(i)->GetName());
    return names.join(u' ');
  }
};

TEST_F(DesignInspectorTest, AMemberOfASetIsWrittenByItself) {
  Select("Button1");
  Write("Font.Style.fsBold", "True");
  EXPECT_EQ(StyleOf("Button1"), TFontStyles{kt::fsBold});
  EXPECT_EQ(Value("Font.Style"), "[fsBold]");
}

TEST_F(DesignInspectorTest, AMemberIsTakenOutByItself) {
  Control("Button1").GetFont().SetStyle({kt::fsBold, kt::fsItalic});
  Select("Button1");
  Write("Font.Style.fsItalic", "False");
  EXPECT_EQ(StyleOf("Button1"), TFontStyles{kt::fsBold});
}

TEST_F(DesignInspectorTest, AMemberOfSeveralObjectsLeavesTheirOthersAlone) {
  Control("Button1").GetFont().SetStyle({kt::fsItalic});
  Control("Button2").GetFont().SetStyle({kt::fsUnderline});
  SelectBoth();
  Write("Font.Style.fsBold", "True");
  EXPECT_EQ(StyleOf("Button1"), (TFontStyles{kt::fsBold, kt::fsItalic}));
  EXPECT_EQ(StyleOf("Button2"), (TFontStyles{kt::fsBold, kt::fsUnderline}));
}

TEST_F(DesignInspectorTest, AMemberIsAStepOfItsOwn) {
  Select("Button1");
  Write("Font.Style.fsBold", "True");
  EXPECT_EQ(UndoText(), "Change Style.fsBold");
  Do("undo");
  EXPECT_EQ(StyleOf("Button1"), TFontStyles{});
  EXPECT_EQ(Value("Font.Style.fsBold"), "False");
}

TEST_F(DesignInspectorTest, AnchorsOfTheControlItselfWorkTheSameWay) {
  Select("Button1");
  Write("Anchors.akRight", "True");
  EXPECT_EQ(Control("Button1").GetAnchors(), (kt::TAnchors{kt::akLeft, kt::akTop, kt::akRight}));
}

TEST_F(DesignInspectorTest, WhatIsNoTruthValueIsRefused) {
  Select("Button1");
  EXPECT_THROW(Write("Font.Style.fsBold", "Maybe"), kt::Exception);
  EXPECT_EQ(StyleOf("Button1"), TFontStyles{});
}

TEST_F(DesignInspectorTest, EveryObjectGetsAWidth) {
  SelectBoth();
  Write("Width", "120");
  EXPECT_EQ(Bounds("Button1"), "16 16 120 25");
  EXPECT_EQ(Bounds("Button2"), "120 16 120 25");
  EXPECT_EQ(UndoText(), "Change Width");
}

TEST_F(DesignInspectorTest, ASizeThatNoScreenShowsIsToldAndLeavesTheOldOne) {
  Select("SmallForm");
  TypeInto("ClientWidth", "99999999");
  EXPECT_EQ(TakeTold(), "\"99999999\" is not a valid Integer value: ClientWidth must be from -32767 to 32767");
  EXPECT_EQ(Bounds("SmallForm"), "40 30 300 200");
  EXPECT_FALSE(Document().IsModified());
}

TEST_F(DesignInspectorTest, NeitherDoesAConstraintForceOne) {
  Select("Button1");
  EXPECT_THROW(Write("Constraints.MinWidth", "99999999"), kt::Exception);
  EXPECT_EQ(Bounds("Button1"), "16 16 75 25");
}

TEST_F(DesignInspectorTest, SeveralObjectsHaveNoNameInCommon) {
  SelectBoth();
  EXPECT_FALSE(Rows().split(u' ').contains("Name"));
  Select("Button1");
  EXPECT_TRUE(Rows().split(u' ').contains("Name"));
}

TEST_F(DesignInspectorTest, ColoursShowByName) {
  Select("SmallForm");
  EXPECT_EQ(Value("Color"), "clBtnFace");
  Write("Color", "clRed");
  EXPECT_EQ(Control("SmallForm").GetColor(), kt::clRed);
  EXPECT_EQ(Value("Color"), "clRed");
}

TEST_F(DesignInspectorTest, ColoursCanBeTypedAsNumbers) {
  Select("SmallForm");
  Write("Color", "$00123456");
  EXPECT_EQ(Control("SmallForm").GetColor(), kt::TColor(0x123456));
  EXPECT_EQ(Value("Color"), "$00123456");
}

TEST_F(DesignInspectorTest, CursorsAndModalResultsShowByName) {
  Select("Button1");
  EXPECT_EQ(Value("Cursor"), "crDefault");
  EXPECT_EQ(Value("ModalResult"), "mrNone");
  Write("Cursor", "crHandPoint");
  Write("ModalResult", "mrCancel");
  EXPECT_EQ(Control("Button1").GetCursor(), kt::crHandPoint);
  EXPECT_EQ(dynamic_cast<kt::TButton&>(Component("Button1")).GetModalResult(), kt::mrCancel);
}

TEST_F(DesignInspectorTest, ReferencesArePickedByName) {
  Select("Button1");
  Write("PopupMenu", "Menu1");
  EXPECT_EQ(static_cast<kt::TComponent*>(Control("Button1").GetPopupMenu()), &Component("Menu1"));
  Write("PopupMenu", "");
  EXPECT_EQ(Control("Button1").GetPopupMenu(), nullptr);
}

TEST_F(DesignInspectorTest, AReferenceToTheWrongClassIsRefused) {
  Select("Button1");
  EXPECT_THROW(Write("PopupMenu", "Button2"), kt::Exception);
  EXPECT_EQ(Control("Button1").GetPopupMenu(), nullptr);
}

TEST_F(DesignInspectorTest, EventsShowTheNamesOfTheirHandlers) {
  Select("Button1");
  FWindow->Panel().ShowEvents(true);
  Settle();
  EXPECT_EQ(Value("OnClick"), "Button1Click");
  Write("OnClick", "SomethingElse");
  EXPECT_EQ(Value("OnClick"), "SomethingElse");
  EXPECT_TRUE(QString::fromUtf8(Document().FileBytes()).contains("    OnClick = SomethingElse\n"));
}

TEST_F(DesignInspectorTest, TheFilterKeepsNamesThatHaveItInThem) {
  Select("Button1");
  FWindow->Panel().FocusFilter();
  Type("hei");
  EXPECT_EQ(Rows(), "Height");
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Backspace);
  EXPECT_TRUE(Rows().startsWith("Action "));
}

TEST_F(DesignInspectorTest, TheFilterLooksBelowCategories) {
  Select("Button1");
  FWindow->Panel().SetCategories(true);
  Settle();
  Inspector().SetNameFilter("taborder");
  EXPECT_EQ(Rows(), "Layout");
}

TEST_F(DesignInspectorTest, TheFilterHoldsForWhatIsSelectedNext) {
  Inspector().SetNameFilter("caption");
  Select("Button2");
  EXPECT_EQ(Rows(), "Caption");
}

TEST_F(DesignInspectorTest, ComparingHasAColumnForEach) {
  SelectBoth();
  FWindow->Panel().SetCompare(true);
  Settle();
  EXPECT_EQ(Item("Caption").GetValueLine(0), "One");
  EXPECT_EQ(Item("Caption").GetValueLine(1), "Two");
  EXPECT_EQ(Inspector().GetCell(2, 0), "Button2");
}

TEST_F(DesignInspectorTest, RenamingFollowsInTheTree) {
  Select("Button1");
  Write("Name", "GoButton");
  EXPECT_EQ(FWindow->Tree().ItemOf(&Component("GoButton"))->text(0), "GoButton: TButton");
}

TEST_F(DesignInspectorTest, ANameThatIsTakenIsToldOnceAndLeavesTheOldOne) {
  Select("Button1");
  TypeInto("Name", "Button2");
  EXPECT_EQ(FTold.size(), 1) << FTold.join(u'|').toStdString();
  Select("Button1");
  EXPECT_EQ(Value("Name"), "Button1");
  EXPECT_FALSE(Document().IsModified());
}

TEST_F(DesignInspectorTest, WhatIsExpandedAndSelectedStaysOverUndo) {
  Select("Button1");
  Item("Font").Expand();
  Write("Font.Size", "14");
  Do("undo");
  EXPECT_TRUE(Item("Font").IsExpanded());
  EXPECT_EQ(SelectedRow(), "Font.Size");
  EXPECT_EQ(Selected(), "Button1");
}

TEST_F(DesignInspectorTest, RowsAreExpandedAndCollapsedByKeys) {
  Select("Button1");
  GoToRow("Font");
  Key(Qt::Key_Right, Qt::AltModifier);
  EXPECT_TRUE(Item("Font").IsExpanded());
  Key(Qt::Key_Down);
  Key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_FALSE(Item("Font").IsExpanded());
  EXPECT_EQ(SelectedRow(), "Font");
}

TEST_F(DesignInspectorTest, TheRowWithTheKeyboardShowsItsEditor) {
  Select("Button1");
  Key(Qt::Key_F11);
  EXPECT_TRUE(Inspector().InplaceEditor()->Visible());
  Key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_TRUE(Inspector().InplaceEditor()->Visible());
  Key(Qt::Key_F12);
  Key(Qt::Key_F11);
  EXPECT_TRUE(Inspector().InplaceEditor()->Visible());
}

TEST_F(DesignInspectorTest, TheEditorShowsWhatAnotherSelectionHasInItsRow) {
  const auto edited = [this] { return Inspector().GetHandle()->findChild<QLineEdit*>()->text(); };
  Click(At("Button1"));
  GoToRow("Width");
  EXPECT_EQ(edited(), "75");
  Key(Qt::Key_F12);
  Click(At("Button2"));
  EXPECT_EQ(edited(), "89");
}

TEST_F(DesignInspectorTest, TheTitleIsNobodysWhenSeveralAreInspected) {
  Select("Button1");
  EXPECT_EQ(Inspector().GetCell(1, 0), "Button1");
  SelectBoth();
  EXPECT_NE(Inspector().GetCell(1, 0), "Button1");
}

TEST_F(DesignInspectorTest, MovingOnTheFormShowsInTheInspector) {
  Select("Button1");
  Surface().setFocus();
  Key(Qt::Key_Right);
  EXPECT_EQ(Value("Left"), "17");
}

}  // namespace
}  // namespace designer::tests
