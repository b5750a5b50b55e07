// The titles of value columns.
#include "KTObjectInspector/InspectorFixture.h"

namespace kt::tests {
namespace {

class InspectorTitlesTest : public TInspectorTest {
 protected:
  InspectorTitlesTest() {
    FSample->SetName("First");
    const auto titles = Make<TStringList>();
    titles->SetCommaText("Property,One,Two,Three");
    FInspector->SetTitleCaptions(*titles);
  }
  QString Titles(int count) {
    QStringList titles;
    for (int col = 0; col < count; ++col) titles += FInspector->GetCell(col, 0);
    return titles.join(u' ');
  }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSamplePart> FPart = Make<TSamplePart>();
};

TEST_F(InspectorTitlesTest, SeveralColumnsAreCalledByTheirObjectsWhenThatIsWanted) {
  UseSeveralColumns();
  Inspect({FSample.get(), FPart.get()});
  EXPECT_EQ("Property One Two", Titles(3));
  FInspector->SetDynamicTitleCaptions(true);
  EXPECT_EQ("Property First TSamplePart", Titles(3));
}

TEST_F(InspectorTitlesTest, OneColumnIsCalledByTheFirstObject) {
  Inspect({FSample.get(), FPart.get()});
  FInspector->SetDynamicTitleCaptions(true);
  EXPECT_EQ("Property First", Titles(2));
}

TEST_F(InspectorTitlesTest, AnEntryWithoutObjectHasTheOrdinaryTitle) {
  UseSeveralColumns();
  FInspector->GetObjects().Add(FSample.get());
  FInspector->GetObjects().Add();
  Inspect({FPart.get()});
  FInspector->SetDynamicTitleCaptions(true);
  EXPECT_EQ("Property First Two TSamplePart", Titles(4));
}

TEST_F(InspectorTitlesTest, WithoutTitlesTheFirstRowIsAnItem) {
  FInspector->SetDynamicTitleCaptions(true);
  FInspector->SetDisplayOptions(FInspector->GetDisplayOptions() - TILEDisplayOptions{doColumnTitles});
  Inspect({FPart.get()});
  EXPECT_EQ("Size 8", Titles(2));
}

}  // namespace
}  // namespace kt::tests
