#pragma once

#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/WindowProbe.h"

#include <QStringList>

namespace kt::tests {

/// An item list editor in a window of 400 x 300: keys and mouse go in as events of the real window. What handlers hear
/// goes to a log, and what reaches the application to the errors.
class TItemListInputTest : public TItemListTest {
 protected:
  TItemListInputTest() {
    Application().OnException = [this](TObject*, const Exception& error) { FErrors += error.Message(); };
  }
  ~TItemListInputTest() override { Application().OnException = nullptr; }

  void Show(const std::string& tree) {
    Fill(tree);
    FWindow = std::make_unique<TWindowProbe>(*FEditor);
    FEditor->SetFocus();
    TWindowProbe::Settle();
  }
  /// The in-place editor is there only where somebody asks for it, and not now.
  void CloseEditor() {
    FEditor->SetOptions(FEditor->GetOptions() - TGridOptions{goAlwaysShowEditor});
    FEditor->SetEditorMode(false);
    FEditor->SetFocus();
  }
  void TurnAcross() { FEditor->SetOrientation(goHorizontal); }

  /// The current cell: "1,2".
  QString Where() const { return QStringLiteral("%1,%2").arg(FEditor->GetCol()).arg(FEditor->GetRow()); }
  bool IsEditorOpen() const { return FEditor->InplaceEditor() && FEditor->InplaceEditor()->Visible(); }
  /// What the in-place editor shows, or "-".
  QString EditorText() const { return IsEditorOpen() ? FEditor->InplaceEditor()->GetText() : QStringLiteral("-"); }

  /// From the client area to the window.
  QPoint InWindow(QPoint point) { return FWindow->Body()->mapFromGlobal(FEditor->ClientToScreen(point)); }
  QPoint CellCenter(int col, int row) { return InWindow(FEditor->CellRect(col, row).center()); }
  void ClickCell(int col, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    FWindow->Click(CellCenter(col, row), modifiers);
  }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { TWindowProbe::Key(key, modifiers); }
  static void Type(const QString& text) { TWindowProbe::Type(text); }
  /// Replaces the whole text.
  void Retype(const QString& text) {
    FEditor->InplaceEditor()->SelectAll();
    Type(text);
  }
  std::string TakeLog() { return std::exchange(FLog, {}).join(u' ').toStdString(); }
  std::string TakeErrors() { return std::exchange(FErrors, {}).join(u'|').toStdString(); }

  std::unique_ptr<TWindowProbe> FWindow;
  QStringList FLog;
  QStringList FErrors;
};

}  // namespace kt::tests
