#pragma once

#include "kt/KTItemListEditor/ItemListTypes.h"
#include "kt/KTItemListEditor/ItemSpan.h"
#include "kt/rtl/collections/Collection.h"

#include <QString>

#include <memory>
#include <span>

namespace kt {

class TFont;
class TKTCustomItemListEditor;
class TKTItemProps;
class TKTItemPropValueStrings;
class TStringList;

/// An item of the item list editor: a name with one value or more, and child items.
///
/// An item belongs to one collection, which belongs to a parent item or to the editor; every change is told up that
/// chain. Without collection or editor it works all the same: paths are delimited by ".", read-only items show.
///
/// Setters do nothing when the value is the present one; texts compare with regard to case.
///
/// Cost: a leaf with a name and a value of one line takes 104 bytes and its two texts. Child collection, value list,
/// pick list, fonts, hint, mask and events take memory from their first use; nobody can tell when they come into being:
/// an item that inherits a font looks like what it inherits from, whether it was ever asked for it or not.
/// The editor and the places in its lists are found in time in proportion to the level, the places also to the
/// logarithm of the number of siblings.
class TKTItemProp : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TKTItemProp() override;

  // Where the item stands.

  TKTItemProps* GetCollection() const;
  /// When somebody who is told of it throws, the item counts where it is then: in the collection that does not let it
  /// go, or in the new one.
  void SetCollection(TCollection* value) override;
  /// The item that this one is a child of; null at the top level and outside any collection.
  TKTItemProp* GetParent() const;
  /// The editor at the root, or null.
  TKTCustomItemListEditor* GetEditor() const;
  /// The number of ancestors.
  int GetLevel() const;
  /// The position among all items of the editor, parents before their children; -1 without an editor.
  int GetAbsoluteIndex() const;
  /// The position among the rows of the editor; -1 without one, and for an item that has no row.
  int GetAbsoluteVIndex() const;
  /// The editor's, or "." without one.
  QString GetPathDelimiter() const;
  /// Name=Value, where the value is all of Values as one text.
  QString GetDisplayName() override;

  // Published properties that are plain values.

  const QString& GetName() const { return FName; }
  const QString& GetHint() const;
  bool GetReadOnly() const { return FReadOnly; }
  TEditStyle GetEditStyle() const { return static_cast<TEditStyle>(FEditStyle); }
  /// An edit mask or, with ExpressionMask, a regular expression.
  const QString& GetEditMask() const;
  bool GetExpressionMask() const { return FExpressionMask; }
  bool GetEnabled() const { return FEnabled; }
  /// The item is the header of a category.
  bool GetCategory() const { return FCategory; }
  /// The item is its collection's default category.
  bool GetDefaultCategory() const { return FDefaultCategory; }
  /// Setting it makes the item a category too.
  void SetDefaultCategory(bool value);
  bool GetParentFont() const { return FParentFont; }
  void SetParentFont(bool value);
  bool GetParentValueFont() const { return FParentValueFont; }
  void SetParentValueFont(bool value);
  /// A number for the application's use.
  int GetTag() const;
  void SetTag(int value);
  /// Not owned.
  TObject* GetItemObject() const;

  // Values.

  /// For the selected item the line of Values that belongs to the value column with the cursor; otherwise Values as one
  /// text, without what is blank at its end.
  QString GetValue();
  /// The values, a line a value column.
  TKTItemPropValueStrings& GetValues();
  void SetValues(TStrings& value);
  /// Values.Text, and Values.Strings[index], without making the list where one line does without.
  QString GetValuesText();
  void SetValuesText(const QString& value);
  QString GetValueLine(int index);
  void SetValueLine(int index, const QString& value);

  // Owned objects; setters copy.

  TKTItemProps& GetItems();
  void SetItems(TKTItemProps& value);
  /// Whether there are children; never makes the collection.
  bool HasItems() const;
  /// Whether the pick list has a line; never makes the list.
  bool HasPickList() const;
  void SetFont(TFont& value);
  void SetValueFont(TFont& value);

  // What texts are drawn with: what the getters of the same names answer, but not made for the asking. An item without
  // a font object of its own answers the one that it inherits. To look at, not to change.

  TFont& FontToDraw();
  TFont& ValueFontToDraw();
  TFont& IndividualValueFontToDraw(int index);

  // Events. A handler of the item goes before the editor's.

