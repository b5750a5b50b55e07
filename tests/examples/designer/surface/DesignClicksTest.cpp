#include "DesignerFixture.h"
#include "designer/surface/DesignClicks.h"

#include <QTabBar>

namespace designer::tests {
namespace {

class DesignClicksTest : public TDesignerTest {
 protected:
  kt::TWinControl& Window(const QString& name) { return dynamic_cast<kt::TWinControl&>(Component(name)); }
  /// As a control of pages has one inside.
  QTabBar* AddTabs() {
    auto* bar = new QTabBar(Window("Button1").GetHandle());
    bar->addTab(QStringLiteral("A"));
    bar->addTab(QStringLiteral("B"));
    bar->resize(75, 25);
    bar->show();
    Settle();
    return bar;
  }
};

TEST_F(DesignClicksTest, AClickOnATabShowsItsPage) {
  QTabBar* bar = AddTabs();
  Click(RectOf("Button1").topLeft() + bar->tabRect(1).center());
  EXPECT_EQ(bar->currentIndex(), 1);
  EXPECT_EQ(Selected(), "Button1");
}

TEST_F(DesignClicksTest, AClickOnTheTabThatShowsIsAnyClick) {
  QTabBar* bar = AddTabs();
  Drag(RectOf("Button1").topLeft() + bar->tabRect(0).center(), RectOf("Button1").topLeft() + QPoint(40, 40));
  EXPECT_NE(Bounds("Button1"), "16 16 75 25");
}

TEST_F(DesignClicksTest, ClassesCanHaveClicksOfTheirOwn) {
  QPoint clicked;
  RegisterDesignClick(Window("CheckBox1").ClassType(), [&](kt::TWinControl&, QPoint point) {
    clicked = point;
    return true;
  });
  Click(RectOf("CheckBox1").topLeft() + QPoint(5, 7));
  RegisterDesignClick(Window("CheckBox1").ClassType(), [](kt::TWinControl&, QPoint) { return false; });
  EXPECT_EQ(clicked, QPoint(5, 7));
}

}  // namespace
}  // namespace designer::tests
