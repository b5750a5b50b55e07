#pragma once

#include <QString>

#include <vector>

namespace kt {
class TClassInfo;
}

namespace designer {

/// Classes that are offered together.
struct TPaletteGroup {
  QString Title;
  std::vector<const kt::TClassInfo*> Classes;
};

/// The registered classes that can be placed on a form, in their usual order; groups without any are left out. The last
/// group has what nobody has put in another one.
std::vector<TPaletteGroup> PaletteGroups();

}  // namespace designer
