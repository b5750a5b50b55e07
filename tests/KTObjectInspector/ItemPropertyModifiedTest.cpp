// Whether a value differs from its declared default, and the font that shows it.
#include "KTObjectInspector/InspectorFixture.h"
#include "KTObjectInspector/KindsSample.h"
#include "kt/vcl/graphics/Font.h"

namespace kt::tests {
namespace {

class ItemPropertyModifiedTest : public TInspectorTest {
 protected:
  /// The names of the top-level items that are modified.
  QString Modified() {
    QStringList names;
    for (int i = 0; i < Items().GetCount(); ++i) {
      if (Items().GetItem(i)->IsModified()) names += Items().GetItem(i)->GetName();
    }
    return names.join(u' ');
  }
  bool IsMarked(const QString& path, int index = 0) {
    return &Item(path).GetIndividualValueFont(index) == &FInspector->GetValueChangedFont();
  }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
  std::unique_ptr<TKindsSample> FKinds = Make<TKindsSample>();
};

TEST_F(ItemPropertyModifiedTest, InANewObjectTextsAndOrdinalsWithoutDefaultAre) {
  Inspect({FSample.get()});
  // Texts that are stored always are, as the component's name is not, and ordinals without a declared default differ
  // from it whatever they are.
  EXPECT_EQ("Color Double ShortText Small Text WideText", Modified());
}

TEST_F(ItemPropertyModifiedTest, EveryOrdinalThatIsNotItsDefaultIs) {
  FSample->Whole = 1;
  FSample->Letter = 'B';
  FSample->WideLetter = u'B';
  FSample->Flag = true;
  FSample->Wide = true;
  FSample->Align = saTop;
  FSample->Styles = {ssItalic};
  FSample->SetTag(1);
  Inspect({FSample.get()});
  EXPECT_EQ("Align Color Double Flag Letter ShortText Small Styles Tag Text Whole Wide WideLetter WideText",
            Modified());
}

TEST_F(ItemPropertyModifiedTest, ARefreshTellsAnew) {
  FSample->Whole = 1;
  FSample->Letter = 'A';
  Inspect({FSample.get()});
  EXPECT_TRUE(Item("Whole").IsModified());
  EXPECT_FALSE(Item("Letter").IsModified());
  EXPECT_FALSE(Item("Flag").IsModified());
  EXPECT_FALSE(Item("Wide").IsModified());
  EXPECT_FALSE(Item("Styles").IsModified());
  FSample->Flag = true;
  FSample->Wide = true;
  FSample->Styles = {ssBold};
  FInspector->RefreshProperties();
  EXPECT_TRUE(Item("Flag").IsModified());
  EXPECT_TRUE(Item("Wide").IsModified());
  EXPECT_TRUE(Item("Styles").IsModified());
}

TEST_F(ItemPropertyModifiedTest, NumbersObjectsAndVariantsNeverAre) {
  FSample->Ratio = 1;
  FSample->Narrow = 1;
  FSample->Price = Currency(1);
  FSample->Moment = 1;
  FSample->Big = 1;
  FSample->Huge = 1;
  FSample->Anything = 1;
  FSample->Partner = FOther.get();
  Inspect({FSample.get()});
  EXPECT_EQ("Color Double ShortText Small Text WideText", Modified());
}

TEST_F(ItemPropertyModifiedTest, WhatIsNotStoredIsNot) {
  FKinds->Kept = 1;
  FSample->IsTextStored = false;
  Inspect({FKinds.get()});
  EXPECT_TRUE(Item("Kept").IsModified());
  FKinds->IsKeptStored = false;
  EXPECT_FALSE(Item("Kept").IsModified());
  FInspector->SetInspectedComponent(FSample.get());
  Deliver();
  EXPECT_FALSE(Item("Text").IsModified());
}

TEST_F(ItemPropertyModifiedTest, WhatIsNoPropertyOfTheObjectIsNot) {
  FSample->Whole = 1;
  Inspect({FSample.get()});
  Item("Whole").SetRealPropName("Nothing");
  EXPECT_FALSE(Item("Whole").IsModified());
  Item("Whole").SetRealPropName("Whole");
  Item("Whole").SetIsRealProperty(false);
  EXPECT_FALSE(Item("Whole").IsModified());
}

TEST_F(ItemPropertyModifiedTest, WhatLeadsNowhereIsNot) {
  FOther->Whole = 1;
  FSample->Partner = FOther.get();
  Inspect({FSample.get()});
  EXPECT_TRUE(Item("Partner.Whole").IsModified());
  FSample->Partner = nullptr;
  EXPECT_FALSE(Item("Partner.Whole").IsModified());
}

TEST_F(ItemPropertyModifiedTest, WithOneColumnTheFirstObjectDecides) {
  FOther->Whole = 1;
  Inspect({FSample.get(), FOther.get()});
  EXPECT_FALSE(Item("Whole").IsModified());
  FSample->Whole = 1;
  FInspector->RefreshProperties();
  EXPECT_TRUE(Item("Whole").IsModified());
}

TEST_F(ItemPropertyModifiedTest, WithSeveralColumnsEachObjectDecidesForItself) {
  UseSeveralColumns();
  FOther->Whole = 1;
  Inspect({FSample.get(), FOther.get()});
  EXPECT_FALSE(Item("Whole").IsModified(0));
  EXPECT_TRUE(Item("Whole").IsModified(1));
  EXPECT_TRUE(Item("Whole").IsModified());
  EXPECT_FALSE(Item("Flag").IsModified());
  EXPECT_FALSE(IsMarked("Whole", 0));
  EXPECT_TRUE(IsMarked("Whole", 1));
}

TEST_F(ItemPropertyModifiedTest, AModifiedValueIsDrawnInTheFontForThatWhileThatIsWanted) {
  FSample->Whole = 1;
  Inspect({FSample.get()});
  EXPECT_TRUE(IsMarked("Whole"));
  EXPECT_FALSE(IsMarked("Flag"));
  FInspector->SetShowValueChangedFont(false);
  EXPECT_FALSE(IsMarked("Whole"));
}

TEST_F(ItemPropertyModifiedTest, AnInspectorOnAFormThatIsBeingDesignedMarksNothing) {
  class TDesignedInspector : public TKTObjectInspector {
   public:
    using TKTObjectInspector::SetDesigning;

   protected:
    TDesignedInspector() = default;
  };
  auto inspector = Make<TDesignedInspector>();
  TDesignedInspector& designed = *inspector;
  FInspector = std::move(inspector);
  FSample->Whole = 1;
  Inspect({FSample.get()});
  EXPECT_TRUE(IsMarked("Whole"));
  designed.SetDesigning(true);
  EXPECT_FALSE(IsMarked("Whole"));
  EXPECT_TRUE(Item("Whole").IsModified());
}

TEST_F(ItemPropertyModifiedTest, WithoutObjectsNothingIsMarked) {
  FSample->Whole = 1;
  Inspect({FSample.get()});
  const auto copy = Make<TKTObjectInspector>();
  copy->GetItems().Add()->Assign(&Item("Whole"));
  EXPECT_NE(&copy->GetValueChangedFont(), &copy->GetItem(0)->GetIndividualValueFont(0));
  EXPECT_FALSE(copy->GetItem(0)->IsModified());
}

}  // namespace
}  // namespace kt::tests
