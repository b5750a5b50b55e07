// The window for the items of a collection, by its keys.
#include "DesignerFixture.h"
#include "designer/inspector/ItemsWindow.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/comctrls/StatusBar.h"
#include "kt/vcl/comctrls/StatusPanels.h"

#include <QListWidget>
#include <QPushButton>
#include <QTimer>

namespace designer::tests {
namespace {

class ItemsWindowTest : public TDesignerTest {
 protected:
  ItemsWindowTest() {
    FFile = FileWith("bar.dfm",
                     "object BarForm: TBarForm\n"
                     "  ClientHeight = 200\n"
                     "  ClientWidth = 300\n"
                     "  object Bar: TStatusBar\n"
                     "    Left = 0\n"
                     "    Top = 181\n"
                     "    Width = 300\n"
                     "    Height = 19\n"
                     "    Panels = <\n"
                     "      item\n"
                     "        Text = 'one'\n"
                     "        Width = 50\n"
                     "      end\n"
                     "      item\n"
                     "        Text = 'two'\n"
                     "        Width = 50\n"
                     "      end>\n"
                     "  end\n"
                     "end\n");
    EXPECT_TRUE(FWindow->Open(FFile));
    Select("Bar");
  }
  /// Opens the window of the row by its key, and does something there.
  void InWindow(const std::function<void(QWidget& window)>& act) {
    GoToRow("Panels");
    bool wasThere = false;
    QTimer::singleShot(0, FWindow.get(), [&] {
      QWidget* window = QApplication::activeModalWidget();
      wasThere = window && window->objectName() == "items";
      if (wasThere) act(*window);
      if (window) QTest::keyClick(window, Qt::Key_Escape);
    });
    Key(Qt::Key_Return, Qt::AltModifier);
    EXPECT_TRUE(wasThere);
    // As a desktop does when a dialog has gone.
    QApplication::setActiveWindow(FWindow.get());
  }
  static void Push(QWidget& window, const char* button) {
    QTest::mouseClick(window.findChild<QPushButton*>(button), Qt::LeftButton);
  }
  static void GoTo(QWidget& window, int row) { window.findChild<QListWidget*>()->setCurrentRow(row); }
  QString Texts() {
    QStringList texts;
    auto& panels = dynamic_cast<kt::TStatusBar&>(Component("Bar")).GetPanels();
    for (int i = 0; i < panels.GetCount(); ++i) {
      texts.append(kt::GetStrProp(panels.GetItem(i), QStringLiteral("Text")));
    }
    return texts.join(u'|');
  }
};

TEST_F(ItemsWindowTest, AddsAnItemWhichCanBeUndone) {
  InWindow([](QWidget& window) { Push(window, "add"); });
  EXPECT_EQ(Texts(), "one|two|");
  EXPECT_EQ(UndoText(), "Add item to Panels");
  Key(Qt::Key_F12);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Texts(), "one|two");
  EXPECT_EQ(QString::fromUtf8(Document().FileBytes()), ContentOf(FFile));
}

TEST_F(ItemsWindowTest, TheInspectorShowsTheNewItem) {
  InWindow([](QWidget& window) { Push(window, "add"); });
  Settle();
  EXPECT_EQ(Item("Panels").GetItems().GetCount(), 3);
}

TEST_F(ItemsWindowTest, DeletesAndMovesItems) {
  InWindow([](QWidget& window) {
    GoTo(window, 1);
    Push(window, "up");
  });
  EXPECT_EQ(Texts(), "two|one");
  InWindow([](QWidget& window) {
    GoTo(window, 0);
    Push(window, "delete");
  });
  EXPECT_EQ(Texts(), "one");
  EXPECT_EQ(UndoText(), "Delete item of Panels");
}

TEST_F(ItemsWindowTest, ButtonsWithNothingToDoAreOff) {
  InWindow([](QWidget& window) {
    GoTo(window, 0);
    EXPECT_FALSE(window.findChild<QPushButton*>("up")->isEnabled());
    EXPECT_TRUE(window.findChild<QPushButton*>("down")->isEnabled());
    Push(window, "delete");
    Push(window, "delete");
    EXPECT_FALSE(window.findChild<QPushButton*>("delete")->isEnabled());
  });
  EXPECT_EQ(Texts(), "");
}

}  // namespace
}  // namespace designer::tests
