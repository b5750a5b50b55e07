// List boxes in which several lines can be selected.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TWindowProbe;

class ListBoxSelectionTest : public testing::Test {
 protected:
  ListBoxSelectionTest() {
    for (const char* line : {"a", "b", "c", "d", "e"}) Box.GetItems().Add(QString::fromLatin1(line));
    Box.SetMultiSelect(true);
    Box.OnClick = [this](TObject*) { ++FClicks; };
  }
  void Show() {
    FWindow = std::make_unique<TWindowProbe>(Box, QSize(120, 160));
    Box.SetFocus();
  }
  /// "b d, at 3".
  std::string State() {
    QStringList lines;
    for (int i = 0; i < Box.GetCount(); ++i) {
      if (Box.GetSelected(i)) lines += Box.GetItems().GetStrings(i);
    }
    return QStringLiteral("%1, at %2").arg(lines.join(u' ')).arg(Box.GetItemIndex()).toStdString();
  }
  /// What the window shows as selected.
  std::string Shown() {
    auto& view = dynamic_cast<QAbstractItemView&>(*Box.GetHandle());
    QStringList lines;
    for (int i = 0; i < Box.GetCount(); ++i) {
      if (view.selectionModel()->isSelected(view.model()->index(i, 0))) lines += Box.GetItems().GetStrings(i);
    }
    return lines.join(u' ').toStdString();
  }
  void Click(int line, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* const port = dynamic_cast<QAbstractScrollArea&>(*Box.GetHandle()).viewport();
    QTest::mouseClick(port, Qt::LeftButton, modifiers, Box.ItemRect(line).center());
  }

  std::unique_ptr<TListBox> FBox = Make<TListBox>();
  TListBox& Box = *FBox;
  std::unique_ptr<TWindowProbe> FWindow;
  int FClicks = 0;
};

TEST_F(ListBoxSelectionTest, LinesAreSelectedOneByOneAndAllAtOnce) {
  EXPECT_EQ(Box.GetSelCount(), 0);
  Box.SetSelected(1, true);
  Box.SetSelected(3, true);
  EXPECT_EQ(State(), "b d, at -1");
  EXPECT_EQ(Box.GetSelCount(), 2);
  Box.SelectAll();
  EXPECT_EQ(Box.GetSelCount(), 5);
  Box.ClearSelection();
  EXPECT_EQ(State(), ", at -1");
  EXPECT_EQ(MessageOf<EListError>([this] { Box.SetSelected(5, true); }), "List index out of bounds (5)");
}

TEST_F(ListBoxSelectionTest, WithoutMultiSelectThereIsNoCount) {
  Box.SetItemIndex(2);
  Box.SetSelected(4, true);
  Box.SetMultiSelect(false);
  EXPECT_EQ(Box.GetSelCount(), -1);
  EXPECT_EQ(State(), "c, at 2");
  Box.SetMultiSelect(true);
  EXPECT_EQ(State(), "c, at 2");
}

TEST_F(ListBoxSelectionTest, SelectedLinesStaySelectedWhereverTheyGo) {
  Box.SetSelected(1, true);
  Box.SetSelected(3, true);
  Box.GetItems().Insert(0, QStringLiteral("x"));
  EXPECT_EQ(State(), "b d, at -1");
  Box.GetItems().Delete(2);
  EXPECT_EQ(State(), "d, at -1");
}

TEST_F(ListBoxSelectionTest, SelectedLinesAreCopiedMovedAndDeleted) {
  const auto other = Make<TListBox>();
  Box.SetSelected(0, true);
  Box.SetSelected(2, true);
  Box.CopySelection(*other);
  EXPECT_EQ(other->GetItems().GetCommaText(), QStringLiteral("a,c"));
  Box.MoveSelection(*other);
  EXPECT_EQ(other->GetItems().GetCommaText(), QStringLiteral("a,c,a,c"));
  EXPECT_EQ(Box.GetItems().GetCommaText(), QStringLiteral("b,d,e"));
}

TEST_F(ListBoxSelectionTest, AClickSelectsItsLineAndCtrlTurnsOneAndShiftSelectsARange) {
  Show();
  Click(1);
  EXPECT_EQ(State(), "b, at 1");
  Click(3, Qt::ControlModifier);
  EXPECT_EQ(State(), "b d, at 3");
  Click(1, Qt::ControlModifier);
  EXPECT_EQ(State(), "d, at 1");
  Click(4, Qt::ShiftModifier);
  EXPECT_EQ(State(), "b c d e, at 4");
  EXPECT_EQ(Shown(), "b c d e");
  Click(0);
  EXPECT_EQ(State(), "a, at 0");
  EXPECT_EQ(FClicks, 5);
}

TEST_F(ListBoxSelectionTest, WithoutExtendedSelectEachClickTurnsALine) {
  Box.SetExtendedSelect(false);
  Show();
  Click(1);
  Click(3);
  EXPECT_EQ(State(), "b d, at 3");
  Click(1);
  EXPECT_EQ(State(), "d, at 1");
  EXPECT_EQ(Shown(), "d");
}

TEST_F(ListBoxSelectionTest, KeysMoveTheSelectionAndShiftExtendsIt) {
  Show();
  Box.SetItemIndex(1);
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ(State(), "c, at 2");
  TWindowProbe::Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(State(), "c d, at 3");
  TWindowProbe::Key(Qt::Key_Up, Qt::ShiftModifier);
  TWindowProbe::Key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(State(), "b c, at 1");
  TWindowProbe::Key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(State(), "b c, at 2");
  TWindowProbe::Key(Qt::Key_Space);
  EXPECT_EQ(State(), "b, at 2");
}

TEST_F(ListBoxSelectionTest, WithoutExtendedSelectKeysMoveAndTheSpaceBarTurns) {
  Box.SetExtendedSelect(false);
  Show();
  TWindowProbe::Key(Qt::Key_Down);
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ(State(), ", at 1");
  TWindowProbe::Key(Qt::Key_Space);
  EXPECT_EQ(State(), "b, at 1");
}

TEST_F(ListBoxSelectionTest, AWindowShowsWhatWasSelectedBefore) {
  Box.SetSelected(1, true);
  Box.SetSelected(4, true);
  Show();
  EXPECT_EQ(Shown(), "b e");
}

TEST_F(ListBoxSelectionTest, OnClickMayFreeTheListBox) {
  Show();
  Box.OnClick = [this](TObject*) { FBox.reset(); };
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ(FBox, nullptr);
}

}  // namespace
}  // namespace kt
