// The message box itself, which other tests answer for.
#include "DesignerFixture.h"

#include <QMessageBox>
#include <QTimer>

namespace designer::tests {
namespace {

class QuestionsTest : public TDesignerTest {
 protected:
  /// Closes the box that is about to appear with a key, and keeps its text.
  void AnswerWith(Qt::Key key) {
    QTimer::singleShot(0, FWindow.get(), [this, key] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      ++FBoxes;
      FText = box->text();
      QTest::keyClick(box, key);
    });
  }

  int FBoxes = 0;
  QString FText;
};

TEST_F(QuestionsTest, ABadFileShowsOneBoxAndLeavesTheOpenForm) {
  FWindow->Questions() = QuestionsOf(*FWindow);
  const QString bad = FileWith("bad.dfm", "object Form1: TForm1\n  Caption = \nend\n");
  AnswerWith(Qt::Key_Return);
  EXPECT_FALSE(FWindow->Open(bad));
  EXPECT_EQ(FBoxes, 1);
  EXPECT_TRUE(FText.startsWith(bad + ": ")) << FText.toStdString();
  EXPECT_TRUE(FText.contains("on line 4, column 1")) << FText.toStdString();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(Session().Form().GetName(), "SmallForm");
}

TEST_F(QuestionsTest, AFileNameInAMessageIsNoMarkup) {
  FWindow->Questions() = QuestionsOf(*FWindow);
  AnswerWith(Qt::Key_Return);
  EXPECT_FALSE(FWindow->Open(FFolder.filePath("<b>bold</b>.dfm")));
  EXPECT_TRUE(FText.contains("<b>bold</b>.dfm")) << FText.toStdString();
}

TEST_F(QuestionsTest, EscapeLeavesAFormThatWouldBeLost) {
  FWindow->Questions() = QuestionsOf(*FWindow);
  Select("Button1");
  Key(Qt::Key_Right);
  AnswerWith(Qt::Key_Escape);
  EXPECT_FALSE(FWindow->close());
  EXPECT_EQ(FBoxes, 1);
  EXPECT_EQ(FText, "Save the changes to small.dfm?");
  EXPECT_EQ(Bounds("Button1"), "17 16 75 25");
}

}  // namespace
}  // namespace designer::tests
