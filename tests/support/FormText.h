#pragma once

#include <QByteArray>
#include <QString>

#include <string>

namespace kt {

class TComponent;

namespace tests {

/// The binary form of a form written as text.
QByteArray BinaryOf(const char* text);
/// The text of a binary form, with LF line ends.
std::string TextOf(const QByteArray& binary);
/// The text that a component streams as.
std::string TextOf(TComponent* component);

}  // namespace tests
}  // namespace kt
