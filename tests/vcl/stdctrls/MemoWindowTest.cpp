#include "kt/vcl/stdctrls/Button.h"
#include "kt/vcl/stdctrls/Memo.h"
#include "vcl/stdctrls/ControlsFixture.h"

#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>

namespace kt::tests {
namespace {

/// A memo on a form that shows. Line breaks are written "|".
class MemoWindowTest : public TControlsTest {
 protected:
  void ShowMemo(const char* text = "") {
    SetText(text);
    Show();
    Memo.SetFocus();
  }
  void SetText(const char* text) { Memo.SetText(QString::fromLatin1(text).replace(u'|', u'\n')); }
  QPlainTextEdit& View() { return *static_cast<QPlainTextEdit*>(Memo.GetHandle()); }
  QString Text() { return QString(Memo.GetText()).replace(QStringLiteral("\r\n"), QStringLiteral("|")); }
  QString Shown() { return View().toPlainText().replace(u'\n', u'|'); }

  TMemo& Memo = Add<TMemo>();
};

TEST_F(MemoWindowTest, AFormKeepsItsLines) {
  Memo.SetName(QStringLiteral("Memo"));
  SetText("one||two");
  Memo.SetScrollBars(ssVertical);
  EXPECT_EQ(
      "object Memo: TMemo\n  Left = 8\n  Top = 8\n  Width = 185\n  Height = 89\n  Lines.Strings = (\n    'one'\n    "
      "''\n"
      "    'two')\n  ScrollBars = ssVertical\n  TabOrder = 0\nend\n",
      TextOf(&Memo));
}

TEST_F(MemoWindowTest, AFormBringsThemBack) {
  ReadFormText(*FForm, R"(object Form: TForm
    object Read: TMemo
      Lines.Strings = (
        'one'
        'two')
      WordWrap = False
    end
  end
)");
  auto* memo = dynamic_cast<TMemo*>(FForm->FindComponent(u"Read"));
  ASSERT_NE(nullptr, memo);
  EXPECT_EQ("one,two", memo->GetLines().GetCommaText());
  EXPECT_FALSE(memo->IsWordWrap());
}

TEST_F(MemoWindowTest, WhatIsTypedIsInItsLines) {
  ShowMemo("a|b");
  Key(Qt::Key_End);
  Type("x");
  Key(Qt::Key_Return);
  Type("y");
  EXPECT_EQ("ax,y,b", Memo.GetLines().GetCommaText());
  EXPECT_EQ("ax|y|b", Text());
  EXPECT_TRUE(Memo.IsModified());
}

TEST_F(MemoWindowTest, WhatItsLinesAreShows) {
  ShowMemo();
  Memo.GetLines().Add(QStringLiteral("one"));
  Memo.GetLines().Add(QStringLiteral("two"));
  EXPECT_EQ("one|two|", Shown());
  Memo.GetLines().Delete(0);
  Memo.GetLines().SetStrings(0, QStringLiteral("three"));
  EXPECT_EQ("three|", Shown());
  EXPECT_FALSE(Memo.IsModified());
}

TEST_F(MemoWindowTest, TheCaretStaysWithItsTextWhileLinesComeAndGo) {
  ShowMemo("a|bcd|e");
  Memo.SetCaretPos({2, 1});
  Memo.GetLines().Insert(0, QStringLiteral("new"));
  EXPECT_EQ(QPoint(2, 2), Memo.GetCaretPos());
  Memo.GetLines().Delete(0);
  Memo.GetLines().Add(QStringLiteral("end"));
  EXPECT_EQ(QPoint(2, 1), Memo.GetCaretPos());
  Type("x");
  EXPECT_EQ("a|bcxd|e|end", Text());
}

TEST_F(MemoWindowTest, PositionsAreTheSameWithAndWithoutAWindow) {
  SetText("ab|cd|ef");
  Memo.Select(5, 9);
  Show();
  EXPECT_EQ(5, Memo.GetSelStart());
  EXPECT_EQ(4, Memo.GetSelLength());
  EXPECT_EQ(QStringLiteral("d\r\ne"), Memo.GetSelText());
  EXPECT_EQ(QStringLiteral("d\u2029e"), View().textCursor().selectedText());
}

TEST_F(MemoWindowTest, AnyCharacterIsKept) {
  const QString text = QString::fromUtf8("a\u00a0b\u2028c");
  Memo.SetText(text);
  ShowMemo("");
  Memo.SetText(text);
  Key(Qt::Key_End, Qt::ControlModifier);
  Type("x");
  EXPECT_EQ(text + u'x', Memo.GetText());
}

TEST_F(MemoWindowTest, EachKeyIsOneChangeAndLinesInABracketAreOne) {
  ShowMemo();
  Memo.OnChange = Note("change");
  Type("ab");
  EXPECT_EQ("change change", TakeLog());
  Memo.GetLines().BeginUpdate();
  Memo.GetLines().Add(QStringLiteral("x"));
  Memo.GetLines().Add(QStringLiteral("y"));
  Memo.GetLines().EndUpdate();
  EXPECT_EQ("change", TakeLog());
}

TEST_F(MemoWindowTest, EnterIsTheFormsWhereItIsNotWanted) {
  Memo.SetWantReturns(false);
  TButton& ok = Add<TButton>(8, 150);
  ok.SetDefault(true);
  ok.OnClick = Note("ok");
  ShowMemo("a");
  Key(Qt::Key_Return);
  EXPECT_EQ("ok", TakeLog());
  EXPECT_EQ("a", Text());
  Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ("|a", Text());
  EXPECT_EQ("", TakeLog());
}

TEST_F(MemoWindowTest, TabLeavesItUnlessItIsWanted) {
  TButton& next = Add<TButton>(8, 150);
  ShowMemo("a");
  Key(Qt::Key_Tab);
  EXPECT_TRUE(next.Focused());
  Memo.SetWantTabs(true);
  Memo.SetFocus();
  Key(Qt::Key_Tab);
  EXPECT_TRUE(Memo.Focused());
  EXPECT_EQ("\ta", Text());
}

TEST_F(MemoWindowTest, NoMoreIsTypedThanItsLength) {
  Memo.SetMaxLength(4);
  ShowMemo("a");
  Key(Qt::Key_End);
  Key(Qt::Key_Return);
  Type("xy");
  Key(Qt::Key_Return);
  EXPECT_EQ("a|x", Text());
  Memo.SetText(QString());
  Commit(Memo.GetHandle(), QStringLiteral("abcdef"));
  EXPECT_EQ("abcd", Text());
  Memo.SelectAll();
  Memo.SetSelText(QStringLiteral("abc\nx"));
  EXPECT_EQ("abc", Text());
}

TEST_F(MemoWindowTest, AReadOnlyTextIsLookedAtWithTheKeysAndStays) {
  Memo.SetReadOnly(true);
  ShowMemo("abc");
  Key(Qt::Key_Right);
  Type("x");
  Key(Qt::Key_Delete);
  EXPECT_EQ("abc", Text());
  EXPECT_EQ(1, Memo.GetSelStart());
}

TEST_F(MemoWindowTest, AHandlerMayChangeWhatIsTyped) {
  Memo.OnKeyPress = [](TObject*, QChar& key) { key = key.toUpper(); };
  ShowMemo();
  Type("ab");
  EXPECT_EQ("AB", Text());
}

TEST_F(MemoWindowTest, TypingIsTakenBack) {
  ShowMemo("a");
  Type("xy");
  Memo.Undo();
  EXPECT_EQ("a", Text());
}

TEST_F(MemoWindowTest, ItsScrollBarsAreThoseThatAreAskedFor) {
  ShowMemo("a");
  EXPECT_FALSE(View().verticalScrollBar()->isVisible());
  Memo.SetScrollBars(ssBoth);
  EXPECT_TRUE(View().verticalScrollBar()->isVisible());
  EXPECT_FALSE(View().horizontalScrollBar()->isVisible());
  Memo.SetWordWrap(false);
  EXPECT_TRUE(View().horizontalScrollBar()->isVisible());
}

TEST_F(MemoWindowTest, ATextAtTheRightIsAtTheLeftWhereOneReadsFromThere) {
  Memo.SetAlignment(taRightJustify);
  ShowMemo("a");
  EXPECT_EQ(Qt::AlignRight | Qt::AlignAbsolute, View().document()->defaultTextOption().alignment());
  Memo.SetBiDiMode(bdRightToLeft);
  EXPECT_EQ(Qt::AlignLeft | Qt::AlignAbsolute, View().document()->defaultTextOption().alignment());
}

TEST_F(MemoWindowTest, TheMouseIsTheControlsAndItsPlacesAreThose) {
  Memo.OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int x, int y) {
    FLog += QStringLiteral("down(%1,%2)").arg(x).arg(y);
  };
  Memo.OnClick = Note("click");
  ShowMemo("a");
  const QPoint offset = View().viewport()->pos();
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, QPoint(20, 10));
  EXPECT_EQ(QStringLiteral("down(%1,%2) click").arg(20 + offset.x()).arg(10 + offset.y()).toStdString(), TakeLog());
}

