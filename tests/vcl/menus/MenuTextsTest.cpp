#include "kt/rtl/objects/Make.h"
#include "kt/vcl/menus/MainMenu.h"
#include "kt/vcl/menus/MenuTexts.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class MenuTextsTest : public testing::Test {
 protected:
  TMenuItem& Add(const QString& caption, TMenuItem* parent = nullptr) {
    auto& item = *New<TMenuItem>(FMenu.get());
    item.SetCaption(caption);
    (parent ? *parent : FMenu->GetItems()).Add(&item);
    return item;
  }
  void AddAll(const QStringList& captions) {
    for (const QString& caption : captions) Add(caption);
  }
  static std::string Texts(const TMenuItem& items) {
    QStringList texts;
    for (const TShownMenuItem& shown : ShownMenuItems(items)) texts += shown.Text;
    return texts.join(u'|').toStdString();
  }
  std::string Texts() { return Texts(FMenu->GetItems()); }

  std::unique_ptr<TMainMenu> FMenu = Make<TMainMenu>();
};

TEST_F(MenuTextsTest, EntriesGetTheFirstLetterThatIsFree) {
  AddAll({"Save", "&Send", "Sort", "(1) sa"});
  EXPECT_EQ("S&ave|&Send|S&ort|(&1) sa", Texts());
  EXPECT_EQ("Save", FMenu->GetItems().GetItems(0)->GetCaption().toStdString());
}

TEST_F(MenuTextsTest, OfEntriesWithTheSameLetterTheFirstKeepsIt) {
  AddAll({"&Save", "Save &as", "&send"});
  EXPECT_EQ("&Save|Save &as|s&end", Texts());
}

TEST_F(MenuTextsTest, AnEntryWithoutAFreeLetterGetsNone) {
  AddAll({"a", "A", "..."});
  EXPECT_EQ("&a|A|...", Texts());
}

TEST_F(MenuTextsTest, TwoMarksAreASign) {
  AddAll({"Q && A"});
  EXPECT_EQ("&Q && A", Texts());
}

TEST_F(MenuTextsTest, TheMenuOrTheParentMaySwitchLettersOff) {
  TMenuItem& parent = Add("Parent");
  Add("below", &parent);
  FMenu->SetAutoHotkeys(maManual);
  EXPECT_EQ("Parent", Texts());
  EXPECT_EQ("below", Texts(parent));
  parent.SetAutoHotkeys(maAutomatic);
  EXPECT_EQ("&below", Texts(parent));
}

TEST_F(MenuTextsTest, LinesThatSeparateNothingAreLeftOut) {
  AddAll({"-", "a", "-", "-", "b", "-"});
  EXPECT_EQ("&a|-|&b", Texts());
  FMenu->SetAutoLineReduction(maManual);
  EXPECT_EQ("-|&a|-|-|&b|-", Texts());
}

TEST_F(MenuTextsTest, LinesBesideWhatIsInvisibleSeparateNothing) {
  AddAll({"a", "-", "b", "-", "c"});
  FMenu->GetItems().GetItems(2)->SetVisible(false);
  EXPECT_EQ("&a|-|&c", Texts());
}

}  // namespace
}  // namespace kt::tests
