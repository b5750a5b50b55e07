#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

namespace qtinspect {

/// Which objects are selected, in the order in which they were; what the parts of an inspecting window share. An object
/// that is destroyed leaves by itself, of which listeners are told at the event queue.
class TSelection : public QObject {
 public:
  std::vector<QObject*> Objects() const;
  /// The one that was selected first; null for none.
  QObject* Main() const;
  bool Has(const QObject* object) const;

  void Select(const std::vector<QObject*>& objects);
  void Select(QObject* object) { Select(std::vector<QObject*>{object}); }
  void Clear() { Select(std::vector<QObject*>{}); }
  /// Takes one in or out.
  void Toggle(QObject* object);

  /// Listeners live as long as the selection, and are told in the order in which they came.
  void Listen(std::function<void()> listener) { FListeners.push_back(std::move(listener)); }

 private:
  void Tell();

  std::vector<QPointer<QObject>> FObjects;
  std::vector<std::function<void()>> FListeners;
};

}  // namespace qtinspect
