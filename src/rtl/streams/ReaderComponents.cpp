// How a reader makes components and puts them in their places.
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/BinaryFormParser.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/UnknownComponent.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <utility>

namespace kt {

void TReader::ReadState(TComponent* component) {
  component->FComponentState.Include(csReading);
  component->ReadState(*this);
  CheckNothingLost();
  component->FComponentState.Exclude(csReading);
}

void TReader::ReadData(TComponent* instance) {
  while (!FInput.EndOfList()) ReadProperty(instance);
  FInput.ReadListEnd();

  TComponent* outerOwner = FOwner;
  TComponent* outerParent = std::exchange(FParent, instance->GetChildParent());
  const int outerIndex = std::exchange(FChildIndex, 0);
  TComponent* outerScope = FScope;
  const bool outerScopeIsNew = FScopeIsNew;
  if (TComponent* scope = instance->GetChildOwner()) {
    FScope = scope;
    FScopeIsNew = FTargetIsNew;
  }
  FOwner = FScope;
  for (; !FInput.EndOfList(); ++FChildIndex) ReadComponent();
  FInput.ReadListEnd();
  FOwner = outerOwner;
  FScope = outerScope;
  FScopeIsNew = outerScopeIsNew;
  FParent = outerParent;
  FChildIndex = outerIndex;
}

void TReader::ReadComponent(const std::function<void(TComponent*)>& done) {
  const qint64 start = FInput.Position();
  const TFormObjectHeader header = ReadHeader();
  FPlace = NameIn(header);
  TLoad::TUse use(*FLoad);
  TComponent* component = nullptr;
  AtPlace(start, header, [&] { component = MakeChild(header, use); });
  if (!component) {
    FInput.Seek(start);
    TIdleFormSink nowhere;
    TBinaryFormParser(FInput, nowhere).ParseObject();
    return;
  }
  const bool isNew = FScopeIsNew || FLoad->HasJustCreated(component);
  AtPlace(start, header, [&] {
    const bool outerIsNew = std::exchange(FTargetIsNew, isNew);
    PlaceChild(component, header);
    CheckNothingLost();
    ReadState(component);
    FTargetIsNew = outerIsNew;
    OrderChild(component, header, isNew);
    FLoad->AddLoaded(component, start);
    if (done) done(component);
    CheckNothingLost();
  });
}

void TReader::CheckNothingLost() const {
  if (FLoad->HasLostObject()) throw EReadError(SObjectFreed.toString());
}

/// Runs `read`; an error about the component as a whole gets the place.
void TReader::AtPlace(qint64 offset, const TFormObjectHeader& header, const std::function<void()>& read) {
  // Reading changes it, and an error leaves it as it is then.
  const TComponent* scope = FScope;
  try {
    read();
  } catch (const EAbort&) {
    throw;
  } catch (Exception& error) {
    AddPlace(error, offset, PlaceOf(header, scope));
    throw;
  }
}

QString TReader::PlaceOf(const TFormObjectHeader& header, const TComponent* scope) const {
  const QString name = NameIn(header);
  return FLoad->HasLostObject() || !scope || scope->GetName().isEmpty() ? name : scope->GetName() + u'.' + name;
}

/// There is no form without its root: that one cannot be skipped.
TComponent* TReader::MakeRoot(const TFormObjectHeader& header) {
  TComponent* root = CreateComponent(header, nullptr);
  if (!root) throw EClassNotFound(Format(SClassNotFound, {header.ClassName}));
  return root;
}

TComponent* TReader::MakeChild(const TFormObjectHeader& header, TLoad::TUse& use) {
  if (TComponent* inherited = FindInherited(header)) {
    use.SetObject(inherited);
    if (!FScopeIsNew) FLoad->UndoLog().Remember(*inherited);
    CheckNothingLost();
    FLoad->BeginLoading(inherited);
    FLoad->BeginUpdating(inherited);
    CheckNothingLost();
    return inherited;
  }
  // Only the policy to keep comes here with an inherited one: its ancestor is unknown, so it needs a stand-in.
  const bool isInherited = header.Flags.testFlag(ffInherited);
  TComponent* component = isInherited ? CreateUnknown(header, FOwner) : CreateComponent(header, FOwner);
  if (!component) return nullptr;
  use.SetObject(component);
  FLoad->BeginLoading(component);
  if (header.Flags.testFlag(ffInline)) component->SetInline(true);
  // What a nested form has by now, its class brought along.
  for (int i = 0; component->HasState(csDesigning) && i < component->GetComponentCount(); ++i) {
    component->GetComponents(i)->SetAncestor(true);
  }
  SetComponentName(component, header.Name);
  CheckNothingLost();
  return component;
}

TComponent* TReader::FindInherited(const TFormObjectHeader& header) {
  if (!header.Flags.testFlag(ffInherited)) return nullptr;
  TComponent* found = FOwner->FindComponent(header.Name);
  if (!found && UnknownClasses != upKeep) throw EReadError(Format(SAncestorNotFound, {header.Name}));
  return found;
}

TComponent* TReader::CreateComponent(const TFormObjectHeader& header, TComponent* owner) {
  const TClassInfo* classInfo = FindComponentClass(header.ClassName);
  CheckNothingLost();
  if (!classInfo) {
    if (UnknownClasses == upRaise) throw EClassNotFound(Format(SClassNotFound, {header.ClassName}));
    return UnknownClasses == upKeep ? CreateUnknown(header, owner) : nullptr;
  }
  if (!classInfo->InheritsFrom(TComponent::Class())) throw EInvalidCast(SInvalidCast.toString());
  TComponent* component = OnCreateComponent ? OnCreateComponent(classInfo, owner) : nullptr;
  if (!component) {
    CheckNothingLost();
    component = static_cast<TComponent*>(classInfo->CreateInstance(owner));
  }
  FLoad->AddCreated(std::unique_ptr<TComponent>(component));
  CheckNothingLost();
  return component;
}

TComponent* TReader::CreateUnknown(const TFormObjectHeader& header, TComponent* owner) {
  auto made = Make<TUnknownComponent>(owner);
  made->FHeader = header;
  TUnknownComponent* component = made.get();
  FLoad->AddCreated(std::move(made));
  CheckNothingLost();
  return component;
}

const TClassInfo* TReader::FindComponentClass(const QString& className) {
  const TClassInfo* found = OnFindComponentClass ? OnFindComponentClass(className) : nullptr;
  return found ? found : GetClass(className);
}

void TReader::SetComponentName(TComponent* component, QString name) {
  if (OnSetName) OnSetName(component, name);
  CheckNothingLost();
  // A stand-in gives back what it was given, whatever makes a good name here. Only the name of a known component is
  // that one's alone: written in another order the two could not be read again.
  if (AsUnknown(component)) {
    TComponent* owner = component->GetOwnerComponent();
    TComponent* other = owner && !name.isEmpty() ? owner->FindComponent(name) : nullptr;
    if (other && !AsUnknown(other)) throw EComponentError(Format(SDuplicateName, {name}));
    return component->ChangeName(name);
  }
  if (!name.isEmpty()) component->SetName(name);
}

/// Tells a component its parent, and remembers where a stand-in belongs.
void TReader::PlaceChild(TComponent* child, const TFormObjectHeader& header) {
  if (auto* unknownParent = AsUnknown(FParent)) {
    EnsureKeptData(child).StandInParent = unknownParent;
    unknownParent->FChildren.push_back(child);
  }
  auto* unknown = AsUnknown(child);
  if (!unknown) {
    if (!header.Flags.testFlag(ffInherited)) child->SetParentComponent(FParent);
    return;
  }
  unknown->FStreamParent = FParent;
  if (FParent && !AsUnknown(FParent)) {
    EnsureKeptData(FParent).Children.push_back({FChildIndex, unknown});
  }
}

/// Tells the parent of a component the place that the stream says.
void TReader::OrderChild(TComponent* child, const TFormObjectHeader& header, bool isNew) {
  if (header.Flags.testFlag(ffChildPos) && FParent) {
    if (!isNew) FLoad->UndoLog().RememberOrder(*FParent, FRoot);
    FParent->SetChildOrder(child, header.ChildPos);
  }
  CheckNothingLost();
}

}  // namespace kt
