#include "qtinspect/ListedObjects.h"

#include <QAction>
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QFormLayout>
#include <QGridLayout>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStackedLayout>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>
#include <QToolBox>
#include <QWidget>

#include <algorithm>
#include <iterator>

namespace qtinspect {

namespace {

/// Qt names the parts of its widgets so.
bool HasInnerName(const QObject& object) {
  const QString name = object.objectName();
  const bool isOfTabs = name == u"ScrollLeftButton" || name == u"ScrollRightButton";
  return name.startsWith(u"qt_") || name.startsWith(u"_q_") || name == u"_layout" ||
         (isOfTabs && qobject_cast<const QTabBar*>(object.parent()));
}

bool IsInnerClass(const QObject& object) {
  constexpr const char* kClasses[] = {"QLineEditIconButton", "QTableCornerButton", "QComboBoxPrivateContainer",
                                      "QMenuBarExtension",   "QToolBarExtension",  "QToolBarSeparator",
                                      "QTipLabel",           "QSizeGrip",          "QCompleter"};
  return std::any_of(std::begin(kClasses), std::end(kClasses), [&](const char* name) { return object.inherits(name); });
}

/// Has nothing but what people put there.
bool HoldsOnlyForeign(const QObject& inner) {
  return inner.objectName() == u"qt_scrollarea_viewport" || qobject_cast<const QStackedWidget*>(&inner);
}

/// The menu that a menu bar shows what has no room in, and what a tool box puts its pages into.
bool IsUnnamedPart(const QWidget& widget) {
  const bool isRest = qobject_cast<const QMenuBar*>(widget.parent()) && qobject_cast<const QMenu*>(&widget) &&
                      static_cast<const QMenu&>(widget).title().isEmpty();
  return isRest || (qobject_cast<const QToolBox*>(widget.parent()) && widget.inherits("QScrollArea"));
}

bool IsListedWidget(const QWidget& widget) {
  if (!widget.objectName().isEmpty() || !widget.parent()) return true;
  if (IsUnnamedPart(widget)) return false;
  const QObject& parent = *widget.parent();
  return HoldsOnlyForeign(parent) || (!HasInnerName(parent) && !IsInnerClass(parent));
}

/// Widgets that are made of others have layouts of their own.
bool IsListedLayout(const QObject& layout) {
  const bool isPlain = qobject_cast<const QBoxLayout*>(&layout) || qobject_cast<const QGridLayout*>(&layout) ||
                       qobject_cast<const QFormLayout*>(&layout) || qobject_cast<const QStackedLayout*>(&layout);
  const QObject* parent = layout.parent();
  const bool isOwn = qobject_cast<const QDialogButtonBox*>(parent) || qobject_cast<const QStatusBar*>(parent) ||
                     qobject_cast<const QStackedWidget*>(parent) || qobject_cast<const QMainWindow*>(parent) ||
                     qobject_cast<const QToolBar*>(parent) || qobject_cast<const QToolBox*>(parent) ||
                     (parent && parent->isWidgetType() && !IsListed(*parent));
  return isPlain && (!isOwn || !layout.objectName().isEmpty());
}

bool IsListedAction(const QAction& action) {
  const QObject* parent = action.parent();
  const auto* menu = qobject_cast<const QMenu*>(parent);
  if (menu && menu->menuAction() == &action) return false;
  if (!action.objectName().isEmpty()) return true;
  const auto* bar = qobject_cast<const QToolBar*>(parent);
  const auto* dock = qobject_cast<const QDockWidget*>(parent);
  const bool isSwitch = (bar && bar->toggleViewAction() == &action) || (dock && dock->toggleViewAction() == &action);
  return !isSwitch && !action.isSeparator();
}

/// Pages change their order as children whenever another one shows.
QObjectList ChildrenInOrder(const QObject& object) {
  const auto* pages = qobject_cast<const QStackedWidget*>(&object);
  if (!pages) return object.children();
  QObjectList children;
  for (int i = 0; i < pages->count(); ++i) children.append(pages->widget(i));
  return children;
}

void AddListed(const QObject& object, std::vector<QObject*>& listed) {
  for (QObject* child : ChildrenInOrder(object)) {
    if (IsListed(*child)) {
      listed.push_back(child);
    } else if (child->isWidgetType() && !IsInnerClass(*child)) {
      AddListed(*child, listed);
    }
  }
}

}  // namespace

bool IsListed(const QObject& object) {
  if (HasInnerName(object) || IsInnerClass(object)) return false;
  if (const auto* widget = qobject_cast<const QWidget*>(&object)) return IsListedWidget(*widget);
  if (qobject_cast<const QLayout*>(&object)) return IsListedLayout(object);
  if (const auto* action = qobject_cast<const QAction*>(&object)) return IsListedAction(*action);
  return !object.objectName().isEmpty();
}

std::vector<QObject*> ListedChildren(const QObject& object) {
  std::vector<QObject*> listed;
  AddListed(object, listed);
  return listed;
}

QObject* ListedAround(QObject* object) {
  while (object && !IsListed(*object) && object->parent()) object = object->parent();
  return object;
}

QString TitleOf(const QObject& object) {
  const QString className = QString::fromLatin1(object.metaObject()->className());
  return object.objectName().isEmpty() ? className : object.objectName() + QStringLiteral(": ") + className;
}

}  // namespace qtinspect
