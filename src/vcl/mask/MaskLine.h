#pragma once

#include "kt/vcl/mask/MaskSyntax.h"

namespace kt {

/// A masked text being edited: what keys, pastes and input methods do to the text and its selection, without a window.
///
/// The text always has the length and the literals of its mask, and nothing gets into it that does not fit. Typing
/// overwrites; deleting leaves blanks; nothing is pushed along. Positions are those before a character; a caret without
/// a selection stands at an editable cell or behind the last one.
class TMaskLine {
 public:
  enum TMove { mvLeft, mvRight, mvFieldLeft, mvFieldRight, mvHome, mvEnd };

  /// `syntax` has to outlive the line. The text has to be masked by it. The caret is the end of the selection that
  /// moves.
  TMaskLine(const TMaskSyntax& syntax, QString text, int anchor, int caret);

  const QString& GetText() const { return FText; }
  int GetAnchor() const { return FAnchor; }
  int GetCaret() const { return FCaret; }
  bool HasSelection() const { return FAnchor != FCaret; }

  /// The place nearest to a position, forward first, where a caret may stand.
  static int CaretPlace(const TMaskSyntax& syntax, int position);

  /// Moves the caret; selecting, the anchor stays.
  void Move(TMove move, bool isSelecting);
  void SelectAll();
  /// Overwrites the selection, or what is at the caret. Characters that do not fit are left out. One of the literals
  /// that end a field leads on to the next field. False when nothing was of any use; then nothing has changed.
  bool Insert(QStringView text);
  /// Blanks the selection, and puts the caret to its start.
  void EraseSelection();
  /// Blanks the selection, or what `move` would pass over; the caret stands at the start of it.
  void Erase(TMove move);
  /// Takes over what somebody did to the text without minding the mask: characters were removed, others inserted, and
  /// the caret stands behind them.
  void TakeOver(const QString& text, int caret);

 private:
  int Clamped(int position) const;
  void SetCaret(int position);
  int Target(TMove move) const;
  void EraseRange(int from, int to);
  /// Where typing `character` at `position` leads, or -1; writes it.
  int Put(QString& text, int position, QChar character) const;
  int PassLiteral(int cell, QChar character) const;
  bool HasLiteral(int from, int to, QChar character) const;

  const TMaskSyntax& FSyntax;
  QString FText;
  int FAnchor;
  int FCaret;
};

}  // namespace kt
