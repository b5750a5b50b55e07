#pragma once

namespace kt {

/// What a list does with an element that it has already: leaves it out, takes it once more, or raises its error.
enum TDuplicates : unsigned char { dupIgnore, dupAccept, dupError };

}  // namespace kt
