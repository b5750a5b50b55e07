#pragma once

#include "Views.h"
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/Make.h"

namespace kt::benchmarks {

/// Our own.
class TEditorView {
 public:
  explicit TEditorView(const TScene& scene) {
    TKTItemProps& items = FEditor->GetItems();
    {
      const TUpdateBracket<TKTItemProps> bracket(items);
      for (int row = 0; row < scene.Rows; ++row) items.Add(NameOf(row), ValueOf(row));
      FParent = items.GetItem(scene.Parent());
      for (int child = 0; child < TScene::kChildren; ++child) {
        FParent->GetItems().Add(NameOf(child), ValueOf(child));
      }
    }
    FChanging = items.GetItem(scene.Changing());
    Show(*FEditor->GetHandle());
    FTop = scene.First() + 1;
    FEditor->SetRow(FTop);
    FEditor->SetTopRow(FTop);
    PaintPending();
  }

  void Repaint() { FEditor->Repaint(); }
  void ScrollTo(int offset) { FEditor->SetTopRow(FTop + offset); }
  void SetOne(const QString& value) { FChanging->SetValue(value); }
  void Expand(bool isExpanded) { FParent->SetExpanded(isExpanded); }
  int RowsInView() const { return FEditor->GetVisibleRowCount(); }

 private:
  std::unique_ptr<TKTItemListEditor> FEditor = Make<TKTItemListEditor>();
  TKTItemProp* FParent = nullptr;
  TKTItemProp* FChanging = nullptr;
  int FTop = 0;
};

}  // namespace kt::benchmarks
