#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/stdctrls/ScrollBar.h"
#include "support/Expect.h"
#include "support/PublishedText.h"

#include <QStringList>

namespace kt {
namespace {

using tests::MessageOf;
using tests::PublishedBy;

/// A scroll bar without a window.
class ScrollBarTest : public testing::Test {
 protected:
  ScrollBarTest() {
    Bar.OnChange = [this](TObject*) { FLog += QString::number(Bar.GetPosition()); };
  }
  std::string Log() { return std::exchange(FLog, {}).join(u' ').toStdString(); }
  QString State() const {
    return QStringLiteral("%1..%2: %3").arg(Bar.GetMin()).arg(Bar.GetMax()).arg(Bar.GetPosition());
  }

  std::unique_ptr<TScrollBar> FBar = Make<TScrollBar>();
  TScrollBar& Bar = *FBar;
  QStringList FLog;
};

TEST_F(ScrollBarTest, PublishesWhatFormsSayOfIt) {
  EXPECT_EQ(
      "Align=alNone Anchors BiDiMode Constraints Ctl3D ParentCtl3D=True DragCursor=-12 DragKind=dkDrag "
      "DragMode=dmManual Enabled=True Kind=sbHorizontal LargeChange=1 Max=100 Min=0 PageSize=0 ParentBiDiMode=True "
      "ParentShowHint=True PopupMenu Position=0 ShowHint SmallChange=1 TabOrder=-1 TabStop=True Visible=True "
      "OnChange OnContextPopup OnDragDrop OnDragOver OnEndDrag OnStartDrag OnEnter OnExit OnKeyDown OnKeyPress "
      "OnKeyUp OnScroll",
      PublishedBy(TScrollBar::Class()));
}

TEST_F(ScrollBarTest, AnotherKindExchangesWidthAndHeight) {
  EXPECT_EQ(QRect(0, 0, 121, 17), Bar.GetBoundsRect());
  Bar.SetKind(sbVertical);
  EXPECT_EQ(QRect(0, 0, 17, 121), Bar.GetBoundsRect());
}

TEST_F(ScrollBarTest, ThePositionIsCutToTheRange) {
  Bar.SetPosition(200);
  Bar.SetMax(50);
  Bar.SetMin(60 - 20);
  Bar.SetPosition(0);
  EXPECT_EQ("40..50: 40", State());
  EXPECT_EQ("100 50 40", Log());
}

TEST_F(ScrollBarTest, AllThreeMayBeSetAtOnce) {
  Bar.SetParams(-5, -10, -1);
  EXPECT_EQ("-10..-1: -5", State());
  EXPECT_EQ("-5", Log());
}

TEST_F(ScrollBarTest, ARangeThatIsNoneIsAnError) {
  EXPECT_EQ("Scroll bar property out of range", MessageOf<EInvalidOperation>([&] { Bar.SetMax(-1); }));
  EXPECT_EQ("Scroll bar property out of range", MessageOf<EInvalidOperation>([&] { Bar.SetParams(1, 5, 4); }));
  EXPECT_EQ("0..100: 0", State());
}

TEST_F(ScrollBarTest, TheRangeIsNoShorterThanThePage) {
  Bar.SetPageSize(20);
  EXPECT_EQ("Scroll bar property out of range", MessageOf<EInvalidOperation>([&] { Bar.SetMax(10); }));
  Bar.SetPageSize(101);
  EXPECT_EQ(20, Bar.GetPageSize());
}

TEST_F(ScrollBarTest, AHandlerOfAChangeMayFreeIt) {
  Bar.OnChange = [this](TObject*) { FBar.reset(); };
  Bar.SetPosition(3);
  EXPECT_EQ(nullptr, FBar);
}

}  // namespace
}  // namespace kt
