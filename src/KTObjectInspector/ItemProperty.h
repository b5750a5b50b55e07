#pragma once

#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/KTObjectInspector/InspectorTypes.h"
#include "kt/rtl/conversions/Variant.h"
#include "kt/rtl/typeinfo/TypeKind.h"

#include <memory>
#include <optional>
#include <vector>

namespace kt {

class IInterface;
class TClassInfo;
class TKTCustomObjectInspector;
class TKTItemProperties;
class TPropInfo;
class TReader;
class TWriter;

/// A row of the object inspector: a published property of the inspected objects, or an element below one, such as the
/// member of a set, the item of a collection or the line of a string list.
///
/// Knows the property by name and type, keeps one raw value for each inspected object that has a value column, and
/// shows them as text. What is typed goes back into the objects once it is validated.
///
/// An index of a value means the inspected object of that number. -1 means the object of the value column that holds
/// the cursor.
class TKTItemProperty : public TKTItemProp {
 public:
  using Inherited = TKTItemProp;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TKTItemProperty() override;

  // Where the item stands.

  /// The inspector at the root, or null.
  TKTCustomObjectInspector* GetEditor() const;
  /// Null at the top level.
  TKTItemProperty* GetParent() const;
  TKTItemProperties& GetItems();
  void SetItems(TKTItemProperties& value);
  /// The names of the properties that lead to this one, with the path delimiter between.
  QString GetFullPathPropName() const;
  /// The nearest item above that plays that part, or null.
  TKTItemProperty* GetParentItem(TKTPropertyKind kind) const;
  /// The nearest item above whose type is of that kind and, unless `typeName` is empty, of that name without regard to
  /// case; or null.
  TKTItemProperty* GetParentItem(TTypeKind kind, const QString& typeName) const;

  // What the item stands for.

  /// The property's own name, whatever the item is called.
  const QString& GetRealPropName() const { return FRealPropName; }
  const QString& GetTypeName() const { return FTypeName; }
  TTypeKind GetTypeKind() const { return FTypeKind; }
  TKTPropertyKind GetPropertyKind() const { return FPropertyKind; }
  /// Whether the item is a published property of the inspected objects.
  bool IsRealProperty() const { return FIsRealProperty; }
  /// The raw values, one for each value column of the inspector; those that are not known are Unassigned.
  std::vector<Variant>& GetRealValues();

  TKTItemGetPropertyEvent GetOnGetProperty() const;
  void SetOnGetProperty(const TKTItemGetPropertyEvent& value);
  TKTItemSetPropertyEvent GetOnSetProperty() const;
  void SetOnSetProperty(const TKTItemSetPropertyEvent& value);
  TKTItemPropertyEvent GetOnRefreshValue() const;
  void SetOnRefreshValue(const TKTItemPropertyEvent& value);

  /// Copies what the item stands for, then what the inherited one copies.
  void Assign(TPersistent* source) override;
  /// Copies OnSetProperty, OnGetProperty and OnRefreshValue too.
  void AssignEvents(TPersistent* source) override;
  TFont& GetIndividualValueFont(int index) override;
  /// Sets are edited through their members.
  bool IsReadOnly() const override;
  void SetName(const QString& value) override;
  /// Read-only properties show when the inspector shows those; sets, objects and what is no plain property always.
  bool IsVisibleItem() override;
  /// Whether the value of any inspected object differs from the declared default.
  bool IsModified();

 protected:
  explicit TKTItemProperty(TCollection* collection);

  void DefineProperties(TFiler& filer) override;
  void DoValidated() override;
  void DoValidateError(const Exception& error) override;
  std::unique_ptr<TKTItemProps> CreateItems() override;
  /// Only properties go to categories: members, elements and lines stay with what they are part of.
  void MoveProp(const QString& newName) override;

  // What descendants can override, in its fixed order.

