#pragma once

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/grids/PublishGrid.h"

#include <type_traits>

/// What item list editors publish, for the classes that people place on forms.
namespace kt {

class TKTObjectInspector;

namespace Publish {

/// An object inspector makes rows and columns as it needs them, and is sorted at first.
template <class T>
inline constexpr bool kIsInspector = std::is_same_v<T, TKTObjectInspector>;

/// What the editor has from the grid.
template <class T>
void GridOfItems(TClassBuilder<T>& builder) {
  Action(builder);
  Align(builder);
  Anchors(builder);
  BiDiMode(builder);
  GridBorderStyle(builder);
  Color(builder, clWindow);
  if constexpr (!kIsInspector<T>) builder.template Property<&T::GetColCount, &T::SetColCount>("ColCount").Default(2);
  Constraints(builder);
  DefaultColWidth(builder, 150);
  builder.template Property<&T::GetDefaultRowHeight, &T::SetDefaultRowHeight>("DefaultRowHeight").Default(18);
  DefaultDrawing(builder);
  DragCursor(builder);
  DragKind(builder);
  DragMode(builder);
  Enabled(builder);
  FixedColor(builder);
  FixedCols(builder, 0);
  if constexpr (!kIsInspector<T>) RowCount(builder, 2);
  Font(builder);
  GridLineWidth(builder);
  ParentBiDiMode(builder);
  ParentColor(builder, false);
  ParentFont(builder);
  ParentShowHint(builder);
  PopupMenu(builder);
  ScrollBars(builder);
  ShowHint(builder);
  TabOrder(builder);
  TabStop(builder, true);
  Visible(builder);
  MouseEvents(builder);
  DragEvents(builder);
  WheelEvents(builder);
  FocusEvents(builder);
  KeyEvents(builder);
  GridEvents(builder);
  GridOptions(builder, {goFixedVertLine, goFixedHorzLine, goVertLine, goHorzLine, goColSizing, goEditing,
                        goAlwaysShowEditor, goThumbTracking});
}

/// What the editor adds. Items come after it, as their class has them.
template <class T>
void ItemListEditor(TClassBuilder<T>& builder) {
  builder.template Property<&T::GetArrangeByCategory, &T::SetArrangeByCategory>("ArrangeByCategory").Default(false);
  if constexpr (!kIsInspector<T>)
    builder.template Property<&T::GetCaseSensitive, &T::SetCaseSensitive>("CaseSensitive").Default(false);
  builder.template Property<&T::GetDeleteBlanks, &T::SetDeleteBlanks>("DeleteBlanks").Default(true);
  builder.template Property<&T::GetCategoryFont, &T::SetCategoryFont>("CategoryFont");
  builder.template Property<&T::GetDisplayOptions, &T::SetDisplayOptions>("DisplayOptions")
      .Default(TILEDisplayOptions{doColumnTitles, doAutoColResize, doKeyColFixed, doShowReadOnly});
  builder.template Property<&T::GetDropDownRows, &T::SetDropDownRows>("DropDownRows").Default(8);
  builder.template Property<&T::GetHideSelection, &T::SetHideSelection>("HideSelection").Default(true);
  // Deliberately not what a new editor has: 17 is never written, and so comes back as 11.
  builder.template Property<&T::GetIndent, &T::SetIndent>("Indent").Default(17);
  builder.template Property<&T::GetMinusGlyph, &T::SetMinusGlyph>("MinusGlyph").Stored(&T::IsMinusGlyphStored);
  builder.template Property<&T::GetPlusGlyph, &T::SetPlusGlyph>("PlusGlyph").Stored(&T::IsPlusGlyphStored);
  builder.template Property<&T::GetOrientation, &T::SetOrientation>("Orientation").Default(goVertical);
  builder.template Property<&T::GetPathDelimiter, &T::SetPathDelimiter>("PathDelimiter");
  builder.template Property<&T::GetPropertyOptions, &T::SetPropertyOptions>("PropertyOptions")
      .Default(TILEPropOptions{});
  builder.template Property<&T::GetShowItemHintStyle, &T::SetShowItemHintStyle>("ShowItemHintStyle")
      .Default(shValueAndHint);
  builder.template Property<&T::IsSorted, &T::SetSorted>("Sorted").Default(kIsInspector<T>);
  builder.template Property<&T::GetTitleCaptions, &T::SetTitleCaptions>("TitleCaptions")
      .Stored(&T::TitleCaptionsStored);
  builder.template Property<&T::GetTitleCaptionFont, &T::SetTitleCaptionFont>("TitleCaptionFont");
  builder.template Property<&T::GetValueFont, &T::SetValueFont>("ValueFont");
}

template <class T>
void ItemListEvents(TClassBuilder<T>& builder) {
  builder.template Property<&T::GetStrings, &T::SetStrings>("Strings").NotStored();
  builder.template Property<&T::OnCategorize>("OnCategorize");
  builder.template Property<&T::OnEditButtonClick>("OnEditButtonClick");
  builder.template Property<&T::OnGetPickList>("OnGetPickList");
  builder.template Property<&T::OnShowHints>("OnShowHints");
  builder.template Property<&T::OnValidate>("OnValidate");
  builder.template Property<&T::OnValidated>("OnValidated");
  builder.template Property<&T::OnValidateError>("OnValidateError");
}

}  // namespace Publish
}  // namespace kt
