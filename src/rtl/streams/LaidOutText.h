#pragma once

#include "kt/rtl/streams/FormLayout.h"

#include <QByteArray>
#include <QByteArrayView>

namespace kt {

/// The text of a form with what stands where in it.
struct TLaidOutText {
  QByteArray Text;
  TFormLayout Layout;

  QByteArrayView View(qsizetype from, qsizetype to) const { return QByteArrayView(Text).sliced(from, to - from); }
  QByteArray Part(qsizetype from, qsizetype to) const { return View(from, to).toByteArray(); }
  QByteArrayView Value(const TPropertyPlace& property) const { return View(property.ValueFrom, property.To); }
  QByteArrayView Header(quint32 object) const { return View(Layout.Objects[object].From, Layout.Objects[object].To); }
  QByteArrayView Whole(quint32 object) const { return View(Layout.Objects[object].From, Layout.Objects[object].End); }

  /// The first place on the line of `at`.
  qsizetype LineStart(qsizetype at) const;
  /// The blanks that begin the line of `at`.
  QByteArray IndentBefore(qsizetype at) const;
  /// Where what begins at `from` begins with the blanks before it and the line end before these.
  qsizetype WithLineEnd(qsizetype from) const;
  /// Where the line ends when only blanks follow `to` on it; else `to`.
  qsizetype WithBlanks(qsizetype to) const;
  /// Where the properties of an object end, or its header when it has none.
  qsizetype BodyEnd(quint32 object) const;
};

/// `utf8` must be a form that a parser has taken.
TLaidOutText LaidOut(const QByteArray& utf8, TFormWords& words);
/// A binary form as the text that is made of it; `rawStrings` leaves characters beyond ASCII as they are.
TLaidOutText LaidOutBinary(const QByteArray& binary, bool rawStrings, TFormWords& words);

/// Whether two pieces of the text of a form say the same: only blanks and line ends differ, if anything does. Both must
/// consist of whole tokens.
bool HasSameTokens(QByteArrayView a, QByteArrayView b);
/// `text` with `indent` in the place of the blanks `old` that begin its lines, from the second line on.
QByteArray Reindented(const QByteArray& text, QByteArrayView old, const QByteArray& indent);

}  // namespace kt
