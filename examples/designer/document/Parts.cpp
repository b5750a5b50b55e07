#include "designer/document/Parts.h"

#include "designer/document/ComponentTree.h"
#include "designer/document/DocumentErrors.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/actions/ActionList.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/menus/Menu.h"
#include "kt/vcl/menus/MenuItem.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>

namespace designer {
namespace {

template <class T>
bool Is(const kt::TClassInfo* classInfo) {
  return classInfo->InheritsFrom(T::Class());
}

/// The kinds of parts, with what they are in.
struct TKind {
  const kt::TClassInfo* Part;
  const char* Holder;
};

std::array<TKind, 3> Kinds() {
  return {TKind{kt::TMenuItem::Class(), "menu"}, TKind{kt::TTabSheet::Class(), "page control"},
          TKind{kt::TContainedAction::Class(), "list of actions"}};
}

kt::TComponent* AnyHolder(kt::TComponent* root, const kt::TClassInfo* part) {
  for (kt::TComponent* component : WithDescendants(root, root)) {
    if (Holds(component, part)) return component;
  }
  return nullptr;
}

}  // namespace

bool IsPart(const kt::TClassInfo* classInfo) {
  return std::ranges::any_of(Kinds(), [&](const TKind& kind) { return classInfo->InheritsFrom(kind.Part); });
}

bool Holds(kt::TComponent* holder, const kt::TClassInfo* part) {
  if (Is<kt::TMenuItem>(part)) return dynamic_cast<kt::TMenu*>(holder) || dynamic_cast<kt::TMenuItem*>(holder);
  if (Is<kt::TTabSheet>(part)) return dynamic_cast<kt::TPageControl*>(holder);
  return Is<kt::TContainedAction>(part) && dynamic_cast<kt::TCustomActionList*>(holder);
}

kt::TComponent* HolderAround(kt::TComponent* root, kt::TComponent* start, const kt::TClassInfo* part) {
  while (start && !Holds(start, part)) start = ParentIn(root, start);
  return start;
}

THolders::THolders(kt::TComponent* root, kt::TComponent* start, kt::TComponent* origin) {
  for (const TKind& kind : Kinds()) {
    kt::TComponent* holder = HolderAround(root, start, kind.Part);
    if (!holder && Holds(origin, kind.Part)) holder = origin;
    FByKind[kind.Part] = holder ? holder : AnyHolder(root, kind.Part);
  }
}

kt::TComponent* THolders::For(const kt::TClassInfo* part) const {
  for (const TKind& kind : Kinds()) {
    if (!part->InheritsFrom(kind.Part)) continue;
    if (kt::TComponent* holder = FByKind.at(kind.Part)) return holder;
    throw EDocumentError(QStringLiteral("A %1 needs a %2, and the form has none")
                             .arg(part->ClassName(), QLatin1StringView(kind.Holder)));
  }
  return nullptr;
}

void PutBehind(kt::TComponent* part, kt::TComponent* other) {
  if (auto* item = dynamic_cast<kt::TMenuItem*>(part)) {
    auto* before = dynamic_cast<kt::TMenuItem*>(other);
    kt::TMenuItem* parent = item->GetParent();
    if (!before || !parent || before->GetParent() != parent) return;
    parent->Remove(item);
    parent->Insert(before->GetMenuIndex() + 1, item);
  } else if (auto* page = dynamic_cast<kt::TTabSheet*>(part)) {
    const auto* before = dynamic_cast<kt::TTabSheet*>(other);
    if (before && before->GetPageControl() == page->GetPageControl()) page->SetPageIndex(before->GetPageIndex() + 1);
  } else if (auto* action = dynamic_cast<kt::TContainedAction*>(part)) {
    const auto* before = dynamic_cast<kt::TContainedAction*>(other);
    if (before && before->GetActionList() == action->GetActionList()) action->SetIndex(before->GetIndex() + 1);
  }
}

}  // namespace designer
