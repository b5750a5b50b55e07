#pragma once

#include <QtGlobal>

namespace kt {

/// A window message or a private one: a number, two parameters and an answer.
struct TMessage {
  quint32 Msg = 0;
  qintptr WParam = 0;
  qintptr LParam = 0;
  qintptr Result = 0;
};

}  // namespace kt
