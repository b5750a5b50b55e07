#pragma once

#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "support/WindowProbe.h"

namespace kt::tests {

/// An inspector in a window, and two objects for it.
class TInspectorWindowTest : public TInspectorTest {
 protected:
  TInspectorWindowTest() {
    Application().OnException = [this](TObject*, const Exception& error) { FErrors += error.Message(); };
    FSample->SetName("First");
    FOther->SetName("Second");
  }
  ~TInspectorWindowTest() override { Application().OnException = nullptr; }

  void Show(std::initializer_list<TObject*> objects) {
    Inspect(objects);
    FWindow = std::make_unique<TWindowProbe>(*FInspector, QSize(400, 600));
    FInspector->SetFocus();
    TWindowProbe::Settle();
  }
  void Select(const QString& path) {
    FInspector->SetSelected(&Item(path));
    TWindowProbe::Settle();
  }
  int RowOf(const QString& path) { return Item(path).GetAbsoluteVIndex() + 1; }
  QString Cell(const QString& path, int col = 1) { return FInspector->GetCell(col, RowOf(path)); }
  TInplaceEdit& Editor() { return *FInspector->InplaceEditor(); }
  bool IsEditorOpen() const { return FInspector->InplaceEditor() && FInspector->InplaceEditor()->Visible(); }
  void Retype(const QString& text) {
    Editor().SelectAll();
    TWindowProbe::Type(text);
  }
  QString TakeErrors() { return std::exchange(FErrors, {}).join(u'|'); }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
  std::unique_ptr<TWindowProbe> FWindow;
  QStringList FErrors;
};

}  // namespace kt::tests
