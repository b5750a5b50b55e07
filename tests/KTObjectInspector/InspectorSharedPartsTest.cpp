// Which parts of a property, members of sets and lines, are the same in all inspected objects.
#include "KTObjectInspector/InspectorFixture.h"

namespace kt::tests {
namespace {

class InspectorSharedPartsTest : public TInspectorTest {
 protected:
  bool IsAllEqual(const QString& path) { return Item(path).IsAllEqual(); }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
};

TEST_F(InspectorSharedPartsTest, AMemberIsTheSameWhereAllSetsHaveItOrNoneHas) {
  FSample->Styles = {ssBold, ssItalic};
  FOther->Styles = {ssItalic};
  Inspect({FSample.get(), FOther.get()});
  EXPECT_FALSE(IsAllEqual("Styles"));
  EXPECT_FALSE(IsAllEqual("Styles.ssBold"));
  EXPECT_TRUE(IsAllEqual("Styles.ssItalic"));
  EXPECT_TRUE(IsAllEqual("Styles.ssUnderline"));
}

TEST_F(InspectorSharedPartsTest, AThirdObjectCountsToo) {
  const auto third = Make<TSample>();
  third->Styles = {ssUnderline};
  Inspect({FSample.get(), FOther.get(), third.get()});
  EXPECT_TRUE(IsAllEqual("Styles.ssBold"));
  EXPECT_FALSE(IsAllEqual("Styles.ssUnderline"));
}

TEST_F(InspectorSharedPartsTest, MembersOfASingleObjectAreTheSame) {
  FSample->Styles = {ssBold};
  Inspect({FSample.get()});
  EXPECT_TRUE(IsAllEqual("Styles.ssBold"));
  EXPECT_TRUE(IsAllEqual("Styles.ssItalic"));
}

TEST_F(InspectorSharedPartsTest, SeveralColumnsShowTheMembersOfEachObject) {
  FSample->Styles = {ssBold};
  FInspector->SetDisplayOptions(FInspector->GetDisplayOptions() + TILEDisplayOptions{doMultiColValues});
  Inspect({FSample.get(), FOther.get()});
  EXPECT_EQ("True", Item("Styles.ssBold").GetValueLine(0));
  EXPECT_EQ("False", Item("Styles.ssBold").GetValueLine(1));
  EXPECT_FALSE(IsAllEqual("Styles.ssItalic"));
}

TEST_F(InspectorSharedPartsTest, AnEditedMemberIsTheSameInAllObjectsAtOnce) {
  FSample->Styles = {ssBold};
  Inspect({FSample.get(), FOther.get()});
  EXPECT_FALSE(IsAllEqual("Styles.ssBold"));
  Edit("Styles.ssBold", "True");
  EXPECT_EQ(FSample->Styles, FOther->Styles);
  EXPECT_TRUE(IsAllEqual("Styles"));
  EXPECT_TRUE(IsAllEqual("Styles.ssBold"));
}

TEST_F(InspectorSharedPartsTest, MembersOfASetThatIsWrittenAsAWholeAreTheSameToo) {
  FSample->Styles = {ssBold};
  Inspect({FSample.get(), FOther.get()});
  Item("Styles").SetOrdProperty(0, -1);
  EXPECT_TRUE(IsAllEqual("Styles.ssBold"));
}

}  // namespace
}  // namespace kt::tests
