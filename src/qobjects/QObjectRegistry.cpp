#include "kt/qobjects/QObjectRegistry.h"

#include "kt/qobjects/QObjectComponent.h"
#include "kt/qobjects/WidgetEvents.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QChildEvent>
#include <QCoreApplication>
#include <QDynamicPropertyChangeEvent>
#include <QThread>

#include <utility>

namespace kt {

namespace {

/// Asks an object whether it still has the registry's filter, which one that was made in its place has not.
QEvent::Type ProbeType() {
  static const int type = QEvent::registerEventType();
  return static_cast<QEvent::Type>(type);
}

}  // namespace

TQObjectRegistry& QObjectRegistry() {
  // Deliberately never destroyed: objects live on behind the last line of main.
  static auto* registry = new TQObjectRegistry;
  return *registry;
}

// Making.

TQObjectComponent* TQObjectRegistry::ComponentFor(QObject& object) {
  if (QThread::currentThread() != thread() || object.thread() != thread()) return nullptr;
  if (TQObjectComponent* known = FindComponent(&object)) {
    if (FUnsettled.contains(&object)) FollowParent(object);
    return known;
  }
  if (IsLeftover(object)) return nullptr;
  AddTrees({&TopWithoutComponent(object)});
  return FindComponent(&object);
}

/// Whether the destruction of an object has been told already.
bool TQObjectRegistry::IsLeftover(QObject& object) {
  if (!FDying.contains(&object)) return false;
  if (!FindComponent(&object) && IsDying(object)) return true;
  FDying.remove(&object);
  return false;
}

/// Another object may have been made at the address of one that went.
bool TQObjectRegistry::IsDying(QObject& object) {
  QEvent probe(ProbeType());
  probe.setAccepted(false);
  QCoreApplication::sendEvent(&object, &probe);
  return probe.isAccepted();
}

/// The parent that the component of an object follows; null for none, and for one that is not to be touched.
QObject* TQObjectRegistry::ParentToFollow(const QObject& object) {
  QObject* parent = object.parent();
  // The application object sees all events of all objects, and is nobody's whole.
  const bool isWanted = parent && parent != QCoreApplication::instance();
  if (!isWanted || parent->thread() != thread()) return nullptr;
  return IsLeftover(*parent) ? nullptr : parent;
}

QObject& TQObjectRegistry::TopWithoutComponent(QObject& object) {
  QObject* top = &object;
  for (QObject* parent = ParentToFollow(*top); parent && !FindComponent(parent); parent = ParentToFollow(*top)) {
    top = parent;
  }
  return *top;
}

/// Level by level: an owner tells what comes to each component below that has some of its own, and none has as long as
/// its siblings come. Whoever hears of a component that comes may destroy objects.
void TQObjectRegistry::AddTrees(const std::vector<QPointer<QObject>>& tops) {
  std::vector<QPointer<QObject>> open = tops;
  for (size_t i = 0; i < open.size(); ++i) {
    QObject* object = open[i];
    if (!object || IsLeftover(*object)) continue;
    if (!FindComponent(object)) AddOne(*object);
    FollowParent(*object);
    if (!open[i]) continue;
    if (TQObjectComponent* component = FindComponent(object)) component->FollowName();
    if (!open[i]) continue;
    for (QObject* child : object->children()) {
      if (!FindComponent(child)) open.emplace_back(child);
    }
  }
}

void TQObjectRegistry::AddOne(QObject& object) {
  FComponents.insert(&object, Make<TQObjectComponent>(object).release());
  if (&object != QCoreApplication::instance()) object.installEventFilter(this);
  connect(&object, &QObject::destroyed, this, &TQObjectRegistry::ObjectDestroyed, Qt::UniqueConnection);
  connect(&object, &QObject::objectNameChanged, this, &TQObjectRegistry::NameChanged, Qt::UniqueConnection);
}

void TQObjectRegistry::FollowParent(QObject& object) {
  TQObjectComponent* component = FindComponent(&object);
  QObject* parent = ParentToFollow(object);
  // Where the parent's own place is not settled, that is done in its turn.
  TComponent* owner = parent ? FindComponent(parent) : nullptr;
  if (parent && !owner) owner = ComponentFor(*parent);
  if (!component || component->GetOwnerComponent() == owner) return;
  if (TComponent* former = component->GetOwnerComponent()) former->RemoveComponent(component);
  component->DropName();
  if (owner) owner->InsertComponent(component);
  if (FindComponent(&object) == component) component->FollowName();
}

// Going.

void TQObjectRegistry::Forget(TQObjectComponent& component) {
  if (FindComponent(component.Key()) == &component) FComponents.remove(component.Key());
}

void TQObjectRegistry::ObjectDestroyed(QObject* object) {
  FDying.insert(object);
  FUnsettled.remove(object);
  SettleLater();
  TQObjectComponent* component = FComponents.take(object);
  if (!component) return;
  component->LoseObject();
  delete component;
}

/// To another thread, where nothing of this one may follow it.
void TQObjectRegistry::ObjectLeaves(QObject& object) {
  object.removeEventFilter(this);
  disconnect(&object, nullptr, this, nullptr);
  FUnsettled.remove(&object);
  delete FComponents.take(&object);
}

// Following.

bool TQObjectRegistry::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ChildAdded:
      // Its constructors may be running.
      FUnsettled.insert(watched);
      SettleLater();
      return false;
    case QEvent::ThreadChange:
      ObjectLeaves(*watched);
      return false;
    case QEvent::ChildRemoved:
      ChildRemoved(static_cast<QChildEvent*>(event)->child());
      return false;
    case QEvent::DynamicPropertyChange:
      if (TQObjectComponent* component = FindComponent(watched)) {
        const QByteArray name = static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName();
        GuardedCall([&] { component->DynamicChanged(name); });
      }
      return false;
    default:
      break;
  }
  if (event->type() == ProbeType()) {
    event->accept();
    return true;
  }
  const QStringList& changed = PropertiesChangedBy(event->type());
  TQObjectComponent* component = changed.isEmpty() ? nullptr : FindComponent(watched);
  if (!component || !component->HasListeners()) return false;
  for (const QString& name : changed) component->TellChanged(name);
  return false;
}

