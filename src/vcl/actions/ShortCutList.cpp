#include "kt/vcl/actions/ShortCutList.h"

#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TShortCutList::Class() {
  static const TClassInfo info = TClassBuilder<TShortCutList>("TShortCutList").Done();
  return &info;
}

int TShortCutList::IndexOfShortCut(TShortCut shortCut) {
  for (int i = 0; shortCut != scNone && i < GetCount(); ++i) {
    if (GetShortCuts(i) == shortCut) return i;
  }
  return -1;
}

}  // namespace kt
