#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/comctrls/TrackBar.h"
#include "support/Expect.h"
#include "support/PublishedText.h"

#include <QStringList>

namespace kt {
namespace {

using tests::MessageOf;
using tests::PublishedBy;

/// A track bar without a window.
class TrackBarTest : public testing::Test {
 protected:
  TrackBarTest() {
    Bar.OnChange = [this](TObject*) { FLog += QString::number(Bar.GetPosition()); };
  }
  std::string Log() { return std::exchange(FLog, {}).join(u' ').toStdString(); }

  std::unique_ptr<TTrackBar> FBar = Make<TTrackBar>();
  TTrackBar& Bar = *FBar;
  QStringList FLog;
};

TEST_F(TrackBarTest, PublishesWhatFormsSayOfIt) {
  EXPECT_EQ(
      "Align=alNone Anchors Constraints Ctl3D ParentCtl3D=True DragCursor=-12 DragKind=dkDrag DragMode=dmManual "
      "Enabled=True LineSize=1 Max=10 Min=0 Orientation=trHorizontal ParentShowHint=True PageSize=2 PopupMenu "
      "Frequency=1 Position=0 SliderVisible=True SelEnd=0 SelStart=0 ShowHint TabOrder=-1 TabStop=True "
      "ThumbLength=20 TickMarks=tmBottomRight TickStyle=tsAuto Visible=True OnChange OnContextPopup OnDragDrop "
      "OnDragOver OnEndDrag OnStartDrag OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp",
      PublishedBy(TTrackBar::Class()));
}

TEST_F(TrackBarTest, AnUprightOneExchangesWidthAndHeight) {
  EXPECT_EQ(QRect(0, 0, 150, 45), Bar.GetBoundsRect());
  Bar.SetOrientation(trVertical);
  EXPECT_EQ(QRect(0, 0, 45, 150), Bar.GetBoundsRect());
}

TEST_F(TrackBarTest, ThePositionIsCutToTheRangeAndToldWhenItChanges) {
  Bar.SetPosition(4);
  Bar.SetPosition(4);
  Bar.SetMin(6);
  Bar.SetPosition(99);
  EXPECT_EQ("4 6 10", Log());
}

TEST_F(TrackBarTest, ARangeThatIsNoneIsAnError) {
  EXPECT_EQ("TTrackBar property out of range", MessageOf<EInvalidOperation>([&] { Bar.SetMin(11); }));
  EXPECT_EQ(0, Bar.GetMin());
}

TEST_F(TrackBarTest, AHandlerOfAChangeMayFreeIt) {
  Bar.OnChange = [this](TObject*) { FBar.reset(); };
  Bar.SetPosition(3);
  EXPECT_EQ(nullptr, FBar);
}

}  // namespace
}  // namespace kt
