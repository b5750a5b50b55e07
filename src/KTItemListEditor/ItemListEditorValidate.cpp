// How an item list editor has typed values accepted or refused.
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/grids/InplaceEdit.h"

namespace kt {

void TKTCustomItemListEditor::Validate() { DoValidate(); }

void TKTCustomItemListEditor::DoValidate() {
  if (!InplaceEditor() || !InplaceEditor()->IsModified()) return;
  TKTItemProp* item = FindItemProp(GetCol(), GetRow(), true);
  {
    // What was refused has been taken back: there is nothing left to validate in either case.
    struct TDone {
      TKTCustomItemListEditor& Editor;
      TLifeWatch Watch{&Editor};
      ~TDone() {
        if (Watch.IsAlive() && Editor.InplaceEditor()) Editor.InplaceEditor()->SetModified(false);
      }
    } done{*this};
    if (item) item->Validate();
  }
  if (!item) ValidateBlank();
}

void TKTCustomItemListEditor::ValidateBlank() {
  try {
    DoValidated(nullptr, 0);
  } catch (const Exception& error) {
    DoValidateError(nullptr, 0, error);
  }
}

void TKTCustomItemListEditor::DoValidate(TKTItemProp* item, int column) { OnValidate(this, item, column); }

void TKTCustomItemListEditor::DoValidated(TKTItemProp* item, int column) { OnValidated(this, item, column); }

void TKTCustomItemListEditor::DoValidateError(TKTItemProp* item, int column, const Exception& error) {
  if (!OnValidateError) throw;
  OnValidateError(this, item, column, error);
}

}  // namespace kt
