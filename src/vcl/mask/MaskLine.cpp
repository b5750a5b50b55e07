#include "kt/vcl/mask/MaskLine.h"

#include <algorithm>
#include <utility>

namespace kt {

TMaskLine::TMaskLine(const TMaskSyntax& syntax, QString text, int anchor, int caret)
    : FSyntax(syntax), FText(std::move(text)), FAnchor(Clamped(anchor)), FCaret(Clamped(caret)) {
  if (!HasSelection()) SetCaret(FCaret);
}

int TMaskLine::Clamped(int position) const { return std::clamp(position, 0, FSyntax.Size()); }

int TMaskLine::CaretPlace(const TMaskSyntax& syntax, int position) {
  const int end = syntax.PreviousEditable(syntax.Size()) + 1;
  return std::min(syntax.NextEditable(position), end);
}

void TMaskLine::SetCaret(int position) { FAnchor = FCaret = CaretPlace(FSyntax, position); }

int TMaskLine::Target(TMove move) const {
  const int previous = FSyntax.PreviousEditable(FCaret);
  switch (move) {
    case mvLeft:
      return previous < 0 ? FCaret : previous;
    case mvFieldLeft:
      return previous < 0 ? FCaret : FSyntax.FieldStart(previous);
    case mvRight:
      return std::max(FCaret, CaretPlace(FSyntax, CaretPlace(FSyntax, FCaret) + 1));
    case mvFieldRight:
      return std::max(FCaret, CaretPlace(FSyntax, FSyntax.FieldEnd(CaretPlace(FSyntax, FCaret))));
    case mvHome:
      return CaretPlace(FSyntax, 0);
    case mvEnd:
      return CaretPlace(FSyntax, FSyntax.Size());
  }
  return FCaret;
}

void TMaskLine::Move(TMove move, bool isSelecting) {
  if (isSelecting) {
    FCaret = Target(move);
    if (!HasSelection()) SetCaret(FCaret);
    return;
  }
  if (HasSelection() && move == mvLeft) return SetCaret(std::min(FAnchor, FCaret));
  if (HasSelection() && move == mvRight) return SetCaret(std::max(FAnchor, FCaret));
  SetCaret(Target(move));
}

void TMaskLine::SelectAll() {
  FAnchor = 0;
  FCaret = FSyntax.Size();
}

bool TMaskLine::HasLiteral(int from, int to, QChar character) const {
  for (int i = from; i < to; ++i) {
    if (FSyntax.GetCells()[static_cast<std::size_t>(i)].Literal == character) return true;
  }
  return false;
}

int TMaskLine::PassLiteral(int cell, QChar character) const {
  // Typed although the caret has already gone past it by itself.
  const int before = FSyntax.PreviousEditable(cell) + 1;
  if (before < cell && HasLiteral(before, cell, character)) return cell;
  // Who has just come into a field does not want to leave it: the literal is one that the mask has not got.
  if (before > 0 && cell == FSyntax.FieldStart(cell)) return -1;
  const int end = FSyntax.FieldEnd(cell);
  const int next = FSyntax.LiteralsEnd(end);
  return HasLiteral(end, next, character) ? next : -1;
}

int TMaskLine::Put(QString& text, int position, QChar character) const {
  if (position < FSyntax.Size() && !FSyntax.IsEditable(position) && HasLiteral(position, position + 1, character)) {
    return position + 1;
  }
  const int cell = FSyntax.NextEditable(position);
  if (cell == FSyntax.Size()) return -1;
  const QChar shifted = FSyntax.Shifted(cell, character);
  const bool isOptional = !FSyntax.GetCells()[static_cast<std::size_t>(cell)].IsRequired;
  if (FSyntax.Fits(cell, shifted)) {
    text[cell] = shifted;
  } else if (character == FSyntax.GetBlank() || (character == u' ' && isOptional)) {
    text[cell] = FSyntax.GetBlank();
  } else {
    return PassLiteral(cell, character);
  }
  return cell + 1;
}

bool TMaskLine::Insert(QStringView text) {
  TMaskLine changed = *this;
  changed.EraseRange(FAnchor, FCaret);
  int position = std::min(FAnchor, FCaret);
  bool isUsed = false;
  for (QChar character : text) {
    const int next = Put(changed.FText, position, character);
    if (next < 0) continue;
    position = next;
    isUsed = true;
  }
  if (!isUsed) return false;
  FText = changed.FText;
  SetCaret(position);
  return true;
}

void TMaskLine::EraseRange(int from, int to) {
  if (from > to) std::swap(from, to);
  for (int i = FSyntax.NextEditable(from); i < to; i = FSyntax.NextEditable(i + 1)) FText[i] = FSyntax.GetBlank();
}

void TMaskLine::EraseSelection() {
  EraseRange(FAnchor, FCaret);
  SetCaret(std::min(FAnchor, FCaret));
}

void TMaskLine::Erase(TMove move) {
  if (HasSelection()) return EraseSelection();
  const int target = Target(move);
  EraseRange(FCaret, target);
  SetCaret(std::min(FCaret, target));
}

void TMaskLine::TakeOver(const QString& text, int caret) {
  const int size = static_cast<int>(text.size());
  const int oldSize = static_cast<int>(FText.size());
  caret = std::clamp(caret, 0, size);
  int kept = std::min(size - caret, oldSize);
  // Without a common end behind the caret all of it is new.
  if (QStringView(text).right(kept) != QStringView(FText).right(kept)) {
    kept = 0;
    caret = size;
  }
  int start = 0;
  while (start < std::min(caret, oldSize - kept) && text[start] == FText[start]) ++start;
  FAnchor = start;
  FCaret = oldSize - kept;
  const QStringView inserted = QStringView(text).mid(start, caret - start);
  if (!inserted.isEmpty() && Insert(inserted)) return;
  if (inserted.isEmpty()) return EraseSelection();
  SetCaret(FAnchor);
}

}  // namespace kt
