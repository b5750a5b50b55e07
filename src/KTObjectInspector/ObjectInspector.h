#pragma once

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTObjectInspector/InspectorObjects.h"
#include "kt/KTObjectInspector/InspectorTypes.h"
#include "kt/KTObjectInspector/ItemProperties.h"
#include "kt/KTObjectInspector/ItemProperty.h"
#include "kt/rtl/typeinfo/TypeKind.h"

#include <QSet>

#include <memory>

namespace kt {

class TKTPropertyPreset;
class TKTPropertyPresets;
class TPropInfo;
class TStringList;

/// The messages that an inspector posts to itself.
inline constexpr quint32 KT_INVALIDATEPROPERTY = 2475;  ///< refresh all values; WParam: the item that was written
inline constexpr quint32 KT_INVALIDATESCAN = 2476;      ///< build the tree anew
inline constexpr quint32 KT_INVALIDATEVALUES = 2477;    ///< read again what objects have told to have changed

/// An item list editor that lists the published properties which all its inspected objects share, and writes what is
/// edited back into all of them.
///
/// The tree is never built inside a setter: whatever changes it posts a request, and however many there are before the
/// event queue comes to it, the tree is built once. A refresh keeps the tree and reads the values again; of objects
/// that offer IPropNotifier, each value that they tell to have changed is read again by itself. All of it works
/// without a display, with a QCoreApplication that delivers the posted requests, or by Rescan() and
/// RefreshProperties().
///
/// Inspected objects are watched, not owned. A component that dies leaves by itself; so does what an entry names as its
/// owner component. Rows that are expanded stay so across a rescan wherever there is an item of the same path again,
/// and so do the selected row and the scroll position.
class TKTCustomObjectInspector : public TKTCustomItemListEditor {
 public:
  using Inherited = TKTCustomItemListEditor;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TKTCustomObjectInspector() override;

  // What is inspected.

  TKTInspectorObjects& GetObjects() const { return *FObjects; }
  void SetObjects(TKTInspectorObjects& value);
  /// The property Component: the first inspected object when it is a component. Setting replaces that one entry, or
  /// adds the first; setting null removes the first entry that lacks an object or an owner component, if there is one,
  /// and no other.
  TComponent* GetInspectedComponent() const;
  void SetInspectedComponent(TComponent* value);

  // The tree.

  TKTItemProperties& GetItems() const { return static_cast<TKTItemProperties&>(Inherited::GetItems()); }
  void SetItems(TKTItemProperties& value);
  TKTItemProperty* GetItem(int index) const { return static_cast<TKTItemProperty*>(Inherited::GetItem(index)); }
  TKTItemProperty* GetVisibleItem(int index) const {
    return static_cast<TKTItemProperty*>(Inherited::GetVisibleItem(index));
  }
  TKTItemProperty* GetSelected() const { return static_cast<TKTItemProperty*>(Inherited::GetSelected()); }
  /// Asks for a rescan when control is back at the event queue; not while loading or being destroyed.
  void InvalidateScan();
  /// Asks for a refresh of all values, after which OnPropertyChanged tells of the item at that absolute index.
  void InvalidateProperty(int index);

  // What is listed. Whatever changes one of these asks for a rescan.

  /// Of what kinds of type properties are listed; arrays, records and dynamic arrays never are.
  TTypeKinds GetDisplayKinds() const { return FDisplayKinds; }
  void SetDisplayKinds(TTypeKinds value);
  /// Whether the items of collections are listed below them.
  bool GetInplaceCollections() const { return FInplaceCollections; }
  void SetInplaceCollections(bool value);
  /// Whether the properties of components are listed below references to them.
  bool GetInplaceComponents() const { return FInplaceComponents; }
  void SetInplaceComponents(bool value);
  /// Whether the lines of string lists are listed below them.
  bool GetInplaceTStrings() const { return FInplaceTStrings; }
  void SetInplaceTStrings(bool value);
  TInplaceTStringsOptions GetInplaceTStringsOptions() const { return FInplaceTStringsOptions; }
  void SetInplaceTStringsOptions(TInplaceTStringsOptions value);
  /// How items of collections are called: a format for their index.
  const QString& GetCollectionItemFormat() const { return FCollectionItemFormat; }
  void SetCollectionItemFormat(const QString& value);
  /// How lines of string lists are called.
  const QString& GetStringsItemFormat() const { return FStringsItemFormat; }
  void SetStringsItemFormat(const QString& value);
  /// Names or full path names of properties to hide or, with foInclusive, to keep. Empty hides nothing.
  TStringList& GetFilters() const { return *FFilters; }
  void SetFilters(TStrings& value);
  bool GetFiltersEnabled() const { return FFiltersEnabled; }
  void SetFiltersEnabled(bool value);
  TILEFilterOptions GetFilterOptions() const { return FFilterOptions; }
  void SetFilterOptions(TILEFilterOptions value);

  // How it looks.

