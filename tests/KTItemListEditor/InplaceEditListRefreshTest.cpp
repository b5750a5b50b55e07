#include "KTItemListEditor/InplaceEditListFixture.h"

#include <QLineEdit>
#include <QPaintEvent>

/// What happens to an open editor, and on the screen, when values change behind it.
namespace kt::tests {
namespace {

class InplaceEditListRefreshTest : public TInplaceEditListTest, private QObject {
 protected:
  /// What is painted of the editor's own window from now on, and how often the keyboard goes from one to another.
  void Watch() {
    // As the editor comes to a cell; reading the text again selects it too.
    Edit().SelectAll();
    Settle();
    Painted = {};
    QApplication::instance()->installEventFilter(this);
  }
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == Editor.GetHandle() && event->type() == QEvent::Paint) {
      Painted += static_cast<QPaintEvent*>(event)->region().boundingRect();
    }
    if (event->type() == QEvent::FocusIn) ++FocusMoves;
    return false;
  }
  static std::string TextOf(const QList<QRect>& rects) {
    QStringList texts;
    for (const QRect& rect : rects) {
      texts += QStringLiteral("%1,%2 %3x%4").arg(rect.left()).arg(rect.top()).arg(rect.width()).arg(rect.height());
    }
    return texts.join(u' ').toStdString();
  }
  static constexpr int kBorder = 2;
  /// A cell with the lines beside it, in the editor's window.
  QRect Place(int col, int row) { return Editor.CellRect(col, row).adjusted(0, 0, 1, 1).translated(kBorder, kBorder); }

  QList<QRect> Painted;
  int FocusMoves = 0;
};

TEST_F(InplaceEditListRefreshTest, TheInplaceEditorShowsAllOfATextOf24Points) {
  Item(0).GetValueFont().SetSize(24);
  Show();
  const auto& line = dynamic_cast<const QLineEdit&>(*Edit().GetHandle());
  EXPECT_EQ(line.font().pixelSize(), 32);
  EXPECT_GE(line.rect().marginsRemoved(line.textMargins()).height(), line.fontMetrics().height());
}

TEST_F(InplaceEditListRefreshTest, AnotherItemsValueRepaintsItsCellAlone) {
  Show();
  Watch();
  Item(2).SetValue(QStringLiteral("9"));
  Settle();
  EXPECT_EQ(TextOf({Place(1, 3)}), TextOf(Painted));
}

TEST_F(InplaceEditListRefreshTest, AcrossColumnsToo) {
  Editor.SetOrientation(goHorizontal);
  Show();
  Watch();
  Item(1).SetValue(QStringLiteral("9"));
  Settle();
  EXPECT_EQ(TextOf({Place(2, 1)}), TextOf(Painted));
}

TEST_F(InplaceEditListRefreshTest, AValueThatDoesNotShowRepaintsNothing) {
  TKTItemProp* child = Item(1).GetItems().Add();
  Show();
  Watch();
  child->SetValue(QStringLiteral("9"));
  Settle();
  EXPECT_EQ("", TextOf(Painted));
}

TEST_F(InplaceEditListRefreshTest, TheKeyboardStaysWhereItIs) {
  Show();
  Watch();
  Item(2).SetValue(QStringLiteral("9"));
  Item(0).SetValue(QStringLiteral("8"));
  Editor.Refresh();
  EXPECT_EQ(0, FocusMoves);
  EXPECT_TRUE(Edit().GetHandle()->hasFocus());
}

TEST_F(InplaceEditListRefreshTest, TheEditorReadsItsTextAgain) {
  Show();
  Item(0).SetValue(QStringLiteral("8"));
  EXPECT_EQ(QStringLiteral("8"), Edit().GetText());
  EXPECT_EQ(QStringLiteral("8"), Edit().GetSelText());
}

TEST_F(InplaceEditListRefreshTest, ATextThatCannotBeReadHidesTheEditorAndReachesNoCell) {
  Show();
  Editor.OnGetEditText = [](TObject*, int, int, QString&) { throw Exception(QStringLiteral("no text")); };
  EXPECT_EQ("no text", MessageOf<Exception>([this] { Editor.Refresh(); }).toStdString());
  EXPECT_FALSE(Edit().IsVisible());
  Editor.SetEditorMode(false);
  EXPECT_EQ("1 2 3", Value(0) + ' ' + Value(1) + ' ' + Value(2));
}

}  // namespace
}  // namespace kt::tests