TEST_F(MemoWindowTest, TheWheelScrollsAndIsTold) {
  ShowMemo();
  for (int i = 0; i < 100; ++i) Memo.GetLines().Add(QString::number(i));
  Memo.SetSelStart(0);
  Memo.OnMouseWheelDown = [this](TObject*, TShiftState, const QPoint&, bool&) { FLog += "wheel"; };
  Turn(View().viewport(), -120);
  EXPECT_EQ("wheel", TakeLog());
  EXPECT_EQ(3, View().verticalScrollBar()->value());
}

TEST_F(MemoWindowTest, ASelectionIsHiddenWhereTheKeyboardIsElsewhere) {
  ShowMemo("a");
  const QPalette palette = View().palette();
  EXPECT_EQ(palette.color(QPalette::Inactive, QPalette::Base), palette.color(QPalette::Inactive, QPalette::Highlight));
  Memo.SetHideSelection(false);
  EXPECT_NE(View().palette().color(QPalette::Inactive, QPalette::Base),
            View().palette().color(QPalette::Inactive, QPalette::Highlight));
}

TEST_F(MemoWindowTest, ItsWindowMayGoAndComeBack) {
  ShowMemo("a|b");
  Type("x");
  Memo.SetCaretPos({1, 1});
  Memo.SetParent(nullptr);
  EXPECT_EQ("xa|b", Text());
  EXPECT_EQ(QPoint(1, 1), Memo.GetCaretPos());
  Memo.SetParent(FForm.get());
  EXPECT_EQ("xa|b", Shown());
}

TEST_F(MemoWindowTest, AFormMayGoWhileOneTypes) {
  ShowMemo();
  Memo.OnChange = FreeForm();
  QTest::keyPress(QApplication::focusWidget(), Qt::Key_A);
  EXPECT_EQ(nullptr, FForm);
}

TEST_F(MemoWindowTest, AFormMayGoWhileSomethingIsDropped) {
  ShowMemo();
  Memo.OnChange = FreeForm();
  QMimeData data;
  data.setText(QStringLiteral("dropped"));
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(View().viewport(), &enter);
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(View().viewport(), &drop);
  EXPECT_EQ(nullptr, FForm);
}

TEST_F(MemoWindowTest, AFormMayGoAtTheEndOfABracket) {
  ShowMemo();
  Memo.OnChange = FreeForm();
  Memo.GetLines().BeginUpdate();
  Memo.GetLines().Add(QStringLiteral("x"));
  Memo.GetLines().EndUpdate();
  EXPECT_EQ(nullptr, FForm);
}

}  // namespace
}  // namespace kt::tests
