#include "kt/vcl/comctrls/StatusPanels.h"

#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/comctrls/StatusBar.h"

namespace kt {

const TClassInfo* TStatusPanel::Class() {
  using T = TStatusPanel;
  static const TClassInfo info = TClassBuilder<T>("TStatusPanel")
                                     .Property<&T::GetAlignment, &T::SetAlignment>("Alignment")
                                     .Default(taLeftJustify)
                                     .Property<&T::GetBevel, &T::SetBevel>("Bevel")
                                     .Default(pbLowered)
                                     .Property<&T::GetBiDiMode, &T::SetBiDiMode>("BiDiMode")
                                     .Stored(&T::IsBiDiModeStored)
                                     .Property<&T::IsParentBiDiMode, &T::SetParentBiDiMode>("ParentBiDiMode")
                                     .Default(true)
                                     .Property<&T::GetStyle, &T::SetStyle>("Style")
                                     .Default(psText)
                                     .Property<&T::GetText, &T::SetText>("Text")
                                     .Property<&T::GetWidth, &T::SetWidth>("Width")
                                     .Creatable()
                                     .Done();
  return &info;
}

TBiDiMode TStatusPanel::GetBiDiMode() const {
  const auto* panels = FParentBiDiMode ? dynamic_cast<const TStatusPanels*>(GetCollection()) : nullptr;
  return panels ? panels->FBar.GetBiDiMode() : FBiDiMode;
}

void TStatusPanel::SetBiDiMode(TBiDiMode value) {
  if (FBiDiMode == value && !FParentBiDiMode) return;
  FBiDiMode = value;
  FParentBiDiMode = false;
  Changed(false);
}

QString TStatusPanel::GetDisplayName() { return FText.isEmpty() ? TCollectionItem::GetDisplayName() : FText; }

void TStatusPanel::Assign(TPersistent* source) {
  const auto* other = dynamic_cast<TStatusPanel*>(source);
  if (!other) return TCollectionItem::Assign(source);
  FText = other->FText;
  FWidth = other->FWidth;
  FAlignment = other->FAlignment;
  FBevel = other->FBevel;
  FBiDiMode = other->FBiDiMode;
  FStyle = other->FStyle;
  FParentBiDiMode = other->FParentBiDiMode;
  Changed(false);
}

const TClassInfo* TStatusPanels::Class() {
  static const TClassInfo info = TClassBuilder<TStatusPanels>("TStatusPanels").Done();
  return &info;
}

TStatusPanels::TStatusPanels(TCustomStatusBar& bar) : TCollection(TStatusPanel::Class()), FBar(bar) {}

TPersistent* TStatusPanels::GetOwner() { return &FBar; }

void TStatusPanels::Update(TCollectionItem* item) {
  if (item) return FBar.UpdatePanel(item->GetIndex());
  FBar.UpdatePanels();
}

}  // namespace kt