  TNotifyEvent GetOnEditButtonClick() const;
  void SetOnEditButtonClick(const TNotifyEvent& value);
  TKTGetPickListEvent GetOnGetPickList() const;
  void SetOnGetPickList(const TKTGetPickListEvent& value);
  TKTOnValidateEvent GetOnValidate() const;
  void SetOnValidate(const TKTOnValidateEvent& value);
  TKTOnValidateEvent GetOnValidated() const;
  void SetOnValidated(const TKTOnValidateEvent& value);
  TKTOnValidateErrorEvent GetOnValidateError() const;
  void SetOnValidateError(const TKTOnValidateErrorEvent& value);

  // Expansion and rows.

  bool IsExpanded() const { return FExpanded; }
  /// The number of rows below this item while it is shown.
  int GetVisibleChildCount();
  bool IsFontStored() const;
  bool IsValueFontStored() const { return !FParentValueFont; }

  /// Copies everything but Enabled and the events. A disabled source arrives as read-only, names are not checked for
  /// uniqueness and nothing moves. Fonts come after ParentFont and ParentValueFont: a look that is not the present one
  /// becomes the item's own.
  void Assign(TPersistent* source) override;

  /// What the item takes in the lists that it counts in.
  TItemSpan Span() const;

 protected:
  explicit TKTItemProp(TCollection* collection);

  void Construct() override;
  /// Deep inside other destructions everything below goes at once, from the leaves, and without a word to anybody
  /// above.
  void BeforeDestruction() override;
  void Destruct() override;

  // What descendants can override, in its fixed order.

  /// Before a change: the editor hides its in-place editor.
  virtual void Changing();
  /// Runs OnValidate, or the editor's.
  virtual void DoValidate();
  virtual void DoValidated();
  virtual void DoValidateError(const Exception& error);
  /// Visibility or expansion has changed, here or below.
  virtual void VisibleChanged();

 public:
  /// The names of the ancestors and of this item, with the path delimiter between.
  virtual QString GetFullPathName();
  /// Overrides of the fonts' getters are asked while a cell is painted: they change no font that they find.
  virtual TFont& GetFont();
  virtual TFont& GetValueFont();
  /// The font of one value column; the same for all, here.
  virtual TFont& GetIndividualValueFont(int index);
  virtual TStringList& GetPickList();
  /// ReadOnly, or not enabled.
  virtual bool IsReadOnly() const { return FReadOnly || !FEnabled; }
  virtual bool GetVisible() const { return FVisible; }
  /// Whether the item would have a row if all its ancestors were expanded and had one. Categories show although they
  /// are read-only.
  virtual bool IsVisibleItem();

 protected:
  /// Takes the item to the category and place where one of that name belongs.
  virtual void MoveProp(const QString& newName);
  /// The part of MoveProp() that stays within the level.
  void MoveToSortedPlace(const QString& newName);

 public:
  /// The font of `source`, or with null the editor's, has changed; followed while ParentFont.
  virtual void ParentFontChanged(TKTItemProp* source);
  virtual void ParentValueFontChanged();

 protected:
  /// Keeps the edit style in step with whether there is anything to pick.
  virtual void PickListChange(TObject* sender);
  /// An item entered or leaves this item's subtree.
  virtual void ItemNotify(TKTItemProp* item, TCollectionNotification action);

 public:
  /// A read-only item comes to have a row by that, or loses it: VisibleChanged() is told then, too.
  virtual void SetCategory(bool value);
  /// Raises ETORVException "Property name is not unique: %s" while the editor wants unique names.
  virtual void SetName(const QString& value);
  virtual void SetHint(const QString& value);
  virtual void SetReadOnly(bool value);
  virtual void SetVisible(bool value);
  virtual void SetEditStyle(TEditStyle value);
  virtual void SetEditMask(const QString& value);
  virtual void SetPickList(TStrings& value);
  /// As with SetReadOnly(), VisibleChanged() is told where read-only items have no row.
  virtual void SetEnabled(bool value);
  virtual void SetExpressionMask(bool value);
  virtual void SetExpanded(bool value);
  virtual void SetItemObject(TObject* value);
  virtual void SetValue(const QString& value);

 protected:
  /// A change at or below this item is on its way up; null stands for a structural one.
  virtual void UpdateItemProp(TKTItemProp* item);

