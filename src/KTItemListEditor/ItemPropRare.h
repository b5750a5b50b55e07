#pragma once

#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/vcl/graphics/Font.h"

namespace kt {

/// What few items have: made at the first use of any of it.
struct TKTItemProp::TRare {
  QString Hint;
  QString EditMask;
  std::unique_ptr<TStringList> PickList;
  std::unique_ptr<TFont> Font;
  std::unique_ptr<TFont> ValueFont;
  TObject* ItemObject = nullptr;
  int Tag = 0;
  TNotifyEvent OnEditButtonClick;
  TKTGetPickListEvent OnGetPickList;
  TKTOnValidateEvent OnValidate;
  TKTOnValidateEvent OnValidated;
  TKTOnValidateErrorEvent OnValidateError;
};

}  // namespace kt
