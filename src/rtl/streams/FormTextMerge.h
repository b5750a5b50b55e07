#pragma once

#include "kt/rtl/streams/FormPairs.h"

namespace kt {

/// What the texts of a form are that has been changed, and which of their objects are the same.
struct TFormVersions {
  const TLaidOutText& Original;  ///< The text that somebody wrote.
  const TLaidOutText& Before;    ///< What was made of it, as it is written here.
  const TLaidOutText& After;     ///< The same with the changes.
  TSequencePairs OriginalPairs;  ///< Of Original and Before.
  TSequencePairs ChangePairs;    ///< Of Before and After.

  /// Kept in their places or elsewhere; kNoPlace for what is new.
  quint32 OriginalOf(quint32 after) const;
  quint32 BeforeOf(quint32 after) const { return ChangePairs.LeftOf[after]; }
  /// Whether the items of a collection can be told apart: the three are collections, and the original has as many items
  /// as what was made of it.
  bool HasKnownItems(const TPropertyPlace& original, const TPropertyPlace& before, const TPropertyPlace& after) const;
};

/// The text `Original` with the changes, new lines ended by `lineEnd`. Everything but blanks, line ends and what
/// changes stays byte for byte; what moves takes its lines along, with the indentation of its new place.
QByteArray MergedText(const TFormVersions& versions, const QByteArray& lineEnd);

}  // namespace kt
