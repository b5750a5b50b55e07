#pragma once

#include "kt/rtl/streams/FormTextMerge.h"

namespace kt {

/// Whether `merged` is a form with the objects of the new version, in their order, where each property has the value
/// that the original has when nothing changed it, else that of the new version. Siblings may keep the order of the
/// original where that differs from the one in which they are written.
///
/// A check of MergedText() by other means: it parses the text and compares values.
bool IsMerged(const QByteArray& merged, const TFormVersions& versions, TFormWords& words);

}  // namespace kt
