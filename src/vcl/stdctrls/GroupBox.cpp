#include "kt/vcl/stdctrls/GroupBox.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/Accelerators.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/ControlText.h"
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/graphics/Presence.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/graphics/RealFont.h"

#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionGroupBox>

#include <cstdlib>

namespace kt {

namespace {

/// The width of the frame.
constexpr int kFrame = 2;

class TGroupFrame : public QGroupBox {
 public:
  using QGroupBox::initStyleOption;
  using QGroupBox::QGroupBox;
};

/// What the style has to know of a group box, whether or not it has a window.
void DescribeBox(QStyleOptionGroupBox& option, TCustomGroupBox& box) {
  option.rect = box.GetClientRect();
  option.text = box.GetCaption();
  option.textAlignment = Qt::AlignLeft;
  option.direction = box.UseRightToLeftAlignment() ? Qt::RightToLeft : Qt::LeftToRight;
  option.fontMetrics = QFontMetrics(QtFont(box.GetFont()));
  option.subControls = QStyle::SC_GroupBoxFrame;
  if (!option.text.isEmpty()) option.subControls |= QStyle::SC_GroupBoxLabel;
}

}  // namespace

const TClassInfo* TCustomGroupBox::Class() {
  static const TClassInfo info = TClassBuilder<TCustomGroupBox>("TCustomGroupBox").Done();
  return &info;
}

const TClassInfo* TGroupBox::Class() {
  using T = TGroupBox;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TGroupBox");
    Publish::Align(builder);
    Publish::Anchors(builder);
    Publish::BiDiMode(builder);
    Publish::Caption(builder);
    Publish::Color(builder);
    Publish::Constraints(builder);
    Publish::Ctl3D(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::Font(builder);
    builder.Property<&T::IsParentBackground, &T::SetParentBackground>("ParentBackground")
        .Stored(&T::IsParentBackgroundStored);
    Publish::ParentBiDiMode(builder);
    Publish::ParentColor(builder);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    Publish::ShowHint(builder);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, false);
    Publish::Visible(builder);
    Publish::MouseEvents(builder);
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TCustomGroupBox::Construct() {
  TCustomControl::Construct();
  SetControlStyle({csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks, csReplicatable});
  SetBounds(0, 0, 185, 105);
}

QWidget* TCustomGroupBox::CreateBody(QWidget* parent) { return new TBodyOf<TGroupFrame>(this, parent); }

void TCustomGroupBox::CreateWnd() {
  TCustomControl::CreateWnd();
  TellTitle();
}

/// Without the letter for the Alt key, which Qt would see to by itself.
void TCustomGroupBox::TellTitle() {
  if (!HandleAllocated()) return;
  const QString title = StripHotkey(GetText()).replace(u'&', QLatin1StringView("&&"));
  static_cast<QGroupBox*>(Window())->setTitle(title);
}

void TCustomGroupBox::SetParentBackground(bool value) {
  if (FGround.Set(*this, value)) Invalidate();
}

void TCustomGroupBox::AdjustClientRect(QRect& rect) {
  TCustomControl::AdjustClientRect(rect);
  const bool canMeasure = HasWidgets();
  const int lineHeight = canMeasure ? TRealFont::Of(GetFont())->Height() : std::abs(GetFont().GetHeight());
  rect.adjust(kFrame, lineHeight + kFrame, -kFrame, -kFrame);
  if (!canMeasure) return;
  QStyleOptionGroupBox option;
  DescribeBox(option, *this);
  rect &= QApplication::style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, nullptr);
}

void TCustomGroupBox::Paint() {
  const auto* const frame = static_cast<const TGroupFrame*>(Window());
  QStyleOptionGroupBox option;
  frame->initStyleOption(&option);
  DescribeBox(option, *this);
  if (IsEnabled()) {
    const QColor ground = QtColor(GetColor(), option.palette);
    option.textColor = TextColorOn(ground, GetFont().GetColor(), option.palette);
    option.palette.setColor(QPalette::WindowText, option.textColor);
  }
  QPainter& painter = GetCanvas().Painter();
  painter.setFont(QtFont(GetFont()));
  frame->style()->drawComplexControl(QStyle::CC_GroupBox, &option, &painter, frame);
}

void TCustomGroupBox::CMTextChanged(TMessage& message) {
  TCustomControl::CMTextChanged(message);
  TellTitle();
  Invalidate();
  Realign();
}

void TCustomGroupBox::CMFontChanged(TMessage& message) {
  const TLifeWatch self(this);
  TCustomControl::CMFontChanged(message);
  if (self.IsAlive()) Realign();
}

void TCustomGroupBox::CMDialogChar(TMessage& message) {
  const bool isMine = IsAccel(static_cast<quint16>(message.WParam), GetText()) && CanFocus();
  if (!isMine) return TCustomControl::CMDialogChar(message);
  message.Result = 1;
  SelectFirst();
}

}  // namespace kt
