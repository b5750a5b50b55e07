#pragma once

#include <map>

namespace kt {
class TClassInfo;
class TComponent;
}  // namespace kt

namespace designer {

// Components that are part of one of their own kind: pages of a page control, items of a menu, actions of a list. They
// stand nowhere else.

bool IsPart(const kt::TClassInfo* classInfo);
/// Whether `holder` can have parts of that class.
bool Holds(kt::TComponent* holder, const kt::TClassInfo* part);
/// The next component, from `start` upwards on the form `root`, that can have parts of that class; null when there is
/// none.
kt::TComponent* HolderAround(kt::TComponent* root, kt::TComponent* start, const kt::TClassInfo* part);

/// What parts of each kind come into that are added at a component of a form: the next holder around it, else `origin`,
/// else any on the form. Found out at once, so that nothing counts that is added later.
class THolders {
 public:
  THolders(kt::TComponent* root, kt::TComponent* start, kt::TComponent* origin);
  /// Raises EDocumentError when there is none.
  kt::TComponent* For(const kt::TClassInfo* part) const;

 private:
  std::map<const kt::TClassInfo*, kt::TComponent*> FByKind;
};

/// Takes a menu item, page or action that is the last of its holder to the place behind `other`, if that is in the same
/// one.
void PutBehind(kt::TComponent* part, kt::TComponent* other);

}  // namespace designer
