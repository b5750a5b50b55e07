#pragma once

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
  *out << ::testing::PrintToString(bytes.toStdString());
}

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
