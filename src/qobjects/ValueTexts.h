#pragma once

#include <QMetaType>
#include <QString>
#include <QVariant>

namespace kt {

/// How the values of a type are written as texts and read back.
struct TTextForm {
  QString (*ToText)(const QVariant& value);
  /// Invalid for a text that is none of the type.
  QVariant (*FromText)(const QString& text, const QVariant& current);
};

/// The text form of a type, or null.
const TTextForm* FindTextForm(QMetaType type);

/// The value of type `type` that `text` stands for; `current` itself for its own text, which need not tell everything.
/// Raises EPropertyConvertError "'%s' is not a valid value of type %s".
QVariant ValueOfText(QMetaType type, const QString& text, const QVariant& current);

/// What is shown of a value that cannot be edited: its text where its type has one, the size of a picture, the name
/// or the sizes of an icon, what is in a list or map, or the name of its type in parentheses.
QString ReadOnlyText(const QVariant& value);

/// Whether two values are the same as far as can be told: for types that cannot be compared, by what is shown of them,
/// and by what pictures look like.
bool LooksSame(const QVariant& a, const QVariant& b);

}  // namespace kt
