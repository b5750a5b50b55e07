#include "kt/qobjects/ValueEnums.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <QSet>

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <map>
#include <memory>
#include <utility>

namespace kt {

namespace {

/// The ordinals of values without key follow each other from here on, for every value of an int.
constexpr qint64 kFirstUnnamed = qint64{1} << 32;
constexpr qint64 kLastUnnamed = 2 * kFirstUnnamed - 1;

QString NameOf(const QMetaEnum& enumeration, const char* name) {
  const QString scope = QString::fromUtf8(enumeration.scope());
  return scope.isEmpty() ? QString::fromUtf8(name) : scope + QStringLiteral("::") + QString::fromUtf8(name);
}

/// Names are compared without regard to case: behind one that differs in nothing else there are underscores.
void AddKey(QStringList& keys, const char* key) {
  QString name = QString::fromUtf8(key);
  while (keys.contains(name, Qt::CaseInsensitive)) name += u'_';
  keys += name;
}

QStringList KeysOf(const QMetaEnum& enumeration) {
  QStringList keys;
  for (int i = 0; i < enumeration.keyCount(); ++i) AddKey(keys, enumeration.key(i));
  return keys;
}

/// The keys of one bit, the first of those that have the same.
std::vector<int> SingleBitKeys(const QMetaEnum& flags) {
  std::vector<int> keys;
  QSet<int> seen;
  for (int i = 0; i < flags.keyCount(); ++i) {
    const int value = flags.value(i);
    if (!std::has_single_bit(static_cast<quint32>(value)) || seen.contains(value)) continue;
    seen.insert(value);
    keys.push_back(i);
  }
  return keys;
}

std::vector<int> SingleBits(const QMetaEnum& flags) {
  std::vector<int> bits;
  for (const int key : SingleBitKeys(flags)) bits.push_back(flags.value(key));
  return bits;
}

QStringList SingleBitNames(const QMetaEnum& flags) {
  QStringList names;
  for (const int key : SingleBitKeys(flags)) AddKey(names, flags.key(key));
  return names;
}

template <class T>
const T* OnePerEnum(const QMetaEnum& enumeration) {
  static std::map<std::pair<const QMetaObject*, QByteArray>, std::unique_ptr<const T>> known;
  auto& info = known[{enumeration.enclosingMetaObject(), QByteArray(enumeration.name())}];
  if (!info) info = std::make_unique<const T>(enumeration);
  return info.get();
}

template <class T>
int NumberAt(const void* data) {
  T value;
  std::memcpy(&value, data, sizeof value);
  return static_cast<int>(value);
}

template <class T>
void PutNumber(void* data, int number) {
  const T value = static_cast<T>(number);
  std::memcpy(data, &value, sizeof value);
}

bool IsEnumeration(QMetaType type) { return type.isValid() && type.flags().testFlag(QMetaType::IsEnumeration); }

bool IsUnsigned(QMetaType type) { return type.flags().testFlag(QMetaType::IsUnsignedEnumeration); }

}  // namespace

TQtEnumTypeInfo::TQtEnumTypeInfo(const QMetaEnum& enumeration)
    : TEnumTypeInfo(NameOf(enumeration, enumeration.name()), KeysOf(enumeration)) {
  for (int i = 0; i < enumeration.keyCount(); ++i) FValues.push_back(enumeration.value(i));
}

qint64 TQtEnumTypeInfo::OrdinalOf(int value) const {
  const auto found = std::find(FValues.begin(), FValues.end(), value);
  if (found != FValues.end()) return found - FValues.begin();
  return kFirstUnnamed + value - std::numeric_limits<int>::min();
}

int TQtEnumTypeInfo::ValueOf(qint64 ordinal) const {
  if (ordinal >= 0 && static_cast<size_t>(ordinal) < FValues.size()) return FValues[static_cast<size_t>(ordinal)];
  return static_cast<int>(ordinal - kFirstUnnamed + std::numeric_limits<int>::min());
}

QString TQtEnumTypeInfo::NameOfUnnamed(qint64 ordinal) const {
  const bool isUnnamed = ordinal >= kFirstUnnamed && ordinal <= kLastUnnamed;
  return isUnnamed ? QString::number(ValueOf(ordinal)) : QString();
}

qint64 TQtEnumTypeInfo::OrdinalOfUnnamed(QStringView name) const {
  bool isNumber = false;
  const int value = name.trimmed().toInt(&isNumber);
  return isNumber ? OrdinalOf(value) : -1;
}

TQtFlagsTypeInfo::TQtFlagsTypeInfo(const QMetaEnum& flags)
    : FBits(SingleBits(flags)),
      FMember(NameOf(flags, flags.enumName()), SingleBitNames(flags)),
      FSet(NameOf(flags, flags.name()), &FMember) {}

qint64 TQtFlagsTypeInfo::MembersOf(int value) const {
  qint64 members = 0;
  for (size_t i = 0; i < FBits.size(); ++i) {
    if ((value & FBits[i]) != 0) members |= qint64{1} << i;
  }
  return members;
}

int TQtFlagsTypeInfo::WithMembers(int value, qint64 members) const {
  for (size_t i = 0; i < FBits.size(); ++i) {
    value = (members >> i & 1) != 0 ? value | FBits[i] : value & ~FBits[i];
  }
  return value;
}

const TQtEnumTypeInfo* EnumTypeInfoFor(const QMetaEnum& enumeration) {
  return OnePerEnum<TQtEnumTypeInfo>(enumeration);
}

const TQtFlagsTypeInfo* FlagsTypeInfoFor(const QMetaEnum& flags) { return OnePerEnum<TQtFlagsTypeInfo>(flags); }

bool IsWideEnum(QMetaType type) { return IsEnumeration(type) && type.sizeOf() == 8; }

QStringList WideEnumKeys(const QMetaEnum& enumeration) {
  QStringList keys;
  for (int i = 0; i < enumeration.keyCount(); ++i) {
    const int value = enumeration.value(i);
    int count = 0;
    for (int j = 0; j < enumeration.keyCount(); ++j) count += enumeration.value(j) == value;
    if (value >= 0 && count == 1) keys += QString::fromUtf8(enumeration.key(i));
  }
  return keys;
}

QString WideEnumText(const QMetaEnum& enumeration, const QVariant& value) {
  if (!IsWideEnum(value.metaType())) return QString::number(value.toLongLong());
  quint64 number = 0;
  std::memcpy(&number, value.constData(), sizeof number);
  const bool isSmall = number <= static_cast<quint64>(std::numeric_limits<int>::max());
  const char* key = isSmall ? enumeration.valueToKey(static_cast<int>(number)) : nullptr;
  if (key && WideEnumKeys(enumeration).contains(QString::fromUtf8(key))) return QString::fromUtf8(key);
  return IsUnsigned(value.metaType()) ? QString::number(number) : QString::number(static_cast<qint64>(number));
}

QVariant WideEnumOfText(const QMetaEnum& enumeration, QMetaType type, const QString& text) {
  const QString name = text.trimmed();
  bool isNumber = false;
  quint64 number = IsUnsigned(type) ? name.toULongLong(&isNumber) : static_cast<quint64>(name.toLongLong(&isNumber));
  if (!isNumber && WideEnumKeys(enumeration).contains(name)) {
    number = static_cast<quint64>(enumeration.keyToValue(name.toUtf8().constData(), &isNumber));
  }
  if (!isNumber) throw EPropertyConvertError(Format(SInvalidPropertyElement, {text}));
  QVariant value(type);
  std::memcpy(value.data(), &number, sizeof number);
  return value;
}

int EnumNumber(const QVariant& value) {
  const QMetaType type = value.metaType();
  if (!IsEnumeration(type)) return static_cast<int>(value.toLongLong());
  switch (type.sizeOf()) {
    case 1:
      return IsUnsigned(type) ? NumberAt<quint8>(value.constData()) : NumberAt<qint8>(value.constData());
    case 2:
      return IsUnsigned(type) ? NumberAt<quint16>(value.constData()) : NumberAt<qint16>(value.constData());
    case 8:
      return NumberAt<qint64>(value.constData());
    default:
      return NumberAt<qint32>(value.constData());
  }
}

QVariant EnumVariant(QMetaType type, int number) {
  if (!IsEnumeration(type)) return number;
  QVariant value(type);
  switch (type.sizeOf()) {
    case 1:
      PutNumber<qint8>(value.data(), number);
      break;
    case 2:
      PutNumber<qint16>(value.data(), number);
      break;
    case 8:
      PutNumber<qint64>(value.data(), number);
      break;
    default:
      PutNumber<qint32>(value.data(), number);
  }
  return value;
}

}  // namespace kt