 public:
  /// Copies OnEditButtonClick, OnGetPickList and OnValidate, and deliberately no other event.
  virtual void AssignEvents(TPersistent* source);
  virtual void Collapse();
  virtual void Expand();
  virtual void FullCollapse();
  virtual void FullExpand();
  virtual bool HasVisibleChildren();
  virtual bool IsExpandable();
  /// Whether the item has a row: it and all its ancestors want one, and those are expanded. The rows themselves follow
  /// WantsRow(), which is what to override for other rows.
  virtual bool IsVisible();
  /// Whether there is nothing but blanks in Values.
  virtual bool IsValuesEmpty();
  /// Runs the events of validation. EAbort passes untouched, other exceptions go to DoValidateError().
  virtual void Validate();

 protected:
  /// Makes the child collection of an item that was made without an editor; it stays of this kind when the item comes
  /// to one later. For others the editor that the item is in at the first use of its children makes it.
  virtual std::unique_ptr<TKTItemProps> CreateItems();
  /// Whether the item asks for a row of its own, its ancestors left aside. The rows follow this; tell VisibleChanged()
  /// when the answer becomes another one.
  virtual bool WantsRow() { return IsVisibleItem(); }
  /// Hands an error of validation to the item's handler, or the editor's.
  void TellValidateError(const Exception& error);
  /// Items, as they are streamed.
  TKTItemProps& GetPublishedItems();

 private:
  friend class TItemRows;
  friend class TKTCustomItemListEditor;
  friend class TKTItemProps;
  friend class TKTItemPropValueStrings;
  struct TRare;

  /// What few items have.
  TRare& Rare();
  TKTItemProps& EnsureItems();
  std::unique_ptr<TKTItemProps> MakeItems();
  std::unique_ptr<TKTItemPropValueStrings> MakeValues();
  void FreeItemsFromLeaves();
  void LeaveSilently();
  void TellItemsReplaced();
  // What is published. An item that is written for the first time does not keep the lists that it is asked for.
  TKTItemPropValueStrings& GetPublishedValues();
  template <class T, class F>
  T* StandIn(F make);
  void FontChanged(TObject* sender);
  void ValuesChanged(TObject*);
  void TellParentFontChanged(TKTItemProp* source);
  void TellParentValueFontChanged();
  bool HasFontObject() const;
  bool HasValueFontObject() const;
  TFont* FontToInherit() { return FontToInherit(FCategory); }
  TFont* FontToInherit(bool asCategory);
  TFont* ValueFontToInherit();
  bool HasLookOf(TKTItemProp& other);
  bool HasValueLookOf(TKTItemProp& other);
  template <class F>
  TFont& Look(F get);
  void TellFontSet(const TFont& font, const TFont* inherited);
  void TellOwnFonts(TKTCustomItemListEditor& editor);
  void FollowFont();
  void FollowValueFont();
  void FollowFonts();
  struct TLooks;
  void InvalidateRow();
  void SetExpandedFlag(bool value);
  template <void (TKTItemProp::*Change)()>
  void ChangeFully(bool isExpanded);
  int CountVisibleChildren();
  using TAssignStep = void (*)(TKTItemProp& to, TKTItemProp& from);
  static std::span<const TAssignStep> AssignSteps();
  void AssignPickList(TKTItemProp& source);
  void AssignFonts(TKTItemProp& source);
  void AssignValues(TKTItemProp& source);
  void AssignItems(TKTItemProp& source);

  QString FName;
  /// The only line of Values while there is no list; null stands for no line.
  QString FSingleValue;
  std::unique_ptr<TKTItemPropValueStrings> FValues;
  std::unique_ptr<TKTItemProps> FItems;
  std::unique_ptr<TRare> FRare;
  /// The rows that the item has taken in the list of rows, with those below it; 0 while it is not in there.
  int FRows = 0;
  bool FReadOnly : 1 = false;
  bool FVisible : 1 = false;
  bool FExpressionMask : 1 = false;
  bool FExpanded : 1 = false;
  bool FParentFont : 1 = true;
  bool FParentValueFont : 1 = true;
  bool FEnabled : 1 = true;
  bool FCategory : 1 = false;
  bool FDefaultCategory : 1 = false;
  /// Sorted of the child collection, while there is none.
  bool FSortsItems : 1 = false;
  /// Counts in its collection's sums.
  bool FIsCounted : 1 = false;
  bool FIsDying : 1 = false;
  /// Made outside any editor.
  bool FIsMadeAlone : 1 = false;
  /// Fonts are asked for to look at, not to change.
  bool FIsLooking : 1 = false;
  unsigned FEditStyle : 2 = esSimple;
};

}  // namespace kt
