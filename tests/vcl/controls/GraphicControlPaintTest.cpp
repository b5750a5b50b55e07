// How controls without a window are drawn into that of their parent.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/stdctrls/GroupBox.h"
#include "support/ControlProbe.h"
#include "support/PaintWorld.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TColored;

class GraphicControlPaintTest : public tests::TPaintWorld {};

/// Shows what is behind it.
class TGlass : public TCustomControl {
 public:
  using Inherited = TCustomControl;

 protected:
  explicit TGlass(TComponent* owner = nullptr) : TCustomControl(owner) {}
  bool FillsGround() const override { return false; }
};

TEST_F(GraphicControlPaintTest, ChildrenLieOnTheGroundInTheirOrder) {
  AddColored(clRed, {10, 10, 20, 20});
  AddColored(clBlue, {20, 20, 20, 20});
  EXPECT_EQ("clWhite clRed clBlue clBlue clWhite", ColorsAt({{5, 5}, {15, 15}, {25, 25}, {35, 35}, {45, 45}}));
}

TEST_F(GraphicControlPaintTest, WhoIsBroughtToTheFrontLiesOverTheOthers) {
  TColored& red = AddColored(clRed, {10, 10, 20, 20});
  AddColored(clBlue, {10, 10, 20, 20});
  Show();
  EXPECT_EQ("10,10 20x20", PaintedBy([&] { red.BringToFront(); }));
  EXPECT_EQ("clRed", ColorsAt({{15, 15}}));
  red.SendToBack();
  EXPECT_EQ("clBlue", ColorsAt({{15, 15}}));
}

TEST_F(GraphicControlPaintTest, WindowsAreBroughtToTheFrontOfWindows) {
  auto& below = Add<tests::TControlProbe>("Below", {10, 10, 20, 20});
  auto& above = Add<tests::TControlProbe>("Above", {10, 10, 20, 20});
  below.SetColor(clRed);
  above.SetColor(clBlue);
  Show();
  EXPECT_EQ("clBlue", ColorsAt({{15, 15}}));
  below.BringToFront();
  EXPECT_EQ("clRed", ColorsAt({{15, 15}}));
  EXPECT_EQ(&below, FForm->ControlAtPos({15, 15}, false, true));
  below.SendToBack();
  EXPECT_EQ("clBlue", ColorsAt({{15, 15}}));
}

TEST_F(GraphicControlPaintTest, AChildDrawsOnlyInItsPlace) {
  AddColored(clRed, {10, 10, 20, 20});
  EXPECT_EQ("clWhite clRed clRed clWhite", ColorsAt({{9, 15}, {10, 10}, {29, 29}, {30, 15}}));
}

TEST_F(GraphicControlPaintTest, AHiddenChildIsNotDrawn) {
  TColored& child = AddColored(clRed, {10, 10, 20, 20});
  child.Hide();
  EXPECT_EQ("clWhite", ColorsAt({{15, 15}}));
}

TEST_F(GraphicControlPaintTest, InADesignerAHiddenChildIsDrawnAllTheSame) {
  TColored& child = AddColored(clRed, {10, 10, 20, 20});
  TColored& shy = AddColored(clBlue, {40, 10, 20, 20});
  child.Hide();
  shy.Hide();
  shy.SetControlStyle({csNoDesignVisible});
  FForm->SetDesigning(true);
  EXPECT_EQ("clRed clWhite", ColorsAt({{15, 15}, {45, 15}}));
}

TEST_F(GraphicControlPaintTest, InvalidatingPaintsItsPlaceAndNoMore) {
  TColored& child = AddColored(clRed, {10, 10, 20, 20});
  Show();
  EXPECT_EQ("10,10 20x20", PaintedBy([&] { child.Invalidate(); }));
}

TEST_F(GraphicControlPaintTest, RepaintingIsDoneAtOnce) {
  TColored& child = AddColored(clRed, {10, 10, 20, 20});
  Show();
  int draws = 0;
  child.OnDraw = [&](TObject*) { ++draws; };
  child.Invalidate();
  EXPECT_EQ(0, draws);
  child.Repaint();
  EXPECT_EQ(1, draws);
}

TEST_F(GraphicControlPaintTest, AChildThatMovesLeavesItsOldPlaceToTheParent) {
  TColored& child = AddColored(clRed, {10, 10, 20, 20});
  Show();
  EXPECT_EQ("10,10 20x20 | 50,10 20x20", PaintedBy([&] { child.SetLeft(50); }));
  EXPECT_EQ("clWhite clRed", ColorsAt({{15, 15}, {55, 15}}));
}

