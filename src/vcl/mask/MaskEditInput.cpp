// What keys, clipboard and input methods do in TCustomMaskEdit.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/mask/MaskEdit.h"
#include "kt/vcl/mask/MaskLine.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace kt {

namespace {

/// How far Undo() goes back.
constexpr std::size_t kMostUndoSteps = 200;

constexpr QChar kCut(0x18);
constexpr QChar kPaste(0x16);
constexpr QChar kUndo(0x1A);
constexpr QChar kEscape(0x1B);

/// Whether the key that is down sends its character as well, which then says what to do.
bool SendsCharacter(const QWidget* window) {
  const TControlBody* body = TControlBody::Of(window);
  const QEvent* event = body ? body->CurrentEvent() : nullptr;
  return event && event->type() == QEvent::KeyPress && TControlBody::TypesText(*static_cast<const QKeyEvent*>(event));
}

/// A letter with the control key is sent as itself by some, as a control character by others.
QChar CommandOf(QChar character) {
  const QChar letter = character.toUpper();
  return letter >= u'A' && letter <= u'Z' ? QChar(letter.unicode() - u'A' + 1) : character;
}

}  // namespace

TMaskLine TCustomMaskEdit::Line() const {
  const int caret = GetCaretPos();
  const int start = GetSelStart();
  return {FSyntax, WindowText(), caret == start ? start + GetSelLength() : start, caret};
}

void TCustomMaskEdit::Apply(const TMaskLine& line) {
  if (line.GetText() == WindowText()) return Select(line.GetAnchor(), line.GetCaret());
  ShowChanged(line.GetText(), line.GetAnchor(), line.GetCaret());
}

void TCustomMaskEdit::ShowChanged(const QString& text, int anchor, int caret) {
  if (FUndoSteps.size() == kMostUndoSteps) FUndoSteps.erase(FUndoSteps.begin());
  FUndoSteps.push_back({WindowText(), GetCaretPos()});
  SetWindowText(text);
  SetModified(true);
  Select(anchor, caret);
  Perform(CM_TEXTCHANGED, kTextHasChanged);
}

/// The window was changed past the keys: by an input method, a drop, its menu.
void TCustomMaskEdit::WindowTextChanged(const QString& text, bool byUser) {
  if (!IsMasked()) return TCustomEdit::WindowTextChanged(text, byUser);
  // The signal may carry a text that has already been replaced.
  const QString changed = LineEdit()->text();
  if (changed == WindowText()) return;
  TMaskLine line = Line();
  if (IsChangeable()) line.TakeOver(changed, LineEdit()->cursorPosition());
  if (line.GetText() != WindowText()) return ShowChanged(line.GetText(), line.GetAnchor(), line.GetCaret());
  const bool isModified = IsModified();
  SetWindowText(QString(WindowText()));
  SetModified(isModified);
  Select(line.GetAnchor(), line.GetCaret());
}

bool TCustomMaskEdit::IsChangeable() { return !IsReadOnly() && EditCanModify(); }

void TCustomMaskEdit::SetSelText(const QString& value) {
  if (!IsMasked()) return TCustomEdit::SetSelText(value);
  TMaskLine line = Line();
  if (!line.Insert(value)) line.EraseSelection();
  Apply(line);
}

bool TCustomMaskEdit::CanUndo() const { return IsMasked() ? !FUndoSteps.empty() : TCustomEdit::CanUndo(); }

void TCustomMaskEdit::Undo() {
  if (!IsMasked()) return TCustomEdit::Undo();
  if (FUndoSteps.empty()) return;
  const TUndoStep step = std::move(FUndoSteps.back());
  FUndoSteps.pop_back();
  SetWindowText(step.Text);
  SetModified(step.Text != FOldText);
  SetSelStart(step.Caret);
  Perform(CM_TEXTCHANGED, kTextHasChanged);
}

void TCustomMaskEdit::ClearUndo() {
  FUndoSteps.clear();
  TCustomEdit::ClearUndo();
}

