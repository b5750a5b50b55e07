#pragma once

#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/Event.h"

namespace kt {

/// What a canvas draws with: fonts, pens and brushes. Tells its changes.
class TGraphicsObject : public TPersistent {
 public:
  using Inherited = TPersistent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Called after each change, with this object.
  TNotifyEvent OnChange;

 protected:
  TGraphicsObject() = default;

  /// Something has changed; raises OnChange. The handler may free this object: nothing of it is touched afterwards.
  virtual void Changed();
};

}  // namespace kt
