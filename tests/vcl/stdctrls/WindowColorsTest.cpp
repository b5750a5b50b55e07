// Edits and lists in surroundings that change their colours.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "kt/vcl/stdctrls/FloatingListBox.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"
#include "support/GridProbe.h"
#include "support/WindowProbe.h"

#include <QPalette>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TControlProbe;
using tests::TGridProbe;
using tests::TWindowProbe;

class TColoredEdit : public TCustomEdit {
 protected:
  explicit TColoredEdit(TComponent* owner = nullptr) : TCustomEdit(owner) {}
};
class TFloatingProbe : public TFloatingListBox {
 protected:
  TFloatingProbe(TComponent* owner, TWinControl& anchor) : TFloatingListBox(owner, anchor) {}
};

QPalette Dark() {
  QPalette palette;
  palette.setColor(QPalette::Base, QColor(0x202020));
  palette.setColor(QPalette::Text, QColor(0xE0E0E0));
  palette.setColor(QPalette::Window, QColor(0x404040));
  palette.setColor(QPalette::Highlight, QColor(0x600060));
  return palette;
}

/// A control in a window, and others in that.
class WindowColorsTest : public testing::Test {
 protected:
  void SetUp() override {
    Edit.SetParent(FParent.get());
    List.SetParent(FParent.get());
    FWindow = std::make_unique<TWindowProbe>(*FParent);
  }
  /// "ground text" as a control shows them.
  static QString Colors(TWinControl& control) {
    const QPalette& palette = control.GetHandle()->palette();
    return palette.color(QPalette::Base).name() + u' ' + palette.color(QPalette::Text).name();
  }
  void Darken() { FWindow->Window()->setPalette(Dark()); }

  std::unique_ptr<TControlProbe> FParent = Make<TControlProbe>();
  TColoredEdit& Edit = *New<TColoredEdit>(FParent.get());
  TListBox& List = *New<TListBox>(FParent.get());
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(WindowColorsTest, ATextThatWouldHardlyShowOnDarkGroundIsLighter) {
  Edit.GetFont().SetColor(clNavy);
  List.GetFont().SetColor(clNavy);
  TWindowProbe::Settle();
  EXPECT_EQ("#000080", Edit.GetHandle()->palette().color(QPalette::Text).name());
  Darken();
  TWindowProbe::Settle();
  EXPECT_GT(Edit.GetHandle()->palette().color(QPalette::Text).lightness(), 100);
  EXPECT_GT(List.GetHandle()->palette().color(QPalette::Text).lightness(), 100);
  EXPECT_EQ(clNavy, Edit.GetFont().GetColor());
}

TEST_F(WindowColorsTest, AnEditFollowsItsSurroundings) {
  Darken();
  EXPECT_EQ(Colors(Edit), "#202020 #e0e0e0");
}

TEST_F(WindowColorsTest, AnEditKeepsTheColorsOfItsOwn) {
  Edit.SetColor(clYellow);
  Edit.GetFont().SetColor(clBlue);
  Darken();
  EXPECT_EQ(Colors(Edit), "#ffff00 #0000ff");
}

TEST_F(WindowColorsTest, AnEditFollowsWithTheOtherSystemColorsToo) {
  Edit.SetColor(clBtnFace);
  Darken();
  EXPECT_EQ(Colors(Edit), "#404040 #e0e0e0");
}

TEST_F(WindowColorsTest, AnEditThatGoesBackToTheSystemColorFollowsAgain) {
  Edit.SetColor(clYellow);
  Edit.SetColor(clWindow);
  Darken();
  EXPECT_EQ(Colors(Edit), "#202020 #e0e0e0");
}

TEST_F(WindowColorsTest, WhatSomebodySetsBesidesStays) {
  QPalette palette = Edit.GetHandle()->palette();
  palette.setColor(QPalette::ButtonText, Qt::red);
  Edit.GetHandle()->setPalette(palette);
  EXPECT_EQ(Edit.GetHandle()->palette().color(QPalette::ButtonText), QColor(Qt::red));
}

TEST_F(WindowColorsTest, AListFollowsItsSurroundings) {
  Darken();
  EXPECT_EQ(Colors(List), "#202020 #e0e0e0");
}

TEST_F(WindowColorsTest, TheSelectedLineOfAListStandsOutInTheNewColorWithoutTheKeyboardToo) {
  Darken();
  EXPECT_EQ(List.GetHandle()->palette().color(QPalette::Inactive, QPalette::Highlight).name(), "#600060");
}

TEST_F(WindowColorsTest, AnOpenListInAWindowOfItsOwnFollowsTheWindowThatItOpenedFor) {
  auto& floating = *New<TFloatingProbe>(FParent.get(), *FParent);
  floating.Open();
  Darken();
  EXPECT_EQ(Colors(floating), "#202020 #e0e0e0");
  floating.Close();
}

TEST_F(WindowColorsTest, AClosedListFollowsAsWell) {
  auto& floating = *New<TFloatingProbe>(FParent.get(), *FParent);
  floating.Open();
  floating.Close();
  Darken();
  EXPECT_EQ(Colors(floating), "#202020 #e0e0e0");
}

TEST_F(WindowColorsTest, AllFollowThePaletteOfTheProgram) {
  const QPalette before = QApplication::palette();
  Edit.SetColor(clBtnFace);
  QApplication::setPalette(Dark());
  TWindowProbe::Settle();
  const QString edit = Colors(Edit);
  const QString list = Colors(List);
  QApplication::setPalette(before);
  TWindowProbe::Settle();
  EXPECT_EQ(edit, "#404040 #e0e0e0");
  EXPECT_EQ(list, "#202020 #e0e0e0");
}

TEST(WindowColorsGridTest, TheEditorInACellFollowsItsSurroundings) {
  auto grid = Make<TGridProbe>();
  grid->SetOptions(grid->GetOptions() + TGridOptions{goEditing});
  TWindowProbe window(*grid);
  grid->SetFocus();
  grid->SetEditorMode(true);
  ASSERT_NE(grid->InplaceEditor(), nullptr);
  window.Window()->setPalette(Dark());
  EXPECT_EQ(grid->InplaceEditor()->GetHandle()->palette().color(QPalette::Base).name(), "#202020");
}

}  // namespace
}  // namespace kt
