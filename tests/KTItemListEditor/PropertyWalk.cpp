// What the walk over all properties has to know of the classes of the product.
#include "kt/KTItemListEditor/ItemListTypes.h"
#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/KTObjectInspector/ItemProperty.h"
#include "kt/KTObjectInspector/Registration.h"
#include "kt/KTPropertyPresets/PresetTypes.h"
#include "kt/ktcommon/DeltaFont.h"
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
    all.Handlers.push_back(HandlerOf<TKTItemPropertyEvent>());
    all.Handlers.push_back(HandlerOf<TKTItemGetPropertyEvent>());
    all.Handlers.push_back(HandlerOf<TKTItemSetPropertyEvent>());
    all.Handlers.push_back(HandlerOf<TKTItemPropertyQueryEvent>());
    all.Handlers.push_back(HandlerOf<TKTCustomPresetItemEvent>());
    all.Handlers.push_back(HandlerOf<TKTCustomPresetItemQueryEvent>());
    all.Choosy = {{"TKTItemListEditor.TabOrder", "is the place among the parent's controls, and there is no parent"},
                  {"TKTObjectInspector.TabOrder", "is the place among the parent's controls, and there is no parent"},
                  {"TKTItemProperty.ReadOnly", "is true of an item that the walk has disabled by then"},
                  {"TKTItemProp.ReadOnly", "is true of an item that the walk has disabled by then"}};
    all.Derived = {
        {"TKTItemListEditor.RowCount", "counts the items that show as soon as there are any"},
        {"TKTObjectInspector.DeleteBlanks", "deliberately declares True, and is False: True is never written"},
        {"TKTObjectInspector.FixedRows", "follows from the title line and the orientation"},
        {"TKTCustomDeltaFont.Pitch", "follows the font below where it is fpDefault, which is never written"},
        {"TKTItemProp.ParentFont", "deliberately false where a font was written, which it is below a category"}};
    all.OtherDefaults = {{"TKTItemListEditor.Indent", "deliberately declares 17, and is 11"},
                         {"TKTObjectInspector.Indent", "deliberately declares 17, and is 11"},
                         {"TKTObjectInspector.Color", "an inspector has the colour of the form's own controls"},
                         {"TKTObjectInspector.DeleteBlanks", "an inspector has no blank items of its own"},
                         {"TKTObjectInspector.DisplayKinds", "deliberately declares kinds that the setter takes away"}};
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
    RegisterObjectInspector();
    std::vector<QString> own = WalkedClasses();
    std::erase_if(own,
                  [&](const QString& name) { return std::find(others.begin(), others.end(), name) != others.end(); });
    return own;
  }();
  return names;
}

TEST(PropertyWalkExceptions, EachHasAPropertyAndAReason) {
  RegisterObjectInspector();
  RegisterClasses({TKTItemProp::Class(), TKTItemProperty::Class(), TKTCustomDeltaFont::Class()});
  EXPECT_EQ(QStringList(), IdleExceptions(Rules()));
  UnRegisterClasses({TKTItemProp::Class(), TKTItemProperty::Class(), TKTCustomDeltaFont::Class()});
}

}  // namespace

TProgramWalk WalkOfProgram() {
  return {&Rules, &RegisterObjectInspector, [] {}, &OwnClasses};
}

}  // namespace kt::tests
