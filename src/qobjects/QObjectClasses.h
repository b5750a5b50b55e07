#pragma once

#include <QByteArray>
#include <QMetaObject>
#include <QObject>
#include <QString>
#include <QStringView>

namespace kt {

class TClassInfo;

/// The class info of a class of Qt's: named as the class, its ancestor is that of the ancestor, that of QObject's is
/// TComponent's. Made when it is asked for first, for the life of the process; with it goes one object of the class
/// that shows the defaults (FreshValues.h). For the user-interface thread.
const TClassInfo* QObjectClassOf(const QMetaObject* meta);

/// The class info of an object: that of its class, or, where properties that are hidden from designers are listed or
/// the object has dynamic properties, one derived from it that has them too. Objects of one class whose dynamic
/// properties have the same names and types share it. It is kept for the life of the process.
const TClassInfo* QObjectClassWithDynamic(const QObject& object);

/// What a dynamic property of an object is called among the published ones of its class.
QString PublishedDynamicName(const QObject& object, const QByteArray& name);

/// Counts the changes of what is listed: class infos that were asked for before one are not those of now.
int QObjectClassGeneration();

/// What a property is called among the published ones: its name, behind which there are underscores when an earlier one
/// differs in nothing but case.
QString PublishedPropertyName(const QMetaObject& meta, int index);
/// The index of the property that is published under a name, without regard to case; -1 for none. Dynamic properties
/// have none.
int FindPublishedProperty(const QMetaObject& meta, QStringView name);

}  // namespace kt
