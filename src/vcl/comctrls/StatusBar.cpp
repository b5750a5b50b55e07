#include "kt/vcl/comctrls/StatusBar.h"

#include "kt/rtl/objects/Make.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/graphics/LegibleColor.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/graphics/RealFont.h"
#include "kt/vcl/stdctrls/WindowColors.h"

#include <QLabel>
#include <QSizeGrip>
#include <QStatusBar>
#include <QStyle>

#include <utility>

namespace kt {

namespace {

/// Between the border of a panel and its text, and between panels.
constexpr int kMargin = 2;
constexpr int kBetween = 2;

Qt::Alignment QtAlignment(const TStatusPanel& panel) {
  const bool isMirrored = panel.GetBiDiMode() == bdRightToLeft;
  switch (panel.GetAlignment()) {
    case taCenter:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    case taRightJustify:
      return Qt::AlignAbsolute | Qt::AlignVCenter | (isMirrored ? Qt::AlignLeft : Qt::AlignRight);
    default:
      return Qt::AlignAbsolute | Qt::AlignVCenter | (isMirrored ? Qt::AlignRight : Qt::AlignLeft);
  }
}

int FrameOf(TStatusPanelBevel bevel) {
  return bevel == pbNone ? QFrame::NoFrame : QFrame::Panel | (bevel == pbRaised ? QFrame::Raised : QFrame::Sunken);
}

void ShowPanel(QLabel& label, const TStatusPanel& panel) {
  label.setText(panel.GetStyle() == psText ? panel.GetText() : QString());
  label.setAlignment(QtAlignment(panel));
  label.setFrameStyle(FrameOf(panel.GetBevel()));
  label.setLayoutDirection(panel.GetBiDiMode() == bdLeftToRight ? Qt::LeftToRight : Qt::RightToLeft);
}

/// The direct children alone: the corner has none.
QList<QLabel*> LabelsOf(const QStatusBar& bar) {
  return bar.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
}

}  // namespace

void TCustomStatusBar::Construct() {
  FPanels = Make<TStatusPanels>(*this);
  TWinControl::Construct();
  SetControlStyle({csCaptureMouse, csClickEvents, csDoubleClicks});
  SetParentColor(false);
  SetColor(clBtnFace);
  SetParentFont(false);
  SetBounds(0, 0, 0, 19);
  SetAlign(alBottom);
}

void TCustomStatusBar::Destruct() {
  Destroying();
  FPanels.reset();
  TWinControl::Destruct();
}

QStatusBar* TCustomStatusBar::Bar() const { return static_cast<QStatusBar*>(Window()); }

QWidget* TCustomStatusBar::CreateBody(QWidget* parent) { return new TBodyOf<QStatusBar>(this, parent); }

void TCustomStatusBar::CreateWnd() {
  TWinControl::CreateWnd();
  Bar()->setSizeGripEnabled(FSizeGrip);
  UpdateLook();
  UpdatePanels();
}

void TCustomStatusBar::SetPanels(const TStatusPanels& value) { FPanels->Assign(const_cast<TStatusPanels*>(&value)); }

void TCustomStatusBar::SetSimplePanel(bool value) {
  if (FSimplePanel == value) return;
  FSimplePanel = value;
  UpdatePanels();
}

void TCustomStatusBar::SetSimpleText(const QString& value) {
  if (FSimpleText == value) return;
  FSimpleText = value;
  if (FSimplePanel && Bar()) Bar()->showMessage(value);
}

void TCustomStatusBar::SetSizeGrip(bool value) {
  if (FSizeGrip == value) return;
  FSizeGrip = value;
  if (!Bar()) return;
  Bar()->setSizeGripEnabled(value);
  PlacePanels();
}

void TCustomStatusBar::SetUseSystemFont(bool value) {
  if (FUseSystemFont == value) return;
  FUseSystemFont = value;
  UpdateLook();
}

// The window.

void TCustomStatusBar::UpdatePanels() {
  QStatusBar* bar = Bar();
  if (!bar || HasState(csDestroying)) return;
  qDeleteAll(LabelsOf(*bar));
  FSimplePanel ? bar->showMessage(FSimpleText) : bar->clearMessage();
  for (int i = 0; !FSimplePanel && i < FPanels->GetCount(); ++i) {
    auto* label = new QLabel(bar);
    label->setMargin(kMargin);
    label->setTextFormat(Qt::PlainText);
    // What the mouse does on a panel it does on the bar.
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    ShowPanel(*label, *FPanels->GetItems(i));
    label->show();
  }
  PlacePanels();
}

/// Lines of the bar's own would leave them no room for their texts.
void TCustomStatusBar::PlacePanels() {
  QStatusBar* bar = Bar();
  if (!bar) return;
  const QList<QLabel*> labels = LabelsOf(*bar);
  const auto* grip = bar->findChild<QSizeGrip*>();
  const int end = bar->width() - (FSizeGrip && grip ? grip->sizeHint().width() : 0);
  int start = 0;
  for (qsizetype i = 0; i < labels.size() && i < FPanels->GetCount(); ++i) {
    const bool isLast = i == FPanels->GetCount() - 1;
    const int width = isLast ? end - start : FPanels->GetItems(static_cast<int>(i))->GetWidth();
    const QRect place(start, kBetween, qMax(width, 0), qMax(bar->height() - kBetween, 0));
    labels[i]->setGeometry(QStyle::visualRect(bar->layoutDirection(), bar->rect(), place));
    start += place.width() + kBetween;
  }
}

void TCustomStatusBar::BoundsUpdated() {
  TWinControl::BoundsUpdated();
  PlacePanels();
}

void TCustomStatusBar::UpdatePanel(int index) {
  if (!Bar() || FSimplePanel) return;
  const QList<QLabel*> labels = LabelsOf(*Bar());
  if (index >= labels.size()) return;
  ShowPanel(*labels[index], *FPanels->GetItems(index));
  PlacePanels();
}

void TCustomStatusBar::UpdateLook() {
  QStatusBar* bar = Bar();
  if (!bar) return;
  const bool outer = std::exchange(FIsUpdatingLook, true);
  bar->setFont(FUseSystemFont ? QFont() : QtFont(GetFont()));
  bar->setLayoutDirection(UseRightToLeftAlignment() ? Qt::RightToLeft : Qt::LeftToRight);
  const QPalette around = PaletteAround(*bar);
  QPalette palette;
  const bool fills = GetColor() != clBtnFace;
  const QColor ground = fills ? QtColor(GetColor(), around) : around.color(QPalette::Window);
  if (fills) palette.setColor(QPalette::Window, ground);
  const TColor color = GetFont().GetColor();
  if (!FUseSystemFont && !IsSystemColor(color)) {
    palette.setColor(QPalette::WindowText, QtColor(LegibleColor(color, ground), around));
  }
  bar->setAutoFillBackground(fills);
  bar->setPalette(palette);
  FIsUpdatingLook = outer;
}

bool TCustomStatusBar::WindowEvent(QEvent& event) {
  if (event.type() == QEvent::PaletteChange && !FIsUpdatingLook && HandleAllocated()) UpdateLook();
  return TWinControl::WindowEvent(event);
}

void TCustomStatusBar::CMFontChanged(TMessage& message) {
  TWinControl::CMFontChanged(message);
  // What the parent passes on is no wish for another font.
  if (!HasState(csLoading) && !IsParentFont()) FUseSystemFont = false;
  UpdateLook();
}

void TCustomStatusBar::CMColorChanged(TMessage& message) {
  TWinControl::CMColorChanged(message);
  UpdateLook();
}

void TCustomStatusBar::CMBiDiModeChanged(TMessage& message) {
  TWinControl::CMBiDiModeChanged(message);
  UpdateLook();
  UpdatePanels();
}

// Hints.

void TCustomStatusBar::Dispatch(TMessage& message) {
  if (message.Msg != CM_APPLICATIONHINT || !FAutoHint || HasState(csDesigning)) return TWinControl::Dispatch(message);
  message.Result = 1;
  ShowHint(*MessagePointer<const QString>(message.LParam));
}

void TCustomStatusBar::ShowHint(const QString& hint) {
  if (OnHint) return OnHint(this);
  if (FSimplePanel || FPanels->GetCount() == 0) return SetSimpleText(hint);
  FPanels->GetItems(0)->SetText(hint);
}

void TCustomStatusBar::DefaultHandler(TMessage& message) {
  TWinControl::DefaultHandler(message);
  const bool isMouse = message.Msg >= WM_MOUSEMOVE && message.Msg <= WM_MBUTTONDBLCLK;
  if (isMouse && Bar()) TControlBody::Of(Bar())->RunInherited();
}

}  // namespace kt
