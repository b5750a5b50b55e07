#pragma once

#include "kt/rtl/strings/StringList.h"

namespace kt {

class TKTItemProp;

/// The values of an item, a line a value column.
///
/// Reading a line brings the list to exactly as many lines as the editor has value columns, if the line is one of
/// those; nobody is told about that.
class TKTItemPropValueStrings : public TStringList {
 public:
  using Inherited = TStringList;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TKTItemProp& GetOwnerItem() const { return FItem; }
  bool GetInitializing() const { return FInitializing; }
  /// While set, changes are told to nobody.
  void SetInitializing(bool value) { FInitializing = value; }

 protected:
  explicit TKTItemPropValueStrings(TKTItemProp& item) : FItem(item) {}

  QString Get(int index) override;
  /// Stores only what differs, so that an unchanged value is no change.
  void Put(int index, const QString& text) override;
  TPersistent* GetOwner() override;
  void Changing() override;
  void Changed() override;

 private:
  void BringTo(int count);

  TKTItemProp& FItem;
  bool FInitializing = false;
};

}  // namespace kt
