#include "kt/qobjects/QObjectFactories.h"

#include "kt/qobjects/WidgetFactories.h"

#include <QApplication>
#include <QWidget>

#include <map>

namespace kt {

namespace {

using TFactories = std::map<const QMetaObject*, TQObjectFactory>;

TFactories& Factories() {
  static TFactories factories = [] {
    TFactories known;
    for (const auto& [meta, factory] : QtFactories()) known[meta] = factory;
    return known;
  }();
  return factories;
}

std::unique_ptr<QObject> MakeByConstructor(const QMetaObject& meta) {
  if (meta.constructorCount() == 0) return nullptr;
  QObject* made = meta.newInstance();
  if (!made) made = meta.newInstance(Q_ARG(QObject*, nullptr));
  if (!made) made = meta.newInstance(Q_ARG(QWidget*, nullptr));
  return std::unique_ptr<QObject>(made);
}

}  // namespace

void RegisterQObjectFactory(const QMetaObject& meta, TQObjectFactory factory) {
  Factories()[&meta] = std::move(factory);
}

void RegisterInvokableQObject(const QMetaObject& meta) {
  RegisterQObjectFactory(meta, [&meta] { return MakeByConstructor(meta); });
}

std::unique_ptr<QObject> MakeFreshQObject(const QMetaObject& meta) {
  const bool isWidget = meta.inherits(&QWidget::staticMetaObject);
  if (isWidget && !qobject_cast<QApplication*>(QCoreApplication::instance())) return nullptr;
  const auto factory = Factories().find(&meta);
  std::unique_ptr<QObject> made = factory != Factories().end() ? factory->second() : nullptr;
  return made && made->metaObject() == &meta ? std::move(made) : nullptr;
}

const std::vector<const QMetaObject*>& CreatableQtClasses() {
  static const std::vector<const QMetaObject*> classes = [] {
    std::vector<const QMetaObject*> all;
    for (const auto& [meta, factory] : QtFactories()) all.push_back(meta);
    return all;
  }();
  return classes;
}

}  // namespace kt
