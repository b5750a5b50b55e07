#include "kt/vcl/mask/MaskText.h"

#include <algorithm>
#include <utility>

namespace kt {

namespace {

const TMaskCell& CellAt(const TMaskSyntax& syntax, int index) {
  return syntax.GetCells()[static_cast<std::size_t>(index)];
}

/// What a mask shows of a value while it is being filled in.
class TFilling {
 public:
  TFilling(const TMaskSyntax& syntax, QChar blank) : FSyntax(syntax), FBlank(blank) {
    for (const TMaskCell& cell : syntax.GetCells()) FText += cell.Kind == mkLiteral ? cell.Literal : blank;
  }

  /// The characters of a value without literals, into the editable cells of a range.
  QString Fill(QStringView entered, int from, int to) {
    if (FSyntax.IsFilledFromRight()) {
      FillFromRight(Trimmed(entered), from, to);
    } else {
      FillFromLeft(Trimmed(entered), from, to);
    }
    return FText;
  }
  QString FillAll(QStringView entered) { return Fill(entered, 0, FSyntax.Size()); }

  /// A value with literals.
  QString FillFields(QStringView value) {
    const QStringView whole = value;
    bool hasLiterals = SkipLiterals(value, 0);
    for (int start = FSyntax.NextEditable(0); start < FSyntax.Size();) {
      const int end = FSyntax.FieldEnd(start);
      const auto length = FieldLength(value, start, end);
      Fill(value.left(length), start, end);
      value = value.mid(length);
      hasLiterals = SkipLiterals(value, end) || hasLiterals;
      start = FSyntax.LiteralsEnd(end);
    }
    // Somebody left the literals out: then fields are no places to start anew.
    return hasLiterals ? FText : TFilling(FSyntax, FBlank).FillAll(whole);
  }

 private:
  QStringView Trimmed(QStringView text) const {
    const QChar space = u' ';
    if (FSyntax.IsFilledFromRight()) {
      while (text.startsWith(space)) text = text.mid(1);
    } else {
      while (text.endsWith(space)) text.chop(1);
    }
    return text;
  }

  void Place(int index, QChar character) {
    if (character == u' ' && CellAt(FSyntax, index).Kind != mkAny) return;
    FText[index] = character == FBlank ? character : FSyntax.Shifted(index, character);
  }

  void FillFromLeft(QStringView text, int from, int to) {
    for (QChar character : text) {
      from = FSyntax.NextEditable(from);
      if (from >= to) return;
      Place(from++, character);
    }
  }

  void FillFromRight(QStringView text, int from, int to) {
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
      to = FSyntax.PreviousEditable(to);
      if (to < from) return;
      Place(to, text[i]);
    }
  }

  /// How many characters of the value belong to the field: all it has room for, or up to the literal that ends it.
  qsizetype FieldLength(QStringView value, int start, int end) const {
    const qsizetype room = std::min<qsizetype>(end - start, value.size());
    if (end >= FSyntax.Size()) return room;
    const QChar literal = CellAt(FSyntax, end).Literal;
    if (end - start < value.size() && value[end - start] == literal) return room;
    const qsizetype place = value.left(room).indexOf(literal);
    return place < 0 ? room : place;
  }

  /// Takes the literals at `index` off the value, as far as it has them. True when it had any.
  bool SkipLiterals(QStringView& value, int index) const {
    bool any = false;
    for (; index < FSyntax.LiteralsEnd(index); ++index) {
      if (value.isEmpty() || value[0] != CellAt(FSyntax, index).Literal) continue;
      value = value.mid(1);
      any = true;
    }
    return any;
  }

  const TMaskSyntax& FSyntax;
  QChar FBlank;
  QString FText;
};

QString MaskValueWith(const TMaskSyntax& syntax, QStringView value, QChar blank) {
  TFilling filling(syntax, blank);
  return syntax.IsLiteralSaved() ? filling.FillFields(value) : filling.FillAll(value);
}

QChar Unblanked(const TMaskSyntax& syntax, QChar character) {
  return character == syntax.GetBlank() ? QChar(u' ') : character;
}

bool IsFault(const TMaskSyntax& syntax, int index, QChar character) {
  const TMaskCell& cell = CellAt(syntax, index);
  if (cell.Kind == mkLiteral) return character != cell.Literal;
  const bool isBlank = character == syntax.GetBlank() || (character == u' ' && cell.Kind != mkAny);
  return isBlank ? cell.IsRequired : !syntax.Fits(index, character);
}

}  // namespace

QString FormatMaskText(QStringView mask, QStringView value) { return MaskValueWith(TMaskSyntax(mask), value, u' '); }

QString MaskValue(const TMaskSyntax& syntax, QStringView value) {
  return MaskValueWith(syntax, value, syntax.GetBlank());
}

QString MaskEntered(const TMaskSyntax& syntax, QStringView entered) {
  return TFilling(syntax, syntax.GetBlank()).FillAll(entered);
}

QString UnmaskEntered(const TMaskSyntax& syntax, QStringView text) {
  QString result;
  for (int i = syntax.NextEditable(0); i < std::min<int>(syntax.Size(), static_cast<int>(text.size()));
       i = syntax.NextEditable(i + 1)) {
    result += Unblanked(syntax, text[i]);
  }
  while (result.endsWith(u' ')) result.chop(1);
  if (!syntax.IsFilledFromRight()) return result;
  while (result.startsWith(u' ')) result.remove(0, 1);
  return result;
}

QString UnmaskValue(const TMaskSyntax& syntax, QStringView text) {
  if (!syntax.IsLiteralSaved()) return UnmaskEntered(syntax, text);
  QString result = text.toString();
  for (int i = 0; i < static_cast<int>(result.size()); ++i) {
    if (syntax.IsEditable(i)) result[i] = Unblanked(syntax, result[i]);
  }
  return result;
}

QString AlignToMask(const TMaskSyntax& syntax, QStringView text) {
  QString result = TFilling(syntax, syntax.GetBlank()).FillAll({});
  for (int i = 0; i < std::min<int>(syntax.Size(), static_cast<int>(text.size())); ++i) {
    if (syntax.IsEditable(i) && text[i] != syntax.GetBlank()) result[i] = syntax.Shifted(i, text[i]);
  }
  return result;
}

QString ReflowMasked(const TMaskSyntax& syntax, const QString& text) {
  if (!syntax.IsFilledFromRight()) return text;
  int from = syntax.PreviousEditable(syntax.Size());
  while (from >= 0 && text[from] == syntax.GetBlank()) from = syntax.PreviousEditable(from);
  QString moved = TFilling(syntax, syntax.GetBlank()).FillAll({});
  // Blanks in between move along as they are.
  for (int to = syntax.PreviousEditable(syntax.Size()); from >= 0; to = syntax.PreviousEditable(to)) {
    if (text[from] != syntax.GetBlank() && !syntax.Fits(to, text[from])) return text;
    moved[to] = text[from];
    from = syntax.PreviousEditable(from);
  }
  return moved;
}

std::optional<int> FindMaskFault(const TMaskSyntax& syntax, QStringView text) {
  for (int i = 0; i < syntax.Size(); ++i) {
    if (i >= text.size() || IsFault(syntax, i, text[i])) return i;
  }
  return std::nullopt;
}

}  // namespace kt
