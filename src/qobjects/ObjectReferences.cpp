#include "kt/qobjects/ObjectReferences.h"

#include "kt/qobjects/ComponentOf.h"
#include "kt/qobjects/QObjectClasses.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <QObject>
#include <QThread>

namespace kt {

bool IsReference(QMetaType type) { return type.flags().testFlag(QMetaType::PointerToQObject) && type.metaObject(); }

const TTypeInfo* ReferenceTypeInfo(QMetaType type) { return QObjectClassOf(type.metaObject())->TypeInfo(); }

TObject* ComponentInValue(const QVariant& value) {
  if (!IsReference(value.metaType())) return nullptr;
  auto* object = *static_cast<QObject* const*>(value.constData());
  return object && object->thread() == QThread::currentThread() ? ComponentOf(object) : nullptr;
}

QVariant ValueOfComponent(QMetaType type, TObject* component) {
  QObject* object = ObjectOf(dynamic_cast<TComponent*>(component));
  const bool isOther = component && (!object || !object->metaObject()->inherits(type.metaObject()));
  if (isOther) throw EInvalidCast(SInvalidCast.toString());
  return QVariant(type, &object);
}

}  // namespace kt
