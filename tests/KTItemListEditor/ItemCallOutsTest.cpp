#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/vcl/graphics/Font.h"
#include "support/CallOuts.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

#include <QScopeGuard>

#include <functional>

namespace kt::tests {
namespace {

/// One thing that an application does with a tree of items.
struct TScenario {
  const char* Name;
  std::function<void(TKTItemListEditor&)> Action;
};

void PrintTo(const TScenario& scenario, std::ostream* out) { *out << scenario.Name; }

TKTItemProp& At(TKTItemListEditor& editor, const char* path) { return *editor.GetItems().FindItemByFullPathName(path); }

/// Every hook, handler and comparison throws in its turn, and the lists, the counts and the locks are none the worse.
class ItemCallOutsTest : public TItemListTest, public testing::WithParamInterface<TScenario> {
 protected:
  ~ItemCallOutsTest() override { TProbe::Log.clear(); }

  /// "a [b [c] d] C [x y] e", with a and C expanded, the cursor on e and handlers at all events.
  void Renew() {
    FEditor = Make<TProbeEditor>();
    Fill("a [b [c] d] C [x y] e");
    Item("C").SetCategory(true);
    Item("a").Expand();
    Item("C").Expand();
    FEditor->SetSelected(&Item("e"));
    FEditor->OnCategorize = [](TObject*, TKTItemProp*, const QString&, QString&) { Handle("OnCategorize"); };
    FEditor->OnSelectCell = [](TObject*, int, int, bool&) { Handle("OnSelectCell"); };
    FEditor->OnValidate = [](TObject*, TKTItemProp*, int) { Handle("OnValidate"); };
    FEditor->OnValidated = [](TObject*, TKTItemProp*, int) { Handle("OnValidated"); };
  }
  static void Handle(const char* name) {
    if (TProbe::IsOn) CallOut(name);
  }

  void Run() {
    Renew();
    TProbe::IsOn = true;
    TProbeItems::IsComparing = true;
    // What is thrown while an item dies has no caller to go to.
    std::exception_ptr unhandled;
    const auto previous = SetExceptionHandler([&](std::exception_ptr error) { unhandled = error; });
    const auto quiet = qScopeGuard([&] {
      TProbe::IsOn = false;
      TProbeItems::IsComparing = false;
      SetExceptionHandler(previous);
    });
    GetParam().Action(*FEditor);
    if (unhandled) std::rethrow_exception(unhandled);
  }