void TQObjectRegistry::NameChanged() {
  TQObjectComponent* component = FindComponent(sender());
  if (component) GuardedCall([component] { component->FollowName(); });
}

void TQObjectRegistry::ChildRemoved(QObject* child) {
  TQObjectComponent* component = FindComponent(child);
  TComponent* owner = component ? component->GetOwnerComponent() : nullptr;
  if (!owner) return;
  FUnsettled.insert(child);
  SettleLater();
  // At once: the former owner takes what it owns along when it goes.
  GuardedCall([&] { owner->RemoveComponent(component); });
}

void TQObjectRegistry::SettleLater() {
  if (std::exchange(FIsSettling, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { GuardedCall([this] { Settle(); }); }, Qt::QueuedConnection);
}

/// Whoever hears of a component that comes may destroy objects.
void TQObjectRegistry::FollowChildren(const QObject& object) {
  const QObjectList& present = object.children();
  const std::vector<QPointer<QObject>> children(present.begin(), present.end());
  std::vector<QPointer<QObject>> unknown;
  for (const QPointer<QObject>& child : children) {
    if (!child) continue;
    if (FindComponent(child)) {
      FollowParent(*child);
    } else {
      unknown.push_back(child);
    }
  }
  AddTrees(unknown);
}

void TQObjectRegistry::Settle() {
  FIsSettling = false;
  FDying.clear();
  const QSet<const QObject*> unsettled = std::exchange(FUnsettled, {});
  for (const QObject* object : unsettled) GuardedCall([&] { SettleObject(object); });
}

void TQObjectRegistry::SettleObject(const QObject* object) {
  // Only of those that have one is it known that they live.
  TQObjectComponent* component = FindComponent(object);
  QObject* complete = component ? component->FindObject() : nullptr;
  if (!complete) return;
  FollowParent(*complete);
  if (FindComponent(object) == component) FollowChildren(*complete);
}

}  // namespace kt
