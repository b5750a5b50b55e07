#include "kt/vcl/actions/ActionsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/actions/ActionList.h"

namespace kt {

void RegisterActions() { RegisterClasses({TAction::Class(), TActionList::Class()}); }

}  // namespace kt
