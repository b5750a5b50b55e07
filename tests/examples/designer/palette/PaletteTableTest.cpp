#include "designer/palette/PaletteTable.h"
#include "kt/KTObjectInspector.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <gtest/gtest.h>

namespace designer::tests {
namespace {

class PaletteTableTest : public testing::Test {
 protected:
  PaletteTableTest() { kt::RegisterObjectInspector(); }
  static QStringList NamesIn(const QString& title) {
    QStringList names;
    for (const TPaletteGroup& group : PaletteGroups()) {
      if (group.Title != title) continue;
      for (const kt::TClassInfo* info : group.Classes) names.append(info->ClassName());
    }
    return names;
  }
  static int PlacesOf(const QString& name) {
    int places = 0;
    for (const TPaletteGroup& group : PaletteGroups()) {
      for (const kt::TClassInfo* info : group.Classes) places += info->ClassName() == name;
    }
    return places;
  }
};

TEST_F(PaletteTableTest, OffersRegisteredClassesOnce) {
  EXPECT_EQ(PlacesOf("TButton"), 1);
  EXPECT_EQ(PlacesOf("TKTObjectInspector"), 1);
  EXPECT_EQ(PlacesOf("TNobodyHasRegisteredThis"), 0);
}

TEST_F(PaletteTableTest, KeepsTheUsualOrder) {
  const QStringList names = NamesIn("Standard");
  EXPECT_LT(names.indexOf("TPopupMenu"), names.indexOf("TButton"));
  EXPECT_LT(names.indexOf("TButton"), names.indexOf("TActionList"));
}

TEST_F(PaletteTableTest, LeavesOutFormsAndWhatIsPartOfOthers) {
  EXPECT_EQ(PlacesOf("TForm"), 0);
  EXPECT_EQ(PlacesOf("TMenuItem"), 0);
  EXPECT_EQ(PlacesOf("TFont"), 0);
}

}  // namespace
}  // namespace designer::tests
