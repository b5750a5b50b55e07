// The keys of TKTInplaceEditList.
#include "kt/KTItemListEditor/DropDownList.h"
#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/vcl/controls/VirtualKeys.h"

namespace kt {

namespace {

bool IsWordCharacter(QChar c) {
  return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

int NextWord(const QString& text, int caret) {
  const int size = static_cast<int>(text.size());
  while (caret < size && IsWordCharacter(text[caret])) ++caret;
  while (caret < size && !IsWordCharacter(text[caret])) ++caret;
  return caret;
}

int PreviousWord(const QString& text, int caret) {
  // Deliberately not the character right before the caret: a word of that alone is stepped over.
  int index = caret - 2;
  while (index >= 0 && !IsWordCharacter(text[index])) --index;
  while (index >= 0 && IsWordCharacter(text[index])) --index;
  return index < 0 ? 0 : index + 1;
}

}  // namespace

bool TKTInplaceEditList::WantsKey(quint16 key) {
  // An open list has Enter and Escape, before a form can close by them.
  if (FListVisible && (key == VK_RETURN || key == VK_ESCAPE)) return true;
  return TInplaceEdit::WantsKey(key);
}

void TKTInplaceEditList::DoDropDownKeys(quint16& key, TShiftState shift) {
  const bool isAlt = shift.Has(ssAlt);
  const quint16 pressed = key;
  if (isAlt && (pressed == VK_UP || pressed == VK_DOWN)) {
    // Used whatever comes of it, an exception as well.
    key = 0;
    if (FListVisible) {
      CloseUp(true);
    } else {
      DropDown();
    }
  } else if (!isAlt && FListVisible && (pressed == VK_RETURN || pressed == VK_ESCAPE)) {
    key = 0;
    CloseUp(pressed == VK_RETURN);
  }
}

/// Keys that the grid gets: the text has to be in order then.
bool TKTInplaceEditList::IsGridKey(quint16 key, TShiftState shift) {
  switch (key) {
    case VK_TAB:
      return !shift.Has(ssAlt);
    case VK_INSERT:
      return shift.IsEmpty();
    case VK_ESCAPE:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_UP:
    case VK_DOWN:
    case VK_RETURN:
      return true;
    default:
      return false;
  }
}

/// Whether Ctrl and an arrow move in the text rather than from cell to cell.
bool TKTInplaceEditList::MovesByWord(quint16 key, TShiftState shift) const {
  if (!shift.Has(ssCtrl) || !GetGrid().GetOptions().Has(goAlwaysShowEditor)) return false;
  const int size = static_cast<int>(WindowText().size());
  const int start = GetSelStart();
  const int end = start + GetSelLength();
  if (key == VK_LEFT) return !(GetCaretPos() == 0 && start == 0 && (end == 0 || end == size));
  if (key == VK_RIGHT) return !(GetCaretPos() == size && (start == 0 || start == end) && end == size);
  return false;
}

void TKTInplaceEditList::ArrowKeys(quint16 key, TShiftState shift) {
  if (!shift.Has(ssCtrl)) return;
  const int caret = GetCaretPos();
  const int target = key == VK_LEFT ? PreviousWord(WindowText(), caret) : NextWord(WindowText(), caret);
  if (!shift.Has(ssShift)) return SetSelStart(target);
  const int start = GetSelStart();
  const int fixed = caret == start ? start + GetSelLength() : start;
  Select(fixed, target);
}

void TKTInplaceEditList::KeyDown(quint16& key, TShiftState shift) {
  if (IsGridKey(key, shift)) CheckAndSync();
  if (key == VK_RETURN) {
    // Deliberately with Ctrl as well: the action of an ellipsis button is not to be had by this key.
    GetGrid().KeyDown(key, shift);
    key = 0;
  } else if (MovesByWord(key, shift)) {
    ArrowKeys(key, shift);
    key = 0;
  } else {
    TInplaceEdit::KeyDown(key, shift);
  }
}

}  // namespace kt
