#include "kt/vcl/menus/ShortCut.h"

#include "kt/rtl/typeinfo/TypeInfo.h"
#include "kt/vcl/controls/VirtualKeys.h"

#include <limits>

namespace kt {

namespace {

struct TKeyName {
  quint16 Key;
  const char* Name;
};

constexpr TKeyName kNames[] = {
    {VK_BACK, "BkSp"},  {VK_TAB, "Tab"},     {VK_ESCAPE, "Esc"}, {VK_RETURN, "Enter"}, {VK_SPACE, "Space"},
    {VK_PRIOR, "PgUp"}, {VK_NEXT, "PgDn"},   {VK_END, "End"},    {VK_HOME, "Home"},    {VK_LEFT, "Left"},
    {VK_UP, "Up"},      {VK_RIGHT, "Right"}, {VK_DOWN, "Down"},  {VK_INSERT, "Ins"},   {VK_DELETE, "Del"},
};

QString KeyName(quint16 key) {
  for (const TKeyName& name : kNames) {
    if (name.Key == key) return QLatin1String(name.Name);
  }
  if ((key >= '0' && key <= '9') || (key >= 'A' && key <= 'Z')) return QChar(key);
  if (key >= VK_F1 && key < VK_F1 + 24) return QStringLiteral("F%1").arg(key - VK_F1 + 1);
  return {};
}

}  // namespace

const TTypeInfo* ShortCutTypeInfo() {
  static const TOrdTypeInfo info(tkInteger, QStringLiteral("TShortCut"), otUWord, 0,
                                 std::numeric_limits<quint16>::max());
  return &info;
}

TShortCut ShortCut(quint16 key, TShiftState shift) {
  if (key > 255) return scNone;
  int result = key;
  if (shift.Has(ssShift)) result |= scShift;
  if (shift.Has(ssCtrl)) result |= scCtrl;
  if (shift.Has(ssAlt)) result |= scAlt;
  return static_cast<TShortCut>(result);
}

QString ShortCutToText(TShortCut shortCut) {
  const QString name = KeyName(shortCut & 0xFF);
  if (name.isEmpty()) return {};
  QString text;
  if (shortCut & scShift) text += QStringLiteral("Shift+");
  if (shortCut & scCtrl) text += QStringLiteral("Ctrl+");
  if (shortCut & scAlt) text += QStringLiteral("Alt+");
  return text + name;
}

TShortCut TextToShortCut(const QString& text) {
  QString rest = text;
  int held = 0;
  const auto take = [&](QLatin1String prefix, TShortCut bit) {
    if (!rest.startsWith(prefix, Qt::CaseInsensitive)) return false;
    rest.remove(0, prefix.size());
    held |= bit;
    return true;
  };
  while (take(QLatin1String("Shift+"), scShift) || take(QLatin1String("Ctrl+"), scCtrl) ||
         take(QLatin1String("Alt+"), scAlt)) {
  }
  for (quint16 key = 1; key <= 255; ++key) {
    const QString name = KeyName(key);
    if (!name.isEmpty() && name.compare(rest, Qt::CaseInsensitive) == 0) return static_cast<TShortCut>(key | held);
  }
  return scNone;
}

}  // namespace kt
