#pragma once

#include "support/Print.h"

#include <QString>

#include <gtest/gtest.h>

namespace kt::tests {

/// The message about a property that could not be read, without the place at its end; other messages as they are.
inline QString WithoutPlace(const QString& message) {
  if (!message.startsWith(QLatin1StringView("Error reading"))) return message;
  return message.left(message.indexOf(QLatin1StringView(" at offset ")));
}

/// Runs `call` and answers the message of the exception of class E that it raises; fails the test when it raises none.
template <class E, class F>
QString MessageOf(F&& call) {
  try {
    call();
  } catch (const E& error) {
    return error.Message();
  }
  ADD_FAILURE() << "no exception";
  return {};
}

}  // namespace kt::tests
