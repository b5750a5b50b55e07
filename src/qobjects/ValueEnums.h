#pragma once

#include "kt/rtl/typeinfo/TypeInfo.h"

#include <QMetaEnum>
#include <QMetaType>
#include <QVariant>

#include <vector>

namespace kt {

/// An enumeration of Qt's: ordinals are the places of its keys, whatever their values. A value without a key has an
/// ordinal of its own, whose name is its number.
class TQtEnumTypeInfo final : public TEnumTypeInfo {
 public:
  explicit TQtEnumTypeInfo(const QMetaEnum& enumeration);

  qint64 OrdinalOf(int value) const;
  int ValueOf(qint64 ordinal) const;
  QString NameOfUnnamed(qint64 ordinal) const override;
  qint64 OrdinalOfUnnamed(QStringView name) const override;

 private:
  std::vector<int> FValues;
};

/// Flags of Qt's as a set: its members are the keys of one bit, in their order.
class TQtFlagsTypeInfo final {
 public:
  explicit TQtFlagsTypeInfo(const QMetaEnum& flags);

  bool HasMembers() const { return !FBits.empty(); }
  const TSetTypeInfo* Set() const { return &FSet; }
  /// The members that are in `value`.
  qint64 MembersOf(int value) const;
  /// `value` with just these members; bits that no member stands for stay.
  int WithMembers(int value, qint64 members) const;

 private:
  std::vector<int> FBits;
  TEnumTypeInfo FMember;
  TSetTypeInfo FSet;
};

/// One for each enumeration, for the life of the process. For the user-interface thread.
const TQtEnumTypeInfo* EnumTypeInfoFor(const QMetaEnum& enumeration);
const TQtFlagsTypeInfo* FlagsTypeInfoFor(const QMetaEnum& flags);

/// Enumerations of 64 bits: Qt tells 32 of each key.
bool IsWideEnum(QMetaType type);
/// The keys that certainly mean what Qt tells of them: those that only one of the keys is, and that are not negative.
QStringList WideEnumKeys(const QMetaEnum& enumeration);
/// The name of such a key, else the number.
QString WideEnumText(const QMetaEnum& enumeration, const QVariant& value);
/// Raises EPropertyConvertError "Invalid property element: %s" for what is neither.
QVariant WideEnumOfText(const QMetaEnum& enumeration, QMetaType type, const QString& text);

/// The number that an enumerator or flags in a variant are; 0 for none.
int EnumNumber(const QVariant& value);
/// A number as a value of that type; where that is not known, as a number.
QVariant EnumVariant(QMetaType type, int number);

}  // namespace kt
