#include "kt/rtl/streams/UndoLog.h"

#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/collections/ItemsExchange.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/streams/DefinedValue.h"
#include "kt/rtl/strings/StringList.h"

#include <algorithm>
#include <iterator>
#include <new>

namespace kt {
namespace {

/// Each by itself, the last first: one that raises does not keep the others waiting.
template <class T, class F>
void EachGuarded(T& formers, F writeBack) noexcept {
  for (auto former = formers.rbegin(); former != formers.rend(); ++former) {
    GuardedCall([&] { writeBack(*former); });
  }
}

bool HaveEqualLines(TStrings& a, TStrings& b) {
  if (!a.Equals(b)) return false;
  for (int i = 0; i < a.GetCount(); ++i) {
    if (a.GetObjects(i) != b.GetObjects(i)) return false;
  }
  return true;
}

}  // namespace

TUndoLog::TUndoLog() = default;

TUndoLog::~TUndoLog() = default;

void TUndoLog::Remember(TPersistent& object) {
  const TLifeTable::TLife life = FLives.Watch(&object);
  if (!FRemembered.insert(life.Number).second) return;
  const auto* component = dynamic_cast<const TComponent*>(&object);
  const TKeptData* kept = FindKeptData(&object);
  FObjects.push_back(std::make_unique<TFormerObject>(TFormerObject{
      TPropSnapshot(object, FLives), component ? component->GetName() : QString(),
      component ? component->GetDesignInfo() : 0, kept ? kept->Properties : std::vector<TKeptData::TProperty>()}));
  for (const TLifeTable::TLife& part : std::vector(FObjects.back()->Values.Parts())) {
    if (FLives.IsAlive(part)) Remember(static_cast<TPersistent&>(*part.Object));
  }
}

void TUndoLog::RememberDefined(TPersistent& object, const QString& name, TComponent* root) {
  auto* strings = dynamic_cast<TStrings*>(&object);
  try {
    if (strings && SameText(name, u"Strings")) return RememberLines(*strings);
    const QByteArray properties = DefinedValueOf(object, name, root);
    if (!properties.isEmpty()) FDefined.push_back({FLives.Watch(&object), root, properties});
  } catch (const std::bad_alloc&) {
    throw;
  } catch (...) {
    // Deliberately no failure of the load: it does not need the value unless it fails itself.
  }
}

void TUndoLog::RememberLines(TStrings& strings) {
  auto lines = Make<TStringList>();
  lines->Assign(&strings);
  FLines.push_back({FLives.Watch(&strings), std::move(lines)});
}

void TUndoLog::RememberOrder(TComponent& parent, TComponent* root) {
  if (!FWithOrder.insert(FLives.Watch(&parent).Number).second) return;
  FOrders.push_back({FLives.Watch(&parent), root, ChildrenOf(parent, root)});
}

std::vector<TLifeTable::TLife> TUndoLog::ChildrenOf(TComponent& parent, TComponent* root) {
  std::vector<TLifeTable::TLife> children;
  parent.GetChildren([&](TComponent* child) { children.push_back(FLives.Watch(child)); }, root);
  return children;
}

void TUndoLog::Hold(TCollection& collection, std::unique_ptr<TItemsExchange>&& formerItems) {
  FItems.push_back({FLives.Watch(&collection), nullptr});
  FItems.back().Items = std::move(formerItems);
}

void TUndoLog::WriteBack() noexcept {
  EachGuarded(FObjects, [this](auto& former) { WriteBackIdentity(*former); });
  EachGuarded(FItems, [this](TFormerItems& former) {
    if (FLives.IsAlive(former.Collection)) former.Items->PutBack();
  });
  EachGuarded(FLines, [this](TFormerLines& former) { WriteBackLines(former); });
  EachGuarded(FOrders, [this](TFormerOrder& former) { WriteBackOrder(former); });
  EachGuarded(FDefined, [this](TFormerValue& former) { WriteBackDefined(former); });
  WriteBackValues();
  Clear();
}

void TUndoLog::WriteBackIdentity(TFormerObject& former) {
  if (!former.Values.IsOfLiving()) return;
  TPersistent& object = former.Values.Object();
  TKeptData* kept = FindKeptData(&object);
  if (kept) kept->Properties.swap(former.Kept);
  auto* component = dynamic_cast<TComponent*>(&object);
  if (!component) return;
  component->SetDesignInfo(former.DesignInfo);
  if (component->GetName() != former.Name) component->ChangeName(former.Name);
}

void TUndoLog::WriteBackLines(TFormerLines& former) {
  if (!FLives.IsAlive(former.Strings)) return;
  auto& strings = static_cast<TStrings&>(*former.Strings.Object);
  if (!HaveEqualLines(strings, *former.Lines)) strings.Assign(former.Lines.get());
}

bool TUndoLog::HasOrder(const TFormerOrder& former) {
  const auto isLiving = [this](const TLifeTable::TLife& child) { return FLives.IsAlive(child); };
  const auto isSame = [](const TLifeTable::TLife& a, const TLifeTable::TLife& b) { return a.Number == b.Number; };
  std::vector<TLifeTable::TLife> living;
  std::copy_if(former.Children.begin(), former.Children.end(), std::back_inserter(living), isLiving);
  const auto now = ChildrenOf(static_cast<TComponent&>(*former.Parent.Object), former.Root);
  return std::equal(living.begin(), living.end(), now.begin(), now.end(), isSame);
}

void TUndoLog::WriteBackOrder(TFormerOrder& former) {
  if (!FLives.IsAlive(former.Parent) || HasOrder(former)) return;
  int position = 0;
  for (const TLifeTable::TLife& child : former.Children) {
    if (!FLives.IsAlive(former.Parent)) return;
    auto& parent = static_cast<TComponent&>(*former.Parent.Object);
    if (FLives.IsAlive(child)) parent.SetChildOrder(static_cast<TComponent*>(child.Object), position++);
  }
}

void TUndoLog::WriteBackDefined(TFormerValue& former) {
  if (!FLives.IsAlive(former.Object)) return;
  GiveDefinedValue(static_cast<TPersistent&>(*former.Object.Object), former.Properties, former.Root);
}

void TUndoLog::WriteBackValues() noexcept {
  // A setter may change other properties, as a colour of its own ends the use of the parent's: those come right in
  // another turn. Three are enough for a chain of two; what a setter refuses to take stays different for ever.
  constexpr int kTurns = 3;
  bool isDifferent = true;
  for (int turn = 0; turn < kTurns && isDifferent; ++turn) {
    isDifferent = false;
    for (auto former = FObjects.rbegin(); former != FObjects.rend(); ++former) {
      if ((*former)->Values.IsOfLiving() && (*former)->Values.WriteBack()) isDifferent = true;
    }
  }
}

void TUndoLog::Clear() noexcept {
  FObjects.clear();
  FLines.clear();
  FOrders.clear();
  FDefined.clear();
  FRemembered.clear();
  FWithOrder.clear();
  // Taken out first: freeing items may call anything.
  const std::vector<TFormerItems> items = std::move(FItems);
  FItems.clear();
}

}  // namespace kt
