#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTItemListEditor/Messages.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/vcl/grids/InplaceEdit.h"

namespace kt {

void TKTItemProp::Validate() {
  const TItemWatch self(this);
  try {
    DoValidate();
    if (self) DoValidated();
  } catch (const EAbort&) {
    throw;
  } catch (const Exception& error) {
    if (!self) throw;
    DoValidateError(error);
  }
}

void TKTItemProp::DoValidate() {
  TKTCustomItemListEditor* editor = GetEditor();
  const int column = editor ? editor->GetCurrentValueColumn() : 0;
  if (const TKTOnValidateEvent handler = GetOnValidate()) {
    handler(editor, this, column);
  } else if (editor) {
    editor->DoValidate(this, column);
  }
}

void TKTItemProp::DoValidated() {
  TKTCustomItemListEditor* editor = GetEditor();
  const int column = editor ? editor->GetCurrentValueColumn() : 0;
  if (const TKTOnValidateEvent handler = GetOnValidated()) {
    handler(editor, this, column);
  } else if (editor) {
    editor->DoValidated(this, column);
  }
}

void TKTItemProp::DoValidateError(const Exception& error) {
  TKTCustomItemListEditor* editor = GetEditor();
  const bool isOpen = editor && editor->InplaceEditor() && editor->InplaceEditor()->Visible();
  if (!isOpen) return TellValidateError(error);
  // Thrown and caught, so that whoever raises it again raises this one.
  try {
    throw ETORVException(Format(SInvalidPropValue, {GetValue(), error.Message()}));
  } catch (const ETORVException& described) {
    const TItemWatch self(this);
    editor->InplaceEditor()->Undo();
    if (self) TellValidateError(described);
  }
}

void TKTItemProp::TellValidateError(const Exception& error) {
  TKTCustomItemListEditor* editor = GetEditor();
  const int column = editor ? editor->GetCurrentValueColumn() : 0;
  if (const TKTOnValidateErrorEvent handler = GetOnValidateError()) {
    handler(editor, this, column, error);
  } else if (editor) {
    editor->DoValidateError(this, column, error);
  } else {
    throw;
  }
}

}  // namespace kt
