// Setting properties of the visual platform and of the item list editor, by their classes.
#include "tools/ktform/KtFormFixture.h"

namespace {

using ktform::tests::KtFormTest;
using ktform::tests::TEdit;
using ktform::tests::TRun;

constexpr char kVisualForm[] = R"(object Form1: TForm1
  Left = 12
  Visible = True
  object Editor1: TKTItemListEditor
    Left = 8
    Foreign = 5
    Items = <
      item
        Name = 'a'
      end
      item
        Name = 'b'
      end>
  end
  object Grid1: TDrawGrid
    ColCount = 4
    Color = clRed
  end
  object Inspector1: TKTObjectInspector
    Left = 40
  end
  object Label1: TLabel
    Left = 4
    Caption = 'Name'
  end
end
)";

class KtFormSetVisualTest : public KtFormTest, public ::testing::WithParamInterface<TEdit> {
 protected:
  /// Without a display, whatever the machine has.
  TRun Set(const QString& assignment) {
    Write("a.dfm", kVisualForm);
    return Run({"set", "a.dfm", "b.dfm", assignment}, [] {
      unsetenv("DISPLAY");
      unsetenv("WAYLAND_DISPLAY");
      unsetenv("QT_QPA_PLATFORM");
    });
  }
};

TEST_P(KtFormSetVisualTest, OnlyTheLineOfTheValueChanges) {
  EXPECT_EQ("", Set(GetParam().Assignment).Errors);
  EXPECT_EQ(QByteArray(kVisualForm).replace(GetParam().Old, GetParam().New), Content("b.dfm"));
}

INSTANTIATE_TEST_SUITE_P(
    Values, KtFormSetVisualTest,
    ::testing::Values(
        TEdit{"Left=13", "Left = 12", "Left = 13"}, TEdit{"Editor1.Left=9", "Left = 8", "Left = 9"},
        TEdit{"Label1.Caption=Other", "'Name'", "'Other'"}, TEdit{"Visible=False", "Visible = True", "Visible = False"},
        TEdit{"Editor1.Items[1].Name=c", "'b'", "'c'"}, TEdit{"Editor1.Foreign=6", "Foreign = 5", "Foreign = 6"},
        TEdit{"Grid1.ColCount=3", "ColCount = 4", "ColCount = 3"}, TEdit{"Grid1.Color=$FF0000", "clRed", "clBlue"},
        // The form has none of these: the class knows them.
        TEdit{"Grid1.RowCount=7", "ColCount = 4\n", "ColCount = 4\n    RowCount = 7\n"},
        TEdit{"Inspector1.InplaceTStrings=True", "Left = 40\n", "Left = 40\n    InplaceTStrings = True\n"},
        TEdit{"Grid1.Align=alClient", "TDrawGrid\n", "TDrawGrid\n    Align = alClient\n"}));

TEST_F(KtFormSetVisualTest, APropertyThatTheClassLacksIsAnError) {
  const TRun run = Set("Grid1.Wheels=4");
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("a.dfm: error: cannot set Grid1.Wheels: Property Wheels does not exist\n", run.Errors);
}

TEST_F(KtFormSetVisualTest, AValueThatTheTypeLacksIsAnError) {
  const TRun run = Set("Grid1.Align=alMiddle");
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("a.dfm: error: cannot set Grid1.Align: Invalid property element: alMiddle\n", run.Errors);
}

}  // namespace
