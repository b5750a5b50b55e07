#pragma once

#include "kt/rtl/conversions/FormatSettings.h"

#include <QChar>
#include <QString>

#include <vector>

namespace kt {

/// What may stand at a place of a masked text.
enum TMaskKind {
  mkLiteral,
  mkLetter,
  mkAlphaNumeric,  ///< a letter or a decimal digit
  mkAny,           ///< anything that can be seen, and the space
  mkDigit,         ///< 0 to 9
  mkSign           ///< 0 to 9, plus and minus
};

enum TMaskCase { mcAsTyped, mcUpper, mcLower };

/// One place of a masked text.
struct TMaskCell {
  TMaskKind Kind = mkLiteral;
  TMaskCase Case = mcAsTyped;
  bool IsRequired = false;
  /// Of mkLiteral alone.
  QChar Literal;

  bool operator==(const TMaskCell&) const = default;
};

/// An edit mask, taken apart into its cells; a masked text has one UTF-16 code unit for each of them.
///
/// A mask has up to three fields, parted by the first semicolons that are not literals: the cells; "0" when the
/// literals are no part of the value ("1", or anything else, when they are); the blank, which shows in cells where
/// nothing is (an underscore when left out). In the first field stand for
///
///   L l  a letter               > <  upper case, lower case from here on
///   A a  a letter or a digit    <>   case as typed from here on
///   C c  any character          !    the value is filled in from the right
///   0 9  a digit                : /  the separators of times and dates
///   #    a digit or a sign      _    a literal space
///   \    the next character as a literal
///
/// where of two the first one is required and the other may stay blank, and everything else is a literal. A blank
/// that a cell also accepts cannot be told from an empty cell, and counts as one.
class TMaskSyntax {
 public:
  static constexpr QChar DefaultBlank = u'_';

  TMaskSyntax() = default;
  explicit TMaskSyntax(QStringView mask, const TFormatSettings& settings = FormatSettings());

  const std::vector<TMaskCell>& GetCells() const { return FCells; }
  int Size() const { return static_cast<int>(FCells.size()); }
  bool IsLiteralSaved() const { return FIsLiteralSaved; }
  bool IsFilledFromRight() const { return FIsFilledFromRight; }
  QChar GetBlank() const { return FBlank; }

  /// False outside the cells, too.
  bool IsEditable(int index) const;
  /// Whether a character, already in the case that the cell asks for, may stand there. A blank is no character.
  bool Fits(int index, QChar character) const;
  /// A character in the case that the cell asks for.
  QChar Shifted(int index, QChar character) const;

  // Editable cells in a row are a field.
  /// The first editable cell from `index` on, or Size().
  int NextEditable(int index) const;
  /// The last editable cell before `index`, or -1.
  int PreviousEditable(int index) const;
  /// The start of the field that the cell belongs to, and what comes after its end.
  int FieldStart(int index) const;
  int FieldEnd(int index) const;
  /// What comes after the literals that start at `index`.
  int LiteralsEnd(int index) const;

 private:
  class TParser;

  std::vector<TMaskCell> FCells;
  QChar FBlank = DefaultBlank;
  bool FIsLiteralSaved = true;
  bool FIsFilledFromRight = false;
};

}  // namespace kt
