#pragma once

#include "kt/rtl/objects/Exceptions.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <functional>

/// How the errors of the form formats are worded: what is wrong, then where.
namespace kt {

/// The message `pattern` about `argument`: its `%s` is replaced, shortened, or its `%d` by the number that `argument`
/// is.
QString MessageAbout(QLatin1StringView pattern, QStringView argument);

/// `text` with at most 60 characters: a longer one keeps its begin and its end, with "..." between them. A file may
/// hold names and numbers of megabytes, and no message should.
QString Shortened(QStringView text);

/// `name` fit to be shown on one line: shortened, and what cannot be printed becomes a question mark.
QString ShownName(QStringView name);

/// "Stream read error at offset 123 (Form1.Panel1.Caption)"; the path is left out when it is empty.
QString AtOffset(const QString& what, qint64 offset, const QString& path);

/// How errors in a binary form word their place. The empty one is AtOffset(); a form that was made from text has lines.
using TPlaceWording = std::function<QString(const QString& what, qint64 offset, const QString& path)>;
QString AtPlace(const TPlaceWording& wording, const QString& what, qint64 offset, const QString& path);

/// A name that the target format cannot hold. The one who writes knows what is wrong, the one who reads knows where the
/// name came from: a parser that meets this error passes an EWriteError on that tells its own place.
class ENotStorable : public EWriteError {
 public:
  ENotStorable(const QString& what, const QString& path, const QString& message)
      : EWriteError(message), What(what), Path(path) {}

  QString What;  ///< "The name 'A-1' cannot be written as text"
  QString Path;  ///< "Form1.Panel1.Caption"
};

/// "Identifier expected on line 3, column 7"; both are counted from 1.
QString OnLine(const QString& what, qint64 line, qint64 column);

}  // namespace kt
