#pragma once

#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/mask/MaskEdit.h"
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
    const std::string ofGrid = ComplaintOfGrid(editor);
    return ofGrid.empty() ? ComplaintOfText(editor) : ofGrid;
  }

 private:
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
  /// An editor in which nothing was typed shows what is in its cell. Asks handlers for that text.
  static std::string ComplaintOfText(TKTItemListEditor& editor) {
    auto* edit = dynamic_cast<TKTInplaceEditList*>(editor.InplaceEditor());
    if (!edit || !edit->Visible() || edit->IsModified()) return {};
    if (!edit->Focused() && !editor.GetOptions().Has(goAlwaysShowEditor)) return {};
    const QString wanted =
        ThroughMask(edit->GetEditMask(), (editor.*&TOpenEditor::GetEditText)(editor.GetCol(), editor.GetRow()));
    if (edit->GetText() == wanted) return {};
    // A name that the items reject is held back.
    const bool isName = !editor.IsValueCell(editor.GetCol(), editor.GetRow());
    if (isName && !editor.GetItems().IsValid(edit->GetText(), false)) return {};
    return "the editor shows '" + edit->GetText().toStdString() + "' and not '" + wanted.toStdString() + "'";
  }

  /// Opens what only descendants may call.
  struct TOpenEditor : TKTItemListEditor {
    using TKTItemListEditor::GetEditText;
  };

  /// What a mask leaves of a text.
  static QString ThroughMask(const QString& mask, const QString& text) {
    const auto edit = Make<TMaskEdit>();
    edit->SetEditMask(mask);
    edit->SetText(text);
    return edit->GetText();
  }
  static int LinesOf(const TKTItemListEditor& editor) {
    return editor.GetGridCount(gcFixedLines) + std::max(1, editor.GetVisibleItemCount());
  }
  static std::string TextOf(const QRect& rect) {
    return QStringLiteral("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height()).toStdString();
  }
};

}  // namespace kt::tests
