// How an item writes its text, and makes the text of a set of its members'.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/objects/Exceptions.h"
#include "support/Expect.h"

namespace kt::tests {
namespace {

/// An inspector that tests have write a text.
class TWritingInspector : public TKTObjectInspector {
 public:
  using TKTObjectInspector::SetPropertyValue;

 protected:
  TWritingInspector() = default;
};

class ItemPropertyWriteTest : public TInspectorTest {
 protected:
  ItemPropertyWriteTest() {
    FInspector->OnPropertyChanging = [this](TObject*, TKTItemProperty* item) { FChanging += item->GetName(); };
  }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
  QStringList FChanging;
};

TEST_F(ItemPropertyWriteTest, WritingAnswersWhetherTheTextIsAnotherOne) {
  auto inspector = Make<TWritingInspector>();
  TWritingInspector& writer = *inspector;
  FInspector = std::move(inspector);
  FSample->Text = "abc";
  Inspect({FSample.get()});
  EXPECT_FALSE(writer.SetPropertyValue(FSample.get(), &Item("Text"), "abc"));
  EXPECT_TRUE(writer.SetPropertyValue(FSample.get(), &Item("Text"), "Abc"));
  EXPECT_EQ("Abc", FSample->Text);
  // As texts: what is the same number can be another text.
  EXPECT_FALSE(writer.SetPropertyValue(FSample.get(), &Item("Whole"), "0"));
  EXPECT_TRUE(writer.SetPropertyValue(FSample.get(), &Item("Whole"), "$0"));
  EXPECT_TRUE(writer.SetPropertyValue(FSample.get(), &Item("Part.Size"), "9"));
  EXPECT_EQ(9, FSample->GetPart().GetSize());
}

TEST_F(ItemPropertyWriteTest, WhatIsTheSameTextIsWrittenAllTheSame) {
  auto inspector = Make<TWritingInspector>();
  TWritingInspector& writer = *inspector;
  FInspector = std::move(inspector);
  Inspect({FSample.get()});
  int written = 0;
  Item("Whole").SetOnSetProperty([&](TObject*, TObject*, const QString&, const QString&) { ++written; });
  EXPECT_FALSE(writer.SetPropertyValue(FSample.get(), &Item("Whole"), "0"));
  EXPECT_EQ(1, written);
}

TEST_F(ItemPropertyWriteTest, AHandlerGetsTheItemTheObjectThatHasThePropertyAndItsName) {
  Inspect({FSample.get()});
  QStringList log;
  Item("Part.Size").SetOnSetProperty([&](TObject* sender, TObject* instance, const QString& name, const QString& text) {
    EXPECT_EQ(&Item("Part.Size"), sender);
    EXPECT_EQ(&FSample->GetPart(), instance);
    log += name + "=" + text;
  });
  Edit("Part.Size", "9");
  EXPECT_EQ("Size=9", log.join(u'|'));
  EXPECT_EQ(8, FSample->GetPart().GetSize());
}

TEST_F(ItemPropertyWriteTest, WritingTellsThatTheObjectsDifferWhereEachHasAColumn) {
  UseSeveralColumns();
  Inspect({FSample.get()});
  ASSERT_TRUE(Item("Whole").IsAllEqual());
  Edit("Whole", "3");
  EXPECT_FALSE(Item("Whole").IsAllEqual());
}

// Sets.

TEST_F(ItemPropertyWriteTest, AMemberWritesTheSetOfEveryObjectWithAColumn) {
  UseSeveralColumns();
  Inspect({FSample.get(), FOther.get()});
  Edit("Styles.ssItalic", "True");
  EXPECT_EQ(TSampleStyles({ssBold, ssItalic, ssUnderline}), FSample->Styles);
  EXPECT_EQ(TSampleStyles({ssBold, ssItalic, ssUnderline}), FOther->Styles);
  EXPECT_EQ("Styles", FChanging.join(u' '));
}

TEST_F(ItemPropertyWriteTest, AMembersTextIsCheckedInEveryColumn) {
  UseSeveralColumns();
  Inspect({FSample.get(), FOther.get()});
  Item("Styles.ssItalic").SetValueLine(1, "maybe");
  EXPECT_EQ("Invalid property element: maybe",
            MessageOf<EPropertyConvertError>([&] { Item("Styles.ssItalic").Validate(); }));
  EXPECT_EQ(TSampleStyles(), FSample->Styles);
  EXPECT_EQ(TSampleStyles(), FOther->Styles);
}

TEST_F(ItemPropertyWriteTest, AnItemBelowWhatIsNoSetWritesNothing) {
  FSample->GetItems().AddItem("one");
  FInspector->SetInplaceCollections(true);
  Inspect({FSample.get()});
  Item("Items.Items[0]").SetValueLine(0, "text");
  EXPECT_NO_THROW(Item("Items.Items[0]").UpdateProperty());
  EXPECT_EQ("", FChanging.join(u' '));
  EXPECT_EQ("one", FSample->GetItems().ItemAt(0)->GetCaption());
}

TEST_F(ItemPropertyWriteTest, AMemberOfASetThatIsNoPropertyWritesNothing) {
  Inspect({FSample.get()});
  Item("Styles").SetIsRealProperty(false);
  EXPECT_NO_THROW(Edit("Styles.ssItalic", "True"));
  EXPECT_EQ("", FChanging.join(u' '));
  EXPECT_EQ(TSampleStyles(), FSample->Styles);
}

}  // namespace
}  // namespace kt::tests
