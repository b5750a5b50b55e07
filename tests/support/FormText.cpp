#include "support/FormText.h"

#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/Writer.h"

namespace kt::tests {

QByteArray BinaryOf(const char* text) {
  QByteArray binary;
  ObjectTextToBinary(QByteArray(text), binary);
  return binary;
}

std::string TextOf(const QByteArray& binary) {
  QByteArray text;
  ObjectBinaryToText(binary, text);
  return text.replace("\r\n", "\n").toStdString();
}

std::string TextOf(TComponent* component) { return TextOf(WriteComponentToBinary(component)); }

}  // namespace kt::tests
