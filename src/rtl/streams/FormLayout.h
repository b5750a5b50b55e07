#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringView>

#include <limits>
#include <span>
#include <vector>

namespace kt {

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

/// Stands for an object or number that is not there.
inline constexpr quint32 kNoPlace = std::numeric_limits<quint32>::max();

/// Where one property stands in the text of a form. All places are offsets in its bytes. A form has many of them.
struct TPropertyPlace {
  TPropertyKey Key;
  quint32 Object;     ///< The place of its object in the list of objects.
  quint32 From;       ///< The first byte of its name.
  quint32 AfterSign;  ///< Behind the equals sign.
  quint32 ValueFrom;
  quint32 To;         ///< Behind the value.
  quint32 FirstItem;  ///< Of a collection: where its items begin in the list of objects; else kNoPlace.

  bool IsCollection() const { return FirstItem != kNoPlace; }
};

/// Where one object stands, or one item of a collection.
struct TObjectPlace {
  quint32 Name;       ///< Its number; of an item kNoPlace.
  quint32 ClassName;  ///< Its number; of an item that of "item".
  quint32 From;       ///< The header.
  quint32 To;
  quint32 End;   ///< Behind its last word.
  quint32 Next;  ///< The object that follows it and all that is in it.
  quint32 FirstProperty;

  bool IsItem() const { return Name == kNoPlace; }
  bool IsSameObject(const TObjectPlace& other) const { return Name == other.Name && ClassName == other.ClassName; }
};

/// What stands where in the text of a form.
struct TFormLayout {
  std::vector<TObjectPlace> Objects;       ///< In the order of their headers.
  std::vector<TPropertyPlace> Properties;  ///< Object by object, those of one as they stand in the text.
  bool HasRawStrings = false;              ///< A string has characters beyond ASCII as they are.
  bool HasCodedStrings = false;            ///< A string has them as numbers only.

  std::span<const TPropertyPlace> PropertiesOf(std::size_t object) const;
  /// The objects below one, as places in the list; not its items.
  std::vector<quint32> ChildrenOf(std::size_t object) const;
  /// The items of a collection, as places in the list.
  std::vector<quint32> ItemsOf(const TPropertyPlace& collection) const;
};

/// `utf8` must be a form that a parser has taken. Raises EReadError when it has 4 GiB or more.
TFormLayout FindLayout(const QByteArray& utf8, TFormWords& words);

}  // namespace kt