  void CheckAllIsWell() {
    EXPECT_EQ(0, OpenBrackets(Items()));
    EXPECT_FALSE(FEditor->IsEditUpdateLocked());
    CheckLists();
    // The next change brings the grid in step and works like any other.
    Items().Add("next", "1")->GetItems().Add("below", {});
    CheckLists();
    CheckLineCount();
    FEditor->FullExpand();
    CheckLists();
    CheckLineCount();
  }
  void CheckLists() {
    EXPECT_EQ(WalkedEntries(*FEditor), EntriesText());
    EXPECT_EQ(WalkedRows(*FEditor), RowsText());
  }
  void CheckLineCount() { EXPECT_EQ(std::max(FEditor->GetVisibleItemCount(), 1) + 1, FEditor->GetRowCount()); }
};

TEST_P(ItemCallOutsTest, AnExceptionOfAnyCallOutLeavesListsCountsAndLocksConsistent) {
  const int count = ThrowAtEachCallOut(
      thOurs, [this] { Run(); }, [this] { CheckAllIsWell(); });
  EXPECT_LT(0, count);
}

TEST_P(ItemCallOutsTest, AForeignExceptionOfAnyCallOutLeavesListsCountsAndLocksConsistent) {
  ThrowAtEachCallOut(
      thForeign, [this] { Run(); }, [this] { CheckAllIsWell(); });
}

const TScenario Scenarios[] = {
    {"Add", [](TKTItemListEditor& editor) { editor.GetItems().Add("n", "1"); }},
    {"AddBelow", [](TKTItemListEditor& editor) { At(editor, "a.b").GetItems().Add("n", "1"); }},
    {"Insert", [](TKTItemListEditor& editor) { At(editor, "a").GetItems().Insert(1); }},
    {"AddPath", [](TKTItemListEditor& editor) { editor.GetItems().AddFullPath("a.n.m", "1", false); }},
    {"AddCategory", [](TKTItemListEditor& editor) { editor.GetItems().AddCategory("N", false); }},
    {"Exchange", [](TKTItemListEditor& editor) { editor.GetItems().Exchange(0, 2); }},
    {"Delete", [](TKTItemListEditor& editor) { editor.GetItems().Delete(0); }},
    {"DeleteItem", [](TKTItemListEditor& editor) { editor.DeleteItem(1, editor.GetRow()); }},
    {"DeleteCategory", [](TKTItemListEditor& editor) { editor.GetItems().DeleteCategory(1, false); }},
    {"Move", [](TKTItemListEditor& editor) { At(editor, "a.b").SetCollection(&At(editor, "C").GetItems()); }},
    {"SetIndex", [](TKTItemListEditor& editor) { At(editor, "a").SetIndex(2); }},
    {"Rename", [](TKTItemListEditor& editor) { At(editor, "a.b").SetName("n"); }},
    {"RenameArranged",
     [](TKTItemListEditor& editor) {
       editor.SetArrangeByCategory(true);
       editor.GetItems().GetCategories().Add("n=N");
       At(editor, "e").SetName("n");
     }},
    {"Hide", [](TKTItemListEditor& editor) { At(editor, "a").SetVisible(false); }},
    {"HideBelow", [](TKTItemListEditor& editor) { At(editor, "a.b").SetVisible(false); }},
    {"ReadOnly",
     [](TKTItemListEditor& editor) {
       editor.SetDisplayOptions({doColumnTitles});
       At(editor, "a.b").SetReadOnly(true);
       At(editor, "a.d").SetEnabled(false);
     }},
    {"Category",
     [](TKTItemListEditor& editor) {
       At(editor, "a").SetDefaultCategory(true);
       At(editor, "a").SetCategory(false);
     }},
    {"Expand", [](TKTItemListEditor& editor) { At(editor, "a.b").Expand(); }},
    {"Collapse", [](TKTItemListEditor& editor) { At(editor, "a").Collapse(); }},
    {"FullExpand", [](TKTItemListEditor& editor) { editor.FullExpand(); }},
    {"FullCollapse", [](TKTItemListEditor& editor) { editor.FullCollapse(); }},
    {"FullExpandItem", [](TKTItemListEditor& editor) { At(editor, "a").FullExpand(); }},
    {"Select", [](TKTItemListEditor& editor) { editor.SetSelected(&At(editor, "a.b.c")); }},
    {"Sort", [](TKTItemListEditor& editor) { editor.GetItems().Sort(false); }},
    {"Sorted", [](TKTItemListEditor& editor) { editor.SetSorted(true); }},
    {"Categorize",
     [](TKTItemListEditor& editor) {
       editor.GetItems().GetCategories().SetCommaText("a=N,e=M");
       editor.Categorize(false);
     }},
    {"CategorizeCopies",
     [](TKTItemListEditor& editor) {
       editor.GetItems().GetCategories().SetCommaText("x=N,x=M");
       editor.Categorize(At(editor, "C").GetItems(), editor.GetItems().GetCategories(), true);
     }},
    {"Values",
     [](TKTItemListEditor& editor) {
       At(editor, "e").SetValue("1");
       At(editor, "a").GetValues().SetText("1\r\n2");
     }},
    {"PickList", [](TKTItemListEditor& editor) { At(editor, "a").GetPickList().Add("1"); }},
    {"Fonts",
     [](TKTItemListEditor& editor) {
       At(editor, "a").GetFont().SetColor(clRed);
       editor.GetFont().SetColor(clBlue);
       editor.GetValueFont().SetColor(clBlue);
     }},
    {"AssignItem", [](TKTItemListEditor& editor) { At(editor, "e").Assign(&At(editor, "a")); }},
    {"AssignItems", [](TKTItemListEditor& editor) { At(editor, "e").SetItems(At(editor, "a").GetItems()); }},
    {"Bracket",
     [](TKTItemListEditor& editor) {
       const TUpdateBracket bracket(editor.GetItems());
       editor.GetItems().Add("n", {});
       At(editor, "a").Collapse();
       editor.GetItems().Delete(0);
     }},
    {"Options", [](TKTItemListEditor& editor) { editor.SetDisplayOptions({doColumnTitles}); }},
    {"Strings", [](TKTItemListEditor& editor) { editor.GetStrings().SetText("p.q=1\r\nr=2"); }},
    {"Clear", [](TKTItemListEditor& editor) { editor.GetItems().Clear(); }},
};

INSTANTIATE_TEST_SUITE_P(Scenarios, ItemCallOutsTest, testing::ValuesIn(Scenarios),
                         [](const auto& test) { return std::string(test.param.Name); });

/// Validation changes no list; what its handlers throw is handed on.
TEST(ItemValidateCallOutsTest, AnExceptionOfAnyHandlerComesOut) {
  const auto editor = Make<TKTItemListEditor>();
  TKTItemProp* item = editor->GetItems().Add("a", "1");
  editor->OnValidate = [](TObject*, TKTItemProp*, int) { CallOut("OnValidate"); };
  editor->OnValidated = [](TObject*, TKTItemProp*, int) { CallOut("OnValidated"); };
  const int count = ThrowAtEachCallOut(
      thOurs, [&] { item->Validate(); }, [] {});
  EXPECT_EQ(2, count);
}

}  // namespace
}  // namespace kt::tests
