#include "kt/qobjects/QObjectRegistry.h"

#include "kt/qobjects/QObjectComponent.h"
#include "kt/qobjects/WidgetEvents.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QChildEvent>
#include <QCoreApplication>
#include <QDynamicPropertyChangeEvent>
#include <QPointer>
#include <QThread>

#include <utility>
#include <vector>

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
  Q_ASSERT(QThread::currentThread() == registry->thread());
  return *registry;
}

// Making.

TQObjectComponent* TQObjectRegistry::ComponentFor(QObject& object) {
  Q_ASSERT(object.thread() == QThread::currentThread());
  if (TQObjectComponent* known = FindComponent(&object)) {
    if (FUnsettled.contains(&object)) FollowParent(object);
    return known;
  }
  if (FDying.contains(&object)) {
    if (IsDying(object)) return nullptr;
    FDying.remove(&object);
  }
  AddTree(TopWithoutComponent(object));
  return FindComponent(&object);
}

/// Another object may have been made at the address of one that went.
bool TQObjectRegistry::IsDying(QObject& object) const {
  QEvent probe(ProbeType());
  probe.setAccepted(false);
  QCoreApplication::sendEvent(&object, &probe);
  return probe.isAccepted();
}

/// The parent that the component of an object follows; null for none, and for one that is not to be touched.
QObject* TQObjectRegistry::ParentToFollow(const QObject& object) const {
  QObject* parent = object.parent();
  // The application object sees all events of all objects, and is nobody's whole.
  const bool isWanted = parent && parent != QCoreApplication::instance();
  return isWanted && !FDying.contains(parent) && parent->thread() == thread() ? parent : nullptr;
}

QObject& TQObjectRegistry::TopWithoutComponent(QObject& object) const {
  QObject* top = &object;
  for (QObject* parent = ParentToFollow(*top); parent && !FindComponent(parent); parent = ParentToFollow(*top)) {
    top = parent;
  }
  return *top;
}

/// Parents before their children.
void TQObjectRegistry::AddTree(QObject& top) {
  std::vector<QObject*> open = {&top};
  while (!open.empty()) {
    QObject* object = open.back();
    open.pop_back();
    if (!FindComponent(object)) AddOne(*object);
    FollowParent(*object);
    const QObjectList& children = object->children();
    // The first child comes first.
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
      if (!FindComponent(*child)) open.push_back(*child);
    }
  }
}

void TQObjectRegistry::AddOne(QObject& object) {
  TQObjectComponent* component = Make<TQObjectComponent>(object).release();
  FComponents.insert(&object, component);
  if (&object != QCoreApplication::instance()) object.installEventFilter(this);
  connect(&object, &QObject::destroyed, this, &TQObjectRegistry::ObjectDestroyed, Qt::UniqueConnection);
  connect(&object, &QObject::objectNameChanged, this, &TQObjectRegistry::NameChanged, Qt::UniqueConnection);
  component->FollowName();
}

void TQObjectRegistry::FollowParent(QObject& object) {
  TQObjectComponent* component = FindComponent(&object);
  QObject* parent = ParentToFollow(object);
  TComponent* owner = parent ? ComponentFor(*parent) : nullptr;
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

// Following.

bool TQObjectRegistry::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ChildAdded:
      // Its constructors may be running.
      FUnsettled.insert(watched);
      SettleLater();
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
  for (const QPointer<QObject>& child : children) {
    if (!child) continue;
    if (FindComponent(child)) {
      FollowParent(*child);
    } else {
      AddTree(*child);
    }
  }
}

void TQObjectRegistry::Settle() {
  FIsSettling = false;
  FDying.clear();
  const QSet<const QObject*> unsettled = std::exchange(FUnsettled, {});
  for (const QObject* object : unsettled) {
    // Only of those that have one is it known that they live.
    TQObjectComponent* component = FindComponent(object);
    QObject* complete = component ? component->FindObject() : nullptr;
    if (!complete) continue;
    FollowParent(*complete);
    if (FindComponent(object) == component) FollowChildren(*complete);
  }
}

}  // namespace kt
