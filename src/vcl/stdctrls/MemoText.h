#pragma once

#include <QPoint>
#include <QString>

#include <vector>

namespace kt {

/// A text of many lines, as edits have it: between two lines stands CR LF, and counts as two characters. An empty line
/// at the end of the text, behind the last CR LF, is no line of its own. Indices are not checked.
///
/// A change costs what stands behind it in the text; finding a line is free until a line break comes or goes before the
/// end, which costs one walk over the text.
class TMemoText {
 public:
  /// A piece of the text that another one takes the place of.
  struct TChange {
    int Start;
    int Length;
    QString Text;
  };

  /// The text with CR LF for each CR, LF, CR LF or paragraph separator.
  static QString Normalized(const QString& text);

  const QString& Text() const { return FText; }
  /// `text` has to be normalized.
  void SetText(const QString& text);
  int Size() const { return static_cast<int>(FText.size()); }

  int LineCount() const;
  QString Line(int index) const;
  TChange Inserting(int index, const QString& line) const;
  TChange Deleting(int index) const;
  TChange Replacing(int index, const QString& line) const;
  /// Its text has to be normalized; it must not part a CR from its LF.
  void Apply(const TChange& change);

  /// Column and line of a position, both from 0.
  QPoint PlaceOf(int position) const;
  /// The position of a place, which is cut to the text.
  int PositionOf(QPoint place) const;
  /// The nearest position before that does not part a CR from its LF.
  int Valid(int position) const;

 private:
  /// The starts of all lines, that behind the last CR LF too.
  const std::vector<int>& Starts() const;
  int LineEnd(int index) const;

  QString FText;
  mutable std::vector<int> FStarts{0};
  mutable bool FAreStartsOld = false;
};

}  // namespace kt
