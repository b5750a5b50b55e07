#pragma once

#include "kt/KTItemListEditor/ItemListTypes.h"
#include "kt/KTObjectInspector/InspectorTypes.h"
#include "kt/KTPropertyPresets/PresetTypes.h"
#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/typeinfo/TypeKind.h"

#include <QString>

#include <memory>

namespace kt {

class TFont;
class TKTCustomDeltaFont;
class TKTCustomObjectInspector;
class TKTItemProperty;
class TStringList;
class TStrings;

/// A rule of an object inspector: for every item that passes its tests, what the item is to look like and how it is
/// edited.
///
/// Belongs to the presets of an inspector, TKTPropertyPresets, and works without one too: then nothing is asked of an
/// inspector, and tests that need one fail. Needs neither display nor application object.
///
/// Setters do nothing when the value is the present one, texts compared with regard to case, and else tell the
/// collection. Many also keep Actions or MatchTypes in step, as told at each; whoever wants another choice makes it
/// afterwards.
///
/// Lists are owned and never replaced: setting one copies the lines. Events are plain values, whose change nobody is
/// told. What an item gets of them it keeps, so a handler that is a method of the preset runs with the preset as its
/// object and the item, or the inspector, as Sender. When the preset leaves the inspector, the items give such handlers
/// back.
class TKTPropertyPreset : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TKTPropertyPreset() override;

  // What is published, in its order.

  /// Inactive presets are passed over.
  bool GetActive() const { return FActive; }
  void SetActive(bool value);
  /// The tests, all of which an item has to pass. With none of them nothing matches.
  TKTPresetMatchTypes GetMatchTypes() const { return FMatchTypes; }
  void SetMatchTypes(TKTPresetMatchTypes value);
  /// For mtPropertyType. Exactly tkUnknown stands for any type.
  TTypeKinds GetTypeKinds() const { return FTypeKinds; }
  void SetTypeKinds(TTypeKinds value);
  /// For mtPropertyType: the names that the type, or an ancestor of a class, may have; any without lines. Lines switch
  /// the test on, and without lines it is switched off; so with the other lists.
  TStrings& GetTypeNames() const;
  void SetTypeNames(TStrings& value);
  /// For mtClassName, which they switch; any without lines.
  TStrings& GetParentClassNames() const;
  void SetParentClassNames(TStrings& value);
  /// Includes pftAlias, or excludes it when empty.
  const QString& GetAlias() const { return FAlias; }
  void SetAlias(const QString& value);
  /// False matches what does not pass the tests: everything when there are none.
  bool GetInclusive() const { return FInclusive; }
  void SetInclusive(bool value);
  /// Follows the inspector's Font but for what was changed here, which includes pftFont.
  TFont& GetFont() const;
  void SetFont(TFont& value);
  /// The same for the inspector's ValueFont and pftValueFont.
  TFont& GetValueFont() const;
  void SetValueFont(TFont& value);
  const QString& GetName() const { return FName; }
  void SetName(const QString& value);
  /// For mtPropertyName, which they switch, and for mtFullPropertyName, which stays as chosen.
  TStrings& GetPropNames() const;
  void SetPropNames(TStrings& value);
  /// For mtParentPropertyName, which they switch, and for mtParentFullPropertyName, which stays as chosen.
  TStrings& GetParentPropNames() const;
  void SetParentPropNames(TStrings& value);
  /// For mtParentPropertyType, as TypeKinds.
  TTypeKinds GetParentTypeKinds() const { return FParentTypeKinds; }
  void SetParentTypeKinds(TTypeKinds value);
  /// For mtParentPropertyType, which they switch, as TypeNames.
  TStrings& GetParentTypeNames() const;
  void SetParentTypeNames(TStrings& value);
  /// Includes pftHint, or excludes it when empty.
  const QString& GetHint() const { return FHint; }
  void SetHint(const QString& value);
  /// Includes pftEditStyle.
  TEditStyle GetEditStyle() const { return FEditStyle; }
  void SetEditStyle(TEditStyle value);
  /// Includes pftEditMask, or excludes it when empty.
  const QString& GetEditMask() const { return FEditMask; }
  void SetEditMask(const QString& value);

  /// For pftCustom; the inspector's is asked without it.
  TKTItemPropertyEvent OnCustomPreset;
  /// Has the last word on a match; the inspector's is asked without it.
  TKTItemPropertyQueryEvent OnMatchPreset;
  /// What items get with esEllipsis.
  TNotifyEvent OnEditButtonClick;
  /// What items get with esPickList.
  TKTGetPickListEvent OnGetPickList;
  // What items get with pftValidate.
  TKTItemGetPropertyEvent OnGetProperty;
  TKTItemSetPropertyEvent OnSetProperty;
  TKTOnValidateEvent OnValidate;
  TKTOnValidateEvent OnValidated;
  TKTOnValidateErrorEvent OnValidateError;

