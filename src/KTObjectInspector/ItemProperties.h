#pragma once

#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTObjectInspector/ItemProperty.h"

namespace kt {

/// The properties of one level of an object inspector.
class TKTItemProperties : public TKTItemProps {
 public:
  using Inherited = TKTItemProps;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TKTItemProperty* GetItem(int index) const { return static_cast<TKTItemProperty*>(TKTItemProps::GetItem(index)); }
  TKTItemProperty* GetParent() const { return static_cast<TKTItemProperty*>(TKTItemProps::GetParent()); }
  TKTItemProperty* Add() { return static_cast<TKTItemProperty*>(TKTItemProps::Add()); }
  TKTItemProperty* FindItemByFullPathName(const QString& path) {
    return static_cast<TKTItemProperty*>(TKTItemProps::FindItemByFullPathName(path));
  }

 protected:
  /// `owner` is an item or an inspector, or another object, which is never told anything.
  explicit TKTItemProperties(TPersistent* owner) : TKTItemProps(owner, TKTItemProperty::Class()) {}
};

}  // namespace kt
