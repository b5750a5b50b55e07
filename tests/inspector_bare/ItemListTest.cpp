#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/Registration.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/strings/StringList.h"
#include "support/FormText.h"
#include "support/ItemLists.h"

#include <QCoreApplication>

namespace kt::tests {
namespace {

/// The item list in a program with neither display nor application object.
class BareItemListTest : public TItemListTest {
 protected:
  BareItemListTest() {
    EXPECT_EQ(nullptr, QCoreApplication::instance());
    Fill("b [d c] a");
  }
};

TEST_F(BareItemListTest, ItemsAreAddedAndFound) {
  Items().AddFullPath("a.x.y", "1", false);
  EXPECT_EQ("b [d c] a [x [y]]", TreeText());
  EXPECT_EQ("1", Item("a.x.y").GetValue());
  EXPECT_EQ(&Item("b.c"), FEditor->GetItem(2));
  EXPECT_EQ(&Item("a"), FEditor->FindItemProp("a=", false));
}

TEST_F(BareItemListTest, ItemsAreSorted) {
  FEditor->SetSorted(true);
  EXPECT_EQ("a b [c d]", TreeText());
}

TEST_F(BareItemListTest, ItemsArePutUnderCategories) {
  Items().GetCategories().SetCommaText("a=Letters");
  FEditor->Categorize(false);
  EXPECT_EQ("Miscellaneous [b [d c]] Letters [a]", TreeText());
  EXPECT_TRUE(Item("Letters").GetCategory());
}

TEST_F(BareItemListTest, ItemsAreExpandedAndCollapsed) {
  FEditor->FullExpand();
  EXPECT_EQ(">b | d | c | a", RowsText());
  Item("b").Collapse();
  EXPECT_EQ(">b | a", RowsText());
}

TEST_F(BareItemListTest, ItemsAreLinesOfStrings) {
  FEditor->GetStrings().SetText("p.q=1\r\nr=2");
  EXPECT_EQ("p [q] r", TreeText());
  EXPECT_EQ("p.q=1", FEditor->GetStrings().GetStrings(1));
}

TEST_F(BareItemListTest, ItemsAreWrittenAndReadAsTextAndBinary) {
  RegisterItemListEditor();
  Item("b.c").SetValue("1");
  const std::string text = TextOf(FEditor.get());
  TReader reader(BinaryOf(text.c_str()));
  const auto loaded = reader.ReadRoot<TKTItemListEditor>();
  EXPECT_EQ("b [d c] a", Tree(loaded->GetItems()));
  EXPECT_EQ("1", loaded->GetItem(2)->GetValue());
  EXPECT_EQ(text, TextOf(loaded.get()));
}

}  // namespace
}  // namespace kt::tests
