// What the cells of an inspector show.
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTObjectInspector/PropertyWatch.h"

namespace kt {

QString TKTCustomObjectInspector::DynamicTitle(int column) const {
  TObject* object = FObjects->GetItem(column - 1)->GetObjects();
  if (const auto* component = dynamic_cast<TComponent*>(object)) return component->GetName();
  if (auto* item = dynamic_cast<TCollectionItem*>(object)) return item->GetDisplayName();
  return object->ClassName();
}

QString TKTCustomObjectInspector::GetCell(int col, int row) {
  const TGridInfo info = GetGridInfo(col, row);
  const bool isTitle = info.Line == 0 && GetDisplayOptions().Has(doColumnTitles);
  if (isTitle) {
    const bool hasObject = FDynamicTitleCaptions && info.Field > 0 && info.Field <= FObjects->GetCount() &&
                           FObjects->GetItem(info.Field - 1)->GetObjects();
    return hasObject ? DynamicTitle(info.Field) : TKTCustomItemListEditor::GetCell(col, row);
  }
  const bool showsOne = info.Field > 0 && !IsMultiColumn() && FObjects->GetCount() > 1;
  const bool isCurrent = info.Field == info.CurField && info.Line == info.CurLine;
  if (showsOne && !isCurrent) {
    const TKTItemProperty* item = GetVisibleItem(info.Line - info.FixedLines);
    if (item && !item->IsAllEqual()) return {};
  }
  return TKTCustomItemListEditor::GetCell(col, row);
}

/// Asked for whenever the in-place editor goes to a cell.
TEditStyle TKTCustomObjectInspector::GetEditStyle(int col, int row) {
  if (FWatch) FWatch->Resume();
  const TEditStyle style = TKTCustomItemListEditor::GetEditStyle(col, row);
  if (style != esPickList || !IsValueCell(col, row)) return style;
  const TKTItemProp* item = FindItemProp(col, row, true);
  return item && item->IsReadOnly() ? esSimple : style;
}

}  // namespace kt
