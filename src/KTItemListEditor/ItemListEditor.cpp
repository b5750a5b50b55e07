#include "kt/KTItemListEditor/ItemListEditor.h"

#include "kt/KTItemListEditor/Messages.h"
#include "kt/ktcommon/NewLine.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/grids/PublishGrid.h"
#include "package/Glyphs.h"

namespace kt {

const TClassInfo* TKTCustomItemListEditor::Class() {
  static const TClassInfo info = TClassBuilder<TKTCustomItemListEditor>("TKTCustomItemListEditor").Done();
  return &info;
}

TKTCustomItemListEditor::TKTCustomItemListEditor(TComponent* owner) : TCustomDrawGrid(owner) {}

TKTCustomItemListEditor::~TKTCustomItemListEditor() = default;

void TKTCustomItemListEditor::Construct() {
  TCustomDrawGrid::Construct();
  FHintWindow = New<TKTHintWindow>(this);
  FHintWindow->SetSubComponent(true);
  FHintWindow->SetInterval(0);
  FItems = CreateItems(this);
  FillCategories();
  FTitleCaptions = Make<TStringList>();
  FTitleCaptions->Add(SPropertyCaption);
  FTitleCaptions->Add(SValueCaption);
  FTitleCaptions->OnChange = {this, &TKTCustomItemListEditor::TitleCaptionsChange};
  FPathDelimiter = QStringLiteral(".");
  FIndent = 11;
  FValueFont = MakeFont();
  FValueFont->OnChange = {this, &TKTCustomItemListEditor::ValueFontChanged};
  FCategoryFont = MakeFont();
  FCategoryFont->SetStyle(FCategoryFont->GetStyle() + TFontStyles{fsBold});
  FCategoryFont->SetColor(clPurple);
  FCategoryFont->OnChange = {this, &TKTCustomItemListEditor::CategoryFontChanged};
  FTitleCaptionFont = MakeFont();
  FTitleCaptionFont->OnChange = {this, &TKTCustomItemListEditor::TitleCaptionFontChanged};
  FMinusGlyph = MakeGlyph(QStringLiteral("MINUSSIGN"));
  FPlusGlyph = MakeGlyph(QStringLiteral("PLUSSIGN"));
  FStrings = Make<TKTItemStrings>(*this);
  FHideSelection = true;
  FDeleteBlanks = true;
  SetColCount(2);
  SetRowCount(2);
  SetFixedCols(0);
  SetDefaultColWidth(150);
  SetDefaultRowHeight(FRowHeight);
  FIsRowHeightByHand = false;
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
  for (TKTCustomDeltaFont* font : {FTitleCaptionFont.get(), FCategoryFont.get(), FValueFont.get()}) {
    if (font) font->BaseFontChanged(&GetFont());
  }
  FollowFonts();
  if (FTitleCaptionFont) FitRowHeight();
  Invalidate();
}

void TKTCustomItemListEditor::ValueFontChanged(TObject*) {
  FitRowHeight();
  for (int i = 0; i < FItems->GetCount(); ++i) FItems->GetItem(i)->ParentValueFontChanged();
}

/// Also those below categories, and categories once their font has followed.
void TKTCustomItemListEditor::FollowFonts() {
  for (int i = 0; FItems && i < FItems->GetCount(); ++i) FItems->GetItem(i)->FollowFonts();
}

void TKTCustomItemListEditor::CategoryFontChanged(TObject*) {
  FitRowHeight();
  FollowFonts();
  if (FArrangeByCategory) Invalidate();
}

void TKTCustomItemListEditor::TitleCaptionFontChanged(TObject*) {
  FitRowHeight();
  if (FDisplayOptions.Has(doColumnTitles)) Invalidate();
}

// Glyphs.

std::unique_ptr<TPicture> TKTCustomItemListEditor::MakeGlyph(const QString& name) {
  auto picture = Make<TPicture>();
  picture->GetBitmap().SetImage(PackageBitmap(name));
  picture->OnChange = {this, &TKTCustomItemListEditor::GlyphChanged};
  return picture;
}

// Titles.

void TKTCustomItemListEditor::SetTitleCaptions(TStrings& value) { FTitleCaptions->Assign(&value); }

void TKTCustomItemListEditor::TitleCaptionsChange(TObject*) {
  if (FDisplayOptions.Has(doColumnTitles)) Refresh();
}

bool TKTCustomItemListEditor::TitleCaptionsStored() const {
  return FTitleCaptions->GetText() != SPropertyCaption + NewLineString + SValueCaption + NewLineString;
}

namespace {

/// What the editor has from the grid.
void PublishGrid(TClassBuilder<TKTItemListEditor>& builder) {
  using T = TKTItemListEditor;
  Publish::Align(builder);
  Publish::Anchors(builder);
  Publish::BiDiMode(builder);
  Publish::GridBorderStyle(builder);
  Publish::Color(builder, clWindow);
  builder.Property<&T::GetColCount, &T::SetColCount>("ColCount").Default(2);
  Publish::Constraints(builder);
  Publish::DefaultColWidth(builder, 150);
  builder.Property<&T::GetDefaultRowHeight, &T::SetDefaultRowHeight>("DefaultRowHeight").Default(18);
  Publish::DefaultDrawing(builder);
  Publish::DragCursor(builder);
  Publish::DragKind(builder);
  Publish::DragMode(builder);
  Publish::Enabled(builder);
  Publish::FixedColor(builder);
  Publish::FixedCols(builder, 0);
  Publish::RowCount(builder, 2);
  Publish::Font(builder);
  Publish::GridLineWidth(builder);
  Publish::ParentBiDiMode(builder);
  Publish::ParentColor(builder, false);
  Publish::ParentFont(builder);
  Publish::ParentShowHint(builder);
  Publish::PopupMenu(builder);
  Publish::ScrollBars(builder);
  Publish::ShowHint(builder);
  Publish::TabOrder(builder);
  Publish::TabStop(builder, true);
  Publish::Visible(builder);
  Publish::MouseEvents(builder);
  Publish::FocusEvents(builder);
  Publish::KeyEvents(builder);
  Publish::GridEvents(builder);
}

}  // namespace

const TClassInfo* TKTItemListEditor::Class() {
  using T = TKTItemListEditor;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TKTItemListEditor");
    PublishGrid(builder);
    Publish::GridOptions(builder, {goFixedVertLine, goFixedHorzLine, goVertLine, goHorzLine, goColSizing, goEditing,
                                   goAlwaysShowEditor, goThumbTracking});
    builder.Property<&T::GetArrangeByCategory, &T::SetArrangeByCategory>("ArrangeByCategory").Default(false);
    builder.Property<&T::GetCaseSensitive, &T::SetCaseSensitive>("CaseSensitive").Default(false);
    builder.Property<&T::GetDeleteBlanks, &T::SetDeleteBlanks>("DeleteBlanks").Default(true);
    builder.Property<&T::GetCategoryFont, &T::SetCategoryFont>("CategoryFont");
    builder.Property<&T::GetDisplayOptions, &T::SetDisplayOptions>("DisplayOptions")
        .Default(TILEDisplayOptions{doColumnTitles, doAutoColResize, doKeyColFixed, doShowReadOnly});
    builder.Property<&T::GetDropDownRows, &T::SetDropDownRows>("DropDownRows").Default(8);
    builder.Property<&T::GetHideSelection, &T::SetHideSelection>("HideSelection").Default(true);
    // Deliberately not what a new editor has: 17 is never written, and so comes back as 11.
    builder.Property<&T::GetIndent, &T::SetIndent>("Indent").Default(17);
    builder.Property<&T::GetMinusGlyph, &T::SetMinusGlyph>("MinusGlyph").Stored(&T::IsMinusGlyphStored);
    builder.Property<&T::GetPlusGlyph, &T::SetPlusGlyph>("PlusGlyph").Stored(&T::IsPlusGlyphStored);
    builder.Property<&T::GetOrientation, &T::SetOrientation>("Orientation").Default(goVertical);
    builder.Property<&T::GetPathDelimiter, &T::SetPathDelimiter>("PathDelimiter");
    builder.Property<&T::GetPropertyOptions, &T::SetPropertyOptions>("PropertyOptions").Default(TILEPropOptions{});
    builder.Property<&T::GetShowItemHintStyle, &T::SetShowItemHintStyle>("ShowItemHintStyle").Default(shValueAndHint);
    builder.Property<&T::IsSorted, &T::SetSorted>("Sorted").Default(false);
    builder.Property<&T::GetTitleCaptions, &T::SetTitleCaptions>("TitleCaptions").Stored(&T::TitleCaptionsStored);
    builder.Property<&T::GetTitleCaptionFont, &T::SetTitleCaptionFont>("TitleCaptionFont");
    builder.Property<&T::GetValueFont, &T::SetValueFont>("ValueFont");
    builder.Property<&T::GetItems, &T::SetItems>("Items");
    builder.Property<&T::GetStrings, &T::SetStrings>("Strings").NotStored();
    builder.Property<&T::OnCategorize>("OnCategorize");
    builder.Property<&T::OnEditButtonClick>("OnEditButtonClick");
    builder.Property<&T::OnGetPickList>("OnGetPickList");
    builder.Property<&T::OnShowHints>("OnShowHints");
    builder.Property<&T::OnValidate>("OnValidate");
    builder.Property<&T::OnValidated>("OnValidated");
    builder.Property<&T::OnValidateError>("OnValidateError");
    return builder.Creatable().Done();
  }();
  return &info;
}

}  // namespace kt
