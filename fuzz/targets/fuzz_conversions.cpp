#include "support/ConversionOracle.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kt::oracle::CheckConversions(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
  return 0;
}
