#include "KTItemListEditor/InplaceEditListFixture.h"

namespace kt::tests {
namespace {

using InplaceEditListMouseTest = TInplaceEditListTest;

const QPoint kInText(4, 8);

TEST_F(InplaceEditListMouseTest, ADoubleClickStepsThroughThePickListAndValidatesEachStep) {
  ShowColors();
  DoubleClickAt(kInText);
  EXPECT_EQ("red", Value(0));
  EXPECT_EQ("red", Edit().GetText());
  EXPECT_EQ("validate(a=red) validated(a)", TakeLog());
  DoubleClickAt(kInText);
  EXPECT_EQ("green", Value(0));
}

TEST_F(InplaceEditListMouseTest, AStepSelectsAllOfTheText) {
  ShowColors();
  QWidget* const body = Edit().GetHandle();
  QMouseEvent event(QEvent::MouseButtonDblClick, kInText, body->mapToGlobal(kInText), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QApplication::sendEvent(body, &event);
  EXPECT_EQ(3, Edit().GetSelLength());
}

TEST_F(InplaceEditListMouseTest, ADoubleClickStepsOnFromTheValue) {
  Item(0).SetValue(QStringLiteral("green"));
  ShowColors();
  DoubleClickAt(kInText);
  EXPECT_EQ("blue", Value(0));
}

TEST_F(InplaceEditListMouseTest, OnTheLastValueADoubleClickWrapsToTheFirst) {
  Item(0).SetValue(QStringLiteral("blue"));
  ShowColors();
  DoubleClickAt(kInText);
  EXPECT_EQ("red", Value(0));
}

TEST_F(InplaceEditListMouseTest, ADoubleClickOnAReadOnlyItemChangesNothing) {
  Item(0).SetReadOnly(true);
  ShowColors();
  Editor.OnDblClick = [this](TObject*) { Log += QStringLiteral("dblclick"); };
  DoubleClickAt(kInText);
  EXPECT_EQ("1", Value(0));
  EXPECT_EQ("", TakeLog());
}

TEST_F(InplaceEditListMouseTest, ADoubleClickOnAnEmptyListChangesNothing) {
  ShowPickList({});
  DoubleClickAt(kInText);
  EXPECT_EQ("1", Value(0));
}

TEST_F(InplaceEditListMouseTest, AHandlerOfDoubleClicksTakesThePlaceOfSteps) {
  ShowColors();
  Editor.OnDblClick = [this](TObject* sender) { Log += sender == &Editor ? "dblclick" : "?"; };
  DoubleClickAt(kInText);
  EXPECT_EQ("1", Value(0));
  EXPECT_EQ("dblclick", TakeLog());
}

TEST_F(InplaceEditListMouseTest, WithAHandlerOfDoubleClicksAPickListCellIsStillValidated) {
  ShowColors();
  Retype(QStringLiteral("x"));
  Editor.OnDblClick = [this](TObject*) { Log += QStringLiteral("dblclick"); };
  DoubleClickAt(kInText);
  EXPECT_EQ("dblclick validate(a=x) validated(a)", TakeLog());
}

TEST_F(InplaceEditListMouseTest, ADoubleClickOnASimpleCellIsTheGrids) {
  Show();
  Retype(QStringLiteral("x"));
  TakeLog();
  Editor.OnDblClick = [this](TObject*) { Log += QStringLiteral("dblclick"); };
  DoubleClickAt(kInText);
  EXPECT_EQ("dblclick", TakeLog());
}

TEST_F(InplaceEditListMouseTest, ADoubleClickOnAnEllipsisCellRunsItsAction) {
  ShowEllipsis();
  DoubleClickAt(kInText);
  EXPECT_EQ("click(a)", TakeLog());
}

TEST_F(InplaceEditListMouseTest, AHandlerOfDoubleClicksTakesThePlaceOfTheEllipsisAction) {
  ShowEllipsis();
  Editor.OnDblClick = [this](TObject*) { Log += QStringLiteral("dblclick"); };
  DoubleClickAt(kInText);
  EXPECT_EQ("dblclick", TakeLog());
}

TEST_F(InplaceEditListMouseTest, ADoubleClickOnAnEllipsisCellValidatesNothing) {
  ShowEllipsis();
  Retype(QStringLiteral("x"));
  DoubleClickAt(kInText);
  EXPECT_EQ("click(a)", TakeLog());
  EXPECT_TRUE(Edit().IsModified());
}

TEST_F(InplaceEditListMouseTest, ADoubleClickOnASimpleCellValidatesNothing) {
  Show();
  Retype(QStringLiteral("x"));
  DoubleClickAt(kInText);
  EXPECT_EQ("", TakeLog());
  EXPECT_TRUE(Edit().IsModified());
}

TEST_F(InplaceEditListMouseTest, AReadOnlyItemHasTheActionOfItsEllipsisAllTheSame) {
  Item(0).SetReadOnly(true);
  ShowEllipsis();
  DoubleClickAt(kInText);
  EXPECT_EQ("click(a)", TakeLog());
}

TEST_F(InplaceEditListMouseTest, AReadOnlySimpleCellHasTheDoubleClickOfTheGrid) {
  Item(0).SetReadOnly(true);
  Show();
  Editor.OnDblClick = [this](TObject*) { Log += QStringLiteral("dblclick"); };
  DoubleClickAt(kInText);
  EXPECT_EQ("dblclick", TakeLog());
}

TEST_F(InplaceEditListMouseTest, AStepOnAnEmptyListStillValidatesWhatWasTyped) {
  ShowPickList({});
  Retype(QStringLiteral("x"));
  DoubleClickAt(kInText);
  EXPECT_EQ("validate(a=x) validated(a)", TakeLog());
}

TEST_F(InplaceEditListMouseTest, AStepIsToldToTheGridAsSomethingTyped) {
  ShowColors();
  Editor.OnSetEditText = [this](TObject*, int col, int row, const QString& text) {
    Log += QStringLiteral("set(%1,%2)=%3").arg(col).arg(row).arg(text);
  };
  DoubleClickAt(kInText);
  EXPECT_EQ("set(1,1)=red validate(a=red) validated(a)", TakeLog());
}

TEST_F(InplaceEditListMouseTest, ADoubleClickOnTheArrowValidatesWhatWasTypedAndStepsNowhere) {
  ShowColors();
  Retype(QStringLiteral("x"));
  DoubleClickAt(OnButton());
  EXPECT_EQ("validate(a=x) validated(a)", TakeLog());
  EXPECT_EQ("x", Value(0));
}

TEST_F(InplaceEditListMouseTest, WhatTheButtonDoesHidesNothingFromHandlersOfTheMouse) {
  ShowEllipsis();
  Edit().OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { Log += QStringLiteral("down"); };
  Edit().OnMouseMove = [this](TObject*, TShiftState, int, int) { Log += QStringLiteral("move"); };
  Edit().OnMouseUp = [this](TObject*, TMouseButton, TShiftState, int, int) { Log += QStringLiteral("up"); };
  PressAt(OnButton());
  MoveTo(OnButton() + QPoint(1, 1));
  ReleaseAt(OnButton());
  EXPECT_EQ("down move click(a) up", TakeLog());
}

TEST_F(InplaceEditListMouseTest, ADoubleClickOnTheArrowStepsNowhere) {
  ShowColors();
  ClickAt(OnButton());
  DoubleClickAt(OnButton());
  EXPECT_EQ("1", Value(0));
}

}  // namespace
}  // namespace kt::tests
