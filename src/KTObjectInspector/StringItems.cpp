#include "kt/KTObjectInspector/StringItems.h"

#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTObjectInspector/UpdateLock.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/TextCompare.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/rtl/strings/StringList.h"

#include <algorithm>

namespace kt {

namespace {

constexpr char16_t kLineTypeName[] = u"TStrings Item";

/// The property whose lines these are: items in between are parts of a name that holds the path delimiter.
TKTItemProperty* OwnerOfLines(const TKTItemProperty& line) {
  TKTItemProperty* owner = line.GetParent();
  while (owner && IsStringItem(*owner)) owner = owner->GetParent();
  return owner;
}

TStrings* LinesIn(const TObjectRef& list) { return static_cast<TStrings*>(list.Get()); }

/// The lists that an item stands for: that of `instance`, or of all objects where the path to the item names no object.
/// Getters and handlers of changes may free what they belong to.
std::vector<TObjectRef> ListsOf(TObject* line, TObject* instance) {
  if (auto* lines = dynamic_cast<TStrings*>(instance)) return {TObjectRef(lines)};
  const auto* item = dynamic_cast<TKTItemProperty*>(line);
  TKTItemProperty* owner = item ? OwnerOfLines(*item) : nullptr;
  const TKTCustomObjectInspector* inspector = owner ? owner->GetEditor() : nullptr;
  const TItemWatch watchOfOwner(owner);
  const TLifeWatch watchOfInspector(inspector);
  std::vector<TObjectRef> lists;
  for (int i = 0; watchOfOwner && watchOfInspector.IsAlive() && i < inspector->GetObjects().GetCount(); ++i) {
    if (auto* lines = dynamic_cast<TStrings*>(owner->GetObjectProperty(i))) lists.emplace_back(lines);
  }
  return lists;
}

/// The first list, or null.
TStrings* FirstListOf(TObject* line, TObject* instance) {
  const auto lists = ListsOf(line, instance);
  return lists.empty() ? nullptr : LinesIn(lists[0]);
}

/// A whole line, by its number.
void LetEditLine(TKTItemProperty& item, int index) {
  item.SetOnGetProperty([index](TObject* sender, TObject* instance, const QString&, QString& value) {
    TStrings* lines = FirstListOf(sender, instance);
    value = lines && index < lines->GetCount() ? lines->GetStrings(index) : QString();
  });
  item.SetOnSetProperty([index](TObject* sender, TObject* instance, const QString&, const QString& value) {
    for (const TObjectRef& list : ListsOf(sender, instance)) {
      TStrings* lines = LinesIn(list);
      // Where there is no such line, there is nothing to write to.
      if (lines && index < lines->GetCount()) lines->SetStrings(index, value);
    }
  });
}

/// The line of a name: that of the number while it has the name, as names may come again, or else the first.
int LineOf(TStrings& lines, const QString& name, int index) {
  const bool isHere = index < lines.GetCount() && lines.GetNames(index) == name;
  return isHere ? index : lines.IndexOfName(name);
}

/// The value of a name.
void LetEditValue(TKTItemProperty& item, const QString& name, int index) {
  item.SetOnGetProperty([name, index](TObject* sender, TObject* instance, const QString&, QString& value) {
    TStrings* lines = FirstListOf(sender, instance);
    const int line = lines ? LineOf(*lines, name, index) : -1;
    value = line < 0 ? QString() : lines->GetValueFromIndex(line);
  });
  item.SetOnSetProperty([name, index](TObject* sender, TObject* instance, const QString&, const QString& value) {
    for (const TObjectRef& list : ListsOf(sender, instance)) {
      TStrings* lines = LinesIn(list);
      if (!lines) continue;
      // A value that is emptied stays a line.
      const int line = LineOf(*lines, name, index);
      const QString text = name + lines->GetNameValueSeparator() + value;
      if (line >= 0) {
        lines->SetStrings(line, text);
      } else {
        lines->Add(text);
      }
    }
  });
}

void MarkAsLine(TKTItemProperty* item, const TKTItemProperty& owner) {
  for (; item && item != &owner && !IsStringItem(*item); item = item->GetParent()) {
    item->SetTypeName(QString::fromUtf16(kLineTypeName));
    item->SetRealPropName(item->GetName());
    item->SetAllEqual(true);
  }
}

/// Whether all lists hold `text` as that line, or as the value of that name.
bool IsInAll(const std::vector<TObjectRef>& lists, int index, const QString& name, const QString& text) {
  return std::all_of(lists.begin(), lists.end(), [&](const TObjectRef& list) {
    TStrings* lines = LinesIn(list);
    if (!lines) return false;
    const int line = name.isEmpty() ? index : LineOf(*lines, name, index);
    if (line < 0 || line >= lines->GetCount()) return false;
    return AnsiSameText(name.isEmpty() ? lines->GetStrings(line) : lines->GetValueFromIndex(line), text);
  });
}

}  // namespace

bool IsStringItem(const TKTItemProperty& item) { return item.GetTypeName() == kLineTypeName; }

void BuildTStringsItemProperties(TKTItemProperty& item, const std::vector<TObjectRef>& lists,
                                 TInplaceTStringsOptions options, const QString& format) {
  TStrings& lines = *LinesIn(lists[0]);
  TKTItemProperties& items = item.GetItems();
  items.SetSorted(options.Has(isSort));
  TLevelUpdate level(items);
  const TUpdateBracket bracket(level);
  const TLifeWatch watchOfLines(&lines);
  // Lines that are the items of the inspector itself become more meanwhile.
  const int count = lines.GetCount();
  for (int i = 0; i < std::min(count, lines.GetCount()); ++i) {
    const QString name = options.Has(isUseNameValue) ? lines.GetNames(i) : QString();
    TKTItemProperty* line = nullptr;
    if (name.isEmpty()) {
      line = items.Add();
      line->SetName(Format(format, {i}));
      LetEditLine(*line, i);
    } else {
      line = static_cast<TKTItemProperty*>(items.AddFullPath(name, QString(), true));
      if (line) LetEditValue(*line, name, i);
    }
    if (!line || !level.IsAlive() || !watchOfLines.IsAlive()) return;
    MarkAsLine(line, item);
    const QString text = name.isEmpty() ? lines.GetStrings(i) : lines.GetValueFromIndex(i);
    line->SetAllEqual(IsInAll(lists, i, name, text));
    line->SetValueLine(0, text);
    if (!level.IsAlive() || !watchOfLines.IsAlive()) return;
  }
}

}  // namespace kt
