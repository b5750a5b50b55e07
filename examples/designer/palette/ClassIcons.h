#pragma once

#include <QIcon>

namespace kt {
class TClassInfo;
}

namespace designer {

/// A small picture for a class or its nearest ancestor that has one; else the first letters of its name. Drawn in the
/// colours of the palette, in any size.
QIcon ClassIcon(const kt::TClassInfo& info);

}  // namespace designer
