#pragma once

#include "kt/rtl/objects/Object.h"

#include <QString>
#include <QtGlobal>

#include <functional>

namespace kt {

class IInterface;
class TMethod;
class Variant;

/// The road from a published property to its value in an instance. Which of the families below it belongs to follows
/// from the kind of the property's type. Class infos of C++ classes get theirs from TClassBuilder; class infos made at
/// run time bring their own.
class TPropAccess {
 public:
  TPropAccess(bool readable, bool writable) : FReadable(readable), FWritable(writable) {}
  virtual ~TPropAccess() = default;
  TPropAccess(const TPropAccess&) = delete;
  TPropAccess& operator=(const TPropAccess&) = delete;

  bool IsReadable() const { return FReadable; }
  bool IsWritable() const { return FWritable; }

 private:
  bool FReadable;
  bool FWritable;
};

/// A road for values of type V. Get() is called only when IsReadable(), Set() only when IsWritable().
template <class V>
class TValueAccess : public TPropAccess {
 public:
  using TPropAccess::TPropAccess;
  virtual V Get(TObject& instance) const = 0;
  virtual void Set(TObject& instance, const V& value) const = 0;
};

/// tkInteger, tkChar, tkWChar, tkEnumeration, tkSet (bits) and tkInt64 (the bits of an unsigned type).
using TOrdAccess = TValueAccess<qint64>;
/// tkFloat of every storage. Where the processor has the 80-bit kind, this holds every Currency exactly; elsewhere it
/// is a double.
using TFloatAccess = TValueAccess<long double>;
/// tkString, tkLString, tkWString.
using TStrAccess = TValueAccess<QString>;
/// tkClass. Setting an owned object copies, which is the setter's business.
using TObjectAccess = TValueAccess<TObject*>;
/// tkInterface.
using TInterfaceAccess = TValueAccess<IInterface*>;
/// tkMethod.
using TMethodAccess = TValueAccess<TMethod>;
/// tkVariant, tkDynArray.
using TVariantAccess = TValueAccess<Variant>;

/// A road made of two function objects, for class infos made at run time; an empty one closes its direction.
template <class V>
class TFunctionAccess final : public TValueAccess<V> {
 public:
  using TGetter = std::function<V(TObject&)>;
  using TSetter = std::function<void(TObject&, const V&)>;

  TFunctionAccess(TGetter getter, TSetter setter)
      : TValueAccess<V>(bool(getter), bool(setter)), FGetter(std::move(getter)), FSetter(std::move(setter)) {}
  V Get(TObject& instance) const override { return FGetter(instance); }
  void Set(TObject& instance, const V& value) const override { FSetter(instance, value); }

 private:
  TGetter FGetter;
  TSetter FSetter;
};

}  // namespace kt
