// How values are shown as texts, and texts written back.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/objects/Exceptions.h"

namespace kt::tests {
namespace {

class InspectorValuesTest : public TInspectorTest {
 protected:
  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
};

TEST_F(InspectorValuesTest, EachKindShowsAsItsText) {
  FSample->Whole = -5;
  FSample->Letter = 'A';
  FSample->WideLetter = u'\u20ac';
  FSample->Flag = true;
  FSample->Wide = true;
  FSample->Align = saTop;
  FSample->Styles = {ssBold, ssItalic};
  FSample->Ratio = 1.5;
  FSample->Text = "text";
  FSample->WideText = "wide";
  FSample->Anything = "any";
  FSample->Big = 1LL << 40;
  FOther->SetName("Other");
  FSample->Partner = FOther.get();
  FInspector->SetInplaceComponents(false);
  Inspect({FSample.get()});
  EXPECT_EQ("-5", Value("Whole"));
  EXPECT_EQ("65", Value("Letter"));
  EXPECT_EQ("8364", Value("WideLetter"));
  EXPECT_EQ("True", Value("Flag"));
  EXPECT_EQ("True", Value("Wide"));
  EXPECT_EQ("saTop", Value("Align"));
  EXPECT_EQ("[ssBold,ssItalic]", Value("Styles"));
  EXPECT_EQ("1.5", Value("Ratio"));
  EXPECT_EQ("text", Value("Text"));
  EXPECT_EQ("wide", Value("WideText"));
  EXPECT_EQ("any", Value("Anything"));
  EXPECT_EQ("1099511627776", Value("Big"));
  EXPECT_EQ("Other", Value("Partner"));
  EXPECT_EQ("", Value("Sibling"));
  EXPECT_EQ("(TSamplePart)", Value("Part"));
}

TEST_F(InspectorValuesTest, AnUnsigned64BitNumberKeepsItsValue) {
  FSample->Huge = ~0ULL;
  Inspect({FSample.get()});
  EXPECT_EQ("18446744073709551615", Value("Huge"));
}

TEST_F(InspectorValuesTest, AcceptedTextsAreWrittenByKind) {
  Inspect({FSample.get()});
  Edit("Whole", "12");
  Edit("Flag", "True");
  Edit("Align", "saBottom");
  Edit("Ratio", "2.5");
  Edit("Text", "new");
  Edit("Big", "1099511627776");
  Edit("Part.Size", "9");
  EXPECT_EQ(12, FSample->Whole);
  EXPECT_TRUE(FSample->Flag);
  EXPECT_EQ(saBottom, FSample->Align);
  EXPECT_EQ(2.5, FSample->Ratio);
  EXPECT_EQ("new", FSample->Text);
  EXPECT_EQ(1LL << 40, FSample->Big);
  EXPECT_EQ(9, FSample->GetPart().GetSize());
}

TEST_F(InspectorValuesTest, AWideBooleanIsWrittenAsATruthValue) {
  Inspect({FSample.get()});
  Edit("Wide", "True");
  EXPECT_TRUE(FSample->Wide);
  Edit("Wide", "False");
  EXPECT_FALSE(FSample->Wide);
}

TEST_F(InspectorValuesTest, OneEditIsWrittenToAllObjects) {
  Inspect({FSample.get(), FOther.get()});
  Edit("Whole", "3");
  EXPECT_EQ(3, FSample->Whole);
  EXPECT_EQ(3, FOther->Whole);
}

TEST_F(InspectorValuesTest, WithSeveralValueColumnsEachObjectGetsItsText) {
  UseSeveralColumns();
  Inspect({FSample.get(), FOther.get()});
  Item("Whole").SetValueLine(1, "4");
  Item("Whole").Validate();
  EXPECT_EQ(0, FSample->Whole);
  EXPECT_EQ(4, FOther->Whole);
}

TEST_F(InspectorValuesTest, APropertyOfACollectionsItemIsWrittenToThatItem) {
  FSample->GetItems().AddItem("one");
  FSample->GetItems().AddItem("two");
  FInspector->SetInplaceCollections(true);
  Inspect({FSample.get()});
  Edit("Items.Items[1].Caption", "changed");
  EXPECT_EQ("one", FSample->GetItems().ItemAt(0)->GetCaption());
  EXPECT_EQ("changed", FSample->GetItems().ItemAt(1)->GetCaption());
}

TEST_F(InspectorValuesTest, TellingOfAChangeComesBeforeAtOnceAndAfterFromTheQueue) {
  QStringList log;
  FInspector->OnPropertyChanging = [&](TObject*, TKTItemProperty* item) {
    log += "changing " + item->GetName() + " " + QString::number(FSample->Big);
  };
  FInspector->OnPropertyChanged = [&](TObject*, TKTItemProperty* item) {
    log += "changed " + item->GetName() + " " + QString::number(FSample->Big) + " " + Value("Big");
  };
  Inspect({FSample.get()});
  Edit("Big", "3");
  EXPECT_EQ("changing Big 0", log.join(u'|'));
  Deliver();
  EXPECT_EQ("changing Big 0|changed Big 3 3", log.join(u'|'));
}

TEST_F(InspectorValuesTest, AnItemWhoseNumberAmongAllItemsExceedsTheRowsIsNotToldOfDeliberately) {
  int told = 0;
  FInspector->OnPropertyChanged = [&](TObject*, TKTItemProperty*) { ++told; };
  Inspect({FSample.get()});
  ASSERT_GE(Item("Whole").GetAbsoluteIndex(), FInspector->GetVisibleItemCount());
  Edit("Whole", "3");
  Deliver();
  EXPECT_EQ(0, told);
  FInspector->FullExpand();
  Edit("Whole", "4");
  Deliver();
  EXPECT_EQ(1, told);
}

TEST_F(InspectorValuesTest, AHandlerMayCorrectTheTextBeforeItIsWritten) {
  FInspector->OnPropertyChanging = [](TObject*, TKTItemProperty* item) { item->SetValueLine(0, "7"); };
  Inspect({FSample.get()});
  Edit("Whole", "3");
  EXPECT_EQ(7, FSample->Whole);
}

TEST_F(InspectorValuesTest, AnItemThatDiedBeforeItWasWrittenIsNotToldOf) {
  int told = 0;
  FInspector->OnPropertyChanging = [this](TObject*, TKTItemProperty*) { Items().Clear(); };
  FInspector->OnPropertyChanged = [&](TObject*, TKTItemProperty*) { ++told; };
  Inspect({FSample.get()});
  Edit("Align", "saTop");
  Deliver();
  EXPECT_EQ(saNone, FSample->Align);
  EXPECT_EQ(0, told);
}

TEST_F(InspectorValuesTest, WritingSetsAllEqualWithOneValueColumn) {
  FOther->Whole = 9;
  Inspect({FSample.get(), FOther.get()});
  EXPECT_FALSE(Item("Whole").IsAllEqual());
  Edit("Whole", "3");
  EXPECT_TRUE(Item("Whole").IsAllEqual());
}

TEST_F(InspectorValuesTest, ARefreshShowsWhatChangedOutside) {
  Inspect({FSample.get()});
  TKTItemProperty* before = Find("Whole");
  FSample->Whole = 8;
  FSample->Styles = {ssUnderline};
  FInspector->RefreshProperties();
  EXPECT_EQ("8", Value("Whole"));
  EXPECT_EQ("True", Value("Styles.ssUnderline"));
  EXPECT_EQ(before, Find("Whole"));
}

TEST_F(InspectorValuesTest, ARefreshOfAnItemThatLeadsNowhereAsksForARescan) {
  FSample->Partner = FOther.get();
  Inspect({FSample.get()});
  EXPECT_NE(nullptr, Find("Partner.Whole"));
  FSample->Partner = nullptr;
  FInspector->RefreshProperties();
  EXPECT_NE(nullptr, Find("Partner.Whole"));
  Deliver();
  EXPECT_EQ(nullptr, Find("Partner.Whole"));
}

// Sets.

TEST_F(InspectorValuesTest, AMemberOfASetWritesTheSetWithEveryMemberThatHasATruthValueDeliberately) {
  Inspect({FSample.get()});
  Edit("Styles.ssItalic", "True");
  EXPECT_EQ(TSampleStyles({ssBold, ssItalic, ssUnderline}), FSample->Styles);
}

TEST_F(InspectorValuesTest, AMembersTextThatIsNoTruthValueIsRefused) {
  Inspect({FSample.get()});
  QString message;
  FInspector->OnValidateError = [&](TObject*, TKTItemProp*, int, const Exception& error) { message = error.Message(); };
  Edit("Styles.ssItalic", "maybe");
  EXPECT_EQ("Invalid property element: maybe", message);
  EXPECT_EQ(TSampleStyles(), FSample->Styles);
}

// Handlers of values.

TEST_F(InspectorValuesTest, AHandlerGivesTheTextOfAValue) {
  Inspect({FSample.get()});
  Item("Whole").SetOnGetProperty([](TObject* sender, TObject* instance, const QString& name, QString& value) {
    value = static_cast<TKTItemProperty*>(sender)->GetName() + "/" + instance->ClassName() + "/" + name + "/" + value;
  });
  FInspector->RefreshProperties();
  EXPECT_EQ("Whole/TSample/Whole/Whole", Value("Whole"));
}

TEST_F(InspectorValuesTest, AHandlerTakesTheWriteOver) {
  Inspect({FSample.get(), FOther.get()});
  int written = 0;
  Item("Whole").SetOnSetProperty([&](TObject*, TObject* instance, const QString&, const QString& value) {
    static_cast<TSample*>(instance)->Big = value.toInt() + written++;
  });
  Edit("Whole", "5");
  EXPECT_EQ(0, FSample->Whole);
  EXPECT_EQ(5, FSample->Big);
  EXPECT_EQ(6, FOther->Big);
}

}  // namespace
}  // namespace kt::tests
