#pragma once

#include "kt/rtl/objects/Message.h"

#include <QObject>

#include <memory>

namespace kt {

class TControl;

/// Where posted messages for a control arrive: the event queue of its thread, with or without windows. Messages under
/// way are dropped together with it.
class TMessageAddress {
 public:
  explicit TMessageAddress(TControl* control);
  ~TMessageAddress();
  TMessageAddress(const TMessageAddress&) = delete;
  TMessageAddress& operator=(const TMessageAddress&) = delete;

  void Post(const TMessage& message);

 private:
  class TReceiver;

  TReceiver* FReceiver;
};

}  // namespace kt
