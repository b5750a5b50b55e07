#include "kt/vcl/stdctrls/Label.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/Accelerators.h"
#include "kt/vcl/controls/ControlText.h"
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/graphics/DrawText.h"
#include "kt/vcl/graphics/Presence.h"
#include "kt/vcl/graphics/RealFont.h"

#include <QGuiApplication>

namespace kt {

const TClassInfo* TCustomLabel::Class() {
  static const TClassInfo info = TClassBuilder<TCustomLabel>("TCustomLabel").Done();
  return &info;
}

const TClassInfo* TLabel::Class() {
  using T = TLabel;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TLabel");
    Publish::Align(builder);
    builder.Property<&T::GetAlignment, &T::SetAlignment>("Alignment").Default(taLeftJustify);
    Publish::Anchors(builder);
    builder.Property<&T::IsAutoSize, &T::SetAutoSize>("AutoSize").Default(true);
    Publish::BiDiMode(builder);
    Publish::Caption(builder);
    Publish::Color(builder);
    Publish::Constraints(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    builder.Property<&T::GetEllipsisPosition, &T::SetEllipsisPosition>("EllipsisPosition").Default(epNone);
    Publish::Enabled(builder);
    builder.Property<&T::GetFocusControl, &T::SetFocusControl>("FocusControl");
    Publish::Font(builder);
    Publish::ParentBiDiMode(builder);
    Publish::ParentColor(builder);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    builder.Property<&T::IsShowAccelChar, &T::SetShowAccelChar>("ShowAccelChar").Default(true);
    Publish::ShowHint(builder);
    builder.Property<&T::IsTransparent, &T::SetTransparent>("Transparent").Stored(&T::IsTransparentStored);
    builder.Property<&T::GetLayout, &T::SetLayout>("Layout").Default(tlTop);
    Publish::Visible(builder);
    builder.Property<&T::IsWordWrap, &T::SetWordWrap>("WordWrap").Default(false);
    Publish::MouseEvents(builder);
    Publish::DragEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TCustomLabel::Construct() {
  TGraphicControl::Construct();
  FControlStyle.Include(csReplicatable);
  SetBounds(0, 0, 65, 17);
}

void TCustomLabel::Loaded() {
  TGraphicControl::Loaded();
  AdjustBounds();
}

void TCustomLabel::Notification(TComponent* component, TOperation operation) {
  TGraphicControl::Notification(component, operation);
  if (operation == opRemove && component == FFocusControl) FFocusControl = nullptr;
}

// The text and its room.

quint32 TCustomLabel::Flags() const {
  quint32 flags = DT_EXPANDTABS | TextFlags(*this, FAlignment);
  if (FWordWrap) flags |= DT_WORDBREAK;
  if (!FShowAccelChar) flags |= DT_NOPREFIX;
  return flags;
}

QString TCustomLabel::ShownText(bool isMeasured) {
  const QString& text = GetText();
  const bool isBlank = text.isEmpty() || (FShowAccelChar && text == u"&");
  if (isMeasured) return isBlank ? text + u' ' : text;
  if (FEllipsisPosition == epNone || FAutoSize || FWordWrap) return text;
  const Qt::TextElideMode mode = FEllipsisPosition == epPathEllipsis ? Qt::ElideMiddle : Qt::ElideRight;
  const int flags = FShowAccelChar ? Qt::TextShowMnemonic : 0;
  return TRealFont::Of(GetFont())->Metrics().elidedText(text, mode, GetWidth(), flags);
}

QSize TCustomLabel::TextSize() {
  QRect rect = GetClientRect();
  GetCanvas().SetFont(&GetFont());
  DrawText(GetCanvas(), ShownText(true), rect, Flags() | DT_CALCRECT);
  return rect.size();
}

void TCustomLabel::AdjustBounds() {
  if (!FAutoSize || HasState(csReading) || !HasGui()) return;
  const QSize size = TextSize();
  const bool isRight = (FAlignment == taRightJustify) != (UseRightToLeftAlignment() && FAlignment != taCenter);
  SetBounds(isRight ? GetLeft() + GetWidth() - size.width() : GetLeft(), GetTop(), size.width(), size.height());
}

void TCustomLabel::Paint() {
  TCanvas& canvas = GetCanvas();
  QRect rect = GetClientRect();
  if (!IsTransparent()) canvas.FillRect(rect);
  if (FLayout != tlTop) {
    const int rest = GetHeight() - TextSize().height();
    rect.translate(0, FLayout == tlBottom ? rest : rest / 2);
  }
  const TColor ground = IsTransparent() && GetParent() ? GetParent()->GetColor() : GetColor();
  DrawControlText(canvas, *this, ShownText(false), rect, Flags() | DT_NOCLIP, ground);
}

void TCustomLabel::CMTextChanged(TMessage& message) {
  TGraphicControl::CMTextChanged(message);
  Invalidate();
  AdjustBounds();
}

void TCustomLabel::CMFontChanged(TMessage& message) {
  TGraphicControl::CMFontChanged(message);
  AdjustBounds();
}

// What it is for.

void TCustomLabel::SetFocusControl(TWinControl* value) {
  FFocusControl = value;
  if (value) value->FreeNotification(this);
}

bool TCustomLabel::FocusOther() {
  if (!FFocusControl || HasState(csDesigning) || !IsEnabled() || !FFocusControl->CanFocus()) return false;
  FFocusControl->SetFocus();
  return true;
}

void TCustomLabel::Click() {
  const TLifeWatch self(this);
  FocusOther();
  if (self.IsAlive()) TGraphicControl::Click();
}

void TCustomLabel::CMDialogChar(TMessage& message) {
  const bool isMine = FShowAccelChar && IsAccel(static_cast<quint16>(message.WParam), GetText());
  if (isMine && FocusOther()) message.Result = 1;
}

// Properties.

void TCustomLabel::SetAlignment(TAlignment value) {
  if (FAlignment == value) return;
  FAlignment = value;
  Invalidate();
}

void TCustomLabel::SetAutoSize(bool value) {
  if (FAutoSize == value) return;
  FAutoSize = value;
  Invalidate();
  AdjustBounds();
}

void TCustomLabel::SetEllipsisPosition(TEllipsisPosition value) {
  if (FEllipsisPosition == value) return;
  FEllipsisPosition = value;
  Invalidate();
}

void TCustomLabel::SetLayout(TTextLayout value) {
  if (FLayout == value) return;
  FLayout = value;
  Invalidate();
}

void TCustomLabel::SetShowAccelChar(bool value) {
  if (FShowAccelChar == value) return;
  FShowAccelChar = value;
  Invalidate();
  AdjustBounds();
}

void TCustomLabel::SetTransparent(bool value) {
  FIsTransparentSet = true;
  if (IsTransparent() == value) return;
  FControlStyle.Put(csOpaque, !value);
  Invalidate();
}

void TCustomLabel::SetWordWrap(bool value) {
  if (FWordWrap == value) return;
  FWordWrap = value;
  Invalidate();
  AdjustBounds();
}

}  // namespace kt
