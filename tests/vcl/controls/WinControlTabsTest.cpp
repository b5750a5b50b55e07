// The way of the Tab key through controls in somebody else's window.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/stdctrls/CustomEdit.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QPushButton>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TControlProbe;
using tests::TWindowProbe;

class TTabbedEdit : public TCustomEdit {
 protected:
  explicit TTabbedEdit(TComponent* owner = nullptr) : TCustomEdit(owner) {}
};

class WinControlTabsTest : public testing::Test {
 protected:
  WinControlTabsTest() {
    Add("A");
    Add("B");
    Add("C");
  }
  TControlProbe& Add(const char* name, TWinControl* parent = nullptr) {
    auto& control = *New<TControlProbe>(FParent.get());
    control.SetName(QLatin1String(name));
    control.SetTabStop(true);
    control.SetBounds(0, 0, 10, 10);
    control.SetParent(parent ? parent : FParent.get());
    return control;
  }
  TControlProbe& Get(const char* name) {
    return dynamic_cast<TControlProbe&>(*FParent->FindComponent(QString::fromLatin1(name)));
  }
  void Show() { FWindow = std::make_unique<TWindowProbe>(*FParent); }
  /// Who has the focus after each of the tabs that follow a control.
  QString TabsFrom(const char* name, int count = 2) {
    Get(name).SetFocus();
    QStringList names;
    while (count-- > 0) {
      TWindowProbe::Key(Qt::Key_Tab);
      names += TFocus::Current() ? TFocus::Current()->GetName() : QStringLiteral("-");
    }
    return names.join(u' ');
  }

  std::unique_ptr<TControlProbe> FParent = Make<TControlProbe>();
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(WinControlTabsTest, AnOrderFromBeforeTheWindowHoldsInSomebodyElsesWindow) {
  Get("C").SetTabOrder(0);
  Show();
  EXPECT_EQ(TabsFrom("C"), "A B");
}

TEST_F(WinControlTabsTest, ANewOrderHoldsForTheNextKey) {
  Show();
  Get("A").SetTabOrder(2);
  EXPECT_EQ(TabsFrom("B"), "C A");
}

TEST_F(WinControlTabsTest, BackwardsTheOrderHoldsAsWell) {
  Show();
  Get("A").SetTabOrder(2);
  Get("A").SetFocus();
  TWindowProbe::Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(Get("C").Focused());
}

TEST_F(WinControlTabsTest, AControlThatIsAddedLaterGetsItsPlace) {
  Show();
  Add("D").SetTabOrder(1);
  EXPECT_EQ(TabsFrom("A"), "D B");
}

TEST_F(WinControlTabsTest, FromOutsideTheFirstInTheOrderIsEntered) {
  Show();
  QPushButton button(FWindow->Window());
  button.show();
  Get("C").SetTabOrder(0);
  TWindowProbe::Settle();
  button.setFocus();
  TWindowProbe::Key(Qt::Key_Tab);
  EXPECT_TRUE(Get("C").Focused());
}

TEST_F(WinControlTabsTest, ChildrenComeAfterTheirParentAndBeforeItsNextNeighbour) {
  Add("A2", &Get("A"));
  Add("A1", &Get("A")).SetTabOrder(0);
  Show();
  EXPECT_EQ(TabsFrom("A", 3), "A1 A2 B");
}

TEST_F(WinControlTabsTest, ATabStopThatEndsIsPassedOver) {
  Show();
  Get("B").SetTabStop(false);
  EXPECT_EQ(TabsFrom("A", 1), "C");
}

TEST_F(WinControlTabsTest, ATabStopThatBeginsIsVisited) {
  Get("B").SetTabStop(false);
  Show();
  Get("B").SetTabStop(true);
  EXPECT_EQ(TabsFrom("A", 1), "B");
}

TEST_F(WinControlTabsTest, ChildrenOfAParentWithoutTabStopKeepTheirOrder) {
  Get("A").SetTabStop(false);
  Add("A2", &Get("A"));
  Add("A1", &Get("A")).SetTabOrder(0);
  Show();
  EXPECT_EQ(TabsFrom("A1"), "A2 B");
}

TEST_F(WinControlTabsTest, AControlOutOfTheTabsStillTakesNoClicksUnlessItsKindDoes) {
  Show();
  Get("B").SetTabStop(false);
  EXPECT_EQ(Get("B").GetHandle()->focusPolicy(), Qt::NoFocus);
}

TEST_F(WinControlTabsTest, EditsAndListsTakeClicksWithAndWithoutATabStop) {
  auto& edit = *New<TTabbedEdit>(FParent.get());
  edit.SetParent(FParent.get());
  auto& list = *New<TListBox>(FParent.get());
  list.SetParent(FParent.get());
  Show();
  EXPECT_EQ(edit.GetHandle()->focusPolicy(), Qt::StrongFocus);
  EXPECT_EQ(list.GetHandle()->focusPolicy(), Qt::StrongFocus);
  edit.SetTabStop(false);
  list.SetTabStop(false);
  EXPECT_EQ(edit.GetHandle()->focusPolicy(), Qt::ClickFocus);
  EXPECT_EQ(list.GetHandle()->focusPolicy(), Qt::ClickFocus);
}

}  // namespace
}  // namespace kt
