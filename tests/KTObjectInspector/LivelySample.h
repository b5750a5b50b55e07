#pragma once

#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/rtl/strings/StringList.h"
#include "support/Samples.h"

#include <functional>

/// Classes whose getters, setters and names are code of an application, which may do anything when it is called: free
/// the object that is asked, the one that asks, or throw.
namespace kt::tests {

/// What happens inside such code; gets the name of what was called.
class TLively {
 public:
  using THook = std::function<void(const char*)>;

  static void SetHook(THook hook) { Hook = std::move(hook); }
  /// Nobody touches the object that was called after this.
  static void Call(const char* name) {
    const THook hook = Hook;
    if (hook) hook(name);
  }

 private:
  static inline THook Hook;
};

/// A persistent object that another one owns.
class TLivelyPart : public TPersistent {
 public:
  using Inherited = TPersistent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  int GetSize() const;
  void SetSize(int value);

 protected:
  TLivelyPart() = default;

 private:
  int FSize = 0;
};

class TLivelyItem : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  QString GetCaption() const;
  void SetCaption(const QString& value);
  QString GetDisplayName() override;

 protected:
  explicit TLivelyItem(TCollection* collection) : TCollectionItem(collection) {}

 private:
  QString FCaption = QStringLiteral("caption");
};

class TLivelyItems : public TCollection {
 public:
  using Inherited = TCollection;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  TLivelyItems() : TCollection(TLivelyItem::Class()) {}
};

/// A component that others refer to.
class TLivelyPartner : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  int GetWhole() const;
  void SetWhole(int value);

 protected:
  explicit TLivelyPartner(TComponent* owner = nullptr) : TComponent(owner) {}

 private:
  int FWhole = 0;
};

/// A component with a property of each kind that leads somewhere, and a few plain ones.
class TLivelySample : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TSampleAlign GetAlign() const;
  void SetAlign(TSampleAlign value);
  TCollection* GetItems() const;
  TStrings* GetLines() const;
  TLivelyPart* GetPart() const;
  TComponent* GetPartner() const;
  void SetPartner(TComponent* value) { FPartner = value; }
  IInterfaceComponentReference* GetReference() const;
  void SetReferred(TComponent* value) { FReferred = value; }
  TSampleStyles GetStyles() const;
  void SetStyles(TSampleStyles value);
  int GetWhole() const;
  void SetWhole(int value);
  bool IsWholeStored() const;

 protected:
  explicit TLivelySample(TComponent* owner = nullptr) : TComponent(owner) {}
  void Construct() override;

 private:
  TSampleAlign FAlign = saNone;
  TSampleStyles FStyles;
  int FWhole = 0;
  std::unique_ptr<TLivelyPart> FPart;
  std::unique_ptr<TLivelyItems> FItems;
  std::unique_ptr<TStringList> FLines;
  TObjectRef FPartner;
  TObjectRef FReferred;
};

}  // namespace kt::tests
