// In a designer nothing acts.
#include "kt/vcl/comctrls/TrackBar.h"
#include "kt/vcl/stdctrls/ComboBox.h"
#include "kt/vcl/stdctrls/Edit.h"
#include "kt/vcl/stdctrls/Memo.h"
#include "kt/vcl/stdctrls/ScrollBar.h"
#include "vcl/stdctrls/ControlsFixture.h"

namespace kt::tests {
namespace {

template <class C>
class TDesigned : public C {
 public:
  using TComponent::SetDesigning;

 protected:
  explicit TDesigned(TComponent* owner = nullptr) : C(owner) {}
};

class DesignedControlsTest : public TControlsTest {
 protected:
  template <class C>
  C& AddDesigned() {
    auto& control = Add<TDesigned<C>>();
    control.SetDesigning(true);
    control.OnChange = Note("change");
    Show();
    control.SetFocus();
    return control;
  }
};

TEST_F(DesignedControlsTest, NothingIsTypedInALine) {
  auto& edit = AddDesigned<TEdit>();
  Type("a");
  EXPECT_EQ("", edit.GetText());
  EXPECT_EQ("", TakeLog());
}

TEST_F(DesignedControlsTest, NothingIsTypedInAMemo) {
  auto& memo = AddDesigned<TMemo>();
  Type("a");
  EXPECT_EQ("", memo.GetText());
  EXPECT_EQ("", TakeLog());
}

TEST_F(DesignedControlsTest, NothingDropsDown) {
  auto& box = AddDesigned<TComboBox>();
  box.GetItems().Add(QStringLiteral("a"));
  QTest::mouseClick(box.GetHandle(), Qt::LeftButton, {}, QPoint(140, 10));
  Type("a");
  EXPECT_FALSE(box.IsDroppedDown());
  EXPECT_EQ("", box.GetText());
}

TEST_F(DesignedControlsTest, NothingScrolls) {
  auto& bar = AddDesigned<TScrollBar>();
  Key(Qt::Key_Right);
  QTest::mouseClick(bar.GetHandle(), Qt::LeftButton, {}, QPoint(118, 8));
  EXPECT_EQ(0, bar.GetPosition());
}

TEST_F(DesignedControlsTest, NoSliderMoves) {
  auto& bar = AddDesigned<TTrackBar>();
  Key(Qt::Key_Right);
  QTest::mouseClick(bar.GetHandle(), Qt::LeftButton, {}, QPoint(140, 18));
  EXPECT_EQ(0, bar.GetPosition());
}

}  // namespace
}  // namespace kt::tests
