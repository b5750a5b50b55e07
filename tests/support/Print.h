#pragma once

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>
#include <ostream>

/// Makes GoogleTest show texts as texts, and bytes with what cannot be printed escaped.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
  *out << ::testing::PrintToString(bytes.toStdString());
}
