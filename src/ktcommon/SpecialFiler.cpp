#include "kt/ktcommon/SpecialFiler.h"

#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/collections/ItemsExchange.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

namespace kt {

namespace {

constexpr QStringView ItemClassName = u"ClassName";
constexpr QLatin1StringView SNoItemClass{"Class %s does not inherit from %s"};

/// A collection that whoever hears of a change may free.
class TCollectionBeingRead {
 public:
  explicit TCollectionBeingRead(TCollection& collection) : FCollection(collection), FWatch(&collection) {}

  bool IsAlive() const { return FWatch.IsAlive(); }
  TCollection& Get() const {
    if (!IsAlive()) throw EInvalidOperation(SObjectFreed.toString());
    return FCollection;
  }
  void BeginUpdate() { FCollection.BeginUpdate(); }
  void EndUpdate() {
    if (IsAlive()) FCollection.EndUpdate();
  }

 private:
  TCollection& FCollection;
  const TLifeWatch FWatch;
};

const TClassInfo* ReadItemClass(TReader& reader, const TClassInfo* itemClass) {
  if (reader.EndOfList() || !SameText(reader.ReadPropertyName(), ItemClassName)) {
    throw EReadError(Format(SSymbolExpected, {ItemClassName}));
  }
  const QString name = reader.ReadString();
  // The collection knows its own item class, registered or not.
  if (itemClass->ClassNameIs(name)) return itemClass;
  const TClassInfo* found = FindClass(name);
  if (found->InheritsFrom(itemClass)) return found;
  throw EReadError(Format(SNoItemClass, {found->ClassName(), itemClass->ClassName()}));
}

void ReadItemsOfClasses(TReader& reader, const TCollectionBeingRead& target) {
  while (!reader.EndOfList()) {
    reader.ReadItemBegin();
    const TClassInfo* itemClass = ReadItemClass(reader, target.Get().GetItemClass());
    reader.ReadProperties(*static_cast<TCollectionItem*>(itemClass->CreateInstance(&target.Get())));
    reader.ReadListEnd();
  }
  reader.ReadListEnd();
}

}  // namespace

void TGSpecialFiler::ReadCollection(TReader& reader, TCollection& collection) {
  reader.ReadCollectionBegin();
  TCollectionBeingRead target(collection);
  const TUpdateBracket bracket(target);
  TItemsExchange formerItems(target.Get());
  try {
    ReadItemsOfClasses(reader, target);
    // Nobody is to take a collection for read that is gone.
    target.Get();
  } catch (...) {
    if (target.IsAlive()) formerItems.PutBack();
    throw;
  }
}

void TGSpecialFiler::WriteCollection(TWriter& writer, TCollection& collection) {
  writer.WriteCollectionBegin();
  for (int i = 0; i < collection.GetCount(); ++i) {
    TCollectionItem* item = collection.GetItem(i);
    writer.WriteListBegin();
    writer.WritePropertyName(ItemClassName);
    writer.WriteString(item->ClassName());
    writer.WriteProperties(*item);
    writer.WriteListEnd();
  }
  writer.WriteListEnd();
}

}  // namespace kt
