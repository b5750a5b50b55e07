#include "kt/rtl/strings/Strings.h"

#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <limits>

namespace kt {

const TClassInfo* TStrings::Class() {
  static const TClassInfo info = TClassBuilder<TStrings>("TStrings").Done();
  return &info;
}

void TStrings::Error(QLatin1StringView message, int data) { throw EStringListError(Format(message, {data})); }

int TStrings::Add(const QString& text) {
  const int index = GetCount();
  Insert(index, text);
  return index;
}

int TStrings::AddObject(const QString& text, TObject* object) {
  const int index = Add(text);
  PutObject(index, object);
  return index;
}

void TStrings::AddStrings(TStrings& strings) {
  const TUpdateBracket bracket(*this);
  // A list added to itself grows with each turn.
  const int most = &strings == this ? GetCount() : std::numeric_limits<int>::max();
  for (int i = 0; i < most && i < strings.GetCount(); ++i) {
    const QString text = strings.Get(i);
    AddObject(text, i < strings.GetCount() ? strings.GetObject(i) : nullptr);
  }
}

void TStrings::InsertObject(int index, const QString& text, TObject* object) {
  Insert(index, text);
  PutObject(index, object);
}

void TStrings::Put(int index, const QString& text) {
  TObject* object = GetObject(index);
  Delete(index);
  InsertObject(index, text, object);
}

void TStrings::Exchange(int first, int second) {
  const TUpdateBracket bracket(*this);
  const QString text = Get(first);
  TObject* object = GetObject(first);
  const QString otherText = Get(second);
  Put(first, otherText);
  PutObject(first, GetObject(second));
  Put(second, text);
  PutObject(second, object);
}

void TStrings::Move(int from, int to) {
  if (from == to) return;
  // Checked first: the line must not be lost on the way.
  if (to < 0 || to >= GetCount()) Error(SListIndexError, to);
  const TUpdateBracket bracket(*this);
  const QString text = Get(from);
  TObject* object = GetObject(from);
  Delete(from);
  InsertObject(to, text, object);
}

void TStrings::Assign(TPersistent* source) {
  auto* strings = dynamic_cast<TStrings*>(source);
  if (!strings) return TPersistent::Assign(source);
  if (strings == this) return;
  const TUpdateBracket bracket(*this);
  Clear();
  CopySettings(*strings);
  AddStrings(*strings);
}

bool TStrings::Equals(TStrings& strings) {
  if (&strings == this) return true;
  if (GetCount() != strings.GetCount()) return false;
  int index = 0;
  for (; index < GetCount() && index < strings.GetCount(); ++index) {
    if (Get(index) != strings.Get(index)) return false;
  }
  return index == GetCount() && index == strings.GetCount();
}

int TStrings::IndexOf(QStringView text) {
  for (int i = 0; i < GetCount(); ++i) {
    if (CompareStrings(Get(i), text) == 0) return i;
  }
  return -1;
}

int TStrings::IndexOfObject(TObject* object) {
  for (int i = 0; i < GetCount(); ++i) {
    if (GetObject(i) == object) return i;
  }
  return -1;
}

int TStrings::CompareStrings(QStringView a, QStringView b) const { return AnsiCompareText(a, b); }

void TStrings::BeginUpdate() {
  // Whoever hears of the change to come may free the list.
  const TLifeWatch self(this);
  if (FUpdateCount == 0) SetUpdateState(true);
  if (self.IsAlive()) ++FUpdateCount;
}

void TStrings::EndUpdate() {
  if (--FUpdateCount == 0) SetUpdateState(false);
}

}  // namespace kt
