#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <functional>

/// How the errors of the form formats are worded: what is wrong, then where.
namespace kt {

/// The message `pattern` about `argument`: its `%s` is replaced, or its `%d` by the number that `argument` is.
QString MessageAbout(QLatin1StringView pattern, QStringView argument);

/// `name` fit to be shown on one line: what cannot be printed becomes a question mark.
QString ShownName(QStringView name);

/// "Stream read error at offset 123 (Form1.Panel1.Caption)"; the path is left out when it is empty.
QString AtOffset(const QString& what, qint64 offset, const QString& path);

/// How errors in a binary form word their place. The empty one is AtOffset(); a form that was made from text has lines.
using TPlaceWording = std::function<QString(const QString& what, qint64 offset, const QString& path)>;
QString AtPlace(const TPlaceWording& wording, const QString& what, qint64 offset, const QString& path);

/// "Identifier expected on line 3, column 7"; both are counted from 1.
QString OnLine(const QString& what, qint64 line, qint64 column);

}  // namespace kt
