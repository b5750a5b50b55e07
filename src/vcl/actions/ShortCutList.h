#pragma once

#include "kt/rtl/strings/StringList.h"
#include "kt/vcl/menus/ShortCut.h"

namespace kt {

/// Short cuts by their names, "Ctrl+F1", a line each. Lines that name none count as none.
class TShortCutList : public TStringList {
 public:
  using Inherited = TStringList;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Raises EStringListError, as reading the line does.
  TShortCut GetShortCuts(int index) { return TextToShortCut(GetStrings(index)); }
  /// The first line with that short cut, or -1.
  int IndexOfShortCut(TShortCut shortCut);

 protected:
  TShortCutList() = default;
};

}  // namespace kt
