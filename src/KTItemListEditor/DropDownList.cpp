#include "kt/KTItemListEditor/DropDownList.h"

#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TKTDropDownList::Class() {
  static const TClassInfo info = TClassBuilder<TKTDropDownList>("TKTDropDownList").Done();
  return &info;
}

TKTDropDownList::TKTDropDownList(TKTInplaceEditList* editor) : TFloatingListBox(editor, *editor), FEditor(*editor) {}

void TKTDropDownList::Construct() {
  TFloatingListBox::Construct();
  SetIntegralHeight(true);
  SetItemHeight(11);
}

void TKTDropDownList::KeyPress(QChar& key) {
  TFloatingListBox::KeyPress(key);
  if (key == u'\b' || key == u'\x1b') FSearchText.clear();
  // Letters of all scripts are searched for, and not only those up to 255.
  if (key.unicode() < 32) return;
  const TClock::time_point now = FNow();
  if (now - FLastKey > SearchPause) FSearchText.clear();
  FLastKey = now;
  if (FSearchText.size() < MaxSearchLength) FSearchText += key;
  SelectPrefix(FSearchText);
  key = u'\0';
}

void TKTDropDownList::Close() {
  FSearchText.clear();
  TFloatingListBox::Close();
}

void TKTDropDownList::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  const TLifeWatch self(this);
  TFloatingListBox::MouseUp(button, shift, x, y);
  // A second time after OnMouseUp has closed the list: then only the validation is left, which finds nothing to do.
  if (self.IsAlive()) FEditor.CloseUp(GetClientRect().contains(x, y));
}

void TKTDropDownList::LoseHold() {
  const TLifeWatch self(this);
  FEditor.CloseUp(false);
  if (self.IsAlive()) Close();
}

}  // namespace kt
