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
  component->FComponentState.Exclude(csReading);
}

void TReader::ReadData(TComponent* instance) {
  while (!FInput.EndOfList()) ReadProperty(instance);
  FInput.ReadListEnd();

  TComponent* outerOwner = FOwner;
  TComponent* outerParent = std::exchange(FParent, instance->GetChildParent());
  const int outerIndex = std::exchange(FChildIndex, 0);
  FOwner = instance->GetChildOwner();
  if (!FOwner) FOwner = FRoot;
  for (; !FInput.EndOfList(); ++FChildIndex) ReadComponent();
  FInput.ReadListEnd();
  FOwner = outerOwner;
  FParent = outerParent;
  FChildIndex = outerIndex;
}

void TReader::ReadComponent(const std::function<void(TComponent*)>& done) {
  const qint64 start = FInput.Position();
  const TFormObjectHeader header = ReadHeader();
  TComponent* component = MakeChild(header);
  if (!component) {
    FInput.Seek(start);
    TIdleFormSink nowhere;
    TBinaryFormParser(FInput, nowhere).ParseObject();
    return;
  }
  PlaceChild(component, header);
  ReadState(component);
  if (header.Flags.testFlag(ffChildPos) && FParent) FParent->SetChildOrder(component, header.ChildPos);
  FLoad.AddLoaded(component);
  if (done) done(component);
}

TComponent* TReader::MakeChild(const TFormObjectHeader& header) {
  if (TComponent* inherited = FindInherited(header)) return inherited;
  // Only the policy to keep comes here with an inherited one: its ancestor is unknown, so it needs a stand-in.
  const bool isInherited = header.Flags.testFlag(ffInherited);
  TComponent* component = isInherited ? CreateUnknown(header, FOwner) : CreateComponent(header, FOwner);
  if (!component) return nullptr;
  component->FComponentState.Include(csLoading);
  if (header.Flags.testFlag(ffInline)) component->SetInline(true);
  SetComponentName(component, header.Name);
  return component;
}

TComponent* TReader::FindInherited(const TFormObjectHeader& header) {
  if (!header.Flags.testFlag(ffInherited)) return nullptr;
  TComponent* found = FOwner->FindComponent(header.Name);
  if (!found && UnknownClasses != upKeep) throw EReadError(Format(SAncestorNotFound, {header.Name}));
  if (found) found->FComponentState.Include(csLoading);
  return found;
}

TComponent* TReader::CreateComponent(const TFormObjectHeader& header, TComponent* owner) {
  const TClassInfo* classInfo = FindComponentClass(header.ClassName);
  if (!classInfo) {
    if (UnknownClasses == upRaise) throw EClassNotFound(Format(SClassNotFound, {header.ClassName}));
    return UnknownClasses == upKeep ? CreateUnknown(header, owner) : nullptr;
  }
  if (!classInfo->InheritsFrom(TComponent::Class())) throw EInvalidCast(SInvalidCast.toString());
  TComponent* component = OnCreateComponent ? OnCreateComponent(classInfo, owner) : nullptr;
  if (!component) component = static_cast<TComponent*>(classInfo->CreateInstance(owner));
  FLoad.AddCreated(component);
  return component;
}

TComponent* TReader::CreateUnknown(const TFormObjectHeader& header, TComponent* owner) {
  auto* component = Make<TUnknownComponent>(owner).release();
  component->FHeader = header;
  FLoad.AddCreated(component);
  return component;
}

const TClassInfo* TReader::FindComponentClass(const QString& className) {
  if (const TClassInfo* registered = GetClass(className)) return registered;
  return OnFindComponentClass ? OnFindComponentClass(className) : nullptr;
}

void TReader::SetComponentName(TComponent* component, QString name) {
  if (OnSetName) OnSetName(component, name);
  if (!name.isEmpty()) component->SetName(name);
}

/// Tells a component its parent, and remembers where a stand-in belongs.
void TReader::PlaceChild(TComponent* child, const TFormObjectHeader& header) {
  if (auto* unknownParent = dynamic_cast<TUnknownComponent*>(FParent)) {
    unknownParent->FChildren.push_back(child);
    EnsureKeptData(child).StandInParent = unknownParent;
  }
  auto* unknown = dynamic_cast<TUnknownComponent*>(child);
  if (!unknown) {
    if (!header.Flags.testFlag(ffInherited)) child->SetParentComponent(FParent);
    return;
  }
  unknown->FStreamParent = FParent;
  if (FParent && !dynamic_cast<TUnknownComponent*>(FParent)) {
    EnsureKeptData(FParent).Children.push_back({FChildIndex, unknown});
  }
}

}  // namespace kt
