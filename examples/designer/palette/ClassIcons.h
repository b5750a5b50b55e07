#pragma once

#include <QIcon>

namespace kt {
class TClassInfo;
class TComponent;
}  // namespace kt

namespace designer {

/// A small picture for a class or its nearest ancestor that has one; else the first letters of its name. Drawn in the
/// colours of the palette, in any size.
QIcon ClassIcon(const kt::TClassInfo& info);
/// That of its class; for a component of an unknown class what its name suggests.
QIcon ComponentIcon(const kt::TComponent& component);

}  // namespace designer
