#include "kt/vcl/stdctrls/MemoLines.h"

#include "kt/rtl/objects/Messages.h"

namespace kt {

void TCustomMemo::TLines::CheckIndex(int index, int count) const {
  if (index < 0 || index >= count) Error(SListIndexError, index);
}

bool TCustomMemo::TLines::HasUsualBreaks() const { return GetLineBreak() == QLatin1StringView("\r\n"); }

QString TCustomMemo::TLines::Get(int index) {
  CheckIndex(index, GetCount());
  return FMemo.FText.Line(index);
}

void TCustomMemo::TLines::Put(int index, const QString& text) {
  CheckIndex(index, GetCount());
  FMemo.ChangeText(FMemo.FText.Replacing(index, TMemoText::Normalized(text)));
}

void TCustomMemo::TLines::Insert(int index, const QString& text) {
  CheckIndex(index, GetCount() + 1);
  FMemo.ChangeText(FMemo.FText.Inserting(index, TMemoText::Normalized(text)));
}

void TCustomMemo::TLines::Delete(int index) {
  CheckIndex(index, GetCount());
  FMemo.ChangeText(FMemo.FText.Deleting(index));
}

void TCustomMemo::TLines::Clear() {
  if (FMemo.FText.Size() > 0) FMemo.ChangeText({0, FMemo.FText.Size(), {}});
}

QString TCustomMemo::TLines::GetTextStr() { return HasUsualBreaks() ? FMemo.FText.Text() : TStrings::GetTextStr(); }

void TCustomMemo::TLines::SetTextStr(const QString& text) {
  if (!HasUsualBreaks()) return TStrings::SetTextStr(text);
  const qsizetype end = text.indexOf(QChar(0));
  const QString normalized = TMemoText::Normalized(end < 0 ? text : text.left(end));
  if (normalized != FMemo.FText.Text()) FMemo.ChangeText({0, FMemo.FText.Size(), normalized});
}

}  // namespace kt
