#include "kt/qobjects/NotifySink.h"

#include "kt/qobjects/QObjectClasses.h"
#include "kt/qobjects/QObjectComponent.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QMetaObject>
#include <QMetaProperty>
#include <QThread>

#include <algorithm>

namespace kt {

TNotifySink::TNotifySink(QObject& object, TQObjectComponent& component) : FComponent(component) {
  const QMetaObject& meta = *object.metaObject();
  for (int i = 0; i < meta.propertyCount(); ++i) {
    const int signal = meta.property(i).notifySignalIndex();
    if (signal < 0) continue;
    auto known = std::find_if(FSignals.begin(), FSignals.end(),
                              [signal](const TSignal& other) { return other.Index == signal; });
    if (known == FSignals.end()) known = FSignals.insert(known, {signal, {}});
    known->Properties += PublishedPropertyName(meta, i);
  }
  const int first = QObject::staticMetaObject.methodCount();
  for (size_t i = 0; i < FSignals.size(); ++i) {
    // A signal may be emitted in any thread; from another one it comes through the event queue. It comes without what
    // it is emitted with, whose types need not be known to Qt then: the list of types, which Qt takes over, ends at
    // once.
    QMetaObject::connect(&object, FSignals[i].Index, this, first + static_cast<int>(i), Qt::AutoConnection,
                         new int[1]{0});
  }
  FollowBindables(object);
}

void TNotifySink::FollowBindables(QObject& object) {
  const QMetaObject& meta = *object.metaObject();
  for (int i = 0; i < meta.propertyCount(); ++i) {
    const QMetaProperty property = meta.property(i);
    if (property.hasNotifySignal() || !property.isBindable()) continue;
    QUntypedBindable bindable = property.bindable(&object);
    if (!bindable.isValid()) continue;
    const QString name = PublishedPropertyName(meta, i);
    FNotifiers.push_back(bindable.addNotifier([this, name] {
      // Bindings belong to the thread of their object.
      if (QThread::currentThread() == thread()) GuardedCall([&] { FComponent.PropertyTold(name); });
    }));
  }
}

int TNotifySink::qt_metacall(QMetaObject::Call call, int id, void** arguments) {
  id = QObject::qt_metacall(call, id, arguments);
  if (id < 0 || call != QMetaObject::InvokeMetaMethod || static_cast<size_t>(id) >= FSignals.size()) return id;
  Tell(static_cast<size_t>(id));
  return -1;
}

/// Listeners only make a note, so that nothing goes meanwhile.
void TNotifySink::Tell(size_t signal) {
  GuardedCall([&] {
    for (const QString& name : FSignals[signal].Properties) FComponent.PropertyTold(name);
  });
}

}  // namespace kt
