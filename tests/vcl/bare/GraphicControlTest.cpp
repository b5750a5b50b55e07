// Controls without a window, and what holds them, as plain data: no window, no display, no application object.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/extctrls/Bevel.h"
#include "kt/vcl/extctrls/Image.h"
#include "kt/vcl/extctrls/Panel.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/stdctrls/GroupBox.h"
#include "kt/vcl/stdctrls/Label.h"
#include "support/Expect.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace kt {
namespace {

class GraphicControlTest : public testing::Test {
 protected:
  GraphicControlTest() { EXPECT_EQ(nullptr, QCoreApplication::instance()); }
};

TEST_F(GraphicControlTest, ALabelKeepsTheSizeThatItIsGiven) {
  auto panel = Make<TPanel>();
  auto& label = *New<TLabel>(panel.get());
  label.SetParent(panel.get());
  label.SetCaption("A text");
  label.SetBounds(1, 2, 30, 40);
  label.GetFont().SetSize(20);
  EXPECT_EQ(QRect(1, 2, 30, 40), label.GetBoundsRect());
  EXPECT_EQ("A text", label.GetCaption());
}

TEST_F(GraphicControlTest, PanelsAndGroupBoxesAlignWhatIsInThem) {
  auto panel = Make<TPanel>();
  auto& box = *New<TGroupBox>(panel.get());
  auto& bevel = *New<TBevel>(panel.get());
  box.SetParent(panel.get());
  bevel.SetParent(&box);
  box.SetCaption("&Caption");
  panel->SetBounds(0, 0, 100, 100);
  box.SetAlign(alClient);
  bevel.SetAlign(alBottom);
  EXPECT_EQ(QRect(1, 1, 98, 98), box.GetBoundsRect());
  EXPECT_EQ(QRect(2, 46, 94, 50), bevel.GetBoundsRect());
}

TEST_F(GraphicControlTest, AnImageHasASizeWithItsPicture) {
  auto image = Make<TImage>();
  image->SetAutoSize(true);
  image->GetPicture().GetBitmap().SetSize(7, 8);
  EXPECT_EQ(QRect(0, 0, 7, 8), image->GetBoundsRect());
}

}  // namespace
}  // namespace kt
