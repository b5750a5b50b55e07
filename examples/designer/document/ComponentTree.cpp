#include "designer/document/ComponentTree.h"

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/streams/UnknownComponent.h"
#include "kt/rtl/streams/Writer.h"

#include <algorithm>
#include <unordered_set>

namespace designer {
namespace {

/// Reaches what components keep for readers.
class TReadersDoor : public kt::TComponent {
 public:
  static void SetParent(kt::TComponent* component, kt::TComponent* parent) {
    (component->*&TReadersDoor::SetParentComponent)(parent);
  }
};

void AddDescendants(kt::TComponent* root, kt::TComponent* component, std::vector<kt::TComponent*>& list) {
  list.push_back(component);
  for (kt::TComponent* child : kt::TWriter::ChildrenOf(component, root)) AddDescendants(root, child, list);
}

}  // namespace

kt::TComponent* ParentIn(kt::TComponent* root, kt::TComponent* component) {
  if (component == root) return nullptr;
  const kt::TKeptData* kept = kt::FindKeptData(component);
  if (kept && kept->StandInParent) return kept->StandInParent;
  if (kt::TComponent* parent = component->GetParentComponent()) return parent;
  return root;
}

void SetParentComponent(kt::TComponent* component, kt::TComponent* parent) {
  TReadersDoor::SetParent(component, parent);
}

QString ClassNameOf(const kt::TComponent& component) {
  const kt::TUnknownComponent* unknown = kt::AsUnknown(const_cast<kt::TComponent*>(&component));
  return unknown ? unknown->GetHeader().ClassName : component.ClassName();
}

std::vector<kt::TComponent*> WithDescendants(kt::TComponent* root, kt::TComponent* component) {
  std::vector<kt::TComponent*> list;
  AddDescendants(root, component, list);
  return list;
}

std::vector<kt::TComponent*> Outermost(kt::TComponent* root, const std::vector<kt::TComponent*>& components) {
  const std::unordered_set<kt::TComponent*> wanted(components.begin(), components.end());
  const auto isInside = [&](kt::TComponent* component) {
    for (kt::TComponent* around = ParentIn(root, component); around; around = ParentIn(root, around)) {
      if (around != root && wanted.contains(around)) return true;
    }
    return false;
  };
  std::vector<kt::TComponent*> outermost;
  for (kt::TComponent* component : WithDescendants(root, root)) {
    if (component != root && wanted.contains(component) && !isInside(component)) outermost.push_back(component);
  }
  return outermost;
}

void CloseGap(kt::TComponent* root, kt::TComponent* component) {
  kt::TComponent* parent = ParentIn(root, component);
  kt::TKeptData* kept = parent ? kt::FindKeptData(parent) : nullptr;
  if (!kept || kept->Children.empty()) return;
  const std::vector<kt::TComponent*> siblings = kt::TWriter::ChildrenOf(parent, root);
  const auto place = std::ranges::find(siblings, component) - siblings.begin();
  for (kt::TKeptData::TChild& child : kept->Children)
    if (child.Position > place) --child.Position;
}

void MoveToEnd(kt::TComponent* root, kt::TComponent* component) {
  kt::TComponent* parent = ParentIn(root, component);
  kt::TKeptData* kept = parent ? kt::FindKeptData(parent) : nullptr;
  if (!kept) return;
  auto& children = kept->Children;
  const auto found = std::ranges::find(children, component, &kt::TKeptData::TChild::Component);
  if (found == children.end()) return;
  children.erase(found);
  children.push_back({int(kt::TWriter::ChildrenOf(parent, root).size()), component});
}

bool IsOn(const kt::TComponent* root, const kt::TComponent* component) {
  while (component && component != root) component = component->GetOwnerComponent();
  return component == root;
}

}  // namespace designer