void TCustomMaskEdit::DefaultHandler(TMessage& message) {
  if (IsMasked() && HandleKey(message)) return;
  const TLifeWatch self(this);
  TCustomEdit::DefaultHandler(message);
  if (self.IsAlive()) CheckCursor();
}

bool TCustomMaskEdit::HandleKey(const TMessage& message) {
  const auto shift = TShiftState::FromBits(static_cast<quint32>(message.LParam));
  switch (message.Msg) {
    case WM_KEYDOWN:
      return HandleKeyDown(static_cast<quint16>(message.WParam), shift);
    case WM_CHAR:
      return HandleCharacter(QChar(static_cast<char16_t>(message.WParam)), shift);
    default:
      return false;
  }
}

bool TCustomMaskEdit::MoveByKey(quint16 key, TShiftState shift) {
  const bool isCtrl = shift.Has(ssCtrl);
  TMaskLine line = Line();
  switch (key) {
    case VK_LEFT:
      line.Move(isCtrl ? TMaskLine::mvFieldLeft : TMaskLine::mvLeft, shift.Has(ssShift));
      break;
    case VK_RIGHT:
      line.Move(isCtrl ? TMaskLine::mvFieldRight : TMaskLine::mvRight, shift.Has(ssShift));
      break;
    case VK_HOME:
      line.Move(TMaskLine::mvHome, shift.Has(ssShift));
      break;
    default:
      line.Move(TMaskLine::mvEnd, shift.Has(ssShift));
      break;
  }
  Apply(line);
  return true;
}

bool TCustomMaskEdit::HandleKeyDown(quint16 key, TShiftState shift) {
  const bool isCtrl = shift.Has(ssCtrl);
  switch (key) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_HOME:
    case VK_END:
      return MoveByKey(key, shift);
    case VK_INSERT:
      return shift.Has(ssShift) && Paste();
    case VK_DELETE: {
      if (shift.Has(ssShift)) return Cut();
      TMaskLine line = Line();
      line.Erase(isCtrl ? TMaskLine::mvFieldRight : TMaskLine::mvRight);
      if (IsChangeable()) Apply(line);
      return true;
    }
    case 'X':
      return isCtrl && !SendsCharacter(Window()) && Cut();
    case 'V':
      return isCtrl && !SendsCharacter(Window()) && Paste();
    case 'Z':
      return isCtrl && !SendsCharacter(Window()) && TakeBack();
    default:
      return false;
  }
}

bool TCustomMaskEdit::HandleCharacter(QChar character, TShiftState shift) {
  if (shift.Has(ssCtrl)) character = CommandOf(character);
  if (character == kCut) return Cut();
  if (character == kPaste) return Paste();
  if (character == kUndo && !shift.Has(ssShift)) return TakeBack();
  if (character == kEscape) return Escape();
  if (character == u'\r') {
    const TLifeWatch self(this);
    ValidateEdit();
    return !self.IsAlive();
  }
  if (character == u'\b') {
    TMaskLine line = Line();
    line.Erase(shift.Has(ssCtrl) ? TMaskLine::mvFieldLeft : TMaskLine::mvLeft);
    if (IsChangeable()) Apply(line);
    return true;
  }
  // What is left are other commands, which the window knows.
  return (character.isPrint() || character.isSurrogate()) && Insert(QString(character));
}

/// True even when nothing came of it: nobody else shall type it.
bool TCustomMaskEdit::Insert(const QString& text) {
  TMaskLine line = Line();
  if (IsChangeable() && line.Insert(text)) Apply(line);
  return true;
}

bool TCustomMaskEdit::Paste() { return Insert(QGuiApplication::clipboard()->text()); }

bool TCustomMaskEdit::Cut() {
  if (GetSelLength() == 0) return true;
  TMaskLine line = Line();
  line.EraseSelection();
  if (!IsChangeable()) return true;
  QGuiApplication::clipboard()->setText(GetSelText());
  Apply(line);
  return true;
}

bool TCustomMaskEdit::TakeBack() {
  if (IsChangeable()) Undo();
  return true;
}

bool TCustomMaskEdit::Escape() {
  if (!IsModified()) return false;
  Reset();
  return true;
}

}  // namespace kt