  /// Values that differ from their declared default are drawn in ValueChangedFont.
  bool GetShowValueChangedFont() const { return FShowValueChangedFont; }
  void SetShowValueChangedFont(bool value);
  TKTCustomDeltaFont& GetValueChangedFont() const { return *FValueChangedFont; }
  void SetValueChangedFont(TFont& value);
  /// The titles of value columns are the names of the inspected objects.
  bool GetDynamicTitleCaptions() const { return FDynamicTitleCaptions; }
  void SetDynamicTitleCaptions(bool value);

  // Presets.

  TKTPropertyPresets& GetPresets() const { return *FPresets; }
  void SetPresets(TKTPropertyPresets& value);

  /// Copies what another inspector is set to, and then deliberately asks what TPersistent asks: an inspector as source
  /// ends in EConvertError unless a descendant's AssignTo() takes it.
  void Assign(TPersistent* source) override;
  QString GetCell(int col, int row) override;
  void SetArrangeByCategory(bool value) override;
  void SetDisplayOptions(TILEDisplayOptions value) override;
  void SetColumnTitles(bool value) override;
  void Dispatch(TMessage& message) override;

  TKTCustomPresetItemEvent OnCustomPreset;
  TKTCustomPresetItemQueryEvent OnMatchPreset;
  /// Before a property is written.
  TKTItemPropertyEvent OnPropertyChanging;
  /// After a property was written and all values were read again.
  TKTItemPropertyEvent OnPropertyChanged;
  /// A false result vetoes the whole scan, for a null item, or what would be listed below an item.
  TKTItemPropertyQueryEvent OnBeforeScan;
  TKTItemPropertyEvent OnAfterScan;
  TKTItemPropertyEvent OnRefreshValue;
  TNotifyEvent OnFiltersChanging;
  TNotifyEvent OnFiltersChanged;

 protected:
  friend class TKTInspectorObjects;
  friend class TKTItemProperty;
  friend class TInspectorLock;
  friend class TKTPropertyPreset;
  friend class TKTPropertyPresets;

  explicit TKTCustomObjectInspector(TComponent* owner = nullptr);

  void Construct() override;
  void BeforeDestruction() override;
  void Destruct() override;
  void DefineProperties(TFiler& filer) override;
  void Loaded() override;
  void Notification(TComponent* component, TOperation operation) override;
  void FillCategories() override;
  TEditStyle GetEditStyle(int col, int row) override;
  void FontChanged() override;
  void InternalValueFontChanged(TObject* sender) override;
  void GetOriginalFont(TObject* sender, TFont*& font) override;
  std::unique_ptr<TKTItemProps> CreateItems(TPersistent* owner) override;

  // What descendants can override, in its fixed order.

  /// The end of a scan, for a null item, or of what is listed below an item.
  virtual void AfterScan(TKTItemProperty* item);
  virtual bool BeforeScan(TKTItemProperty* item);
  /// The collection for the presets, empty; asked once, while the inspector is made.
  virtual std::unique_ptr<TKTPropertyPresets> CreatePresets();
  virtual void ChangingFilters(TObject* sender);
  virtual void ChangeFilters(TObject* sender);
  virtual void CustomPreset(TKTPropertyPreset* preset, TKTItemProperty* item);
  virtual void MatchPreset(TKTPropertyPreset* preset, TKTItemProperty* item, bool& result);
  /// Writes a text to the property that the item stands for; whether that was another text than before.
  virtual bool SetPropertyValue(TObject* instance, TKTItemProperty* item, const QString& value);
  /// The inspected objects are about to change.
  virtual void ListUpdating();
  virtual void ListUpdate(TKTInspectorObject* item);
  virtual void PresetNotify(TKTPropertyPreset* preset, TCollectionNotification action);
  virtual void PresetUpdate(TKTPropertyPreset* preset);
  /// Builds the tree of the present objects, into an empty one.
  virtual void ScanProperties();
  /// Reads the values of these items and of all below again; false when one of them leads nowhere any more.
  virtual bool UpdateProperties(TKTItemProperties& items);
  /// Writes an item that was edited to all inspected objects.
  virtual void SetProperty(TKTItemProperty* item);

 public:
  /// Reads all values again; asks for a rescan when an item leads nowhere any more.
  virtual void RefreshProperties();
  /// Builds the tree anew.
  virtual void Rescan();
  /// Adds one preset of each registered class that is missing.
  virtual void ResetDefaultPresets();
  /// Sends the selected property's object the standard message for copying.
  virtual void CopyToClipboard();
  /// Sends the selected property's object, of every inspected object in turn, the standard message for pasting.
  virtual void PasteFromClipboard();

  /// Whether ResetProperty() would do something. For objects that know the way back (IPropView) alone.
  bool CanResetProperty(TKTItemProperty& item);
  /// Gives the property the value that it had before any change, in all inspected objects or, with several value
  /// columns, in that of the current one. The handlers of a change are called as for what is typed.
  void ResetProperty(TKTItemProperty& item);

 private:
  class TScan;
  class TPropertyWatch;

