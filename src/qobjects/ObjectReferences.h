#pragma once

#include "kt/qobjects/MemberAccess.h"

#include <QMetaType>
#include <QVariant>

namespace kt {

class TObject;
class TTypeInfo;

/// Whether values of a type point to objects of Qt's.
bool IsReference(QMetaType type);
/// The class of the components that stand for what a type points to.
const TTypeInfo* ReferenceTypeInfo(QMetaType type);
/// The component of the object that a member points to; null for none, for one that is known to be gone, and for one of
/// another thread. The holder may be gone afterwards.
TObject* ReferredComponent(TValueHolder& holder, const TValueMember& member);
/// A pointer of that type to the object of a component; to nothing for null. Raises EInvalidCast "Invalid class
/// typecast" for what does not stand for an object of that class.
QVariant ValueOfComponent(QMetaType type, TObject* component);
/// References as texts: those of ReferenceChoices.h, "(none)" among the choices for a pointer to nothing.
TMemberTexts ReferenceTexts(const TMemberPtr& member);

}  // namespace kt