TEST_F(GraphicControlPaintTest, AChildThatHidesOrComesPaintsItsPlace) {
  TColored& child = AddColored(clRed, {10, 10, 20, 20});
  Show();
  EXPECT_EQ("10,10 20x20", PaintedBy([&] { child.Hide(); }));
  EXPECT_EQ("10,10 20x20", PaintedBy([&] { child.Show(); }));
}

TEST_F(GraphicControlPaintTest, AChildThatIsFreedPaintsItsPlace) {
  TColored* const child = &AddColored(clRed, {10, 10, 20, 20});
  Show();
  EXPECT_EQ("10,10 20x20", PaintedBy([&] { delete child; }));
  EXPECT_EQ("clWhite", ColorsAt({{15, 15}}));
}

TEST_F(GraphicControlPaintTest, AnotherParentShowsItAndTheFirstNoLonger) {
  auto& other = Add<tests::TControlProbe>("Other", {100, 0, 100, 100});
  TColored& child = AddColored(clRed, {10, 10, 20, 20});
  Show();
  child.SetParent(&other);
  EXPECT_EQ("clWhite clRed", ColorsAt({{15, 15}, {115, 15}}));
}

TEST_F(GraphicControlPaintTest, NothingOfTheParentIsDrawnBelowAnOpaqueChild) {
  TColored& child = AddColored(clRed, {0, 0, 200, 100});
  int paints = 0;
  FForm->OnPaint = [&](TObject*) { ++paints; };
  Shown();
  EXPECT_EQ(1, paints);
  child.SetControlStyle({csOpaque});
  EXPECT_EQ("clRed", ColorsAt({{15, 15}}));
  EXPECT_EQ(1, paints);
}

TEST_F(GraphicControlPaintTest, WindowsHideWhatIsBelowThemEvenWhenTheyDrawNothing) {
  AddColored(clRed, {0, 0, 200, 50});
  Add<TGlass>("Glass", {10, 10, 20, 20});
  EXPECT_EQ("clRed clWhite", ColorsAt({{5, 5}, {15, 15}}));
}

TEST_F(GraphicControlPaintTest, APlainWindowAndOneOfQtsShowTheirChildren) {
  auto& plain = Add<TWinControl>("Plain", {0, 0, 90, 90});
  auto& box = Add<TGroupBox>("Box", {100, 0, 90, 90});
  AddColored(clRed, {10, 30, 20, 20}, &plain);
  AddColored(clBlue, {10, 30, 20, 20}, &box);
  EXPECT_EQ("clRed clBlue", ColorsAt({{15, 35}, {115, 35}}));
}

TEST_F(GraphicControlPaintTest, WhatIsRaisedWhileOneIsDrawnDoesNotKeepTheNextFromIt) {
  TColored& child = AddColored(clRed, {10, 10, 20, 20});
  AddColored(clBlue, {40, 10, 20, 20});
  child.OnDraw = [](TObject*) { throw Exception(QStringLiteral("no")); };
  EXPECT_EQ("clBlue", ColorsAt({{45, 15}}));
  EXPECT_EQ("error no", Log());
}

TEST_F(GraphicControlPaintTest, AChildMayGoWhileItIsDrawn) {
  TColored* const child = &AddColored(clRed, {10, 10, 20, 20});
  AddColored(clBlue, {40, 10, 20, 20});
  child->OnDraw = [&](TObject* sender) { delete sender; };
  Shown();
  EXPECT_EQ("clWhite clBlue", ColorsAt({{15, 15}, {45, 15}}));
}

TEST_F(GraphicControlPaintTest, WithoutAWindowNothingHappens) {
  TColored& child = AddColored(clRed, {10, 10, 20, 20});
  child.Repaint();
  child.SetParent(nullptr);
  child.Repaint();
  EXPECT_FALSE(FForm->HandleAllocated());
}

TEST_F(GraphicControlPaintTest, WithoutAParentThereIsNoPlaceOnTheScreen) {
  auto lonely = Make<TColored>();
  lonely->SetName("Lonely");
  EXPECT_EQ("Control 'Lonely' has no parent window", tests::MessageOf<EInvalidOperation>([&] {
              lonely->ClientToScreen({0, 0});
            }));
  TColored& child = AddColored(clRed, {10, 20, 20, 20});
  Show();
  EXPECT_EQ(FForm->ClientToScreen({13, 24}), child.ClientToScreen({3, 4}));
  EXPECT_EQ(QPoint(3, 4), child.ScreenToClient(FForm->ClientToScreen({13, 24})));
}

}  // namespace
}  // namespace kt
