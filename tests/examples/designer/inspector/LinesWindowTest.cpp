// The window for lines of text, by its keys.
#include "DesignerFixture.h"
#include "kt/vcl/stdctrls/Memo.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

namespace designer::tests {
namespace {

class LinesWindowTest : public TDesignerTest {
 protected:
  LinesWindowTest() {
    EXPECT_TRUE(FWindow->Open(FileWith("memos.dfm",
                                       "object MemoForm: TMemoForm\n"
                                       "  ClientHeight = 200\n"
                                       "  ClientWidth = 300\n"
                                       "  object Memo1: TMemo\n"
                                       "    Left = 0\n"
                                       "    Top = 0\n"
                                       "    Width = 100\n"
                                       "    Height = 89\n"
                                       "    Lines.Strings = (\n"
                                       "      'a'\n"
                                       "      ''\n"
                                       "      'b'\n"
                                       "      '')\n"
                                       "    TabOrder = 0\n"
                                       "  end\n"
                                       "  object Memo2: TMemo\n"
                                       "    Left = 120\n"
                                       "    Top = 0\n"
                                       "    Width = 100\n"
                                       "    Height = 89\n"
                                       "    Lines.Strings = (\n"
                                       "      'other')\n"
                                       "    TabOrder = 1\n"
                                       "  end\n"
                                       "end\n")));
    Select("Memo1");
  }
  /// Opens the window of the row by its key, types something and accepts it.
  void TypeAndAccept(const QString& text) {
    GoToRow("Lines");
    bool wasThere = false;
    QTimer::singleShot(0, FWindow.get(), [&] {
      QWidget* window = QApplication::activeModalWidget();
      auto* edit = window ? window->findChild<QPlainTextEdit*>() : nullptr;
      wasThere = edit != nullptr;
      if (!wasThere) return;
      QTest::keyClicks(edit, text);
      QTest::mouseClick(window->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
    });
    Key(Qt::Key_Return, Qt::AltModifier);
    EXPECT_TRUE(wasThere);
    QApplication::setActiveWindow(FWindow.get());
  }
  QString LinesOf(const QString& memo) {
    kt::TStrings& strings = dynamic_cast<kt::TMemo&>(Component(memo)).GetLines();
    QStringList lines;
    for (int i = 0; i < strings.GetCount(); ++i) lines.append(strings.GetStrings(i));
    return lines.join(u'|');
  }
};

TEST_F(LinesWindowTest, EmptyLinesAtTheEndStay) {
  TypeAndAccept("x");
  EXPECT_EQ(LinesOf("Memo1"), "xa||b|");
}

TEST_F(LinesWindowTest, AcceptingWhatWasNotTouchedChangesNothing) {
  Session().Select({&Component("Memo1"), &Component("Memo2")});
  TypeAndAccept("");
  EXPECT_EQ(LinesOf("Memo1"), "a||b|");
  EXPECT_EQ(LinesOf("Memo2"), "other");
  EXPECT_FALSE(FWindow->isWindowModified());
}

}  // namespace
}  // namespace designer::tests
