// Handlers that free the editor in the middle of what it does.
#include "KTItemListEditor/ItemScenarios.h"
#include "kt/rtl/objects/LifeWatch.h"

namespace kt::tests {
namespace {

const TItemScenario SingleSteps[] = {
    {"HideReadOnly", [](TKTItemListEditor& editor) { editor.SetDisplayOptions({doColumnTitles}); }},
    {"HideTitles", [](TKTItemListEditor& editor) { editor.SetDisplayOptions({doShowReadOnly}); }},
    {"SeveralColumns", [](TKTItemListEditor& editor) { editor.SetDisplayOptions({doMultiColValues}); }},
    {"Turn", [](TKTItemListEditor& editor) { editor.SetOrientation(goHorizontal); }},
    {"Sorted", [](TKTItemListEditor& editor) { editor.SetSorted(true); }},
    {"SortedBelow", [](TKTItemListEditor& editor) { At(editor, "a").GetItems().SetSorted(true); }},
    {"RefreshVisibleItems", [](TKTItemListEditor& editor) { editor.RefreshVisibleItems(); }},
    {"FullExpand", [](TKTItemListEditor& editor) { editor.FullExpand(); }},
    {"FullCollapse", [](TKTItemListEditor& editor) { editor.FullCollapse(); }},
    {"Select", [](TKTItemListEditor& editor) { editor.SetSelected(&At(editor, "a")); }},
    {"Clear", [](TKTItemListEditor& editor) { editor.GetItems().Clear(); }},
    {"InsertItem", [](TKTItemListEditor& editor) { editor.InsertItem("n", "1", false); }},
    {"DeleteItem", [](TKTItemListEditor& editor) { editor.DeleteItem(1, editor.GetRow()); }},
    {"Options", [](TKTItemListEditor& editor) { editor.SetOptions(editor.GetOptions() - TGridOptions{goEditing}); }},
    {"Font",
     [](TKTItemListEditor& editor) {
       const TLifeWatch life(&editor);
       editor.GetSelected()->GetFont().SetColor(clRed);
       if (life.IsAlive()) editor.GetFont().SetHeight(-30);
     }},
    {"ValueFont",
     [](TKTItemListEditor& editor) {
       const TLifeWatch life(&editor);
       editor.GetSelected()->GetValueFont().SetColor(clRed);
       if (life.IsAlive()) editor.GetValueFont().SetHeight(-30);
     }},
    {"EditorMode", [](TKTItemListEditor& editor) { editor.SetEditorMode(false); }},
};

/// The editor, in a window and with something typed into it, is freed in every call of a handler in its turn.
class ItemListEditorFreedTest : public TItemScenarioTest, public testing::WithParamInterface<TItemScenario> {
 protected:
  ItemListEditorFreedTest() : TItemScenarioTest(false) {}

  /// False when there is no call of that number.
  bool RunAndFreeAt(int number) {
    int calls = 0;
    try {
      Run(GetParam(), [&](const char*) {
        if (calls++ == number) FEditor.reset();
      });
    } catch (const Exception&) {
      // That an object was freed while it was in use.
    }
    return calls > number;
  }
};

TEST_P(ItemListEditorFreedTest, AHandlerMayFreeTheEditor) {
  int number = 0;
  for (RenewOpen(); RunAndFreeAt(number); RenewOpen()) {
    EXPECT_EQ(nullptr, FEditor);
    ++number;
  }
  EXPECT_GT(number, 0);
}

INSTANTIATE_TEST_SUITE_P(Steps, ItemListEditorFreedTest, testing::ValuesIn(SingleSteps),
                         [](const auto& test) { return std::string(test.param.Name); });

}  // namespace
}  // namespace kt::tests
