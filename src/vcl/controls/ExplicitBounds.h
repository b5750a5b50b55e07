#pragma once

#include <array>
#include <optional>

namespace kt {

/// The bounds that a control had before its alignment or anchors gave it others: left, top, width, height, as far as
/// its form names them.
struct TExplicitBounds {
  std::array<std::optional<int>, 4> Values;
};

}  // namespace kt
