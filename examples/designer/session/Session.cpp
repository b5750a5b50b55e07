#include "designer/session/Session.h"

#include "designer/document/ComponentTree.h"

#include <algorithm>

namespace designer {

using namespace kt;

namespace {

void Collect(const TFormDocument& document, TComponent* component, std::vector<TComponent*>& found) {
  found.push_back(component);
  for (TComponent* child : document.ChildrenOf(component)) Collect(document, child, found);
}

}  // namespace

TSession::TSession(std::unique_ptr<TFormDocument> document) : FDocument(std::move(document)) { Watch(); }

TSession::~TSession() {
  FDocument->OnFormLeaving = nullptr;
  FDocument->OnFormReplaced = nullptr;
}

void TSession::Watch() {
  FDocument->OnFormLeaving = [this] { Leave(); };
  FDocument->OnFormReplaced = [this] { Arrive(); };
  Keep({&Form()});
}

void TSession::SetDocument(std::unique_ptr<TFormDocument> document) {
  Tell(nwLeaving);
  FSelected.clear();
  FDocument->OnFormLeaving = nullptr;
  FDocument->OnFormReplaced = nullptr;
  FDocument = std::move(document);
  Watch();
  Tell(nwForm);
}

void TSession::Tell(TNews news) {
  for (size_t i = 0; i < FListeners.size(); ++i) FListeners[i](news);
}

std::vector<TComponent*> TSession::Components() const {
  std::vector<TComponent*> found;
  Collect(*FDocument, &Form(), found);
  return found;
}

// The selection.

std::vector<TComponent*> TSession::Selected() const {
  std::vector<TComponent*> alive;
  for (const TObjectRef& component : FSelected) {
    if (component) alive.push_back(static_cast<TComponent*>(component.Get()));
  }
  if (alive.empty()) alive.push_back(&Form());
  return alive;
}

bool TSession::IsSelected(const TComponent* component) const {
  const std::vector<TComponent*> selected = Selected();
  return std::find(selected.begin(), selected.end(), component) != selected.end();
}

void TSession::Select(const std::vector<TComponent*>& components) {
  if (components == Selected()) return;
  Keep(components);
  ++FSelectionNumber;
  Tell(nwSelection);
}

void TSession::Toggle(TComponent* component) {
  std::vector<TComponent*> wanted = Selected();
  const auto found = std::find(wanted.begin(), wanted.end(), component);
  if (found != wanted.end()) {
    wanted.erase(found);
  } else {
    // The form is what is selected when nothing is.
    std::erase(wanted, &Form());
    wanted.push_back(component);
  }
  Select(wanted);
}

void TSession::Keep(const std::vector<TComponent*>& components) {
  FSelected.clear();
  for (TComponent* component : components) FSelected.emplace_back(component);
  KeepKeys();
}

void TSession::KeepKeys() {
  FKeys.clear();
  for (TComponent* component : Selected()) {
    FKeys.push_back({component->GetName(), component->GetComponentIndex(), component->ClassName()});
  }
}

/// By its name or, when a step has renamed it, by its place.
TComponent* TSession::Found(const TKey& key) const {
  if (key.Index < 0) return &Form();
  TComponent* named = key.Name.isEmpty() ? nullptr : Form().FindComponent(key.Name);
  if (named) return named;
  TComponent* placed = key.Index < Form().GetComponentCount() ? Form().GetComponents(key.Index) : nullptr;
  return placed && placed->ClassName() == key.ClassName ? placed : nullptr;
}

// Changes.

void TSession::Edited(const QString& text, const QString& mergeKey) {
  FDocument->Commit(text, mergeKey);
  KeepKeys();
  Tell(nwEdited);
}

void TSession::Revert() { FDocument->Revert(); }

void TSession::Undo() { FDocument->Undo(); }

void TSession::Redo() { FDocument->Redo(); }

void TSession::Leave() {
  KeepKeys();
  Tell(nwLeaving);
  FSelected.clear();
}

void TSession::Arrive() {
  std::vector<TComponent*> found;
  for (const TKey& key : FKeys) {
    TComponent* component = Found(key);
    if (component && std::find(found.begin(), found.end(), component) == found.end()) found.push_back(component);
  }
  Keep(found);
  Tell(nwForm);
}

// Texts.

QString StepText(const QString& verb, const std::vector<TComponent*>& components) {
  if (components.size() == 1) return verb + u' ' + NameOf(*components.front());
  return QStringLiteral("%1 %2 components").arg(verb).arg(components.size());
}

QString NameOf(const TComponent& component) {
  return component.GetName().isEmpty() ? QStringLiteral("(%1)").arg(ClassNameOf(component)) : component.GetName();
}

QString TitleOf(const TComponent& component) {
  return QStringLiteral("%1: %2").arg(NameOf(component), ClassNameOf(component));
}

}  // namespace designer
