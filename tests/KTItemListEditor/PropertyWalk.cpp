// What the walk over all properties has to know of the classes of the item list editor.
#include "kt/KTItemListEditor/ItemListTypes.h"
#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/KTItemListEditor/Registration.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/Registration.h"
#include "support/Expect.h"
#include "support/VisualWalk.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace kt::tests {
namespace {

const TWalkRules& Rules() {
  static const TWalkRules rules = [] {
    TWalkRules all{.Handlers = VisualHandlers()};
    all.Handlers.push_back(HandlerOf<TKTGetPickListEvent>());
    all.Handlers.push_back(HandlerOf<TKTOnValidateEvent>());
    all.Handlers.push_back(HandlerOf<TKTOnValidateErrorEvent>());
    all.Handlers.push_back(HandlerOf<TKTOnShowHintsEvent>());
    all.Handlers.push_back(HandlerOf<TKTGetCategoryEvent>());
    all.Choosy = {{"TKTItemListEditor.TabOrder", "is the place among the parent's controls, and there is no parent"},
                  {"TKTItemProp.ReadOnly", "is true of an item that the walk has disabled by then"}};
    all.Derived = {
        {"TKTItemListEditor.RowCount", "counts the items that show as soon as there are any"},
        {"TKTItemProp.ParentFont", "deliberately false where a font was written, which it is below a category"}};
    all.OtherDefaults = {{"TKTItemListEditor.Indent", "deliberately declares 17, and is 11"}};
    return all;
  }();
  return rules;
}

/// Without those of the floor below, which has a walk of its own.
std::vector<QString> OwnClasses() {
  // Asked for once a test, of which the first registers.
  static const std::vector<QString> names = [] {
    RegisterVisualPlatform();
    const std::vector<QString> others = WalkedClasses();
    RegisterItemListEditor();
    std::vector<QString> own = WalkedClasses();
    std::erase_if(own,
                  [&](const QString& name) { return std::find(others.begin(), others.end(), name) != others.end(); });
    return own;
  }();
  return names;
}

TEST(PropertyWalkExceptions, EachHasAPropertyAndAReason) {
  RegisterItemListEditor();
  RegisterClass(TKTItemProp::Class());
  EXPECT_EQ(QStringList(), IdleExceptions(Rules()));
  UnRegisterClass(TKTItemProp::Class());
}

}  // namespace

TProgramWalk WalkOfProgram() {
  return {&Rules, &RegisterItemListEditor, [] {}, &OwnClasses};
}

}  // namespace kt::tests
