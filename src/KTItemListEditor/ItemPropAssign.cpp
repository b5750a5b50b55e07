#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemPropRare.h"
#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemWatch.h"

namespace kt {

void TKTItemProp::Assign(TPersistent* source) {
  auto* other = dynamic_cast<TKTItemProp*>(source);
  if (!other) return TCollectionItem::Assign(source);
  if (other == this) return;
  const TItemWatch self(this);
  const TItemWatch from(other);
  for (const TAssignStep step : AssignSteps()) {
    step(*self, *from);
    // Handlers of the changes may have freed either.
    if (!self || !from) return;
  }
  Changed(false);
}

/// One after the other, each with one call-out at most. Where nothing else is said the setter decides: it leaves a
/// target alone that is read-only already because it is disabled, for example.
std::span<const TKTItemProp::TAssignStep> TKTItemProp::AssignSteps() {
  static constexpr TAssignStep Steps[] = {
      [](TKTItemProp& to, TKTItemProp& from) {
        to.FCategory = from.FCategory;  // Told by what follows.
        to.SetDefaultCategory(from.FDefaultCategory);
      },
      [](TKTItemProp& to, TKTItemProp& from) {
        // Neither checked nor moved to its place.
        to.FName = from.FName;
        if (to.GetHint() != from.GetHint()) to.Rare().Hint = from.GetHint();
      },
      [](TKTItemProp& to, TKTItemProp& from) { to.SetReadOnly(from.IsReadOnly()); },
      [](TKTItemProp& to, TKTItemProp& from) { to.SetEditStyle(from.GetEditStyle()); },
      [](TKTItemProp& to, TKTItemProp& from) { to.SetEditMask(from.GetEditMask()); },
      [](TKTItemProp& to, TKTItemProp& from) { to.AssignPickList(from); },
      [](TKTItemProp& to, TKTItemProp& from) { to.SetExpressionMask(from.FExpressionMask); },
      [](TKTItemProp& to, TKTItemProp& from) {
        to.FExpanded = from.IsExpanded();  // The rows follow in AssignItems().
        to.SetItemObject(from.GetItemObject());
      },
      [](TKTItemProp& to, TKTItemProp& from) { to.SetTag(from.GetTag()); },
      [](TKTItemProp& to, TKTItemProp& from) { to.AssignFonts(from); },
      [](TKTItemProp& to, TKTItemProp& from) { to.AssignValues(from); },
      [](TKTItemProp& to, TKTItemProp& from) { to.AssignItems(from); }};
  return Steps;
}

void TKTItemProp::AssignPickList(TKTItemProp& source) {
  // A style for picking without anything to pick does not survive the copying of the list.
  const bool hasStyleOfList = GetEditStyle() == esPickList;
  if (HasPickList() || source.HasPickList() || hasStyleOfList) SetPickList(source.GetPickList());
}

bool TKTItemProp::HasFontObject() const { return FRare && FRare->Font; }

bool TKTItemProp::HasValueFontObject() const { return FRare && FRare->ValueFont; }

void TKTItemProp::AssignFonts(TKTItemProp& source) {
  const TItemWatch self(this);
  const TItemWatch from(&source);
  // As a category, or none any more, the item may inherit from elsewhere.
  FollowFonts();
  if (!self || !from) return;
  SetParentFont(source.FParentFont);
  if (!self || !from) return;
  if (!HasLookOf(source)) GetFont().Assign(&source.GetFont());
  if (!self || !from) return;
  SetParentValueFont(source.FParentValueFont);
  if (!self || !from) return;
  if (!HasValueLookOf(source)) GetValueFont().Assign(&source.GetValueFont());
}

namespace {

/// Null is the framework's font.
bool AreSame(const TFont* font, const TFont* other) {
  return font == other || (font && other && font->IsSameAs(*other));
}

}  // namespace

bool TKTItemProp::HasLookOf(TKTItemProp& other) {
  return AreSame(HasFontObject() ? FRare->Font.get() : FontToInherit(),
                 other.HasFontObject() ? other.FRare->Font.get() : other.FontToInherit());
}

bool TKTItemProp::HasValueLookOf(TKTItemProp& other) {
  return AreSame(HasValueFontObject() ? FRare->ValueFont.get() : ValueFontToInherit(),
                 other.HasValueFontObject() ? other.FRare->ValueFont.get() : other.ValueFontToInherit());
}

void TKTItemProp::AssignValues(TKTItemProp& source) {
  if (FValues || source.FValues) return SetValues(source.GetValues());
  FSingleValue = source.FSingleValue;
}

void TKTItemProp::AssignItems(TKTItemProp& source) {
  const TItemWatch self(this);
  const TItemWatch from(&source);
  SetVisible(source.GetVisible());
  if (!self || !from) return;
  // Also for the flags that were copied without further ado: they can mean other rows.
  VisibleChanged();
  if (!self || !from) return;
  FSortsItems = source.FSortsItems;
  if (source.FItems) {
    SetItems(*source.FItems);
  } else if (FItems) {
    SetItems(*source.MakeItems());
  } else {
    TellItemsReplaced();
  }
}

/// What the copying of no items would tell, if there were collections.
void TKTItemProp::TellItemsReplaced() {
  const TItemWatch self(this);
  TKTCustomItemListEditor* editor = GetEditor();
  if (editor && !editor->IsEditUpdateLocked()) editor->UpdatingItemProp(nullptr);
  if (self) UpdateItemProp(nullptr);
}

}  // namespace kt