  // Messages.
  void KTInvalidateProperty(const TMessage& message);
  void KTInvalidateScan();
  void KTInvalidateValues();
  void PropertyChanging(TKTItemProperty* item);
  void PropertyChanged(int index);

  // The tree.
  void BuildCommonProperties(TScan& scan, TKTInspectorObjects& objects, TKTItemProperties& props);
  void BuildElements(TScan& scan, TKTInspectorObjects& objects, TKTItemProperties& props);
  struct TListedProperty;
  void BuildProperty(TScan& scan, TKTItemProperty* item, TKTInspectorObjects& objects, const TListedProperty& listed);
  void OfferChoices(TKTItemProperty& item, TObject& object, const TPropInfo& property);
  void ListChoices(TObject* sender, const QString& path, TStrings& values);
  void FillValues(TKTItemProperty& item, TKTInspectorObjects& objects, const TPropInfo& property);
  bool IsSameInAll(TKTItemProperty& item, TKTInspectorObjects& objects, const TPropInfo& property);
  void BuildMembers(TKTItemProperty& set, TKTInspectorObjects& objects, const TPropInfo& property);
  TObject* ObjectToEnter(const TScan& scan, TObject* object, const QString& name) const;
  void BuildObjects(TScan& scan, TKTItemProperty& item, TKTInspectorObjects& objects, const QString& name);
  void BuildBelow(TScan& scan, TKTItemProperty& item, TKTInspectorObjects& objects);
  void BuildCollectionItems(TScan& scan, TKTInspectorObjects& collections, TKTItemProperty& owner);
  void BuildCollectionItemProperty(TScan& scan, TKTInspectorObjects& collections, int index, TKTItemProperty& item);
  void CopyPresetsToProperties();
  void RemoveFilterProperties();
  bool IsFiltered(TKTItemProperty& item);
  /// The object that the last name of a path belongs to, on the way from `object` along the ancestors of `item`; that
  /// name is what is left of `path`. Null when the path leads nowhere, or when a getter on it frees the item or the
  /// inspector.
  TObject* GetInstance(TObject* object, QString& path, TKTItemProperty* item) const;
  QString GetPropertyValue(TObject* instance, TKTItemProperty* item);
  QString GetPropertyValue(TObject* instance, TKTItemProperty* item, const TPropInfo* property);

  /// What the user sees of the tree, kept while it is built anew: full path names.
  struct TView {
    QSet<QString> Expanded;
    QString Top;
    QString Selected;
  };
  void KeepView();
  void RestoreExpansion();
  void RestoreView();
  void KeepSelected();

  bool IsMultiColumn() const { return GetDisplayOptions().Has(doMultiColValues); }
  bool IsUpdatingObjects() const;
  bool IsTyping() const;
  bool IsBeingTyped(const TKTItemProperty& item) const;
  void RefreshSharing(TKTItemProperty& item);
  bool RefreshMembers(TKTItemProperties& items);
  void RefreshSharedMembers(TKTItemProperty& set);
  bool IsShownOfAll(TKTItemProperty& item);
  bool RefreshItem(TKTItemProperty& item);
  bool RefreshItems(TKTItemProperties& items);
  void ReloadEditor();
  void ValueChangedFontChanged(TObject*);
  void EndScanUpdates();
  void CopyInspector(TKTCustomObjectInspector& other);
  void CopySettings(const TKTCustomObjectInspector& other);
  void LoadItemsProperty(TReader& reader);
  void StoreItemsProperty(TWriter& writer);
  QString DynamicTitle(int column) const;
  TObject* SelectedObject(int index);

  std::unique_ptr<TKTPropertyPresets> FPresets;
  std::unique_ptr<TKTInspectorObjects> FObjects;
  std::unique_ptr<TStringList> FFilters;
  std::unique_ptr<TKTCustomDeltaFont> FValueChangedFont;
  std::unique_ptr<TPropertyWatch> FWatch;
  QString FCollectionItemFormat;
  QString FStringsItemFormat;
  TView FView;
  /// The scan that is under way.
  TScan* FScan = nullptr;
  TTypeKinds FDisplayKinds;
  TInplaceTStringsOptions FInplaceTStringsOptions;
  TILEFilterOptions FFilterOptions;
  bool FIsConstructing = true;
  bool FIsScanPending = false;
  bool FIsScanPosted = false;
  /// Somebody has asked for a scan inside one.
  bool FIsScanAwaited = false;
  /// What is named now is part of a property: the member of a set, the element of a collection, a line.
  bool FIsListingParts = false;
  bool FInplaceCollections = false;
  bool FInplaceComponents = false;
  bool FInplaceTStrings = false;
  bool FFiltersEnabled = false;
  bool FShowValueChangedFont = false;
  bool FDynamicTitleCaptions = false;
};

/// The object inspector as applications place it on their forms: publishes what TKTCustomObjectInspector has.
class TKTObjectInspector : public TKTCustomObjectInspector {
 public:
  using Inherited = TKTCustomObjectInspector;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TKTObjectInspector(TComponent* owner = nullptr) : TKTCustomObjectInspector(owner) {}
};

}  // namespace kt
