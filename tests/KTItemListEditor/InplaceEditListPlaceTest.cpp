#include "KTItemListEditor/InplaceEditListFixture.h"
#include "kt/vcl/stdctrls/EditButton.h"

#include <QScreen>

namespace kt::tests {
namespace {

/// Where the list opens, and how large.
class InplaceEditListPlaceTest : public TInplaceEditListTest {
 protected:
  QRect Screen() { return Window->Window()->screen()->availableGeometry(); }
  QRect EditOnScreen() { return {Edit().ClientToScreen({0, 0}), QSize(Edit().GetWidth(), Edit().GetHeight())}; }
  /// Opens the list with the editor that far below the top of the screen.
  QRect OpenAt(int top) {
    Window->Window()->move(100, Window->Window()->y() + top - EditOnScreen().y());
    Settle();
    OpenList();
    return List().GetHandle()->geometry();
  }
  /// More lines than half of the screen has room for.
  void ShowHighList() {
    QStringList lines;
    for (int i = 0; i < 200; ++i) lines += QString::number(i + 1000);
    ShowPickList(lines);
    Edit().SetDropDownRows(100);
  }
};

TEST_F(InplaceEditListPlaceTest, AListThatFitsOnNeitherSideStaysBelowWhereThereIsMoreRoom) {
  ShowHighList();
  const QRect list = OpenAt(Screen().height() / 3);
  EXPECT_EQ(EditOnScreen().y() + EditOnScreen().height(), list.y());
  EXPECT_LE(list.y() + list.height(), Screen().y() + Screen().height());
}

TEST_F(InplaceEditListPlaceTest, AListThatFitsOnNeitherSideOpensAboveOnlyWhereThereIsMoreRoom) {
  ShowHighList();
  const QRect list = OpenAt(Screen().height() * 2 / 3);
  EXPECT_EQ(EditOnScreen().y(), list.y() + list.height());
  EXPECT_GE(list.y(), Screen().y());
}

TEST_F(InplaceEditListPlaceTest, AListThatFitsBelowOpensThereThoughThereIsMoreRoomAbove) {
  ShowColors();
  const QRect list = OpenAt(Screen().height() * 2 / 3);
  EXPECT_EQ(EditOnScreen().y() + EditOnScreen().height(), list.y());
}

/// The client area of the list has room for the text, what lies beside it, and the scroll bar.
TEST_F(InplaceEditListPlaceTest, AListThatScrollsIsWideEnoughForTextAndScrollBar) {
  const QString longest(60, u'm');
  ShowPickList(QStringLiteral("a,b,c,d,e,f,g,h,i,j,").split(u',') + QStringList{longest});
  OpenList();
  const int textWidth = List().GetHandle()->fontMetrics().horizontalAdvance(longest);
  EXPECT_GT(List().GetClientWidth(), textWidth + TEditButton::UsualWidth());
  EXPECT_LT(List().GetClientWidth(), textWidth + TEditButton::UsualWidth() + 20);
  EXPECT_EQ(List().LongestLineWidth() + TEditButton::UsualWidth(), List().GetClientWidth());
}

}  // namespace
}  // namespace kt::tests
