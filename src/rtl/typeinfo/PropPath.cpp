#include "kt/rtl/typeinfo/PropPath.h"

#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/PropValues.h"

namespace kt {
namespace {

[[noreturn]] void RaiseInvalidPath() { throw EPropertyError(SInvalidPropertyPath.toString()); }

/// The item that "[n]" stands for.
TObject* ItemAt(TObject* object, QStringView brackets) {
  auto* collection = dynamic_cast<TCollection*>(object);
  bool isNumber = false;
  const bool isClosed = brackets.endsWith(u']');
  const int index = isClosed ? brackets.sliced(1, brackets.size() - 2).toInt(&isNumber) : 0;
  if (!collection || !isNumber) RaiseInvalidPath();
  return collection->GetItem(index);
}

/// The object that one name of the path leads to.
TObject* Step(TObject* instance, QStringView segment) {
  const qsizetype bracket = segment.indexOf(u'[');
  const QStringView name = bracket < 0 ? segment : segment.left(bracket);
  const TPropInfo* property = FindPropInfo(instance, name);
  TObject* object = property->Kind() == tkClass ? GetObjectProp(instance, property) : nullptr;
  if (object && bracket >= 0) object = ItemAt(object, segment.sliced(bracket));
  if (!object) RaiseInvalidPath();
  return object;
}

}  // namespace

TPropTarget FindPropTarget(TObject* instance, QStringView path) {
  for (qsizetype dot = path.indexOf(u'.'); dot >= 0; dot = path.indexOf(u'.')) {
    instance = Step(instance, path.left(dot));
    path = path.sliced(dot + 1);
  }
  return {instance, FindPropInfo(instance, path)};
}

}  // namespace kt
