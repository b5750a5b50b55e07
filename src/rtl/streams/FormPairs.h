#pragma once

#include "kt/rtl/streams/LaidOutText.h"
#include "kt/rtl/streams/SequencePairs.h"

namespace kt {

/// Pairs the objects and items of two texts that tell of one and the same form: objects by name and class among those
/// of the same parent, whatever their order, those with the same or no name in their order; items by their order in
/// collections with as many of them, others stay alone.
///
/// False when an object of one is missing in the other; the pairs are of no use then.
bool PairSameForm(const TLaidOutText& left, const TLaidOutText& right, TSequencePairs& pairs);

/// Pairs the objects and items of two versions of a form. The roots belong together; then objects of the same parent
/// with the same name and class; then those that have moved elsewhere under their unique name; then, of one class and
/// at one place, those that have got another name. Items are the same when nothing in them has changed, else when they
/// are at one place between others.
TSequencePairs PairVersions(const TLaidOutText& before, const TLaidOutText& after);

}  // namespace kt
