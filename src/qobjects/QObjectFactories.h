#pragma once

#include <QMetaObject>
#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace kt {

/// Makes a new object of a class; its caller owns it.
using TQObjectFactory = std::function<std::unique_ptr<QObject>()>;

/// How a new object of a class is made, for its defaults. Before the first object of the class is looked at.
void RegisterQObjectFactory(const QMetaObject& meta, TQObjectFactory factory);

template <class T>
void RegisterQObjectFactory() {
  RegisterQObjectFactory(T::staticMetaObject, [] { return std::make_unique<T>(); });
}

/// The same, by a constructor that the class declares invokable, without arguments or with a parent. Nobody's
/// constructors are called unasked: they may do anything.
void RegisterInvokableQObject(const QMetaObject& meta);

/// A new object of just that class: by its factory, or that of one of Qt's own classes. Null when there is none, and
/// for widgets without a QApplication.
std::unique_ptr<QObject> MakeFreshQObject(const QMetaObject& meta);

/// The classes of Qt that have a factory from the start.
const std::vector<const QMetaObject*>& CreatableQtClasses();

}  // namespace kt
