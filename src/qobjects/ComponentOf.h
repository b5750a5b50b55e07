#pragma once

#include <QStringView>

class QObject;

namespace kt {

class TComponent;

/// The one component that stands for an object of Qt's, so that it can be inspected as it is; null for null.
///
/// Its class info is made at run time of the object's class and its ancestors, down to TComponent. Its properties are
/// those that the class declares for designers, and the object's own. Owner and children are the components of the
/// object's parent and children, and follow them (children that come once control is back at the event queue, as they
/// are not complete before). Its name is the object's where that is an identifier; where a sibling has it already there
/// is a number behind it ("name_2"). It offers IPropNotifier and IPropView.
///
/// The component is destroyed, and says so, the moment its object is; nothing of the object is touched once its
/// destructor runs. So it is, and whoever watches is told, before the object moves to another thread. Null for objects
/// of other threads than that of the user interface, and for callers there. The first call for a window makes
/// components of all in it: some microseconds for each object.
TComponent* ComponentOf(QObject* object);

/// The object that a component stands for; null for other components, and once the object's destructor runs.
QObject* ObjectOf(TComponent* component);

/// Gives a property of a component of an object its value before any change: by the way that the class declares for
/// that, else by writing what a fresh object has. False when there is neither; nothing happens then.
bool ResetProperty(TComponent* component, QStringView name);

/// Whether properties are listed that their class hides from designers, and those that Qt keeps for itself. Not, to
/// begin with. Inspectors need a rescan afterwards.
bool GetListsHiddenProperties();
void SetListsHiddenProperties(bool value);

}  // namespace kt
