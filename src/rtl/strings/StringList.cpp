#include "kt/rtl/strings/StringList.h"

#include "kt/rtl/collections/StableSort.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <numeric>

namespace kt {

const TClassInfo* TStringList::Class() {
  static const TClassInfo info = TClassBuilder<TStringList>("TStringList").Creatable().Done();
  return &info;
}

void TStringList::CheckIndex(int index) const {
  if (index < 0 || index >= FLines.Count()) Error(SListIndexError, index);
}

void TStringList::CheckNotSorted() const {
  if (FSorted) Error(SSortedListError, 0);
}

int TStringList::AddObject(const QString& text, TObject* object) {
  int index = FLines.Count();
  if (FSorted && Find(text, index)) {
    if (FDuplicates == dupIgnore) return index;
    if (FDuplicates == dupError) Error(SDuplicateString, 0);
  }
  InsertItem(index, text, object);
  return index;
}

void TStringList::InsertObject(int index, const QString& text, TObject* object) {
  CheckNotSorted();
  if (index < 0 || index > FLines.Count()) Error(SListIndexError, index);
  InsertItem(index, text, object);
}

void TStringList::InsertItem(int index, const QString& text, TObject* object) {
  // A copy: the handler may free what the caller's text belongs to.
  const QString kept = text;
  Changing();
  if (index > FLines.Count()) Error(SListIndexError, index);
  FLines.Insert(index, kept, object);
  Changed();
}

void TStringList::Delete(int index) {
  CheckIndex(index);
  Changing();
  CheckIndex(index);
  FLines.Remove(index);
  Changed();
}

void TStringList::Clear() {
  if (FLines.Count() == 0) return;
  Changing();
  FLines.Clear();
  Changed();
}

void TStringList::Exchange(int first, int second) {
  CheckIndex(first);
  CheckIndex(second);
  Changing();
  CheckIndex(first);
  CheckIndex(second);
  FLines.Exchange(first, second);
  Changed();
}

void TStringList::Move(int from, int to) {
  if (from != to) CheckNotSorted();
  TStrings::Move(from, to);
}

int TStringList::IndexOf(QStringView text) {
  if (!FSorted) return TStrings::IndexOf(text);
  int index = -1;
  return Find(text, index) ? index : -1;
}

bool TStringList::Find(QStringView text, int& index) const {
  int low = 0;
  int high = FLines.Count();
  bool found = false;
  while (low < high) {
    const int middle = low + (high - low) / 2;
    const int order = CompareStrings(FLines.Text(middle), text);
    if (order == 0) found = true;
    if (order < 0) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  index = low;
  return found;
}

void TStringList::Sort() {
  CustomSort([](TStringList* list, int first, int second) {
    return list->CompareStrings(list->FLines.Text(first), list->FLines.Text(second));
  });
}

void TStringList::CustomSort(const TStringListSortCompare& compare) {
  if (FSorted || FLines.Count() < 2) return;
  Changing();
  std::vector<int> order(static_cast<size_t>(FLines.Count()));
  std::iota(order.begin(), order.end(), 0);
  StableSort(order, [this, &compare](int first, int second) { return compare(this, first, second); });
  // A comparison that adds or removes lines.
  if (static_cast<int>(order.size()) != FLines.Count()) Error(SListCountError, FLines.Count());
  FLines.Permute(order);
  Changed();
}

void TStringList::SetCapacity(int value) {
  if (value < FLines.Count()) Error(SListCapacityError, value);
  FLines.SetCapacity(value);
}

void TStringList::SetSorted(bool value) {
  if (FSorted == value) return;
  if (value) Sort();
  FSorted = value;
}

void TStringList::SetCaseSensitive(bool value) {
  if (FCaseSensitive == value) return;
  FCaseSensitive = value;
  if (!FSorted) return;
  FSorted = false;
  SetSorted(true);
}

QString TStringList::Get(int index) {
  CheckIndex(index);
  return FLines.Text(index);
}

void TStringList::Put(int index, const QString& text) {
  CheckNotSorted();
  CheckIndex(index);
  const QString kept = text;
  Changing();
  CheckIndex(index);
  FLines.SetText(index, kept);
  Changed();
}

TObject* TStringList::GetObject(int index) const {
  CheckIndex(index);
  return FLines.Object(index);
}

void TStringList::PutObject(int index, TObject* object) {
  CheckIndex(index);
  Changing();
  CheckIndex(index);
  FLines.SetObject(index, object);
  Changed();
}

void TStringList::SetUpdateState(bool updating) {
  if (updating) {
    Changing();
  } else {
    Changed();
  }
}

int TStringList::CompareStrings(QStringView a, QStringView b) const {
  return FCaseSensitive ? AnsiCompareStr(a, b) : AnsiCompareText(a, b);
}

void TStringList::Changing() {
  if (GetUpdateCount() == 0) OnChanging(this);
}

void TStringList::Changed() {
  if (GetUpdateCount() == 0) OnChange(this);
}

}  // namespace kt
