#pragma once

#include <QObject>
#include <QStringList>

#include <vector>

namespace kt {

class TQObjectComponent;

/// Connected to every signal by which an object tells that a property has changed; passes on which.
///
/// Without a class description of its own: the signals are known only at run time, so each has a number behind the last
/// method of QObject.
class TNotifySink final : public QObject {
 public:
  TNotifySink(QObject& object, TQObjectComponent& component);

  int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

 private:
  void Tell(size_t signal);

  struct TSignal {
    int Index;
    QStringList Properties;
  };

  TQObjectComponent& FComponent;
  std::vector<TSignal> FSignals;
};

}  // namespace kt
