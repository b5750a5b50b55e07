#pragma once

#include "kt/KTItemListEditor/InplaceEditList.h"
#include "support/ItemLists.h"

namespace kt::tests {

/// What has to hold between two steps of the monkey.
class TMonkeyChecks {
 public:
  static std::string ComplaintOf(TKTItemListEditor& editor) {
    if (editor.IsEditUpdateLocked()) return "a lock is held";
    if (OpenBrackets(editor.GetItems()) != 0) return "a bracket is open";
    if (Rows(editor) != WalkedRows(editor)) return "the rows are " + Rows(editor) + " and not " + WalkedRows(editor);
    if (editor.GetCol() >= editor.GetColCount() || editor.GetRow() >= editor.GetRowCount()) return "no current cell";
    return {};
  }
  /// What a handler has prevented by throwing may come with the next refresh.
  static std::string ComplaintOfGrid(TKTItemListEditor& editor) {
    if (LinesOf(editor) != editor.GetGridCount(gcLineCount)) return "the lines are wrong";
    auto* edit = dynamic_cast<TKTInplaceEditList*>(editor.InplaceEditor());
    // Without the keyboard an editor waits where it is for the grid to bring it back.
    if (!edit || !edit->Visible() || !edit->Focused()) return {};
    const QRect cell = editor.CellRect(editor.GetCol(), editor.GetRow());
    if (!cell.isEmpty() && edit->GetBoundsRect() != cell)
      return "the editor lies over another cell: " + TextOf(edit->GetBoundsRect()) + " and not " + TextOf(cell);
    if (!editor.IsEditorMode()) return "the editor shows although there is none";
    return {};
  }

 private:
  static int LinesOf(const TKTItemListEditor& editor) {
    return editor.GetGridCount(gcFixedLines) + std::max(1, editor.GetVisibleItemCount());
  }
  static std::string TextOf(const QRect& rect) {
    return QStringLiteral("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height()).toStdString();
  }
};

}  // namespace kt::tests
