#pragma once

#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/graphics/Font.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"
#include "support/WindowProbe.h"

#include <QScopeGuard>

#include <functional>

namespace kt::tests {

/// One thing that an application does with a tree of items.
struct TItemScenario {
  const char* Name;
  std::function<void(TKTItemListEditor&)> Action;
};

inline void PrintTo(const TItemScenario& scenario, std::ostream* out) { *out << scenario.Name; }

/// What a scenario stumbles over when its items are gone.
struct TNoItem : std::runtime_error {
  using runtime_error::runtime_error;
};

inline TKTItemProp& At(TKTItemListEditor& editor, const char* path) {
  TKTItemProp* item = editor.GetItems().FindItemByFullPathName(path);
  if (!item) throw TNoItem(path);
  return *item;
}

inline void DeleteRowOf(TKTItemListEditor& editor, int row) {
  struct TAccess : TKTItemListEditor {
    using TKTItemListEditor::DeleteRow;
  };
  (editor.*(&TAccess::DeleteRow))(row);
}

/// The editor's lock, for a bracket.
struct TEditLock {
  TKTItemListEditor& Editor;

  void BeginUpdate() { Editor.DisableEditUpdate(); }
  void EndUpdate() { Editor.EnableEditUpdate(); }
};

inline const TItemScenario ItemScenarios[] = {
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
    {"FreeDefaultCategory",
     [](TKTItemListEditor& editor) {
       editor.GetItems().SetDefaultCategory(&At(editor, "e"));
       delete &At(editor, "e");
     }},
    {"MoveDefaultCategory",
     [](TKTItemListEditor& editor) {
       At(editor, "e").SetDefaultCategory(true);
       At(editor, "e").SetCollection(&At(editor, "C").GetItems());
     }},
    {"Expand", [](TKTItemListEditor& editor) { At(editor, "a.b").Expand(); }},
    {"Collapse", [](TKTItemListEditor& editor) { At(editor, "a").Collapse(); }},
    {"FullExpand", [](TKTItemListEditor& editor) { editor.FullExpand(); }},
    {"FullCollapse", [](TKTItemListEditor& editor) { editor.FullCollapse(); }},
    {"FullExpandItem", [](TKTItemListEditor& editor) { At(editor, "a").FullExpand(); }},
    {"Select", [](TKTItemListEditor& editor) { editor.SetSelected(&At(editor, "a.b.c")); }},
    {"Sort", [](TKTItemListEditor& editor) { editor.GetItems().Sort(false); }},
    {"Sorted", [](TKTItemListEditor& editor) { editor.SetSorted(true); }},
    {"SortedBelow", [](TKTItemListEditor& editor) { At(editor, "a").GetItems().SetSorted(true); }},
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
    {"InsertItem", [](TKTItemListEditor& editor) { editor.InsertItem("n", "1", false); }},
    {"AppendItem", [](TKTItemListEditor& editor) { editor.InsertItem("n", "1", true); }},
    {"InsertItemReusing",
     [](TKTItemListEditor& editor) {
       At(editor, "e").SetName({});
       At(editor, "").SetValuesText({});
       editor.InsertItem("n", "1", true);
     }},
    {"DeleteRow", [](TKTItemListEditor& editor) { DeleteRowOf(editor, editor.GetRow()); }},
    {"DeleteRowAbove", [](TKTItemListEditor& editor) { DeleteRowOf(editor, 1); }},
    {"Create", [](TKTItemListEditor& editor) { editor.GetItems().FindItemProp(3, true); }},
    {"CreateBelow", [](TKTItemListEditor& editor) { At(editor, "a").GetItems().FindItemProp(2, true); }},
    {"CreateNoRow",
     [](TKTItemListEditor& editor) {
       At(editor, "a").Collapse();
       At(editor, "C").SetVisible(false);
       editor.FindItemProp(2, true);
     }},
    {"DeleteLine", [](TKTItemListEditor& editor) { editor.GetStrings().Delete(0); }},
    {"DeleteLineOfCursor",
     [](TKTItemListEditor& editor) { editor.GetStrings().Delete(editor.GetStrings().IndexOfName(u"e")); }},
    {"PropNames", [](TKTItemListEditor& editor) { editor.SetPropNames(0, "n"); }},
    {"ClearCategories", [](TKTItemListEditor& editor) { editor.GetItems().ClearCategories(false); }},
    {"ClearCategoriesFully", [](TKTItemListEditor& editor) { editor.GetItems().ClearCategories(true); }},
    {"DefaultCategoryName",
     [](TKTItemListEditor& editor) {
       editor.SetArrangeByCategory(true);
       editor.GetItems().SetDefaultCategoryName("D");
     }},
    {"CategorizeFurther",
     [](TKTItemListEditor& editor) {
       editor.GetItems().GetCategories().SetCommaText("x=N,x=M,x=O");
       editor.Categorize(&At(editor, "C.x"), editor.GetItems().GetCategories(), false);
     }},
    {"CustomSort",
     [](TKTItemListEditor& editor) {
       const auto compare = [](TKTItemProps& items, int first, int second) {
         CallOut("Compare");
         return items.CompareStrings(items.GetItem(second)->GetName(), items.GetItem(first)->GetName());
       };
       editor.GetItems().CustomSort(compare, false);
     }},
    {"SortedOff",
     [](TKTItemListEditor& editor) {
       editor.SetSorted(true);
       editor.SetSorted(false);
     }},
    {"Restore",
     [](TKTItemListEditor& editor) {
       At(editor, "e").SetName({});
       editor.RestoreCurrentItem();
     }},
    {"Orientation",
     [](TKTItemListEditor& editor) {
       editor.SetOrientation(goHorizontal);
       editor.SetOrientation(goVertical);
     }},
    {"RefreshVisibleItems", [](TKTItemListEditor& editor) { editor.RefreshVisibleItems(); }},
    {"Locked",
     [](TKTItemListEditor& editor) {
       TEditLock lock{editor};
       const TUpdateBracket bracket(lock);
       editor.GetItems().Add("n", {});
       At(editor, "a").Collapse();
       editor.GetItems().Delete(0);
     }},
};

/// Runs scenarios on an editor whose handlers do something unexpected, and sees that the lists, the counts and the
/// locks are none the worse.
class TItemScenarioTest : public TItemListTest {
 protected:
  using THandler = std::function<void(const char* name)>;

