#include "kt/vcl/dialogs/FileFilters.h"

namespace kt {

namespace {

QString QtPatterns(const QString& patterns) {
  QStringList result;
  for (const QString& pattern : patterns.split(u';', Qt::SkipEmptyParts)) {
    const QString trimmed = pattern.trimmed();
    // Names without a dot count as well.
    if (!trimmed.isEmpty()) result += trimmed == u"*.*" ? QStringLiteral("*") : trimmed;
  }
  return result.isEmpty() ? QStringLiteral("*") : result.join(u' ');
}

}  // namespace

QStringList QtFileFilters(const QString& filter) {
  if (filter.isEmpty()) return {};
  const QStringList parts = filter.split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i < parts.size(); i += 2) {
    filters += QStringLiteral("%1 (%2)").arg(parts[i], QtPatterns(i + 1 < parts.size() ? parts[i + 1] : QString()));
  }
  return filters;
}

}  // namespace kt
