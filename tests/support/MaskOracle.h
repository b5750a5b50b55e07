#pragma once

#include "kt/vcl/mask/MaskLine.h"
#include "kt/vcl/mask/MaskText.h"

#include <QByteArray>

#include <algorithm>
#include <stdexcept>

/// What must hold for any mask, and any keys in it. Shared by the fuzz target and by the tests that run its corpus.
namespace kt::oracle {

inline void Promise(bool condition, const char* text) {
  if (!condition) throw std::logic_error(text);
}

/// A text of which every place holds what the mask allows there.
inline void CheckMaskedText(const TMaskSyntax& syntax, const QString& text) {
  Promise(text.size() == syntax.Size(), "the text has the length of its mask");
  for (int i = 0; i < syntax.Size(); ++i) {
    const QChar literal = syntax.GetCells()[static_cast<std::size_t>(i)].Literal;
    const bool isCell = syntax.IsEditable(i);
    Promise(isCell || text[i] == literal, "literals stay");
    Promise(!isCell || text[i] == syntax.GetBlank() || syntax.Fits(i, text[i]), "cells hold what fits");
  }
}

inline void CheckMaskCaret(const TMaskSyntax& syntax, int anchor, int caret) {
  Promise(std::min(anchor, caret) >= 0 && std::max(anchor, caret) <= syntax.Size(), "the selection is in the text");
  Promise(anchor != caret || TMaskLine::CaretPlace(syntax, caret) == caret, "the caret stands at a cell");
}

/// A value that moves to the right may come into cells of another case, where a letter may even be the blank.
inline bool HasCases(const TMaskSyntax& syntax) {
  const auto& cells = syntax.GetCells();
  return std::any_of(cells.begin(), cells.end(), [](const TMaskCell& cell) { return cell.Case != mcAsTyped; });
}

inline void CheckMaskLine(const TMaskSyntax& syntax, const TMaskLine& line) {
  CheckMaskedText(syntax, line.GetText());
  CheckMaskCaret(syntax, line.GetAnchor(), line.GetCaret());
  const QString value = UnmaskValue(syntax, line.GetText());
  const bool mayChange = syntax.IsFilledFromRight() && HasCases(syntax);
  Promise(mayChange || UnmaskValue(syntax, MaskValue(syntax, value)) == value, "a value comes back");
  Promise(AlignToMask(syntax, line.GetText()) == line.GetText(), "the text is aligned");
  const QString moved = ReflowMasked(syntax, line.GetText());
  CheckMaskedText(syntax, moved);
  Promise(ReflowMasked(syntax, moved) == moved, "what has been moved stays");
  const std::optional<int> fault = FindMaskFault(syntax, line.GetText());
  Promise(!fault || syntax.GetCells()[static_cast<std::size_t>(*fault)].IsRequired, "only what is missing is wrong");
}

/// A key: control characters are commands, all others are typed.
inline void PressMaskKey(TMaskLine& line, QChar key, const QString& following) {
  const auto move = static_cast<TMaskLine::TMove>(key.unicode() % 6);
  switch (key.unicode() < 32 ? key.unicode() / 6 : 5) {
    case 0:
      return line.Move(move, false);
    case 1:
      return line.Move(move, true);
    case 2:
      return line.Erase(move);
    case 3:
      line.Insert(following);
      return;
    case 4:
      // Qt's line editor inserts by itself, or deletes.
      return line.TakeOver(line.GetText().left(line.GetCaret()) + following.left(move), line.GetCaret() + move);
    default:
      if (key == u'\x1f') return line.SelectAll();
      line.Insert(QString(key));
  }
}

/// The first line of the bytes is the mask, the rest are keys.
inline void CheckMaskKeys(const QByteArray& bytes) {
  constexpr qsizetype kMostKeys = 512;
  const qsizetype end = bytes.indexOf('\n');
  const QString mask = QString::fromUtf8(bytes.left(end));
  const QString keys = end < 0 ? QString() : QString::fromUtf8(bytes.mid(end + 1)).left(kMostKeys);
  const TMaskSyntax syntax(mask, TFormatSettings());
  TMaskLine line(syntax, MaskValue(syntax, QString()), 0, 0);
  CheckMaskLine(syntax, line);
  // Whatever is set is shown in the mask.
  Promise(MaskValue(syntax, keys).size() == syntax.Size(), "a value gets the length of the mask");
  for (qsizetype i = 0; i < keys.size(); ++i) {
    PressMaskKey(line, keys[i], keys.mid(i + 1, 8));
    CheckMaskLine(syntax, line);
  }
}

}  // namespace kt::oracle
