// The categories that the properties of components belong to.
#include "KTObjectInspector/InspectorFixture.h"

namespace kt::tests {
namespace {

/// Keeps the lines that it filled its map with.
class TFillingInspector : public TKTObjectInspector {
 public:
  QStringList Filled;

 protected:
  TFillingInspector() = default;
  void FillCategories() override {
    TKTObjectInspector::FillCategories();
    Filled = LinesOf(GetItems().GetCategories());
  }

 public:
  static QStringList LinesOf(TStringList& lines) {
    QStringList texts;
    for (int i = 0; i < lines.GetCount(); ++i) texts += lines.GetStrings(i);
    return texts;
  }
};

/// All lines in their order, with names that come again where a property belongs to several categories.
constexpr const char* kCategoryLines[] = {"Action=Action",
                                          "Caption=Action",
                                          "Enabled=Action",
                                          "HelpContext=Action",
                                          "Hint=Action",
                                          "Visible=Action",
                                          "DockSite=Drag, Drop and Docking",
                                          "DragKind=Drag, Drop and Docking",
                                          "DragMode=Drag, Drop and Docking",
                                          "UseDockManager=Drag, Drop and Docking",
                                          "Filters=Database",
                                          "HelpContext=Help and Hints",
                                          "HelpKeyword=Help and Hints",
                                          "HelpType=Help and Hints",
                                          "Hint=Help and Hints",
                                          "ParentShowHint=Help and Hints",
                                          "ShowHint=Help and Hints",
                                          "Enabled=Input",
                                          "Align=Layout",
                                          "Anchors=Layout",
                                          "Constraints=Layout",
                                          "Height=Layout",
                                          "Left=Layout",
                                          "TabOrder=Layout",
                                          "TabStop=Layout",
                                          "Top=Layout",
                                          "Width=Layout",
                                          "Ctl3D=Legacy",
                                          "ParentCtl3D=Legacy",
                                          "Component=Linkage",
                                          "PopupMenu=Linkage",
                                          "BiDiMode=Locale",
                                          "ParentBiDiMode=Linkage",
                                          "Constraints=Localizable",
                                          "Font=Localizable",
                                          "BiDiMode=Localizable",
                                          "Height=Localizable",
                                          "Hint=Localizable",
                                          "Left=Localizable",
                                          "ParentBiDiMode=Localizable",
                                          "ParentFont=Localizable",
                                          "ValueFont=Localizable",
                                          "ValueChangedFont=Localizable",
                                          "CategoryFont=Localizable",
                                          "Top=Localizable",
                                          "Width=Localizable",
                                          "Align=Visual",
                                          "BorderStyle=Visual",
                                          "Color=Visual",
                                          "Cursor=Visual",
                                          "Enabled=Visual",
                                          "FixedColor=Visual",
                                          "Font=Visual",
                                          "Height=Visual",
                                          "Left=Visual",
                                          "ParentColor=Visual",
                                          "ParentFont=Visual",
                                          "Top=Visual",
                                          "ValueChangedFont=Visual",
                                          "ValueFont=Visual",
                                          "Visible=Visual",
                                          "Width=Visual"};

TEST(InspectorCategoriesTest, ANewInspectorHasAMapForTheFrameworksProperties) {
  QStringList expected;
  for (const char* line : kCategoryLines) expected += QString::fromLatin1(line);
  EXPECT_EQ(62, expected.size());
  const auto inspector = Make<TFillingInspector>();
  EXPECT_EQ(expected.join(u'\n'), inspector->Filled.join(u'\n'));
  // As the items are sorted, so is the map.
  expected.sort(Qt::CaseInsensitive);
  QStringList kept = TFillingInspector::LinesOf(inspector->GetItems().GetCategories());
  kept.sort(Qt::CaseInsensitive);
  EXPECT_EQ(expected.join(u'\n'), kept.join(u'\n'));
  EXPECT_TRUE(inspector->GetItems().GetCategories().GetSorted());
}

}  // namespace
}  // namespace kt::tests
