#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <vector>

namespace ktform {

/// Where one property stands in the text of a form. All places are offsets in its bytes.
struct TPropertyPlace {
  /// The path in lower case, and which of several with that path in the object.
  QString Key;
  qsizetype From;       ///< The first byte of its name.
  qsizetype AfterSign;  ///< Behind the equals sign.
  qsizetype ValueFrom;
  qsizetype To;       ///< Behind the value.
  bool IsCollection;  ///< The items stand in the list of objects.
};

/// Where one object stands, or one item of a collection.
struct TObjectPlace {
  QString Name;       ///< Of an item: the key of its collection.
  QString ClassName;  ///< Of an item: "item".
  qsizetype From;     ///< The header.
  qsizetype To;
  std::vector<TPropertyPlace> Properties;
  QHash<QString, qsizetype> IndexOfKey;
  QHash<QString, int> CountOfPath;

  /// Null when the object has no such property.
  const TPropertyPlace* FindProperty(const QString& key) const;
};

/// What stands where in the text of a form.
struct TFormLayout {
  std::vector<TObjectPlace> Objects;  ///< In the order of their headers.
  bool HasRawStrings = false;         ///< A string has characters beyond ASCII as they are.
  bool HasCodedStrings = false;       ///< A string has them as numbers only.
};

/// `utf8` must be a form that a parser has taken.
TFormLayout FindLayout(const QByteArray& utf8);

}  // namespace ktform
