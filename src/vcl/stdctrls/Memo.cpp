#include "kt/vcl/stdctrls/Memo.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/ScrollBody.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/stdctrls/MemoLines.h"
#include "kt/vcl/stdctrls/MemoView.h"

#include <algorithm>
#include <utility>

namespace kt {

TCustomMemo::TCustomMemo(TComponent* owner) : TCustomEdit(owner) {}

TCustomMemo::~TCustomMemo() = default;

void TCustomMemo::Construct() {
  TCustomEdit::Construct();
  FLines = Make<TLines>(*this);
  SetAutoSelect(false);
  SetAutoSize(false);
  SetBounds(0, 0, 185, 89);
}

TStrings& TCustomMemo::GetLines() const { return *FLines; }

void TCustomMemo::SetLines(TStrings& value) { FLines->Assign(&value); }

void TCustomMemo::SetText(const QString& value) { TCustomEdit::SetText(TMemoText::Normalized(value)); }

QPoint TCustomMemo::GetCaretPos() const { return FText.PlaceOf(TCustomEdit::GetCaretPos()); }

void TCustomMemo::SetCaretPos(QPoint value) { SetSelStart(FText.PositionOf(value)); }

// Changes by the program.

void TCustomMemo::ChangeText(const TMemoText::TChange& change) {
  if (TMemoView* view = View()) {
    FText.Apply(change);
    const bool outer = std::exchange(FIsChangingText, true);
    view->ReplaceShown(change.Start, change.Length, change.Text);
    FIsChangingText = outer;
  } else {
    ShiftSelection(change);
  }
  if (FIsHoldingChanges) {
    FHasChanged = true;
  } else {
    Perform(CM_TEXTCHANGED, kTextHasChanged);
  }
}

/// What a window does by itself: the selection stays with its text.
void TCustomMemo::ShiftSelection(const TMemoText::TChange& change) {
  const int end = change.Start + change.Length;
  const int growth = static_cast<int>(change.Text.size()) - change.Length;
  const auto shifted = [&](int position) {
    if (position < change.Start) return position;
    return position >= end ? position + growth : change.Start;
  };
  const int from = shifted(GetSelStart());
  const int to = shifted(GetSelStart() + GetSelLength());
  FText.Apply(change);
  Select(from, to);
}

void TCustomMemo::HoldChanges(bool isHolding) {
  FIsHoldingChanges = isHolding;
  if (Window()) Window()->setUpdatesEnabled(!isHolding);
  if (!isHolding && std::exchange(FHasChanged, false)) Perform(CM_TEXTCHANGED, kTextHasChanged);
}

// The window.

TMemoView* TCustomMemo::View() const { return dynamic_cast<TMemoView*>(Window()); }

QWidget* TCustomMemo::CreateBody(QWidget* parent) {
  auto* view = new TScrollBodyOf<TMemoView>(this, parent);
  QObject::connect(view, &QPlainTextEdit::textChanged, view, [this, view] {
    if (!view->Control() || IsSettingText() || FIsChangingText) return;
    // Drops come past the body.
    const TControlBody::TInEvent running;
    GuardedCall([&] { WindowTextChanged(view->ShownText(), true); });
  });
  return view;
}

void TCustomMemo::CreateWnd() {
  const TLifeWatch self(this);
  TCustomEdit::CreateWnd();
  if (self.IsAlive()) UpdateLayout();
}

void TCustomMemo::WindowTextChanged(const QString& text, bool byUser) {
  // Qt says so as well when something else than the text is another.
  if (text != FText.Text()) TCustomEdit::WindowTextChanged(text, byUser);
}

void TCustomMemo::CMBiDiModeChanged(TMessage& message) {
  TCustomEdit::CMBiDiModeChanged(message);
  UpdateLayout();
}

/// The text has a pointer of its own, the scroll bars do not.
void TCustomMemo::CMCursorChanged(TMessage&) {
  ShowCursor(GetCursor());
  TMemoView* view = View();
  if (!view) return;
  if (GetCursor() == crDefault) {
    view->viewport()->setCursor(Qt::IBeamCursor);
  } else {
    view->viewport()->unsetCursor();
  }
}

void TCustomMemo::SetAlignment(TAlignment value) {
  if (FAlignment == value) return;
  FAlignment = value;
  UpdateLayout();
}

void TCustomMemo::SetScrollBars(TScrollStyle value) {
  if (FScrollBars == value) return;
  FScrollBars = value;
  UpdateLayout();
}

void TCustomMemo::SetWantTabs(bool value) {
  FWantTabs = value;
  if (View()) View()->setTabChangesFocus(!value);
}

void TCustomMemo::SetWordWrap(bool value) {
  if (FWordWrap == value) return;
  FWordWrap = value;
  UpdateLayout();
}

// Keys and the wheel.

bool TCustomMemo::WantsKey(quint16 key) {
  if (key == VK_TAB) return FWantTabs;
  if (key == VK_RETURN || key == VK_ESCAPE) return FWantReturns;
  return TCustomEdit::WantsKey(key);
}

void TCustomMemo::DefaultHandler(TMessage& message) {
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): deliberately past the edit, to where the window does nothing
  if (IsDesigned(message)) return TWinControl::DefaultHandler(message);
  const bool isReturn = message.Msg == WM_CHAR && (message.WParam == u'\r' || message.WParam == u'\n');
  const bool hasCtrl = TShiftState::FromBits(static_cast<quint32>(message.LParam)).Has(ssCtrl);
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): deliberately past the edit, to where the window does nothing
  if (isReturn && !FWantReturns && !hasCtrl) return TWinControl::DefaultHandler(message);
  TCustomEdit::DefaultHandler(message);
}

bool TCustomMemo::TypesByItself(QChar character) const {
  // Qt has several kinds of line breaks, by the keys that are held.
  return character != u'\r' && character != u'\n';
}

void TCustomMemo::TypeCharacter(QChar character) {
  const bool isBreak = character == u'\r' || character == u'\n';
  if (!isBreak && character != u'\t') return TCustomEdit::TypeCharacter(character);
  if (!IsReadOnly()) Editor()->TypeText(isBreak ? QStringLiteral("\n") : QString(character));
}

bool TCustomMemo::DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) {
  const TLifeWatch self(this);
  if (TCustomEdit::DoMouseWheel(shift, delta, isHorizontal, position)) return true;
  if (self.IsAlive() && Window()) TControlBody::Of(Window())->RunInherited();
  return true;
}

}  // namespace kt
