#include "kt/KTItemListEditor/ItemListEditor.h"

#include "kt/KTItemListEditor/Messages.h"
#include "kt/ktcommon/NewLine.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/grids/PublishGrid.h"

namespace kt {

const TClassInfo* TKTCustomItemListEditor::Class() {
  static const TClassInfo info = TClassBuilder<TKTCustomItemListEditor>("TKTCustomItemListEditor").Done();
  return &info;
}

TKTCustomItemListEditor::TKTCustomItemListEditor(TComponent* owner) : TCustomDrawGrid(owner) {}

TKTCustomItemListEditor::~TKTCustomItemListEditor() = default;

void TKTCustomItemListEditor::Construct() {
  TCustomDrawGrid::Construct();
  FItems = CreateItems(this);
  FillCategories();
  FTitleCaptions = Make<TStringList>();
  FTitleCaptions->Add(SPropertyCaption);
  FTitleCaptions->Add(SValueCaption);
  FTitleCaptions->OnChange = {this, &TKTCustomItemListEditor::TitleCaptionsChange};
  FPathDelimiter = QStringLiteral(".");
  FValueFont = MakeFont();
  FValueFont->OnChange = {this, &TKTCustomItemListEditor::ValueFontChanged};
  FCategoryFont = MakeFont();
  FCategoryFont->SetStyle(FCategoryFont->GetStyle() + TFontStyles{fsBold});
  FCategoryFont->SetColor(clPurple);
  FCategoryFont->OnChange = {this, &TKTCustomItemListEditor::CategoryFontChanged};
  FStrings = Make<TKTItemStrings>(*this);
  FDeleteBlanks = true;
  SetColCount(2);
  SetRowCount(2);
  SetFixedCols(0);
  SetDefaultColWidth(150);
  SetDefaultRowHeight(18);
  SetWidth(306);
  SetHeight(300);
  SetOptions({goFixedVertLine, goFixedHorzLine, goVertLine, goHorzLine, goColSizing, goEditing, goAlwaysShowEditor,
              goThumbTracking});
  FDisplayOptions = {doColumnTitles, doAutoColResize, doKeyColFixed, doShowReadOnly};
  SetCol(1);
}

void TKTCustomItemListEditor::Destruct() {
  // The items tell their end to an editor that is still whole.
  FStrings.reset();
  FItems.reset();
  TCustomDrawGrid::Destruct();
}

std::unique_ptr<TKTItemProps> TKTCustomItemListEditor::CreateItems(TPersistent* owner) {
  return Make<TKTItemProps>(owner, TKTItemProp::Class());
}

// Fonts.

std::unique_ptr<TKTCustomDeltaFont> TKTCustomItemListEditor::MakeFont() {
  auto font = Make<TKTCustomDeltaFont>();
  font->Assign(&GetFont());
  font->SetOnGetOriginalFont({this, &TKTCustomItemListEditor::GetOriginalFont});
  return font;
}

void TKTCustomItemListEditor::GetOriginalFont(TObject*, TFont*& font) { font = &GetFont(); }

void TKTCustomItemListEditor::CMFontChanged(TMessage& message) {
  TCustomDrawGrid::CMFontChanged(message);
  FontChanged();
}

void TKTCustomItemListEditor::FontChanged() {
  for (int i = 0; FItems && i < FItems->GetCount(); ++i) FItems->GetItem(i)->ParentFontChanged(nullptr);
  for (TKTCustomDeltaFont* font : {FCategoryFont.get(), FValueFont.get()}) {
    if (font) font->BaseFontChanged(&GetFont());
  }
  Invalidate();
}

void TKTCustomItemListEditor::ValueFontChanged(TObject*) {
  for (int i = 0; i < FItems->GetCount(); ++i) FItems->GetItem(i)->ParentValueFontChanged();
}

void TKTCustomItemListEditor::CategoryFontChanged(TObject*) {
  if (FArrangeByCategory) Invalidate();
}

// Titles.

void TKTCustomItemListEditor::SetTitleCaptions(TStrings& value) { FTitleCaptions->Assign(&value); }

void TKTCustomItemListEditor::TitleCaptionsChange(TObject*) {
  if (FDisplayOptions.Has(doColumnTitles)) Refresh();
}

bool TKTCustomItemListEditor::TitleCaptionsStored() const {
  return FTitleCaptions->GetText() != SPropertyCaption + NewLineString + SValueCaption + NewLineString;
}

const TClassInfo* TKTItemListEditor::Class() {
  using T = TKTItemListEditor;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TKTItemListEditor");
    Publish::GridOptions(builder, {goFixedVertLine, goFixedHorzLine, goVertLine, goHorzLine, goColSizing, goEditing,
                                   goAlwaysShowEditor, goThumbTracking});
    builder.Property<&T::GetArrangeByCategory, &T::SetArrangeByCategory>("ArrangeByCategory").Default(false);
    builder.Property<&T::GetCaseSensitive, &T::SetCaseSensitive>("CaseSensitive").Default(false);
    builder.Property<&T::GetDeleteBlanks, &T::SetDeleteBlanks>("DeleteBlanks").Default(true);
    builder.Property<&T::GetDisplayOptions, &T::SetDisplayOptions>("DisplayOptions")
        .Default(TILEDisplayOptions{doColumnTitles, doAutoColResize, doKeyColFixed, doShowReadOnly});
    builder.Property<&T::GetDropDownRows, &T::SetDropDownRows>("DropDownRows").Default(8);
    builder.Property<&T::GetOrientation, &T::SetOrientation>("Orientation").Default(goVertical);
    builder.Property<&T::GetPathDelimiter, &T::SetPathDelimiter>("PathDelimiter");
    builder.Property<&T::GetPropertyOptions, &T::SetPropertyOptions>("PropertyOptions").Default(TILEPropOptions{});
    builder.Property<&T::IsSorted, &T::SetSorted>("Sorted").Default(false);
    builder.Property<&T::GetTitleCaptions, &T::SetTitleCaptions>("TitleCaptions").Stored(&T::TitleCaptionsStored);
    builder.Property<&T::GetItems, &T::SetItems>("Items");
    builder.Property<&T::GetStrings, &T::SetStrings>("Strings").NotStored();
    builder.Property<&T::OnCategorize>("OnCategorize");
    builder.Property<&T::OnEditButtonClick>("OnEditButtonClick");
    builder.Property<&T::OnGetPickList>("OnGetPickList");
    builder.Property<&T::OnValidate>("OnValidate");
    builder.Property<&T::OnValidated>("OnValidated");
    builder.Property<&T::OnValidateError>("OnValidateError");
    return builder.Creatable().Done();
  }();
  return &info;
}

}  // namespace kt
