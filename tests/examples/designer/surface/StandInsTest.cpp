#include "DesignerFixture.h"
#include "designer/surface/Drag.h"
#include "designer/surface/Grid.h"
#include "designer/surface/StandIns.h"

namespace designer::tests {
namespace {

class StandInsTest : public TDesignerTest {
 protected:
  StandInsTest() {
    FFile = FileWith("unknown.dfm",
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
                     "end\n");
    EXPECT_TRUE(FWindow->Open(FFile));
    Surface().setFocus();
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

TEST_F(StandInsTest, AreMovedByADrag) {
  Drag(OnForm(200, 50), OnForm(240, 90));
  EXPECT_EQ(StandInBounds(Component("Box")), QRect(64, 48, 300, 100));
  EXPECT_EQ(UndoText(), "Move Box");
  EXPECT_EQ(QString::fromUtf8(Document().FileBytes()),
            ContentOf(FFile).replace("Left = 20", "Left = 64").replace("Top = 10", "Top = 48"));
}

TEST_F(StandInsTest, AreMovedByKeysWithWhatIsOnThem) {
  Session().Select({&Component("Box"), &Component("Inner")});
  Key(Qt::Key_Right);
  EXPECT_EQ(StandInBounds(Component("Box")), QRect(21, 10, 300, 100));
  EXPECT_EQ(RectOf("Inner").topLeft(), OnForm(26, 16));
}

TEST_F(StandInsTest, AreSizedByAHandle) {
  Select("Box");
  const QPoint corner = HandleRect(RectOf("Box"), kHandles[4]).center();
  Drag(corner, corner + QPoint(30, 20));
  EXPECT_EQ(StandInBounds(Component("Box")), QRect(20, 10, 332, 118));
  EXPECT_EQ(UndoText(), "Size Box");
}

TEST_F(StandInsTest, AreSizedByKeys) {
  Select("Box");
  Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(StandInBounds(Component("Box")), QRect(20, 10, 301, 100));
  EXPECT_EQ(QString::fromUtf8(Document().FileBytes()), ContentOf(FFile).replace("Width = 300", "Width = 301"));
}

TEST_F(StandInsTest, WithoutASizeInTheFileGetNone) {
  Select("Inner");
  Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_FALSE(Document().IsModified());
  EXPECT_FALSE(CanDrag(Component("Inner"), kHandles[4]));
}

TEST_F(StandInsTest, MovesAreUndone) {
  Select("Box");
  Key(Qt::Key_Down);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(StandInBounds(Component("Box")), QRect(20, 10, 300, 100));
  EXPECT_EQ(QString::fromUtf8(Document().FileBytes()), ContentOf(FFile));
}

TEST_F(StandInsTest, StayAtTheSideThatTheFileHasThemKeepTo) {
  FFile = FileWith("aligned.dfm",
                   "object Form1: TForm1\n"
                   "  object Bar: TNobodysBar\n"
                   "    Left = 0\n"
                   "    Top = 0\n"
                   "    Width = 100\n"
                   "    Height = 30\n"
                   "    Align = alTop\n"
                   "  end\n"
                   "end\n");
  EXPECT_TRUE(FWindow->Open(FFile));
  Select("Bar");
  Key(Qt::Key_Down);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_FALSE(Document().IsModified());
  EXPECT_FALSE(CanDrag(Component("Bar"), kHandles[4]));
}

TEST_F(StandInsTest, HaveNoPlaceWhereTheFileSaysATextForIt) {
  EXPECT_TRUE(FWindow->Open(FileWith("text.dfm",
                                     "object Form1: TForm1\n"
                                     "  object Odd: TNobodysBar\n"
                                     "    Left = ''\n"
                                     "    Top = 0\n"
                                     "  end\n"
                                     "end\n")));
  EXPECT_EQ(StandInBounds(Component("Odd")), std::nullopt);
}

TEST_F(StandInsTest, AreCalledByTheirClass) {
  EXPECT_EQ(FWindow->Tree().ItemOf(&Component("Box"))->text(0), "Box: TNobodysBox");
}

}  // namespace
}  // namespace designer::tests
