// Who is asked when the wheel is turned.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/grids/DrawGrid.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QWheelEvent>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TWindowProbe;

/// A grid of 100 rows, which scrolls when nobody else uses the wheel.
class MouseWheelTest : public testing::Test {
 protected:
  MouseWheelTest() {
    FGrid->SetRowCount(100);
    FWindow = std::make_unique<TWindowProbe>(*FGrid);
  }
  void Turn(int delta) {
    QWheelEvent event(QPointF(50, 60), FWindow->Body()->mapToGlobal(QPointF(50, 60)), {}, {0, delta}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(FWindow->Body(), &event);
  }
  TMouseWheelUpDownEvent Note(const char* what, bool uses) {
    return [this, what, uses](TObject*, TShiftState, const QPoint&, bool& isUsed) {
      FLog += QLatin1String(what);
      if (uses) isUsed = true;
    };
  }
  QString Log() { return std::exchange(FLog, {}).join(u' '); }

  std::unique_ptr<TDrawGrid> FGrid = Make<TDrawGrid>();
  std::unique_ptr<TWindowProbe> FWindow;
  QStringList FLog;
};

TEST_F(MouseWheelTest, OnMouseWheelGetsTheTurnAndThePlaceOnTheScreen) {
  FGrid->OnMouseWheel = [this](TObject*, TShiftState shift, int delta, const QPoint& place, bool&) {
    const QPoint inside = FWindow->Body()->mapFromGlobal(place);
    FLog += QStringLiteral("%1 at %2,%3%4")
                .arg(delta)
                .arg(inside.x())
                .arg(inside.y())
                .arg(shift.Has(ssCtrl) ? QStringLiteral(" ctrl") : QString());
  };
  Turn(-120);
  EXPECT_EQ(Log(), "-120 at 50,60 ctrl");
  EXPECT_EQ(FGrid->GetTopRow(), 4);
}

TEST_F(MouseWheelTest, WhatAHandlerUsesScrollsNothing) {
  FGrid->OnMouseWheel = [](TObject*, TShiftState, int, const QPoint&, bool& isUsed) { isUsed = true; };
  FGrid->OnMouseWheelDown = Note("down", false);
  Turn(-120);
  EXPECT_EQ(Log(), "");
  EXPECT_EQ(FGrid->GetTopRow(), 1);
}

TEST_F(MouseWheelTest, StepsUpAndDownHaveTheirHandlers) {
  FGrid->OnMouseWheelUp = Note("up", true);
  FGrid->OnMouseWheelDown = Note("down", true);
  Turn(-240);
  Turn(120);
  EXPECT_EQ(Log(), "down down up");
  EXPECT_EQ(FGrid->GetTopRow(), 1);
}

TEST_F(MouseWheelTest, SmallTurnsAddUpToAStep) {
  FGrid->OnMouseWheelDown = Note("down", true);
  Turn(-70);
  EXPECT_EQ(Log(), "");
  Turn(-70);
  EXPECT_EQ(Log(), "down");
}

TEST_F(MouseWheelTest, AHandlerMayFreeTheGrid) {
  FGrid->OnMouseWheelDown = [this](TObject*, TShiftState, const QPoint&, bool&) { FGrid.reset(); };
  Turn(-120);
  EXPECT_EQ(FGrid, nullptr);
}

}  // namespace
}  // namespace kt
