// The regular expression of TKTInplaceEditList.
#include "kt/KTItemListEditor/DropDownList.h"
#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/KTItemListEditor/Messages.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"

#include <QScopedValueRollback>

namespace kt {

bool TKTInplaceEditList::ValidateExpression() {
  if (!HandleAllocated() || GetExpression().isEmpty()) return true;
  return FMatcher->Match(u'\n' + GetText() + u'\r') > 0;
}

void TKTInplaceEditList::RaiseExpressionError() {
  // Deliberately two placeholders for one text: Format() finds that out first, and nothing is taken back.
  const QString message = Format(SInvalidPropValue, {GetText()});
  Undo();
  throw Exception(message);
}

bool TKTInplaceEditList::MatchesWhole() {
  int length = 0;
  return FMatcher->Match(GetText(), 1, length) == 1 && length == GetText().size();
}

void TKTInplaceEditList::CMTextChanged(TMessage& message) {
  // Texts on the way back to an accepted one are nobody's business.
  if (FIsTakingBack) return;
  const TLifeWatch self(this);
  TInplaceEdit::CMTextChanged(message);
  if (!self.IsAlive() || FIsFillingIn || GetExpression().isEmpty()) return;
  // What cannot be undone was not typed.
  if (CanUndo() && !MatchesWhole()) return TakeTypingBack();
  FAcceptedText = GetText();
  FAcceptedCaret = GetCaretPos();
}

void TKTInplaceEditList::TakeTypingBack() {
  {
    const QScopedValueRollback takingBack(FIsTakingBack, true);
    Undo();
    // Undoing can take back more than the last character.
    if (GetText() != FAcceptedText) {
      SelectAll();
      SetSelText(FAcceptedText);
      Select(FAcceptedCaret, FAcceptedCaret);
    }
  }
  TMessage changed{CM_TEXTCHANGED, kTextHasChanged, 0, 0};
  TInplaceEdit::CMTextChanged(changed);
}

/// What every key does first that leaves the text.
void TKTInplaceEditList::CheckAndSync() {
  if (!ValidateExpression()) RaiseExpressionError();
  if (FPickListLoaded && FEditStyle == esPickList) {
    TCustomListBox& list = GetPickList();
    list.SetItemIndex(list.GetItems().IndexOf(GetText()));
  }
}

}  // namespace kt
