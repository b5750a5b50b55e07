#pragma once

#include <QString>

#include <gtest/gtest.h>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

namespace kt::tests {

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
