#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QAbstractScrollArea>
#include <QElapsedTimer>
#include <QStringList>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TWindowProbe;

class ListBoxTest : public testing::Test {
 protected:
  void Fill(const QStringList& lines) {
    for (const QString& line : lines) Box.GetItems().Add(line);
  }
  void FillNumbers(int count) {
    auto lines = Make<TStringList>();
    for (int i = 0; i < count; ++i) lines->Add(QString::number(i + 100000));
    Box.GetItems().Assign(lines.get());
  }
  void Show(QSize size = {120, 104}) {
    Box.OnClick = [this](TObject*) { Log += QStringLiteral("click(%1)").arg(Box.GetItemIndex()); };
    FWindow = std::make_unique<TWindowProbe>(Box, size);
    Box.SetFocus();
  }
  /// "red >green blue".
  std::string Lines() {
    QStringList lines;
    for (int i = 0; i < Box.GetCount(); ++i) {
      lines += (Box.GetSelected(i) ? QStringLiteral(">") : QString()) + Box.GetItems().GetStrings(i);
    }
    return lines.join(u' ').toStdString();
  }
  QWidget* Viewport() { return dynamic_cast<QAbstractScrollArea&>(*Box.GetHandle()).viewport(); }
  /// In the viewport's coordinates.
  QPoint At(int index) { return Box.ItemRect(index).center(); }
  std::string TakeLog() { return std::exchange(Log, {}).join(u' ').toStdString(); }

  std::unique_ptr<TListBox> FBox = Make<TListBox>();
  TListBox& Box = *FBox;
  std::unique_ptr<TWindowProbe> FWindow;
  QStringList Log;
};

TEST_F(ListBoxTest, FormsCanNameIt) {
  RegisterVisualPlatform();
  EXPECT_EQ(TListBox::Class(), GetClass(u"TListBox"));
}

// Without a window.

TEST_F(ListBoxTest, BeginsEmptyWithNothingSelected) {
  EXPECT_EQ(0, Box.GetCount());
  EXPECT_EQ(-1, Box.GetItemIndex());
  EXPECT_FALSE(Box.HandleAllocated());
}

TEST_F(ListBoxTest, WhatIsNoLineSelectsNone) {
  Fill({"a", "b"});
  Box.SetItemIndex(1);
  EXPECT_EQ("a >b", Lines());
  Box.SetItemIndex(2);
  EXPECT_EQ("a b", Lines());
}

TEST_F(ListBoxTest, TheSelectionStaysWithItsLine) {
  Fill({"a", "b", "c"});
  Box.SetItemIndex(1);
  Box.GetItems().Insert(0, "x");
  EXPECT_EQ("x a >b c", Lines());
  Box.GetItems().Delete(1);
  EXPECT_EQ("x >b c", Lines());
  Box.GetItems().Delete(2);
  EXPECT_EQ("x >b", Lines());
}

TEST_F(ListBoxTest, TheSelectionGoesWithItsLine) {
  Fill({"a", "b"});
  Box.SetItemIndex(1);
  Box.DeleteSelected();
  EXPECT_EQ("a", Lines());
  EXPECT_EQ(-1, Box.GetItemIndex());
}

TEST_F(ListBoxTest, OtherLinesHaveNoSelection) {
  Fill({"a", "b"});
  Box.SetItemIndex(0);
  Box.GetItems().SetText("c\r\nd\r\n");
  EXPECT_EQ("c d", Lines());
}

TEST_F(ListBoxTest, SelectedSelectsOneLine) {
  Fill({"a", "b"});
  Box.SetSelected(0, true);
  Box.SetSelected(1, true);
  EXPECT_EQ("a >b", Lines());
  Box.SetSelected(0, false);
  EXPECT_EQ("a >b", Lines());
  Box.SetSelected(1, false);
  EXPECT_EQ("a b", Lines());
  EXPECT_EQ("List index out of bounds (2)", MessageOf<EListError>([&] { Box.SetSelected(2, true); }));
}

TEST_F(ListBoxTest, SortedLinesFindTheirPlaceAndMayBeEqual) {
  Fill({"c", "a"});
  Box.SetItemIndex(0);
  Box.SetSorted(true);
  EXPECT_EQ("a >c", Lines());
  Fill({"b", "b"});
  EXPECT_EQ("a b b >c", Lines());
}

