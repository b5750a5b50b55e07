#include "DesignerFixture.h"
#include "designer/surface/StandIns.h"

namespace designer::tests {
namespace {

class StandInsTest : public TDesignerTest {
 protected:
  StandInsTest() {
    EXPECT_TRUE(FWindow->Open(FileWith("unknown.dfm",
                                       "object Form1: TForm1\n"
                                       "  ClientHeight = 200\n"
                                       "  ClientWidth = 400\n"
                                       "  object Box: TNobodysBox\n"
                                       "    Left = 20\n"
                                       "    Top = 10\n"
                                       "    Width = 300\n"
                                       "    Height = 100\n"
                                       "    object Inner: TNobodysLine\n"
                                       "      Left = 5\n"
                                       "      Top = 6\n"
                                       "    end\n"
                                       "  end\n"
                                       "  object Menu: TNobodysMenu\n"
                                       "    object Item: TMenuItem\n"
                                       "    end\n"
                                       "  end\n"
                                       "  object Nowhere: TNobodysThing\n"
                                       "  end\n"
                                       "end\n")));
    Settle();
  }
};

TEST_F(StandInsTest, ShowWhereTheFileHasThem) {
  EXPECT_EQ(StandInBounds(Component("Box")), QRect(20, 10, 300, 100));
  EXPECT_EQ(RectOf("Box"), QRect(OnForm(20, 10), QSize(300, 100)));
  EXPECT_EQ(RectOf("Inner").topLeft(), OnForm(25, 16));
  EXPECT_EQ(StandInBounds(Component("Nowhere")), std::nullopt);
}

TEST_F(StandInsTest, AreSelectedByAClick) {
  Click(OnForm(200, 50));
  EXPECT_EQ(Selected(), "Box");
  Click(OnForm(27, 18));
  EXPECT_EQ(Selected(), "Inner");
}

TEST_F(StandInsTest, HaveNoIconsForTheirParts) {
  EXPECT_TRUE(Surface().Places().Icons().empty());
  EXPECT_FALSE(Surface().Places().IsShown(Component("Item")));
}

TEST_F(StandInsTest, StayWhereTheyAre) {
  Drag(OnForm(200, 50), OnForm(240, 90));
  EXPECT_FALSE(Document().IsModified());
}

TEST_F(StandInsTest, AreCalledByTheirClass) {
  EXPECT_EQ(FWindow->Tree().ItemOf(&Component("Box"))->text(0), "Box: TNobodysBox");
}

}  // namespace
}  // namespace designer::tests
