#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace kt {

/// The header of an object or item in the text of a form, cut into its parts: `inherited`, the names, `[2]`.
struct TFormHeaderText {
  explicit TFormHeaderText(QByteArrayView header);

  bool HasSameParts(const TFormHeaderText& other) const;

  QByteArrayView Keyword;
  QByteArrayView Name;       ///< Empty where there is none.
  QByteArrayView ClassName;  ///< Empty where there is none.
  QByteArrayView Index;      ///< With its brackets; empty where there is none.
};

/// The header `original` with the parts in which `after` differs from `before`, else as it was.
QByteArray EditHeader(QByteArrayView original, QByteArrayView before, QByteArrayView after);

}  // namespace kt
