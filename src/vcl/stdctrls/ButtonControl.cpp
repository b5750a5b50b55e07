#include "kt/vcl/stdctrls/ButtonControl.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/graphics/LegibleColor.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/graphics/RealFont.h"
#include "kt/vcl/stdctrls/WindowColors.h"

#include <QAbstractButton>

#include <utility>

namespace kt {

const TClassInfo* TButtonControl::Class() {
  static const TClassInfo info = TClassBuilder<TButtonControl>("TButtonControl").Done();
  return &info;
}

void TButtonControl::Construct() {
  TWinControl::Construct();
  // The window tells what is a click.
  SetControlStyle({csSetCaption, csDoubleClicks});
  SetColor(clBtnFace);
  SetParentColor(true);
  SetTabStop(true);
}

QAbstractButton* TButtonControl::Button() const { return static_cast<QAbstractButton*>(Window()); }

void TButtonControl::Connect(QAbstractButton& button) {
  QObject::connect(&button, &QAbstractButton::clicked, &button, [&button] {
    auto* self = static_cast<TButtonControl*>(TControlBody::ControlOf(&button));
    if (self) GuardedCall([self] { self->Clicked(); });
  });
}

void TButtonControl::SetAlignment(TLeftRight value) {
  if (FAlignment == value) return;
  FAlignment = value;
  UpdateLook();
}

void TButtonControl::CreateWnd() {
  TWinControl::CreateWnd();
  UpdateLook();
  ShowCaption();
}

void TButtonControl::UpdateLook() {
  QAbstractButton* button = Button();
  if (!button) return;
  const bool outer = std::exchange(FIsUpdatingLook, true);
  button->setFont(QtFont(GetFont()));
  const bool isMirrored = (FAlignment == taLeftJustify) != UseRightToLeftAlignment();
  button->setLayoutDirection(isMirrored ? Qt::RightToLeft : Qt::LeftToRight);
  const QPalette around = PaletteAround(*button);
  QPalette palette;
  const TColor color = GetFont().GetColor();
  if (!IsSystemColor(color)) {
    const QColor text = QtColor(LegibleColor(color, around.color(QPalette::Window)), around);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::ButtonText, text);
  }
  const bool fills = ShowsColor() && !IsParentColor();
  if (fills) palette.setColor(QPalette::Window, QtColor(GetColor(), around));
  button->setAutoFillBackground(fills);
  button->setPalette(palette);
  FIsUpdatingLook = outer;
}

bool TButtonControl::WindowEvent(QEvent& event) {
  if (event.type() == QEvent::PaletteChange && !FIsUpdatingLook && HandleAllocated()) UpdateLook();
  return TWinControl::WindowEvent(event);
}

void TButtonControl::CMTextChanged(TMessage& message) {
  TWinControl::CMTextChanged(message);
  ShowCaption();
}

void TButtonControl::CMFontChanged(TMessage& message) {
  TWinControl::CMFontChanged(message);
  UpdateLook();
  ShowCaption();
}

void TButtonControl::CMColorChanged(TMessage& message) {
  TWinControl::CMColorChanged(message);
  UpdateLook();
}

void TButtonControl::CMBiDiModeChanged(TMessage& message) {
  TWinControl::CMBiDiModeChanged(message);
  UpdateLook();
}

void TButtonControl::DefaultHandler(TMessage& message) {
  TWinControl::DefaultHandler(message);
  const bool isMouse = message.Msg >= WM_MOUSEMOVE && message.Msg <= WM_MBUTTONDBLCLK;
  const bool isKey = message.Msg == WM_KEYDOWN || message.Msg == WM_KEYUP;
  if ((isMouse || isKey) && Button()) TControlBody::Of(Button())->RunInherited();
}

}  // namespace kt
