#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringView>

#include <span>
#include <vector>

namespace ktform {

/// Numbers for the names and paths of several texts, so that these are kept once and compared as numbers. ASCII letters
/// are the same in either case, as names in forms are.
class TFormWords {
 public:
  quint32 NumberOf(QStringView word);

 private:
  QHash<QString, quint32> FNumbers;
};

/// What tells a property from the others of its object.
struct TPropertyKey {
  quint32 Path;    ///< The number of the path.
  quint32 Number;  ///< Which of several with that path, from 0.

  // NOLINTNEXTLINE(modernize-use-nullptr): what the compiler writes for it compares with 0
  friend auto operator<=>(const TPropertyKey&, const TPropertyKey&) = default;
};

/// Where one property stands in the text of a form. All places are offsets in its bytes. A form has many of them.
struct TPropertyPlace {
  TPropertyKey Key;
  quint32 Object;     ///< The place of its object in the list of objects.
  quint32 From;       ///< The first byte of its name.
  quint32 AfterSign;  ///< Behind the equals sign.
  quint32 ValueFrom;
  quint32 To;         ///< Behind the value.
  bool IsCollection;  ///< The items stand in the list of objects.
};

/// Where one object stands, or one item of a collection.
struct TObjectPlace {
  quint32 Name;       ///< Its number; of an item: that of its collection's path.
  quint32 Number;     ///< Of an item: which of several collections with that path, from 1; else 0.
  quint32 ClassName;  ///< Its number; of an item: that of "item".
  quint32 From;       ///< The header.
  quint32 To;
  quint32 FirstProperty;
};

/// What stands where in the text of a form.
struct TFormLayout {
  std::vector<TObjectPlace> Objects;       ///< In the order of their headers.
  std::vector<TPropertyPlace> Properties;  ///< Object by object, those of one as they stand in the text.
  bool HasRawStrings = false;              ///< A string has characters beyond ASCII as they are.
  bool HasCodedStrings = false;            ///< A string has them as numbers only.

  std::span<const TPropertyPlace> PropertiesOf(std::size_t object) const;
};

/// `utf8` must be a form that a parser has taken. Raises EReadError when it has 4 GiB or more.
TFormLayout FindLayout(const QByteArray& utf8, TFormWords& words);

}  // namespace ktform