 public:
  /// Whether the inspected objects show the same value.
  virtual bool IsAllEqual() const { return FAllEqual; }
  /// Whether no raw value is incomparable with the first: what is less or greater counts as equal.
  virtual bool IsAllValuesEqual();
  /// Whether the value of that object is stored and differs from the declared default. Texts always differ.
  virtual bool IsModified(int index);
  virtual void SetAllEqual(bool value);
  virtual void SetRealPropName(const QString& value);
  virtual void SetTypeKind(TTypeKind value);
  virtual void SetTypeName(const QString& value);
  /// Deliberately replaces a value only when that is Unassigned or cannot be compared with the new one. Raises
  /// EListError for an index without a value.
  virtual void SetRealValues(int index, const Variant& value);
  virtual void SetPropertyKind(TKTPropertyKind value);
  virtual void SetIsRealProperty(bool value);

 protected:
  /// Makes a set of its members' texts and writes it. Deliberately takes every member with the name of a truth value,
  /// be it True or False; raises EPropertyConvertError "Invalid property element: %s" for any other text.
  virtual void UpdateChildProperty(TKTItemProperty* child);

 public:
  // Reading raises ETORVException "Item "%s" is not a real property" for other items, and answers zero or null without
  // an inspector. Writing with an index other than -1 writes to that object alone; with -1 to all objects or, in the
  // mode of several value columns, to that of the current one. For items that are no real property writing shows the
  // value as their text.
  virtual double GetFloatProperty(int index);
  virtual qint64 GetInt64Property(int index);
  virtual IInterface* GetInterfaceProperty(int index);
  virtual TMethod GetMethodProperty(int index);
  /// For an element of a collection, that element.
  virtual TObject* GetObjectProperty(int index);
  /// The class that the property declares. Raises as reading does.
  virtual const TClassInfo* GetObjectPropertyClass();
  virtual qint64 GetOrdProperty(int index);
  /// For items that are no real property, their Value.
  virtual QString GetStringProperty(int index);
  virtual Variant GetVariantProperty(int index);
  virtual void SetFloatProperty(double value, int index);
  virtual void SetInt64Property(qint64 value, int index);
  virtual void SetInterfaceProperty(IInterface* value, int index);
  virtual void SetMethodProperty(const TMethod& value, int index);
  virtual void SetObjectProperty(TObject* value, int index);
  virtual void SetOrdProperty(qint64 value, int index);
  virtual void SetStringProperty(const QString& value, int index);
  virtual void SetVariantProperty(const Variant& value, int index);

  /// Writes the item's text to the inspected objects; a member of a set has its set written.
  virtual void UpdateProperty();
  /// Reads the values anew. False when the path to an object leads nowhere any more.
  virtual bool RefreshValue();

 private:
  friend class TKTCustomObjectInspector;
  struct TEvents;

  TEvents& Events();
  void RequireReal() const;
  TObject* HolderOf(int index, QString& name);
  template <class T, class F>
  T ReadProperty(int index, F read);
  template <class F>
  void WriteProperty(int index, TTypeKind kind, const QString& text, F write);
  bool IsWrittenBy(int object, int index) const;
  bool RefreshValues(TKTCustomObjectInspector& inspector);
  bool RefreshValueOf(TKTCustomObjectInspector& inspector, int index);
  QString MemberText(int index);
  int ElementNumber(int index);
  TCollectionItem* ElementIn(TObject* instance, int index);
  void TellRefreshed();
  bool HasRefreshableValue() const;
  bool IsInPlaceAsLast(const QString& newName) const;
  bool IsModifiedIn(TObject* instance, int index);
  void MarkChanged(int index, TObject* instance, const TPropInfo& property);
  template <class F>
  void ChangeRole(F change);
  void LoadTypeDataProperty(TReader& reader);
  void StoreTypeDataProperty(TWriter& writer);
  void LoadAllEqualProperty(TReader& reader);
  void StoreAllEqualProperty(TWriter& writer);
  TKTItemProperties& GetPublishedProperties();

  QString FRealPropName;
  QString FTypeName;
  std::vector<Variant> FRealValues;
  std::unique_ptr<TEvents> FEvents;
  /// Whether the values of objects that know that themselves (IPropView) are changed ones: as of when they were read,
  /// since painting must not call getters.
  std::vector<std::optional<bool>> FMarks;
  TTypeKind FTypeKind = tkUnknown;
  TKTPropertyKind FPropertyKind = pkNormal;
  bool FAllEqual = false;
  bool FIsRealProperty = false;
};

}  // namespace kt
