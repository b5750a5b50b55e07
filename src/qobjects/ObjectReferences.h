#pragma once

#include <QMetaType>
#include <QVariant>

namespace kt {

class TObject;
class TTypeInfo;

/// Whether values of a type point to objects of Qt's.
bool IsReference(QMetaType type);
/// The class of the components that stand for what a type points to.
const TTypeInfo* ReferenceTypeInfo(QMetaType type);
/// The component of the object that a value points to; null for none, and for an object of another thread.
TObject* ComponentInValue(const QVariant& value);
/// A pointer of that type to the object of a component; to nothing for null. Raises EInvalidCast "Invalid class
/// typecast" for what does not stand for an object of that class.
QVariant ValueOfComponent(QMetaType type, TObject* component);

}  // namespace kt
