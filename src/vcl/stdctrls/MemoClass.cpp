// What memos publish, and how they look.
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/stdctrls/MemoLines.h"
#include "kt/vcl/stdctrls/MemoView.h"
#include "kt/vcl/stdctrls/PublishEdit.h"
#include "kt/vcl/stdctrls/WindowColors.h"

namespace kt {

const TClassInfo* TCustomMemo::Class() {
  static const TClassInfo info = TClassBuilder<TCustomMemo>("TCustomMemo").Done();
  return &info;
}

const TClassInfo* TMemo::Class() {
  using T = TMemo;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TMemo");
    Publish::Align(builder);
    builder.Property<&T::GetAlignment, &T::SetAlignment>("Alignment").Default(taLeftJustify);
    Publish::Anchors(builder);
    Publish::Bevels(builder);
    Publish::BiDiMode(builder);
    Publish::EditBorderStyle(builder);
    Publish::Color(builder, clWindow);
    Publish::Constraints(builder);
    Publish::Ctl3D(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::Font(builder);
    Publish::HideSelection(builder);
    builder.Property<&T::GetLines, &T::SetLines>("Lines");
    Publish::MaxLength(builder);
    Publish::OEMConvert(builder);
    Publish::InputMethod(builder);
    Publish::ParentBiDiMode(builder);
    Publish::ParentColor(builder, false);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    Publish::ReadOnly(builder);
    builder.Property<&T::GetScrollBars, &T::SetScrollBars>("ScrollBars").Default(ssNone);
    Publish::ShowHint(builder);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, true);
    Publish::Visible(builder);
    builder.Property<&T::IsWantReturns, &T::SetWantReturns>("WantReturns").Default(true);
    builder.Property<&T::IsWantTabs, &T::SetWantTabs>("WantTabs").Default(false);
    builder.Property<&T::IsWordWrap, &T::SetWordWrap>("WordWrap").Default(true);
    builder.Property<&TCustomEdit::OnChange>("OnChange");
    Publish::MouseEvents(builder);
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    Publish::KeyEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TCustomMemo::UpdateLayout() {
  TMemoView* view = View();
  if (!view) return;
  const bool isMirrored = UseRightToLeftAlignment();
  if (GetParent() || !IsParentBiDiMode()) view->setLayoutDirection(isMirrored ? Qt::RightToLeft : Qt::LeftToRight);
  const bool isRight = (FAlignment == taRightJustify) != (isMirrored && FAlignment != taCenter);
  QTextOption option = view->document()->defaultTextOption();
  option.setTextDirection(UseRightToLeftReading() ? Qt::RightToLeft : Qt::LeftToRight);
  const Qt::Alignment side = FAlignment == taCenter ? Qt::AlignHCenter : isRight ? Qt::AlignRight : Qt::AlignLeft;
  option.setAlignment(side | Qt::AlignAbsolute);
  view->document()->setDefaultTextOption(option);
  view->setTabChangesFocus(!FWantTabs);
  view->setLineWrapMode(IsWrapping() ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
  const bool hasVertical = FScrollBars == ssVertical || FScrollBars == ssBoth;
  const bool hasHorizontal = !IsWrapping() && (FScrollBars == ssHorizontal || FScrollBars == ssBoth);
  view->setVerticalScrollBarPolicy(hasVertical ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  view->setHorizontalScrollBarPolicy(hasHorizontal ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

QPalette TCustomMemo::WindowPalette() const {
  QPalette palette = TCustomEdit::WindowPalette();
  const QPalette around = PaletteAround(*Window());
  const QPalette shown = palette.resolve(around);
  // The editor draws a selection without the keyboard in the inactive colours.
  const bool hides = IsHideSelection();
  const auto colorOf = [&](QPalette::ColorRole hidden, QPalette::ColorRole kept) {
    return shown.color(QPalette::Active, hides ? hidden : kept);
  };
  palette.setColor(QPalette::Inactive, QPalette::Highlight, colorOf(QPalette::Base, QPalette::Highlight));
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText, colorOf(QPalette::Text, QPalette::HighlightedText));
  return palette;
}

bool TCustomMemo::HasWindowColors() const {
  const QPalette& palette = Window()->palette();
  const QPalette::ColorRole ground = IsHideSelection() ? QPalette::Base : QPalette::Highlight;
  return TCustomEdit::HasWindowColors() &&
         palette.color(QPalette::Inactive, QPalette::Highlight) == palette.color(QPalette::Active, ground);
}

}  // namespace kt
