#include <cstdio>
#include <kt/rtl/objects/Exceptions.h>
#include <kt/rtl/objects/Messages.h>

int main() {
  try {
    throw kt::EClassNotFound(QString(kt::SClassNotFound).replace(QLatin1String("%s"), QLatin1String("TButton")));
  } catch (const kt::EFilerError& error) {
    std::puts(error.what());
  }
  return 0;
}
