#include "kt/vcl/stdctrls/Button.h"
#include "kt/vcl/stdctrls/ComboBox.h"
#include "vcl/stdctrls/ControlsFixture.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>

namespace kt::tests {
namespace {

/// A combo box with three lines on a form that shows.
class ComboBoxWindowTest : public TControlsTest {
 protected:
  ComboBoxWindowTest() {
    for (const char* line : {"red", "green", "blue"}) Box.GetItems().Add(QString::fromLatin1(line));
    Box.OnClick = Note("click");
    Box.OnChange = [this](TObject*) { FLog += QStringLiteral("change(%1)").arg(Box.GetText()); };
    Box.OnDropDown = Note("drop");
    Box.OnCloseUp = Note("close");
  }
  void ShowBox(TComboBoxStyle style = csDropDown) {
    Box.SetStyle(style);
    Show();
    Box.SetFocus();
    TakeLog();
  }
  QComboBox& View() { return *static_cast<QComboBox*>(Box.GetHandle()); }
  QString State() { return QStringLiteral("%1 (%2)").arg(Box.GetText()).arg(Box.GetItemIndex()); }
  void PickWithMouse(int line) {
    QWidget* const viewport = View().view()->viewport();
    const QPoint place = View().view()->visualRect(View().model()->index(line, 0)).center();
    QTest::mouseMove(viewport, place);
    QTest::mouseClick(viewport, Qt::LeftButton, {}, place);
  }

