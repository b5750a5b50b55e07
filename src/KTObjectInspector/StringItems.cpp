#include "kt/KTObjectInspector/StringItems.h"

#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ItemProperties.h"
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

TStrings* LinesIn(const TObjectRef& list) { return static_cast<TStrings*>(list.Get()); }

/// A whole line, by its number.
void LetEditLine(TKTItemProperty& item, int index) {
  item.SetOnGetProperty([index](TObject*, TObject* instance, const QString&, QString& value) {
    auto* lines = dynamic_cast<TStrings*>(instance);
    value = lines && index < lines->GetCount() ? lines->GetStrings(index) : QString();
  });
  item.SetOnSetProperty([index](TObject*, TObject* instance, const QString&, const QString& value) {
    auto* lines = dynamic_cast<TStrings*>(instance);
    // Where there is no such line, there is nothing to write to.
    if (lines && index < lines->GetCount()) lines->SetStrings(index, value);
  });
}

/// The line of a name: that of the number while it has the name, as names may come again, or else the first.
int LineOf(TStrings& lines, const QString& name, int index) {
  const bool isHere = index < lines.GetCount() && lines.GetNames(index) == name;
  return isHere ? index : lines.IndexOfName(name);
}

/// A value that is emptied stays a line.
void SetValueOf(TStrings& lines, const QString& name, int index, const QString& value) {
  const int line = LineOf(lines, name, index);
  const QString text = name + lines.GetNameValueSeparator() + value;
  if (line >= 0) {
    lines.SetStrings(line, text);
  } else {
    lines.Add(text);
  }
}

/// The value of a name.
void LetEditValue(TKTItemProperty& item, const QString& name, int index) {
  item.SetOnGetProperty([name, index](TObject*, TObject* instance, const QString&, QString& value) {
    auto* lines = dynamic_cast<TStrings*>(instance);
    const int line = lines ? LineOf(*lines, name, index) : -1;
    value = line < 0 ? QString() : lines->GetValueFromIndex(line);
  });
  item.SetOnSetProperty([name, index](TObject*, TObject* instance, const QString&, const QString& value) {
    if (auto* lines = dynamic_cast<TStrings*>(instance)) SetValueOf(*lines, name, index, value);
  });
}

/// The item of a line, and those in between where its name holds the path delimiter.
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
  const TUpdateBracket level(items);
  const TLifeWatch watchOfLines(&lines);
  // Lines that are the items of the inspector itself become more meanwhile.
  const int count = lines.GetCount();
  for (int i = 0; i < std::min(count, lines.GetCount()); ++i) {
    const QString name = options.Has(isUseNameValue) ? lines.GetNames(i) : QString();
    TKTItemProperty* line = nullptr;
    if (name.isEmpty()) {
      line = items.Add();
      const TItemWatch watched(line);
      if (line) line->SetName(Format(format, {i}));
      if (!watched) return;
      LetEditLine(*line, i);
    } else {
      line = static_cast<TKTItemProperty*>(items.AddFullPath(name, QString(), true));
      if (line) LetEditValue(*line, name, i);
    }
    if (!line || !level.IsAlive() || !watchOfLines.IsAlive()) return;
    MarkAsLine(line, item);
    // Lists may be of classes of the application's, which may do anything when they are read.
    const TItemWatch watched(line);
    const QString text = name.isEmpty() ? lines.GetStrings(i) : lines.GetValueFromIndex(i);
    const bool isInAll = IsInAll(lists, i, name, text);
    if (!watched) return;
    line->SetAllEqual(isInAll);
    if (watched) line->SetValueLine(0, text);
    if (!level.IsAlive() || !watchOfLines.IsAlive()) return;
  }
}

}  // namespace kt
