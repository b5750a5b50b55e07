#pragma once

#include "kt/rtl/typeinfo/TypeKind.h"

#include <QString>
#include <QStringList>
#include <QUuid>

namespace kt {

class TClassInfo;
class TMethod;
class TObject;

/// A type that published properties can have: its kind, its declared name and, in the descendants, what belongs to the
/// kind. A type of a kind that has a descendant must be one: whoever needs what belongs to the kind raises
/// EPropertyError "Invalid property type: %s" otherwise. Immutable. Type infos of C++ types live as long as the process
/// (TypeInfoOf()); those made at run time live as long as the class info that refers to them.
class TTypeInfo {
 public:
  TTypeInfo(TTypeKind kind, QString name) : FKind(kind), FName(std::move(name)) {}
  virtual ~TTypeInfo() = default;
  TTypeInfo(const TTypeInfo&) = delete;
  TTypeInfo& operator=(const TTypeInfo&) = delete;

  TTypeKind Kind() const { return FKind; }
  /// For example "TColor", "Integer", "string".
  const QString& Name() const { return FName; }

 private:
  TTypeKind FKind;
  QString FName;
};

/// tkInteger, tkChar, tkWChar and, as their base, tkEnumeration and tkSet: a range of whole numbers.
class TOrdTypeInfo : public TTypeInfo {
 public:
  TOrdTypeInfo(TTypeKind kind, QString name, TOrdType storage, qint64 min, qint64 max)
      : TTypeInfo(kind, std::move(name)), FStorage(storage), FMin(min), FMax(max) {}

  TOrdType OrdType() const { return FStorage; }
  qint64 MinValue() const { return FMin; }
  qint64 MaxValue() const { return FMax; }

 private:
  TOrdType FStorage;
  qint64 FMin;
  qint64 FMax;
};

/// tkEnumeration: names for the ordinals from 0 on, which is MinValue(). The Boolean types that are wider than one bit
/// have a negative MinValue(), count as derived from Boolean and have the two names of Boolean. A type made at run time
/// may know ordinals beside those with names, for values that have none.
class TEnumTypeInfo : public TOrdTypeInfo {
 public:
  TEnumTypeInfo(QString name, QStringList names, const TEnumTypeInfo* base = nullptr);
  TEnumTypeInfo(QString name, TOrdType storage, const TEnumTypeInfo* booleanBase);

  const QStringList& Names() const { return FNames; }
  /// The type that this one is a range of; itself when it is none.
  const TEnumTypeInfo* BaseType() const { return FBase ? FBase : this; }
  /// What an ordinal outside of the names is called; null when the type has no such ordinal.
  virtual QString NameOfUnnamed(qint64 /*ordinal*/) const { return {}; }
  /// The ordinal of such a name, or -1.
  virtual qint64 OrdinalOfUnnamed(QStringView /*name*/) const { return -1; }

 private:
  QStringList FNames;
  const TEnumTypeInfo* FBase;
};

/// tkSet: the type of the members. OrdType() is otULong for every set of more than 16 members, up to the 64 that fit.
class TSetTypeInfo : public TOrdTypeInfo {
 public:
  /// Raises EPropertyError when `component` has no ordinals.
  TSetTypeInfo(const QString& name, const TTypeInfo* component);

  /// An enumeration, or an integer or character range.
  const TTypeInfo* CompType() const { return FComponent; }

 private:
  const TTypeInfo* FComponent;
};

/// tkFloat.
class TFloatTypeInfo : public TTypeInfo {
 public:
  TFloatTypeInfo(QString name, TFloatType storage) : TTypeInfo(tkFloat, std::move(name)), FStorage(storage) {}
  TFloatType FloatType() const { return FStorage; }

 private:
  TFloatType FStorage;
};

/// tkString: a string of limited length.
class TShortStringTypeInfo : public TTypeInfo {
 public:
  TShortStringTypeInfo(QString name, int maxLength) : TTypeInfo(tkString, std::move(name)), FMaxLength(maxLength) {}
  int MaxLength() const { return FMaxLength; }

 private:
  int FMaxLength;
};

/// tkInt64; an unsigned type keeps its bits and has MinValue() 0 and MaxValue() -1, so that MinValue() > MaxValue()
/// tells.
class TInt64TypeInfo : public TTypeInfo {
 public:
  TInt64TypeInfo(QString name, qint64 min, qint64 max) : TTypeInfo(tkInt64, std::move(name)), FMin(min), FMax(max) {}
  qint64 MinValue() const { return FMin; }
  qint64 MaxValue() const { return FMax; }
  bool IsUnsigned() const { return FMin > FMax; }

 private:
  qint64 FMin;
  qint64 FMax;
};

/// tkClass: the type info of a class; TClassInfo owns it.
class TClassTypeInfo : public TTypeInfo {
 public:
  TClassTypeInfo(QString name, const TClassInfo* classType)
      : TTypeInfo(tkClass, std::move(name)), FClassType(classType) {}
  const TClassInfo* ClassType() const { return FClassType; }

 private:
  const TClassInfo* FClassType;
};

/// tkInterface.
class TInterfaceTypeInfo : public TTypeInfo {
 public:
  TInterfaceTypeInfo(QString name, QUuid guid) : TTypeInfo(tkInterface, std::move(name)), FGuid(guid) {}
  const QUuid& Guid() const { return FGuid; }

 private:
  QUuid FGuid;
};

/// tkArray and tkDynArray: the type of the elements.
class TArrayTypeInfo : public TTypeInfo {
 public:
  TArrayTypeInfo(TTypeKind kind, QString name, const TTypeInfo* element)
      : TTypeInfo(kind, std::move(name)), FElement(element) {}
  const TTypeInfo* ElementType() const { return FElement; }

 private:
  const TTypeInfo* FElement;
};

/// tkMethod: the events of C++ classes; a type made at run time may be a plain TTypeInfo.
class TMethodTypeInfo : public TTypeInfo {
 public:
  using TNamer = TMethod (*)(TObject* object, const QString& name);

  TMethodTypeInfo(QString name, TNamer namer) : TTypeInfo(tkMethod, std::move(name)), FNamer(namer) {}
  TNamer Namer() const { return FNamer; }

 private:
  TNamer FNamer;
};

/// A method of `object` that an event of this type can hold and that is known by its name only, for form designers.
/// Empty when the type cannot make one.
TMethod NamedMethod(const TTypeInfo* type, TObject* object, const QString& name);
/// Raises EPropertyError when the type is not made of the class that its kind says.
void CheckTypeInfo(const TTypeInfo* type);
/// The ordinal data of a type, or null for types that are not ordinal.
const TOrdTypeInfo* OrdTypeOf(const TTypeInfo* type);
const TEnumTypeInfo* EnumTypeOf(const TTypeInfo* type);
const TSetTypeInfo* SetTypeOf(const TTypeInfo* type);
const TInt64TypeInfo* Int64TypeOf(const TTypeInfo* type);
/// The class of a class type, or null.
const TClassInfo* ClassOf(const TTypeInfo* type);
/// True for Boolean and the wider Boolean types.
bool IsBoolType(const TTypeInfo* type);

}  // namespace kt
