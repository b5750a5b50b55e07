#pragma once

#include <QObject>
#include <QProperty>
#include <QStringList>

#include <list>
#include <vector>

namespace kt {

class TQObjectComponent;

/// Connected to every signal by which an object tells that a property has changed, and to the bindable properties that
/// have none; passes on which.
///
/// Without a class description of its own: the signals are known only at run time, so each has a number behind the last
/// method of QObject.
class TNotifySink final : public QObject {
 public:
  TNotifySink(QObject& object, TQObjectComponent& component);

  int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

 private:
  void Tell(size_t signal);
  void FollowBindables(QObject& object);

  struct TSignal {
    int Index;
    QStringList Properties;
  };

  TQObjectComponent& FComponent;
  std::vector<TSignal> FSignals;
  /// For properties without a signal that can be bound to. In places of their own: they are linked to each other.
  std::list<QPropertyNotifier> FNotifiers;
};

}  // namespace kt