  /// Made at first use. Lines turn esSimple into esPickList, and without lines esPickList becomes esSimple.
  TStrings& GetPickList();
  void SetPickList(TStrings& value);
  TKTPropertyPresetTypes GetActions() const { return FActions; }
  /// Deliberately silent, and without effect, for both of pftReadOnly and pftWritable, or of pftVisible and pftHidden.
  void SetActions(TKTPropertyPresetTypes value);

  // Operations.

  /// The inspector whose presets this one is among, or null.
  TKTCustomObjectInspector* GetInspector() const;
  /// Whether the pick list has a line; never makes the list.
  bool HasPickList() const;
  /// The item that a handler was called for: `sender` if it is one, else the inspector's item of that full path name;
  /// or null.
  TKTItemProperty* GetItemProperty(TObject* sender, const QString& propName) const;

  /// Copies another preset, then tells of one change. Deliberately leaves OnCustomPreset and OnMatchPreset as they are.
  /// Nothing is switched on or off meanwhile.
  void Assign(TPersistent* source) override;
  /// Name, if there is one.
  QString GetDisplayName() override;

  /// The inspector's Font or ValueFont has changed: what is not this preset's own follows. Nobody's choice, so Actions
  /// stay.
  void InspectorFontChanged();
  void InspectorValueFontChanged();

 protected:
  explicit TKTPropertyPreset(TCollection* collection);

  void Construct() override;
  void DefineProperties(TFiler& filer) override;
  /// To an item: CopyPreset().
  void AssignTo(TPersistent* dest) override;

  // What descendants can override, in its fixed order.

  /// The lines of a list of names have changed.
  virtual void StringsChange(TObject* sender);
  virtual void PickListChange(TObject* sender);

 public:
  /// Applies Actions to an item: alias, access, visibility, hint, edit style, mask, validation, the two fonts, and the
  /// custom action at the end. Stops when a handler frees the item or the preset.
  virtual void CopyPreset(TKTItemProperty* item);
  /// Whether the item passes the tests. False too when a handler frees the item or the preset.
  virtual bool Matches(TKTItemProperty* item);

 private:
  friend class TKTPropertyPresets;

  // Keeping in step.
  std::unique_ptr<TStringList> MakeNames();
  void MakeFonts();
  template <class V>
  void Store(V& field, const V& value);
  void StoreText(QString& field, const QString& value, TKTPropertyPresetType action);
  void UpdateMatchTypes(TStringList& list, TKTPresetMatchType type);
  void FontChanged(TObject* sender);
  void Follow(TKTCustomDeltaFont& font, TFont& base);
  void GetOriginalFont(TObject* sender, TFont*& font);

  // Copying.
  void AssignValues(const TKTPropertyPreset& source);
  void AssignEvents(const TKTPropertyPreset& source);
  void AssignLists(TKTPropertyPreset& source);

  // Matching.
  bool PassesTests(TKTItemProperty* item);
  bool PassesNames(TKTItemProperty* item);
  bool PassesTypes(TKTItemProperty* item);
  bool PassesClass(TKTItemProperty* item);
  bool PassesParentTypes(TKTItemProperty* item);
  bool PassesParentNames(TKTItemProperty* item);
  bool HasType(TKTItemProperty* item, TTypeKinds kinds, TStringList& names);

  // Applying.
  void CopyAlias(TKTItemProperty& item);
  void CopyReadOnly(TKTItemProperty& item);
  void CopyVisible(TKTItemProperty& item);
  void CopyHint(TKTItemProperty& item);
  void CopyEditStyle(TKTItemProperty& item);
  void CopyPickList(TKTItemProperty& item);
  void CopyEditMask(TKTItemProperty& item);
  void CopyValidation(TKTItemProperty& item);
  void CopyFont(TKTItemProperty& item);
  void CopyValueFont(TKTItemProperty& item);
  void RunCustom(TKTItemProperty& item);
  template <class E>
  const E& Lent(const E& event);
  void TakeBackHandlers();

  QString FAlias;
  QString FName;
  QString FHint;
  QString FEditMask;
  std::unique_ptr<TStringList> FPropNames;
  std::unique_ptr<TStringList> FTypeNames;
  std::unique_ptr<TStringList> FParentClassNames;
  std::unique_ptr<TStringList> FParentPropNames;
  std::unique_ptr<TStringList> FParentTypeNames;
  std::unique_ptr<TStringList> FPickList;
  std::unique_ptr<TKTCustomDeltaFont> FFont;
  std::unique_ptr<TKTCustomDeltaFont> FValueFont;
  TTypeKinds FTypeKinds;
  TTypeKinds FParentTypeKinds;
  TKTPresetMatchTypes FMatchTypes;
  TKTPropertyPresetTypes FActions;
  TEditStyle FEditStyle = esSimple;
  bool FActive = true;
  bool FInclusive = true;
  /// Another preset is being copied: lists and fonts change without a word.
  bool FIsAssigning = false;
  /// A font is following the inspector's.
  bool FIsFollowing = false;
  /// Items have a handler that is a method of this preset.
  bool FHasLentHandlers = false;
};

}  // namespace kt
