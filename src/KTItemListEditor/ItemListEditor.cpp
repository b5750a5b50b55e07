#include "kt/KTItemListEditor/ItemListEditor.h"

#include "kt/KTItemListEditor/Messages.h"
#include "kt/KTItemListEditor/PublishItemListEditor.h"
#include "kt/ktcommon/NewLine.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/Bitmap.h"
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
  FValueFont->OnChange = {this, &TKTCustomItemListEditor::InternalValueFontChanged};
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
  // An item whose font changes is read anew by the cell that is being edited, and what is asked then may free all.
  const TLifeWatch self(this);
  for (int i = 0; self.IsAlive() && FItems && i < FItems->GetCount(); ++i)
    FItems->GetItem(i)->ParentFontChanged(nullptr);
  if (self.IsAlive() && FTitleCaptionFont) FTitleCaptionFont->BaseFontChanged(&GetFont());
  if (self.IsAlive() && FCategoryFont) FCategoryFont->BaseFontChanged(&GetFont());
  if (self.IsAlive() && FValueFont) FValueFont->BaseFontChanged(&GetFont());
  if (self.IsAlive()) FollowFonts();
  if (self.IsAlive() && FTitleCaptionFont) FitRowHeight();
  if (self.IsAlive()) Invalidate();
}

void TKTCustomItemListEditor::InternalValueFontChanged(TObject*) {
  const TLifeWatch self(this);
  FitRowHeight();
  for (int i = 0; self.IsAlive() && i < FItems->GetCount(); ++i) FItems->GetItem(i)->ParentValueFontChanged();
}

/// Also those below categories, and categories once their font has followed.
void TKTCustomItemListEditor::FollowFonts() {
  const TLifeWatch self(this);
  for (int i = 0; self.IsAlive() && FItems && i < FItems->GetCount(); ++i) FItems->GetItem(i)->FollowFonts();
}

void TKTCustomItemListEditor::CategoryFontChanged(TObject*) {
  const TLifeWatch self(this);
  FitRowHeight();
  if (self.IsAlive()) FollowFonts();
  if (self.IsAlive() && FArrangeByCategory) Invalidate();
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

const TClassInfo* TKTItemListEditor::Class() {
  using T = TKTItemListEditor;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TKTItemListEditor");
    Publish::GridOfItems(builder);
    Publish::ItemListEditor(builder);
    builder.Property<&T::GetItems, &T::SetItems>("Items");
    Publish::ItemListEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

}  // namespace kt
