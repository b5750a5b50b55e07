// Events that have a say in the size of a control.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/extctrls/Panel.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

class ResizeEventsTest : public testing::Test {
 protected:
  ResizeEventsTest() { FPanel->SetBounds(1, 2, 100, 50); }

  std::unique_ptr<TPanel> FPanel = Make<TPanel>();
};

TEST_F(ResizeEventsTest, OnCanResizeRefusesASizeTogetherWithThePlace) {
  FPanel->OnCanResize = [](TObject*, int& width, int&, bool& isAllowed) { isAllowed = width < 200; };
  FPanel->SetBounds(5, 6, 300, 50);
  EXPECT_EQ(FPanel->GetBoundsRect(), QRect(1, 2, 100, 50));
  FPanel->SetBounds(5, 6, 199, 50);
  EXPECT_EQ(FPanel->GetBoundsRect(), QRect(5, 6, 199, 50));
}

TEST_F(ResizeEventsTest, OnCanResizeChangesASizeWithinTheConstraints) {
  FPanel->OnCanResize = [](TObject*, int& width, int& height, bool&) {
    width *= 2;
    height = 10;
  };
  FPanel->GetConstraints().SetMaxWidth(250);
  FPanel->SetBounds(1, 2, 200, 50);
  EXPECT_EQ(FPanel->GetBoundsRect(), QRect(1, 2, 250, 10));
}

TEST_F(ResizeEventsTest, OnConstrainedResizeBeginsWithTheConstraintsAndNarrowsThem) {
  FPanel->GetConstraints().SetMinWidth(20);
  FPanel->GetConstraints().SetMaxHeight(400);
  std::array<int, 4> asked{};
  FPanel->OnConstrainedResize = [&](TObject*, int& minWidth, int& minHeight, int& maxWidth, int& maxHeight) {
    asked = {minWidth, minHeight, maxWidth, maxHeight};
    minWidth = 60;
    maxHeight = 80;
  };
  FPanel->SetBounds(1, 2, 30, 300);
  EXPECT_EQ(asked, (std::array{20, 0, 0, 400}));
  EXPECT_EQ(FPanel->GetBoundsRect(), QRect(1, 2, 60, 80));
  EXPECT_EQ(FPanel->GetConstraints().GetMinWidth(), 20);
}

TEST_F(ResizeEventsTest, BothMayFreeTheControl) {
  FPanel->OnCanResize = [this](TObject*, int&, int&, bool&) { FPanel.reset(); };
  FPanel->SetWidth(10);
  EXPECT_EQ(FPanel, nullptr);
  FPanel = Make<TPanel>();
  FPanel->OnConstrainedResize = [this](TObject*, int&, int&, int&, int&) { FPanel.reset(); };
  FPanel->SetWidth(10);
  EXPECT_EQ(FPanel, nullptr);
}

}  // namespace
}  // namespace kt
