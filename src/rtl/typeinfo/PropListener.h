#pragma once

#include <QString>

namespace kt {

class TObject;

/// Hears of published properties that change other than by being written through reflection.
class IPropListener {
 public:
  /// `name` of `object` has another value perhaps. Called from within the change, any number of times: the listener
  /// makes a note and reads later. Must not throw, nor change the object's listeners.
  virtual void PropChanged(TObject* object, const QString& name) = 0;
  /// What `object` publishes has changed.
  virtual void PropListChanged(TObject* object) = 0;

 protected:
  virtual ~IPropListener() = default;
};

/// What objects offer that tell when their properties change. An object that is destroyed forgets its listeners.
class IPropNotifier {
 public:
  /// The listener stays until it is removed, and must live as long. Adding it again changes nothing.
  virtual void AddPropListener(IPropListener* listener) = 0;
  virtual void RemovePropListener(IPropListener* listener) = 0;

 protected:
  virtual ~IPropNotifier() = default;
};

}  // namespace kt
