// Dragging where there are neither windows nor an application object.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/controls/Mouse.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(DragWithoutWindowsTest, NothingCanBeDragged) {
  const auto control = Make<tests::TControlProbe>();
  control->OnStartDrag = [](TObject*, TDragObject*&) { FAIL() << "began"; };
  control->BeginDrag(true);
  control->EndDrag(true);
  CancelDrag();
  EXPECT_FALSE(control->Dragging());
  EXPECT_FALSE(Mouse().IsDragging());
}

TEST(DragWithoutWindowsTest, APressOfAControlWithDmAutomaticDoesNothing) {
  const auto control = Make<tests::TControlProbe>();
  control->SetDragMode(dmAutomatic);
  control->OnMouseDown = [&](TObject*, TMouseButton, TShiftState, int, int) { control->Note(QStringLiteral("down")); };
  control->Perform(WM_LBUTTONDOWN, 0, MessagePoint(1, 1));
  EXPECT_EQ(control->Log(), "");
}

TEST(DragWithoutWindowsTest, TheMouseBeginsToDragAtOnce) {
  EXPECT_TRUE(Mouse().IsDragImmediate());
  EXPECT_EQ(Mouse().GetDragThreshold(), 5);
}

}  // namespace
}  // namespace kt
