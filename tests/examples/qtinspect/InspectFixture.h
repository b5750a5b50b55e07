#pragma once

#include "designer/inspector/DesignInspector.h"
#include "qtinspect/InspectPane.h"
#include "qtinspect/ListedObjects.h"
#include "support/Print.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>
#include <stdexcept>

namespace qtinspect::tests {

/// Has Qt do what it has put off.
inline void Settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// The window of the window system, to which events go as from the mouse itself: a modal dialog keeps them off.
inline QWindow* WindowOf(const QWidget& widget) { return widget.window()->windowHandle(); }
inline QPoint InWindow(const QWidget& widget, QPoint point) { return widget.mapTo(widget.window(), point); }

inline void Click(const QWidget& widget, QPoint point, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                  Qt::MouseButton button = Qt::LeftButton) {
  QTest::mouseClick(WindowOf(widget), button, modifiers, InWindow(widget, point));
  Settle();
}
inline void Click(const QWidget& widget, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                  Qt::MouseButton button = Qt::LeftButton) {
  Click(widget, widget.rect().center(), modifiers, button);
}
inline void MoveTo(const QWidget& widget) {
  // A place where the pointer is already would be no move.
  QTest::mouseMove(WindowOf(widget), InWindow(widget, widget.rect().center() - QPoint(1, 0)));
  QTest::mouseMove(WindowOf(widget), InWindow(widget, widget.rect().center()));
  Settle();
}

/// To whatever has the keyboard.
inline void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWindow* window = QGuiApplication::focusWindow();
  ASSERT_TRUE(window);
  QTest::keyClick(window, key, modifiers);
  Settle();
}
inline void Type(const QString& text) {
  for (const QChar character : text) QTest::keyClick(QGuiApplication::focusWindow(), character.toLatin1());
  Settle();
}

inline void Activate(QWidget& window) {
  window.activateWindow();
  QApplication::setActiveWindow(&window);
  Settle();
}

inline QString NamesOf(const std::vector<QObject*>& objects) {
  QStringList names;
  for (const QObject* object : objects) names.append(object->objectName());
  return names.join(u' ');
}

/// "form [row [ok cancel]]": the names of what is listed, of the class where there is no name.
inline QString TreeOf(const QObject& object) {
  const QString name =
      object.objectName().isEmpty() ? QLatin1String(object.metaObject()->className()) : object.objectName();
  QStringList children;
  for (const QObject* child : ListedChildren(object)) children.append(TreeOf(*child));
  return children.isEmpty() ? name : QStringLiteral("%1 [%2]").arg(name, children.join(u' '));
}

/// What a user does with the rows of the inspector.
class TRows {
 public:
  explicit TRows(TInspectPane& pane) : FPane(pane) {}

  kt::TKTItemProperty& Item(const QString& path) {
    Settle();
    kt::TKTItemProperty* item = FPane.Panel().Inspector().GetItems().FindItemByFullPathName(path);
    if (!item) throw std::runtime_error("no item " + path.toStdString());
    return *item;
  }
  QString Value(const QString& path) { return Item(path).GetValueLine(0); }
  QString Selected() {
    kt::TKTItemProperty* item = FPane.Panel().Inspector().GetSelected();
    return item ? item->GetFullPathName() : QString();
  }
  /// By the arrow keys, from the first row on.
  void GoTo(const QString& path) {
    FPane.Panel().FocusGrid();
    Settle();
    Key(Qt::Key_Up, Qt::ControlModifier);
    const int count = FPane.Panel().Inspector().GetVisibleItemCount();
    for (int i = 0; i < count && Selected() != path; ++i) Key(Qt::Key_Down);
    EXPECT_EQ(Selected(), path);
  }
  /// Types over what a row shows, and leaves it open.
  void TypeOver(const QString& path, const QString& text) {
    GoTo(path);
    Key(Qt::Key_A, Qt::ControlModifier);
    Type(text);
  }
  void Enter(const QString& path, const QString& text) {
    TypeOver(path, text);
    Key(Qt::Key_Return);
  }

 private:
  TInspectPane& FPane;
};

}  // namespace qtinspect::tests
