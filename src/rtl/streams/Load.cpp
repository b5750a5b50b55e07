#include "kt/rtl/streams/Load.h"

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <algorithm>
#include <utility>

namespace kt {
namespace {

thread_local TLoad* Innermost = nullptr;

/// From the end: what a load destroys, it made last.
void ClearLast(std::vector<TComponent*>& list, const TPersistent* object) {
  const auto found = std::find_if(list.rbegin(), list.rend(), [object](const TComponent* other) {
    return static_cast<const TPersistent*>(other) == object;
  });
  if (found != list.rend()) *found = nullptr;
}

/// As readers show a component: by its name, behind that of its form.
QString PathOf(const TComponent* component) {
  const QString name = component->GetName().isEmpty() ? component->ClassName() : component->GetName();
  const TComponent* owner = component->GetOwnerComponent();
  return owner && !owner->GetName().isEmpty() ? owner->GetName() + u'.' + name : name;
}

}  // namespace

TLoad::TLoad(TPlaceWording wording) : FWording(std::move(wording)), FOuter(std::exchange(Innermost, this)) {}

TLoad::~TLoad() { Innermost = FOuter; }

void TLoad::AddCreated(std::unique_ptr<TComponent> component) {
  FCreated.push_back(nullptr);
  FCreated.back() = component.release();
}

void TLoad::BeginLoading(TComponent* component) {
  FLoading.push_back(component);
  component->FComponentState.Include(csLoading);
}

void TLoad::MarkAncestor(TComponent* root) {
  std::vector<TComponent*> found = {root};
  for (size_t i = 0; i < found.size(); ++i) {
    if (!found[i]->HasState(csAncestor)) FMarked.push_back(found[i]);
    for (int k = 0; k < found[i]->GetComponentCount(); ++k) found.push_back(found[i]->GetComponents(k));
  }
  root->SetAncestor(true);
}

void TLoad::BeginUpdating(TComponent* component) {
  if (!component->HasState(csAncestor)) return;
  FUpdating.push_back(component);
  component->Updating();
}

void TLoad::EndUpdating() {
  for (size_t i = 0; i < FUpdating.size(); ++i) {
    TComponent* component = std::exchange(FUpdating[i], nullptr);
    if (!component) continue;
    try {
      component->Updated();
    } catch (const EAbort&) {
      throw;
    } catch (Exception& error) {
      AddPlace(error, component);
      throw;
    }
  }
  FUpdating.clear();
}

void TLoad::AddLoaded(TComponent* component, qint64 offset) {
  FOffsets.push_back(offset);
  FLoaded.push_back(component);
}

void TLoad::TellLoaded() {
  // By index: a handler may free components, which become null here.
  for (size_t i = 0; i < FLoaded.size(); ++i) {
    TComponent* component = FLoaded[i];
    if (!component) continue;
    try {
      component->Loaded();
    } catch (const EAbort&) {
      throw;
    } catch (Exception& error) {
      AddPlace(error, component);
      throw;
    }
  }
}

/// Nothing when the component, which may have been freed, is none that has been read completely.
void TLoad::AddPlace(Exception& error, const TComponent* component) const {
  const auto found = std::find(FLoaded.begin(), FLoaded.end(), component);
  if (found == FLoaded.end()) return;
  const qint64 offset = FOffsets[static_cast<size_t>(found - FLoaded.begin())];
  error.SetMessage(AtPlace(FWording, error.Message(), offset, PathOf(component)));
}

void TLoad::Finish() {
  FFixups.Resolve(FWording);
  EndUpdating();
  TellLoaded();
}

TComponent* TLoad::Keep() noexcept {
  // First, because it frees objects, and what their handlers free must still disappear from the lists.
  FUndoLog.Clear();
  TComponent* root = FLoaded.empty() ? nullptr : FLoaded.front();
  FLoaded.clear();
  FLoading.clear();
  FMarked.clear();
  FCreated.clear();
  return root;
}

void TLoad::Undo() noexcept {
  FFixups.TakeBack();
  FLoaded.clear();
  // Each by itself: one that raises does not keep the others waiting.
  while (!FUpdating.empty()) {
    GuardedCall([this] { EndUpdating(); });
  }
  for (TComponent* component : FLoading) {
    if (component) component->FComponentState -= {csLoading, csReading, csUpdating};
  }
  FLoading.clear();
  for (TComponent* component : FMarked) {
    if (component) component->FComponentState.Exclude(csAncestor);
  }
  FMarked.clear();
  // The last first, so that children go before their owners; each disappears from the list when it goes.
  while (!FCreated.empty()) {
    delete FCreated.back();
    FCreated.pop_back();
  }
  // The last, as what was created may have changed others when it came and when it went.
  FUndoLog.WriteBack();
}

void TLoad::Forget(TPersistent* object) {
  for (TLoad* load = Innermost; load; load = load->FOuter) load->ForgetHere(object);
}

void TLoad::ForgetUses(const TPersistent* object) {
  for (TUse* use = FUses; use; use = use->FOuter) {
    if (use->FObject != object) continue;
    use->FObject = nullptr;
    FHasLostObject = true;
  }
}

void TLoad::ForgetHere(TPersistent* object) {
  ForgetUses(object);
  FFixups.Remove(object);
  if (!dynamic_cast<const TComponent*>(object)) return;
  ClearLast(FCreated, object);
  ClearLast(FLoading, object);
  ClearLast(FMarked, object);
  ClearLast(FUpdating, object);
  ClearLast(FLoaded, object);
}

}  // namespace kt
