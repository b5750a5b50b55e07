#include "inspectdump/InspectedText.h"

using namespace kt;

namespace {

/// A value as part of a line: line breaks show as \r and \n, and a backslash as two.
QString InOneLine(QString value) {
  value.replace(u'\\', QLatin1StringView("\\\\"));
  return value.replace(u'\r', QLatin1StringView("\\r")).replace(u'\n', QLatin1StringView("\\n"));
}

QString TextOfItems(TKTItemProperties& items, int level) {
  QString text;
  for (int i = 0; i < items.GetCount(); ++i) {
    TKTItemProperty& item = *items.GetItem(i);
    const QString indent(2 * level, u' ');
    if (item.GetCategory()) {
      text += QStringLiteral("%1[%2]\n").arg(indent, item.GetName());
    } else {
      const QString mark = item.IsModified() ? QStringLiteral("* ") : QStringLiteral("  ");
      text += QStringLiteral("%1%2%3 = %4\n").arg(indent, mark, item.GetName(), InOneLine(item.GetValueLine(0)));
    }
    if (item.HasItems()) text += TextOfItems(item.GetItems(), level + 1);
  }
  return text;
}

}  // namespace

QString TextOfProperties(TKTObjectInspector& inspector, TComponent* component, int level) {
  inspector.SetInspectedComponent(component);
  inspector.Rescan();
  return TextOfItems(inspector.GetItems(), level);
}