TEST_F(ListBoxTest, ThePrefixIsSearchedWithoutRegardToCase) {
  Fill({"Red", "green", "Grey"});
  EXPECT_EQ(2, Box.SelectPrefix("grey"));
  EXPECT_EQ("Red green >Grey", Lines());
  EXPECT_EQ(1, Box.SelectPrefix("GR"));
  EXPECT_EQ(-1, Box.SelectPrefix("x"));
  EXPECT_EQ("Red >green Grey", Lines());
}

TEST_F(ListBoxTest, PlacesAreKnownWithoutAWindow) {
  Fill({"a", "b"});
  Box.SetItemHeight(10);
  EXPECT_EQ(1, Box.ItemAtPos({5, 15}, true));
  EXPECT_EQ(-1, Box.ItemAtPos({5, 25}, true));
  EXPECT_EQ(2, Box.ItemAtPos({5, 25}, false));
  EXPECT_EQ(-1, Box.ItemAtPos({5, -1}, false));
  EXPECT_EQ(QRect(0, 10, 117, 10), Box.ItemRect(1));
}

// With a window.

TEST_F(ListBoxTest, TheArrowsSelectAndClick) {
  Fill({"a", "b", "c"});
  Show();
  TWindowProbe::Key(Qt::Key_Down);
  TWindowProbe::Key(Qt::Key_Down);
  TWindowProbe::Key(Qt::Key_Up);
  EXPECT_EQ("click(0) click(1) click(0)", TakeLog());
}

TEST_F(ListBoxTest, AKeyThatLeadsNowhereClicksNothing) {
  Fill({"a"});
  Show();
  TWindowProbe::Key(Qt::Key_Down);
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ("click(0)", TakeLog());
}

TEST_F(ListBoxTest, HomeAndEndGoToTheEnds) {
  FillNumbers(1000);
  Show();
  TWindowProbe::Key(Qt::Key_End);
  EXPECT_EQ(999, Box.GetItemIndex());
  EXPECT_GT(Box.GetTopIndex(), 900);
  TWindowProbe::Key(Qt::Key_Home);
  EXPECT_EQ(0, Box.GetItemIndex());
  EXPECT_EQ(0, Box.GetTopIndex());
}

TEST_F(ListBoxTest, TypingFindsALine) {
  Fill({"red", "green", "blue"});
  Show();
  TWindowProbe::Type(QStringLiteral("b"));
  EXPECT_EQ("red green >blue", Lines());
  EXPECT_EQ("click(2)", TakeLog());
}

TEST_F(ListBoxTest, WithoutAutoCompleteTypingFindsNone) {
  Fill({"red", "green", "blue"});
  Box.SetAutoComplete(false);
  Show();
  TWindowProbe::Type(QStringLiteral("b"));
  EXPECT_EQ("red green blue", Lines());
}

TEST_F(ListBoxTest, EveryPixelIsPainted) {
  Show();
  QImage image(Box.GetHandle()->size(), QImage::Format_RGB32);
  image.fill(Qt::magenta);
  Box.GetHandle()->render(&image);
  EXPECT_NE(QColor(Qt::magenta), image.pixelColor(1, 1));
}

TEST_F(ListBoxTest, HandlersCanTakeKeysAway) {
  Fill({"a", "b"});
  Show();
  Box.OnKeyDown = [](TObject*, quint16& key, TShiftState) { key = 0; };
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ("a b", Lines());
}

TEST_F(ListBoxTest, APressSelectsAndTheReleaseClicks) {
  Fill({"a", "b", "c"});
  Show();
  Box.OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { Log += "down"; };
  Box.OnMouseUp = [this](TObject*, TMouseButton, TShiftState, int, int) { Log += "up"; };
  QTest::mousePress(Viewport(), Qt::LeftButton, Qt::NoModifier, At(1));
  EXPECT_EQ("a >b c", Lines());
  QTest::mouseRelease(Viewport(), Qt::LeftButton, Qt::NoModifier, At(1));
  EXPECT_EQ("down click(1) up", TakeLog());
}

TEST_F(ListBoxTest, TheSelectionFollowsAPressedMouse) {
  Fill({"a", "b", "c"});
  Show();
  QTest::mousePress(Viewport(), Qt::LeftButton, Qt::NoModifier, At(0));
  QMouseEvent move(QEvent::MouseMove, At(2), Viewport()->mapToGlobal(At(2)), Qt::NoButton, Qt::LeftButton,
                   Qt::NoModifier);
  QApplication::sendEvent(Viewport(), &move);
  EXPECT_EQ("a b >c", Lines());
  QTest::mouseRelease(Viewport(), Qt::LeftButton, Qt::NoModifier, At(2));
  EXPECT_EQ("click(2)", TakeLog());
}

