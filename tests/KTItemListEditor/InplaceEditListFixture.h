#pragma once

#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QAbstractScrollArea>
#include <QStringList>

#include <gtest/gtest.h>

namespace kt::tests {

/// An item list editor in a window: items a=1, b=2 and c=3, the in-place editor over the value of a. Keys and mouse go
/// in as events of the real windows, and what handlers hear goes to a log. Handlers are for the tests to add.
class TInplaceEditListTest : public testing::Test {
 protected:
  TInplaceEditListTest() : TInplaceEditListTest(Make<TKTItemListEditor>()) {}
  explicit TInplaceEditListTest(std::unique_ptr<TKTItemListEditor> editor) : FEditor(std::move(editor)) {
    for (const char* name : {"a", "b", "c"}) {
      TKTItemProp* item = Editor.GetItems().Add();
      item->SetName(QString::fromLatin1(name));
      item->SetValue(QString::number(Editor.GetItems().GetCount()));
    }
    Editor.OnValidate = [this](TObject*, TKTItemProp* item, int) {
      Log += QStringLiteral("validate(%1=%2)").arg(item->GetName(), item->GetValue());
    };
    Editor.OnValidated = [this](TObject*, TKTItemProp* item, int) {
      Log += QStringLiteral("validated(%1)").arg(item ? item->GetName() : QStringLiteral("nil"));
    };
    Application().OnException = [this](TObject*, const Exception& error) { Errors += error.Message(); };
  }
  ~TInplaceEditListTest() override { Application().OnException = nullptr; }

  TKTItemProp& Item(int index) { return *Editor.GetItems().GetItem(index); }
  void Show() {
    Window = std::make_unique<TWindowProbe>(Editor);
    Editor.SetFocus();
    // Changes of items have hidden it.
    Editor.SetEditorMode(true);
    Settle();
    Log.clear();
  }
  /// Gives item a something to pick from, and shows the window.
  void ShowPickList(const QStringList& lines) {
    Item(0).SetEditStyle(esPickList);
    for (const QString& line : lines) Item(0).GetPickList().Add(line);
    Show();
  }
  void ShowColors() { ShowPickList({QStringLiteral("red"), QStringLiteral("green"), QStringLiteral("blue")}); }
  void ShowEllipsis() {
    Item(0).SetEditStyle(esEllipsis);
    Editor.OnEditButtonClick = [this](TObject* sender) {
      auto* item = dynamic_cast<TKTItemProp*>(sender);
      Log += QStringLiteral("click(%1)").arg(item ? item->GetName() : QStringLiteral("nil"));
    };
    Show();
  }
  void ShowExpression(const QString& expression) {
    Item(0).SetExpressionMask(true);
    Item(0).SetEditMask(expression);
    Show();
  }

  TKTInplaceEditList& Edit() { return dynamic_cast<TKTInplaceEditList&>(*Editor.InplaceEditor()); }
  TCustomListBox& List() { return dynamic_cast<TCustomListBox&>(*Edit().GetActiveList()); }
  static QWidget* ViewportOf(TCustomListBox& list) {
    return dynamic_cast<QAbstractScrollArea&>(*list.GetHandle()).viewport();
  }
  /// The lines of the open list with the selected one marked: "red >green blue".
  std::string Lines() {
    QStringList lines;
    for (int i = 0; i < List().GetCount(); ++i) {
      lines += (i == List().GetItemIndex() ? QStringLiteral(">") : QString()) + List().GetItems().GetStrings(i);
    }
    return lines.join(u' ').toStdString();
  }
  std::string Value(int index) { return Item(index).GetValuesText().trimmed().toStdString(); }
  std::string TakeLog() { return std::exchange(Log, {}).join(u' ').toStdString(); }
  std::string TakeErrors() { return std::exchange(Errors, {}).join(u'|').toStdString(); }

  static void Settle() { TWindowProbe::Settle(); }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { TWindowProbe::Key(key, modifiers); }
  static void Type(const QString& text) { TWindowProbe::Type(text); }
  /// Replaces the whole text.
  void Retype(const QString& text) {
    Edit().SelectAll();
    Type(text);
  }
  void OpenList() { Key(Qt::Key_Down, Qt::AltModifier); }
  QPoint OnButton() { return Edit().GetButtonRect().center(); }
  void PressAt(QPoint point) { QTest::mousePress(Edit().GetHandle(), Qt::LeftButton, Qt::NoModifier, point); }
  void ReleaseAt(QPoint point) { QTest::mouseRelease(Edit().GetHandle(), Qt::LeftButton, Qt::NoModifier, point); }
  void ClickAt(QPoint point) {
    PressAt(point);
    ReleaseAt(point);
  }
  void MoveTo(QPoint point, Qt::MouseButtons buttons = Qt::LeftButton) {
    QWidget* const body = Edit().GetHandle();
    QMouseEvent event(QEvent::MouseMove, point, body->mapToGlobal(point), Qt::NoButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(body, &event);
  }
  /// The second press of a double-click.
  void DoubleClickAt(QPoint point) {
    QWidget* const body = Edit().GetHandle();
    QMouseEvent event(QEvent::MouseButtonDblClick, point, body->mapToGlobal(point), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(body, &event);
    if (Editor.InplaceEditor()) ReleaseAt(point);
  }
  static void Wheel(QWidget* widget, int delta) {
    QWheelEvent event(QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
  }
  void ClickLine(int index) {
    QWidget* const viewport = ViewportOf(List());
    const QPoint point = viewport->mapFrom(List().GetHandle(), List().ItemRect(index).center() + QPoint(2, 2));
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, point);
  }

  std::unique_ptr<TKTItemListEditor> FEditor;
  TKTItemListEditor& Editor = *FEditor;
  std::unique_ptr<TWindowProbe> Window;
  QStringList Log;
  QStringList Errors;
};

}  // namespace kt::tests
