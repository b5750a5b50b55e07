#include "qtinspect/InspectFixture.h"
#include "qtinspect/Outline.h"

#include <QImage>
#include <QPlainTextEdit>
#include <QPointer>
#include <QVBoxLayout>

namespace qtinspect::tests {

/// A window with an edit, whose viewport lies over all but its edge, and its picture.
class OutlineTest : public testing::Test {
 protected:
  OutlineTest() {
    auto* layout = new QVBoxLayout(&Window);
    layout->setContentsMargins(20, 20, 20, 20);
    Edit = new QPlainTextEdit;
    layout->addWidget(Edit);
    Window.resize(200, 120);
    Window.show();
    Settle();
  }

  QColor At(QPoint point) { return Window.grab().toImage().pixelColor(point); }
  /// The second pixel from the corner: on the viewport of the edit.
  QPoint Corner() const { return Edit->pos() + QPoint(1, Edit->height() / 2); }

  const QColor Color = QColor(200, 10, 20);
  QWidget Window;
  QPlainTextEdit* Edit;
  TOutline Outline{Color};
};

TEST_F(OutlineTest, AFrameLiesOverWhatTheWidgetAndItsChildrenPaint) {
  Outline.Frame(Edit);
  EXPECT_EQ(At(Corner()), Color);
  EXPECT_NE(At(Edit->geometry().center()), Color);
}

TEST_F(OutlineTest, NothingIsLeftOfAFrameThatIsTakenAway) {
  const QImage before = Window.grab().toImage();
  Outline.Frame(Edit);
  Outline.Frame(nullptr);
  EXPECT_EQ(Window.grab().toImage(), before);
}

TEST_F(OutlineTest, TwoOutlinesMayFrameTheSameWidget) {
  TOutline other(QColor(10, 200, 20));
  Outline.Frame(Edit);
  other.Frame(&Window);
  EXPECT_EQ(At(Corner()), Color);
  EXPECT_EQ(At(QPoint(1, 60)), QColor(10, 200, 20));
}

TEST_F(OutlineTest, ALayoutIsFramedWhereItLies) {
  Outline.Frame(Window.layout());
  EXPECT_EQ(At(QPoint(1, 60)), Color);
}

TEST_F(OutlineTest, FramesMakeNoWidgets) {
  const QString before = TreeOf(Window);
  Outline.Frame(Edit);
  Settle();
  EXPECT_EQ(TreeOf(Window), before);
}

TEST_F(OutlineTest, AnObjectThatIsGoneIsFramedNoLonger) {
  Outline.Frame(Edit);
  delete Edit;
  EXPECT_EQ(Outline.Framed().size(), 0U);
  EXPECT_NE(At(QPoint(21, 60)), Color);
}

}  // namespace qtinspect::tests
