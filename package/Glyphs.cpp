#include "Glyphs.h"

namespace kt {

namespace {

// NOLINTBEGIN(modernize-avoid-c-arrays): the form in which Qt takes pictures from source files
const char* const kMinusSign[] = {"9 9 3 1",   "# c #808080", ". c #ffffff", "X c #000000", "#########",
                                  "#.......#", "#.......#",   "#.......#",   "#.XXXXX.#",   "#.......#",
                                  "#.......#", "#.......#",   "#########"};
const char* const kPlusSign[] = {"9 9 3 1",   "# c #808080", ". c #ffffff", "X c #000000", "#########",
                                 "#.......#", "#...X...#",   "#...X...#",   "#.XXXXX.#",   "#...X...#",
                                 "#...X...#", "#.......#",   "#########"};
// NOLINTEND(modernize-avoid-c-arrays)

}  // namespace

QImage PackageBitmap(const QString& name) {
  static const QImage minus(kMinusSign);
  static const QImage plus(kPlusSign);
  if (name == u"MINUSSIGN") return minus;
  if (name == u"PLUSSIGN") return plus;
  return {};
}

}  // namespace kt
