#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/comctrls/ProgressBar.h"
#include "support/Expect.h"
#include "support/PublishedText.h"

#include <limits>

namespace kt {
namespace {

using tests::MessageOf;
using tests::PublishedBy;

/// A progress bar without a window.
class ProgressBarTest : public testing::Test {
 protected:
  std::unique_ptr<TProgressBar> FBar = Make<TProgressBar>();
  TProgressBar& Bar = *FBar;
};

TEST_F(ProgressBarTest, PublishesWhatFormsSayOfIt) {
  EXPECT_EQ(
      "Align=alNone Anchors Constraints DragCursor=-12 DragKind=dkDrag DragMode=dmManual Enabled=True Min=0 Max=100 "
      "Orientation=pbHorizontal ParentShowHint=True PopupMenu Position=0 ShowHint Smooth=False Step=10 TabOrder=-1 "
      "TabStop=False Visible=True OnContextPopup OnMouseDown OnMouseEnter OnMouseLeave OnMouseMove OnMouseUp "
      "OnDragDrop OnDragOver OnEndDrag OnStartDrag OnEnter OnExit",
      PublishedBy(TProgressBar::Class()));
}

TEST_F(ProgressBarTest, HasTheSizeThatFormsExpect) { EXPECT_EQ(QRect(0, 0, 150, 17), Bar.GetBoundsRect()); }

TEST_F(ProgressBarTest, AStepPastTheEndBeginsAnew) {
  Bar.SetPosition(85);
  Bar.StepIt();
  EXPECT_EQ(95, Bar.GetPosition());
  Bar.StepIt();
  EXPECT_EQ(5, Bar.GetPosition());
}

TEST_F(ProgressBarTest, AStepToTheEndStaysThere) {
  Bar.SetPosition(90);
  Bar.StepIt();
  EXPECT_EQ(100, Bar.GetPosition());
}

TEST_F(ProgressBarTest, ASteppedDistanceEndsAtTheEnds) {
  Bar.StepBy(250);
  EXPECT_EQ(100, Bar.GetPosition());
  Bar.StepBy(std::numeric_limits<int>::min());
  EXPECT_EQ(0, Bar.GetPosition());
}

TEST_F(ProgressBarTest, ThePositionIsCutToTheRange) {
  Bar.SetPosition(70);
  Bar.SetMax(60);
  EXPECT_EQ(60, Bar.GetPosition());
  Bar.SetPosition(-3);
  EXPECT_EQ(0, Bar.GetPosition());
}

TEST_F(ProgressBarTest, ARangeThatIsNoneIsAnError) {
  EXPECT_EQ("TProgressBar property out of range", MessageOf<EInvalidOperation>([&] { Bar.SetMax(-1); }));
  EXPECT_EQ(100, Bar.GetMax());
}

}  // namespace
}  // namespace kt
