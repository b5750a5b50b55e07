#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/vcl/stdctrls/Memo.h"
#include "support/Expect.h"
#include "support/PublishedText.h"

namespace kt {
namespace {

using tests::MessageOf;
using tests::PublishedBy;

/// A text of many lines without a window.
class MemoTest : public testing::Test {
 protected:
  MemoTest() {
    Memo.OnChange = [this](TObject*) { ++FChanges; };
  }
  QString Text() { return QString(Memo.GetText()).replace(QStringLiteral("\r\n"), QStringLiteral("|")); }

  std::unique_ptr<TMemo> FMemo = Make<TMemo>();
  TMemo& Memo = *FMemo;
  TStrings& Lines = Memo.GetLines();
  int FChanges = 0;
};

TEST_F(MemoTest, PublishesWhatFormsSayOfIt) {
  EXPECT_EQ(
      "Align=alNone Alignment=taLeftJustify Anchors BevelEdges=15 BevelInner=bvRaised BevelKind=bkNone "
      "BevelOuter=bvLowered BiDiMode BorderStyle=bsSingle Color=-16777211 Constraints Ctl3D ParentCtl3D=True "
      "DragCursor=-12 DragKind=dkDrag DragMode=dmManual Enabled=True Font HideSelection=True Lines MaxLength=0 "
      "OEMConvert=False ImeMode=imDontCare ImeName ParentBiDiMode=True ParentColor=False ParentFont=True "
      "ParentShowHint=True PopupMenu ReadOnly=False ScrollBars=ssNone ShowHint TabOrder=-1 TabStop=True "
      "Visible=True WantReturns=True WantTabs=False WordWrap=True OnChange OnClick OnContextPopup OnDblClick "
      "OnMouseDown OnMouseEnter OnMouseLeave OnMouseMove OnMouseUp OnDragDrop OnDragOver OnEndDrag OnStartDrag "
      "OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp",
      PublishedBy(TMemo::Class()));
}

TEST_F(MemoTest, HasTheSizeThatFormsExpect) { EXPECT_EQ(QRect(0, 0, 185, 89), Memo.GetBoundsRect()); }

TEST_F(MemoTest, ItsLinesAreItsText) {
  Lines.Add(QStringLiteral("one"));
  Lines.Add(QStringLiteral("two"));
  EXPECT_EQ("one|two|", Text());
  Memo.SetText(QStringLiteral("a\nb"));
  EXPECT_EQ("a|b", Text());
  EXPECT_EQ("a,b", Lines.GetCommaText());
}

TEST_F(MemoTest, ALineIsChangedAndTakenAway) {
  Memo.SetText(QStringLiteral("a\nb\nc"));
  Lines.SetStrings(1, QStringLiteral("x"));
  Lines.Delete(0);
  EXPECT_EQ("x|c", Text());
  Lines.Move(1, 0);
  EXPECT_EQ("c,x", Lines.GetCommaText());
  Lines.Clear();
  EXPECT_EQ("", Text());
}

TEST_F(MemoTest, WhatIsNoLineIsAnError) {
  EXPECT_EQ("List index out of bounds (0)", MessageOf<EStringListError>([&] { Lines.GetStrings(0); }));
  EXPECT_EQ("List index out of bounds (1)", MessageOf<EStringListError>([&] { Lines.Insert(1, {}); }));
  EXPECT_EQ("List index out of bounds (-1)", MessageOf<EStringListError>([&] { Lines.Delete(-1); }));
}

TEST_F(MemoTest, EachChangeIsToldAndThoseInABracketOnce) {
  Lines.Add(QStringLiteral("a"));
  Lines.Add(QStringLiteral("b"));
  EXPECT_EQ(2, FChanges);
  auto other = Make<TStringList>();
  other->SetText(QStringLiteral("x\ny\nz"));
  Lines.Assign(other.get());
  EXPECT_EQ(3, FChanges);
  EXPECT_EQ("x|y|z|", Text());
}

TEST_F(MemoTest, TheTextOfTheLinesIsTakenAsItIs) {
  Lines.SetText(QStringLiteral("a\nb"));
  EXPECT_EQ("a|b", Text());
  EXPECT_EQ(QStringLiteral("a\r\nb"), Lines.GetText());
}

TEST_F(MemoTest, PositionsCountTwoForALineBreak) {
  Memo.SetText(QStringLiteral("ab\ncd"));
  Memo.Select(1, 5);
  EXPECT_EQ(QStringLiteral("b\r\nc"), Memo.GetSelText());
  Memo.SetCaretPos({1, 1});
  EXPECT_EQ(5, Memo.GetSelStart());
  EXPECT_EQ(QPoint(1, 1), Memo.GetCaretPos());
}

TEST_F(MemoTest, TheSelectionStaysWithItsText) {
  Memo.SetText(QStringLiteral("ab\ncd"));
  Memo.Select(4, 6);
  Lines.Insert(0, QStringLiteral("new"));
  EXPECT_EQ("cd", Memo.GetSelText());
  Lines.Delete(0);
  EXPECT_EQ("cd", Memo.GetSelText());
}

TEST_F(MemoTest, TenThousandLinesAreAddedOneByOne) {
  for (int i = 0; i < 10000; ++i) Lines.Add(QStringLiteral("line"));
  EXPECT_EQ(10000, Lines.GetCount());
  EXPECT_EQ(60000, Memo.GetText().size());
}

TEST_F(MemoTest, AHandlerOfAChangeMayFreeIt) {
  Memo.OnChange = [this](TObject*) { FMemo.reset(); };
  Lines.AddObject(QStringLiteral("x"), nullptr);
  EXPECT_EQ(nullptr, FMemo);
}

TEST_F(MemoTest, AHandlerMayFreeItAtTheEndOfABracket) {
  Memo.OnChange = [this](TObject*) { FMemo.reset(); };
  auto other = Make<TStringList>();
  other->SetText(QStringLiteral("x\ny"));
  Lines.Assign(other.get());
  EXPECT_EQ(nullptr, FMemo);
}

}  // namespace
}  // namespace kt
