#include "kt/rtl/objects/Make.h"
#include "kt/vcl/menus/PopupMenu.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;

class MenuItemTest : public testing::Test {
 protected:
  TMenuItem& Add(const char* caption, TMenuItem* parent = nullptr) {
    auto& item = *New<TMenuItem>(FMenu.get());
    item.SetCaption(QLatin1String(caption));
    (parent ? *parent : Items).Add(&item);
    return item;
  }
  /// "a b(b1 b2) c".
  static QString Tree(const TMenuItem& items) {
    QStringList texts;
    for (int i = 0; i < items.GetCount(); ++i) {
      const TMenuItem& item = *items.GetItems(i);
      texts += item.GetCaption() + (item.GetCount() > 0 ? u'(' + Tree(item) + u')' : QString());
    }
    return texts.join(u' ');
  }
  /// The captions of the checked items.
  QString Checked() const {
    QStringList texts;
    for (int i = 0; i < Items.GetCount(); ++i) {
      if (Items.GetItems(i)->IsChecked()) texts += Items.GetItems(i)->GetCaption();
    }
    return texts.join(u' ');
  }

  std::unique_ptr<TPopupMenu> FMenu = Make<TPopupMenu>();
  TMenuItem& Items = FMenu->GetItems();
};

TEST_F(MenuItemTest, ItemsLieInItems) {
  Add("a");
  TMenuItem& b = Add("b");
  Add("b1", &b);
  Add("b2", &b);
  Add("c");
  EXPECT_EQ(Tree(Items), "a b(b1 b2) c");
  EXPECT_EQ(b.GetMenuIndex(), 1);
  EXPECT_EQ(b.GetItems(1)->GetParent(), &b);
}

TEST_F(MenuItemTest, AnItemThatDiesLeavesItsMenuAndTakesTheItemsBelowAlong) {
  Add("a");
  TMenuItem& b = Add("b");
  Add("b1", &b);
  delete &b;
  EXPECT_EQ(Tree(Items), "a");
  EXPECT_EQ(FMenu->GetComponentCount(), 1);
}

TEST_F(MenuItemTest, WhatIsTakenOutLivesOn) {
  TMenuItem& a = Add("a");
  Items.Delete(0);
  EXPECT_EQ(a.GetParent(), nullptr);
  EXPECT_EQ(a.GetMenuIndex(), -1);
  Items.Insert(0, &a);
  EXPECT_EQ(Tree(Items), "a");
}

TEST_F(MenuItemTest, AnItemIsInOneMenuOnly) {
  TMenuItem& a = Add("a");
  EXPECT_EQ(MessageOf<EMenuError>([&] { Items.Add(&a); }), "Menu inserted twice");
}

TEST_F(MenuItemTest, AnIndexOutOfRangeFails) {
  TMenuItem& a = Add("a");
  EXPECT_EQ(MessageOf<EMenuError>([&] { Items.GetItems(1); }), "Menu index out of range");
  EXPECT_EQ(MessageOf<EMenuError>([&] { Items.Delete(-1); }), "Menu index out of range");
  EXPECT_EQ(MessageOf<EMenuError>([&] { a.Insert(1, &Items); }), "Menu index out of range");
}

TEST_F(MenuItemTest, WhatIsInAnotherMenuCannotBeRemoved) {
  auto other = Make<TMenuItem>();
  EXPECT_EQ(MessageOf<EMenuError>([&] { Items.Remove(other.get()); }), "Sub-menu is not in menu");
}

TEST_F(MenuItemTest, IsFoundByItsCaptionWithoutItsHotkey) {
  Add("&Open...");
  TMenuItem& saveAs = Add("Save &as");
  EXPECT_EQ(Items.Find(QStringLiteral("save as")), &saveAs);
  EXPECT_EQ(Items.Find(QStringLiteral("close")), nullptr);
}

TEST_F(MenuItemTest, AHyphenIsALine) {
  EXPECT_TRUE(Add("-").IsLine());
  EXPECT_FALSE(Add("a").IsLine());
}

TEST_F(MenuItemTest, AClickIsTold) {
  TMenuItem& a = Add("a");
  int clicks = 0;
  a.OnClick = [&](TObject* sender) { clicks += sender == &a ? 1 : 100; };
  a.Click();
  a.SetEnabled(false);
  a.Click();
  EXPECT_EQ(clicks, 1);
}

TEST_F(MenuItemTest, AClickChecksWhatChecksItself) {
  TMenuItem& a = Add("a");
  a.Click();
  EXPECT_EQ(Checked(), "");
  a.SetAutoCheck(true);
  a.Click();
  EXPECT_EQ(Checked(), "a");
  a.Click();
  EXPECT_EQ(Checked(), "");
}

TEST_F(MenuItemTest, OfTheRadioItemsOfAGroupOneIsChecked) {
  for (const char* caption : {"a", "b", "c"}) Add(caption).SetRadioItem(true);
  Add("d").SetChecked(true);
  Items.GetItems(2)->SetGroupIndex(1);
  Items.GetItems(2)->SetChecked(true);
  Items.GetItems(0)->SetChecked(true);
  EXPECT_EQ(Checked(), "a c d");
  Items.GetItems(1)->SetChecked(true);
  EXPECT_EQ(Checked(), "b c d");
}

TEST_F(MenuItemTest, ACheckedRadioItemStaysSoWhenItIsClicked) {
  TMenuItem& a = Add("a");
  a.SetRadioItem(true);
  a.SetAutoCheck(true);
  a.Click();
  a.Click();
  EXPECT_EQ(Checked(), "a");
}

TEST_F(MenuItemTest, OneOfNeighboursIsTheDefault) {
  TMenuItem& a = Add("a");
  TMenuItem& b = Add("b");
  a.SetDefault(true);
  b.SetDefault(true);
  EXPECT_FALSE(a.IsDefault());
  EXPECT_TRUE(b.IsDefault());
}

TEST_F(MenuItemTest, AShortCutClicksItsItemOnAnyLevel) {
  TMenuItem& b = Add("b");
  TMenuItem& below = Add("b1", &b);
  below.SetShortCut(TextToShortCut(QStringLiteral("Ctrl+K")));
  int clicks = 0;
  below.OnClick = [&](TObject*) { ++clicks; };
  EXPECT_TRUE(FMenu->IsShortCut('K', {ssCtrl}));
  EXPECT_FALSE(FMenu->IsShortCut('K', {}));
  EXPECT_EQ(clicks, 1);
  b.SetEnabled(false);
  EXPECT_FALSE(FMenu->IsShortCut('K', {ssCtrl}));
}

}  // namespace
}  // namespace kt
