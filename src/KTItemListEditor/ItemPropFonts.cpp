#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemPropRare.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/objects/Make.h"

#include <deque>
#include <vector>

namespace kt {

// An item without a font object of its own looks as the item or editor looks that it inherits from, which is what its
// object would be a copy of.

TFont* TKTItemProp::FontToInherit(bool asCategory) {
  for (TKTItemProp* parent = GetParent(); parent; parent = parent->GetParent()) {
    // A category's font reaches categories only, and an item's passes by categories.
    if (parent->FCategory == asCategory && parent->FRare && parent->FRare->Font) return parent->FRare->Font.get();
  }
  TKTCustomItemListEditor* editor = GetEditor();
  if (!editor) return nullptr;
  return asCategory ? &editor->GetCategoryFont() : &editor->GetFont();
}

TFont* TKTItemProp::ValueFontToInherit() {
  for (TKTItemProp* parent = GetParent(); parent; parent = parent->GetParent()) {
    if (parent->FRare && parent->FRare->ValueFont) return parent->FRare->ValueFont.get();
  }
  TKTCustomItemListEditor* editor = GetEditor();
  return editor ? &editor->GetValueFont() : nullptr;
}

TFont& TKTItemProp::GetFont() {
  if (!HasFontObject()) {
    TFont* source = FParentFont ? FontToInherit() : nullptr;
    if (FIsLooking && source) return *source;
    auto font = Make<TFont>();
    if (source) font->Assign(source);
    font->OnChange = {this, &TKTItemProp::FontChanged};
    Rare().Font = std::move(font);
  }
  return *Rare().Font;
}

TFont& TKTItemProp::GetValueFont() {
  if (!HasValueFontObject()) {
    TFont* source = FParentValueFont ? ValueFontToInherit() : nullptr;
    if (FIsLooking && source) return *source;
    auto font = Make<TFont>();
    if (source) font->Assign(source);
    font->OnChange = {this, &TKTItemProp::FontChanged};
    Rare().ValueFont = std::move(font);
  }
  return *Rare().ValueFont;
}

TFont& TKTItemProp::GetIndividualValueFont(int) { return GetValueFont(); }

/// The getters can be overridden, and so have to be asked themselves.
template <class F>
TFont& TKTItemProp::Look(F get) {
  // An override that asks others for what decides may lose the item on the way.
  struct TLooking {
    TItemWatch Item;
    bool Before = Item->FIsLooking;
    ~TLooking() {
      if (Item) Item->FIsLooking = Before;
    }
  } looking{TItemWatch(this)};
  FIsLooking = true;
  return get();
}

TFont& TKTItemProp::FontToDraw() {
  return Look([this]() -> TFont& { return GetFont(); });
}

TFont& TKTItemProp::ValueFontToDraw() {
  return Look([this]() -> TFont& { return GetValueFont(); });
}

TFont& TKTItemProp::IndividualValueFontToDraw(int index) {
  return Look([this, index]() -> TFont& { return GetIndividualValueFont(index); });
}

void TKTItemProp::SetFont(TFont& value) { GetFont().Assign(&value); }

void TKTItemProp::SetValueFont(TFont& value) { GetValueFont().Assign(&value); }

void TKTItemProp::FontChanged(TObject* sender) {
  const TItemWatch self(this);
  if (sender != FRare->Font.get()) {
    FParentValueFont = false;
    TellParentValueFontChanged();
    if (self) TellFontSet(*FRare->ValueFont, ValueFontToInherit());
  } else {
    FParentFont = false;
    TellParentFontChanged(this);
    if (self) TellFontSet(*FRare->Font, FontToInherit());
  }
  if (self) InvalidateRow();
  if (self) Changed(false);
}

/// What looks like what it would inherit is no news: that follows it, or may do so.
void TKTItemProp::TellFontSet(const TFont& font, const TFont* inherited) {
  TKTCustomItemListEditor* editor = GetEditor();
  if (editor && !(inherited && font.IsSameAs(*inherited))) editor->ItemFontSet(font);
}

void TKTItemProp::TellOwnFonts(TKTCustomItemListEditor& editor) {
  const TItemWatch self(this);
  if (!FParentFont && HasFontObject()) editor.ItemFontSet(*FRare->Font);
  if (self && !FParentValueFont && HasValueFontObject()) editor.ItemFontSet(*FRare->ValueFont);
}

void TKTItemProp::TellParentFontChanged(TKTItemProp* source) {
  const TItemWatch self(this);
  for (int i = 0; self && FItems && i < FItems->GetCount(); ++i) FItems->GetItem(i)->ParentFontChanged(source);
}

void TKTItemProp::TellParentValueFontChanged() {
  const TItemWatch self(this);
  for (int i = 0; self && FItems && i < FItems->GetCount(); ++i) FItems->GetItem(i)->ParentValueFontChanged();
}

void TKTItemProp::ParentFontChanged(TKTItemProp* source) {
  if (!FParentFont || source == this) return;
  if (source && source->FCategory != FCategory) return TellParentFontChanged(source);
  TKTCustomItemListEditor* editor = source ? nullptr : GetEditor();
  if (!source && !editor) return;
  // Without a font object nothing changes here, but there may be one below.
  if (!FRare || !FRare->Font) return TellParentFontChanged(this);
  FollowFont();
}

void TKTItemProp::ParentValueFontChanged() {
  if (!FParentValueFont) return;
  TKTItemProp* parent = GetParent();
  TKTCustomItemListEditor* editor = parent ? nullptr : GetEditor();
  if (!parent && !editor) return;
  if (!FRare || !FRare->ValueFont) return TellParentValueFontChanged();
  FollowValueFont();
}

// What inherits looks like its source, also after that has become another one.

void TKTItemProp::FollowFont() {
  TFont* source = FParentFont && HasFontObject() ? FontToInherit() : nullptr;
  if (!source) return;
  const TItemWatch self(this);
  FRare->Font->Assign(source);
  // The copy counted as a change of its own.
  if (self) FParentFont = true;
}

void TKTItemProp::FollowValueFont() {
  TFont* source = FParentValueFont && HasValueFontObject() ? ValueFontToInherit() : nullptr;
  if (!source) return;
  const TItemWatch self(this);
  FRare->ValueFont->Assign(source);
  if (self) FParentValueFont = true;
}

/// For this item and all below it, parents first.
void TKTItemProp::FollowFonts() {
  std::deque<TItemWatch> withFonts;
  std::vector<TKTItemProp*> open = {this};
  while (!open.empty()) {
    TKTItemProp& item = *open.back();
    open.pop_back();
    if (item.HasFontObject() || item.HasValueFontObject()) withFonts.emplace_back(&item);
    for (int i = item.FItems ? item.FItems->GetCount() : 0; i > 0; --i) open.push_back(item.FItems->GetItem(i - 1));
  }
  for (const TItemWatch& item : withFonts) {
    if (item) item->FollowFont();
    if (item) item->FollowValueFont();
    TKTCustomItemListEditor* editor = item ? item->GetEditor() : nullptr;
    if (editor) item->TellOwnFonts(*editor);
  }
}

void TKTItemProp::SetParentFont(bool value) {
  if (FParentFont == value) return;
  // What it looks like now is its own from here on.
  GetFont();
  FParentFont = value;
  const TItemWatch self(this);
  TKTCustomItemListEditor* editor = GetEditor();
  if (editor) TellOwnFonts(*editor);
  if (self) ParentFontChanged(this);
}

void TKTItemProp::SetParentValueFont(bool value) {
  if (FParentValueFont == value) return;
  GetValueFont();
  FParentValueFont = value;
  const TItemWatch self(this);
  TKTCustomItemListEditor* editor = GetEditor();
  if (editor) TellOwnFonts(*editor);
  if (self) ParentValueFontChanged();
}

bool TKTItemProp::IsFontStored() const {
  if (!FParentFont) return true;
  const TKTItemProp* parent = GetParent();
  return parent && parent->FCategory != FCategory;
}

}  // namespace kt