  /// With `hearsHooks` the hooks that descendants override and the comparisons are call-outs, too.
  explicit TItemScenarioTest(bool hearsHooks) : FHearsHooks(hearsHooks) {
    // Made now, so that its own handler for exceptions does not come to replace that of Run().
    Application();
  }
  ~TItemScenarioTest() override {
    FWindow.reset();
    TProbe::Log.clear();
  }

  /// An item that may be a default category has been copied.
  bool FHasCopies = false;

  /// "a [b [c] d] C [x y] e", with a and C expanded, the cursor on e and handlers at all events.
  void Renew() {
    FWindow.reset();
    FHasCopies = false;
    FEditor = FHearsHooks ? std::unique_ptr<TKTItemListEditor>(Make<TProbeEditor>()) : Make<TKTItemListEditor>();
    Fill("a [b [c] d] C [x y] e");
    Item("C").SetCategory(true);
    Item("a").Expand();
    Item("C").Expand();
    FEditor->SetSelected(&Item("e"));
    FEditor->OnCategorize = [this](TObject*, TKTItemProp*, const QString&, QString&) { Handle("OnCategorize"); };
    FEditor->OnSelectCell = [this](TObject*, int, int, bool&) { Handle("OnSelectCell"); };
    FEditor->OnValidate = [this](TObject*, TKTItemProp*, int) { Handle("OnValidate"); };
    FEditor->OnValidated = [this](TObject*, TKTItemProp*, int) { Handle("OnValidated"); };
    FEditor->OnGetEditText = [this](TObject*, int, int, QString&) { Handle("OnGetEditText"); };
    FEditor->OnSetEditText = [this](TObject*, int, int, const QString&) { Handle("OnSetEditText"); };
    FEditor->OnGetEditMask = [this](TObject*, int, int, QString&) { Handle("OnGetEditMask"); };
    Items().GetCategories().SetCommaText("q=Q,p=P");
    Items().GetCategories().OnChanging = [this](TObject*) { Handle("Categories.OnChanging"); };
    Items().GetCategories().OnChange = [this](TObject*) { Handle("Categories.OnChange"); };
  }
  /// The same in a window, with the in-place editor open and something typed.
  void RenewOpen() {
    Renew();
    FWindow = std::make_unique<TWindowProbe>(*FEditor);
    FEditor->SetFocus();
    FEditor->SetEditorMode(true);
    TWindowProbe::Settle();
    TWindowProbe::Type(QStringLiteral("t"));
    ASSERT_TRUE(FEditor->InplaceEditor() && FEditor->InplaceEditor()->IsModified());
  }

  /// `handler` hears the events. What is thrown where nobody is there to catch it is thrown in the end.
  void Run(const TItemScenario& scenario, const THandler& handler) {
    FHandler = handler;
    TProbe::IsOn = FHearsHooks;
    TProbeItems::IsComparing = FHearsHooks;
    std::exception_ptr unhandled;
    const auto previous = SetExceptionHandler([&](std::exception_ptr error) { unhandled = error; });
    const auto quiet = qScopeGuard([&] {
      FHandler = nullptr;
      TProbe::IsOn = false;
      TProbeItems::IsComparing = false;
      SetExceptionHandler(previous);
    });
    scenario.Action(*FEditor);
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
    CheckDefaultCategories(Items());
    EXPECT_EQ(Items().GetSorted(), Items().GetCategories().GetSorted());
    EXPECT_EQ(WalkedEntries(*FEditor), EntriesText());
    EXPECT_EQ(WalkedRows(*FEditor), RowsText());
  }
  void CheckLineCount() {
    EXPECT_EQ(std::max(FEditor->GetVisibleItemCount(), 1) + FEditor->GetGridCount(gcFixedLines),
              FEditor->GetGridCount(gcLineCount));
  }

 private:
  /// Each level has none, or one of its own items that knows of it. No other item takes itself for one, unless it is a
  /// copy of one: that leaves the first one's flag.
  void CheckDefaultCategories(TKTItemProps& items) {
    const TKTItemProp* category = items.GetDefaultCategory();
    bool isFound = !category;
    for (int i = 0; i < items.GetCount(); ++i) {
      TKTItemProp& item = *items.GetItem(i);
      isFound |= &item == category && item.GetDefaultCategory();
      EXPECT_TRUE(FHasCopies || &item == category || !item.GetDefaultCategory());
      if (item.HasItems()) CheckDefaultCategories(item.GetItems());
    }
    EXPECT_TRUE(isFound);
  }
  void Handle(const char* name) {
    // A copy: what it does may end the editor that holds the caller.
    if (const THandler handler = FHandler) handler(name);
  }

  const bool FHearsHooks;
  THandler FHandler;
  std::unique_ptr<TWindowProbe> FWindow;
};

}  // namespace kt::tests