TEST_F(ListBoxTest, APressBelowTheLinesSelectsNothing) {
  Fill({"a"});
  Show();
  QTest::mouseClick(Viewport(), Qt::LeftButton, Qt::NoModifier, At(3));
  EXPECT_EQ("a", Lines());
  EXPECT_EQ("", TakeLog());
}

TEST_F(ListBoxTest, ADoubleClickIsTold) {
  Fill({"a", "b"});
  Show();
  Box.OnDblClick = [this](TObject*) { Log += QStringLiteral("double"); };
  QTest::mouseDClick(Viewport(), Qt::LeftButton, Qt::NoModifier, At(1));
  EXPECT_TRUE(Log.contains(QStringLiteral("double")));
  EXPECT_EQ("a >b", Lines());
}

TEST_F(ListBoxTest, AClickTakesTheFocus) {
  Fill({"a"});
  Show();
  FWindow->Window()->setFocus();
  const QPoint point = Viewport()->mapTo(FWindow->Window(), At(0));
  QTest::mouseClick(FWindow->Window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, point);
  EXPECT_TRUE(Box.Focused());
}

TEST_F(ListBoxTest, TheWheelScrollsAndSelectsNothing) {
  FillNumbers(1000);
  Show();
  QWheelEvent event(QPointF(5, 5), QPointF(5, 5), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(Viewport(), &event);
  EXPECT_EQ(3, Box.GetTopIndex());
  EXPECT_EQ(-1, Box.GetItemIndex());
}

TEST_F(ListBoxTest, SelectingByProgramScrollsButClicksNothing) {
  FillNumbers(1000);
  Show();
  Box.SetItemIndex(500);
  EXPECT_TRUE(Box.GetClientRect().contains(Box.ItemRect(500)));
  EXPECT_EQ("", TakeLog());
}

TEST_F(ListBoxTest, LinesAreAsHighAsTheFontNeeds) {
  Fill({"a", "b"});
  Box.SetItemHeight(5);
  Show();
  const int before = Box.GetItemHeight();
  EXPECT_EQ(Box.GetHandle()->fontMetrics().height(), before);
  Box.GetFont().SetSize(24);
  EXPECT_GT(Box.GetItemHeight(), before);
  EXPECT_EQ(1, Box.ItemAtPos({5, Box.GetItemHeight() + 1}, true));
}

TEST_F(ListBoxTest, WithIntegralHeightNoLineShowsInPart) {
  Fill({"a", "b"});
  Show();
  Box.SetHeight(100);
  Box.SetIntegralHeight(true);
  EXPECT_EQ(0, Box.GetClientHeight() % Box.GetItemHeight());
  EXPECT_GT(Box.GetHeight(), 100 - Box.GetItemHeight());
  EXPECT_LE(Box.GetHeight(), 100);
}

TEST_F(ListBoxTest, ItsWindowMayGoAndComeBack) {
  FillNumbers(100);
  Show();
  Box.SetItemIndex(50);
  FWindow->Close();
  EXPECT_EQ(50, Box.GetItemIndex());
  Box.GetItems().Delete(0);
  Show();
  EXPECT_EQ(49, Box.GetItemIndex());
  EXPECT_TRUE(Box.GetClientRect().contains(Box.ItemRect(49)));
}

TEST_F(ListBoxTest, LinesMayGoBetweenTwoPaints) {
  FillNumbers(100);
  Show();
  Box.GetItems().BeginUpdate();
  Box.GetItems().Clear();
  Viewport()->grab();
  Box.GetItems().EndUpdate();
  EXPECT_FALSE(Viewport()->grab().isNull());
}

TEST_F(ListBoxTest, TenThousandLinesAreSetAndShownAtOnce) {
  Show();
  const auto widgets = QApplication::allWidgets().size();
  QElapsedTimer timer;
  timer.start();
  FillNumbers(10000);
  Viewport()->grab();
  EXPECT_LT(timer.elapsed(), 500);
  EXPECT_EQ(widgets, QApplication::allWidgets().size());
}

}  // namespace
}  // namespace kt