  TComboBox& Box = Add<TComboBox>();
};

TEST_F(ComboBoxWindowTest, AFormKeepsItsLinesAndTheOneThatIsPicked) {
  Box.SetName(QStringLiteral("Box"));
  Box.OnClick = Box.OnChange = Box.OnDropDown = Box.OnCloseUp = nullptr;
  Box.SetStyle(csDropDownList);
  Box.SetItemIndex(1);
  EXPECT_EQ(
      "object Box: TComboBox\n  Left = 8\n  Top = 8\n  Width = 145\n  Height = 21\n  Style = csDropDownList\n"
      "  ItemHeight = 16\n  Items.Strings = (\n    'red'\n    'green'\n    'blue')\n  ItemIndex = 1\n  TabOrder = 0\n"
      "  Text = 'green'\nend\n",
      TextOf(&Box));
}

TEST_F(ComboBoxWindowTest, AFormMaySayTheLineBeforeTheLines) {
  ReadFormText(*FForm, R"(object Form: TForm
    object Read: TComboBox
      Style = csDropDownList
      ItemHeight = 13
      ItemIndex = 1
      Text = 'b'
      Items.Strings = (
        'a'
        'b')
    end
  end
)");
  auto* box = dynamic_cast<TComboBox*>(FForm->FindComponent(u"Read"));
  ASSERT_NE(nullptr, box);
  EXPECT_EQ("b", box->GetText());
  EXPECT_EQ(1, box->GetItemIndex());
}

TEST_F(ComboBoxWindowTest, AFormKeepsATextThatIsNoLine) {
  ReadFormText(*FForm, R"(object Form: TForm
    object Read: TComboBox
      ItemHeight = 13
      Text = 'other'
      Items.Strings = (
        'a')
    end
  end
)");
  auto* box = dynamic_cast<TComboBox*>(FForm->FindComponent(u"Read"));
  ASSERT_NE(nullptr, box);
  EXPECT_EQ("other", box->GetText());
  EXPECT_EQ(-1, box->GetItemIndex());
}

TEST_F(ComboBoxWindowTest, TheWindowShowsWhatIsSet) {
  ShowBox();
  Box.SetItemIndex(2);
  EXPECT_EQ("blue", View().currentText());
  Box.SetText(QStringLiteral("pink"));
  EXPECT_EQ("pink", View().lineEdit()->text());
  Box.GetItems().Insert(0, QStringLiteral("white"));
  EXPECT_EQ("pink (-1)", State());
  EXPECT_EQ("pink", View().lineEdit()->text());
  EXPECT_EQ(4, View().count());
  EXPECT_EQ("", TakeLog());
}

TEST_F(ComboBoxWindowTest, AnArrowPicksTheNextLine) {
  ShowBox(csDropDownList);
  Key(Qt::Key_Down);
  EXPECT_EQ("red (0)", State());
  EXPECT_EQ("click change(red)", TakeLog());
  Box.OnSelect = Note("select");
  Key(Qt::Key_Down);
  EXPECT_EQ("click select", TakeLog());
}

TEST_F(ComboBoxWindowTest, TheListIsPickedFromWithTheMouse) {
  ShowBox(csDropDownList);
  QTest::mouseClick(&View(), Qt::LeftButton);
  EXPECT_TRUE(Box.IsDroppedDown());
  EXPECT_EQ("drop", TakeLog());
  PickWithMouse(2);
  EXPECT_FALSE(Box.IsDroppedDown());
  EXPECT_EQ("close click change(blue)", TakeLog());
  EXPECT_EQ("blue (2)", State());
}

TEST_F(ComboBoxWindowTest, TheListOfAnEditIsPickedFromWithTheMouse) {
  ShowBox();
  Box.SetDroppedDown(true);
  PickWithMouse(1);
  EXPECT_EQ("drop close click change(green)", TakeLog());
  EXPECT_EQ("green", View().lineEdit()->text());
}

TEST_F(ComboBoxWindowTest, KeysInTheOpenListAreTheControls) {
  ShowBox(csDropDownList);
  TButton& ok = Add<TButton>(8, 100);
  ok.SetDefault(true);
  ok.OnClick = Note("ok");
  Box.OnKeyDown = [this](TObject*, quint16& key, TShiftState) { FLog += QStringLiteral("key(%1)").arg(key); };
  Box.SetDroppedDown(true);
  QTest::keyPress(View().view(), Qt::Key_Down);
  QTest::keyPress(View().view(), Qt::Key_Return);
  EXPECT_EQ("drop key(40) key(13) close click change(green)", TakeLog());
}

TEST_F(ComboBoxWindowTest, EscapeClosesTheListAndPicksNothing) {
  ShowBox(csDropDownList);
  TButton& cancel = Add<TButton>(8, 100);
  cancel.SetCancel(true);
  cancel.OnClick = Note("cancel");
  Box.SetDroppedDown(true);
  QTest::keyPress(View().view(), Qt::Key_Down);
  QTest::keyPress(View().view(), Qt::Key_Escape);
  EXPECT_EQ("drop close", TakeLog());
  EXPECT_EQ(" (-1)", State());
}

TEST_F(ComboBoxWindowTest, AHandlerMayTakeAKeyOfTheOpenList) {
  ShowBox(csDropDownList);
  Box.OnKeyDown = [](TObject*, quint16& key, TShiftState) { key = 0; };
  Box.OnKeyPress = [](TObject*, QChar& key) { key = u'\0'; };
  Box.SetDroppedDown(true);
  QTest::keyPress(View().view(), Qt::Key_Return);
  EXPECT_TRUE(Box.IsDroppedDown());
}

TEST_F(ComboBoxWindowTest, TheListMayBeFilledAsItOpens) {
  Box.OnDropDown = [this](TObject*) { Box.GetItems().Add(QStringLiteral("white")); };
  ShowBox(csDropDownList);
  Box.SetDroppedDown(true);
  EXPECT_EQ(4, View().view()->model()->rowCount());
  Box.SetDroppedDown(false);
  EXPECT_EQ("close", TakeLog());
}

TEST_F(ComboBoxWindowTest, TypingIsAChangeAndNoPick) {
  Box.SetAutoComplete(false);
  ShowBox();
  Type("re");
  EXPECT_EQ("re (-1)", State());
  EXPECT_EQ("change(r) change(re)", TakeLog());
}

TEST_F(ComboBoxWindowTest, TypingIsCompletedAndToldOnce) {
  ShowBox();
  Type("g");
  EXPECT_EQ("green (1)", State());
  EXPECT_EQ("reen", Box.GetSelText());
  EXPECT_EQ("change(green)", TakeLog());
}

TEST_F(ComboBoxWindowTest, WhatIsComposedIsTyped) {
  Box.SetAutoComplete(false);
  Box.SetCharCase(ecUpperCase);
  ShowBox();
  Commit(&View(), QStringLiteral("xy"));
  Type("z");
  EXPECT_EQ("XYZ (-1)", State());
  EXPECT_EQ("XYZ", View().lineEdit()->text());
}

TEST_F(ComboBoxWindowTest, NoMoreIsTypedThanItsLength) {
  Box.SetAutoComplete(false);
  Box.SetMaxLength(2);
  ShowBox();
  Type("abc");
  EXPECT_EQ("ab (-1)", State());
  Box.SetText(QStringLiteral("long"));
  EXPECT_EQ("long", View().lineEdit()->text());
}

TEST_F(ComboBoxWindowTest, LettersPickInAListAlone) {
  ShowBox(csDropDownList);
  Type("b");
  EXPECT_EQ("blue (2)", State());
  EXPECT_EQ("click change(blue)", TakeLog());
}

TEST_F(ComboBoxWindowTest, TheWheelPicksOnlyWithTheKeyboard) {
  TButton& other = Add<TButton>(8, 100);
  ShowBox(csDropDownList);
  other.SetFocus();
  EXPECT_FALSE(Turn(&View(), -120));
  EXPECT_EQ(" (-1)", State());
  // Nor does the keyboard come with the wheel, as it does to Qt's own.
  EXPECT_EQ(Qt::StrongFocus, View().focusPolicy());
  Box.SetFocus();
  EXPECT_TRUE(Turn(&View(), -120));
  EXPECT_EQ("red (0)", State());
  EXPECT_EQ("click change(red)", TakeLog());
}

TEST_F(ComboBoxWindowTest, TheMouseInItsEditIsTheControls) {
  Box.OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int x, int) {
    FLog += QStringLiteral("down(%1)").arg(x);
  };
  Box.OnDblClick = Note("double");
  ShowBox();
  QLineEdit* const line = View().lineEdit();
  QTest::mouseClick(line, Qt::LeftButton, {}, QPoint(10, 5));
  EXPECT_EQ(QStringLiteral("down(%1)").arg(10 + line->x()).toStdString(), TakeLog());
  QTest::mouseDClick(line, Qt::LeftButton, {}, QPoint(10, 5));
  EXPECT_NE(std::string::npos, TakeLog().find("double"));
}

TEST_F(ComboBoxWindowTest, AnOpenListDoesNotLeaveTheControl) {
  Box.OnEnter = Note("enter");
  Box.OnExit = Note("exit");
  Add<TButton>(8, 100).SetTabOrder(0);
  Show();
  Box.SetFocus();
  Box.SetDroppedDown(true);
  Box.SetDroppedDown(false);
  EXPECT_EQ("enter drop close", TakeLog());
}

TEST_F(ComboBoxWindowTest, EnterIsTheFormsWhileTheListIsClosed) {
  ShowBox();
  TButton& ok = Add<TButton>(8, 100);
  ok.SetDefault(true);
  ok.OnClick = Note("ok");
  Key(Qt::Key_Return);
  EXPECT_EQ("ok", TakeLog());
}

TEST_F(ComboBoxWindowTest, LeavingATextDoesNotTurnItIntoALine) {
  Box.SetAutoComplete(false);
  TButton& other = Add<TButton>(8, 100);
  ShowBox();
  Type("RED");
  other.SetFocus();
  EXPECT_EQ("RED (-1)", State());
}

TEST_F(ComboBoxWindowTest, AnotherStyleIsAnotherWindowInPlace) {
  ShowBox();
  Box.SetText(QStringLiteral("green"));
  Box.SetStyle(csDropDownList);
  EXPECT_FALSE(View().isEditable());
  EXPECT_EQ("green (1)", State());
  Box.SetStyle(csDropDown);
  EXPECT_EQ("green", View().lineEdit()->text());
  EXPECT_EQ("", TakeLog());
}

TEST_F(ComboBoxWindowTest, ItsWindowMayGoAndComeBack) {
  ShowBox();
  Box.SetItemIndex(1);
  Box.SetParent(nullptr);
  EXPECT_EQ("green (1)", State());
  Box.SetParent(FForm.get());
  EXPECT_EQ("green", View().lineEdit()->text());
}

// Handlers that free the form.

TEST_F(ComboBoxWindowTest, AFormMayGoAsTheListOpens) {
  ShowBox(csDropDownList);
  Box.OnDropDown = FreeForm();
  QTest::mousePress(&View(), Qt::LeftButton);
  EXPECT_EQ(nullptr, FForm);
}

TEST_F(ComboBoxWindowTest, AFormMayGoAsTheListCloses) {
  ShowBox(csDropDownList);
  Box.OnCloseUp = FreeForm();
  Box.SetDroppedDown(true);
  QTest::keyPress(View().view(), Qt::Key_Escape);
  EXPECT_EQ(nullptr, FForm);
}

TEST_F(ComboBoxWindowTest, AFormMayGoAsALineIsPicked) {
  ShowBox(csDropDownList);
  Box.OnClick = FreeForm();
  Box.SetDroppedDown(true);
  PickWithMouse(1);
  EXPECT_EQ(nullptr, FForm);
}

TEST_F(ComboBoxWindowTest, AFormMayGoWhileOneTypes) {
  ShowBox();
  Box.OnChange = FreeForm();
  QTest::keyPress(QApplication::focusWidget(), Qt::Key_G);
  EXPECT_EQ(nullptr, FForm);
}

TEST_F(ComboBoxWindowTest, LinesMayGoAsOneIsPicked) {
  ShowBox(csDropDownList);
  Box.OnClick = [this](TObject*) { Box.GetItems().Clear(); };
  Box.SetDroppedDown(true);
  PickWithMouse(1);
  EXPECT_EQ("drop close change()", TakeLog());
  EXPECT_EQ(" (-1)", State());
}

}  // namespace
}  // namespace kt::tests
