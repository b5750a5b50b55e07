#include "kt/KTItemListEditor/InplaceEditList.h"

#include "kt/KTItemListEditor/DropDownList.h"
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/stdctrls/EditButton.h"

#include <utility>

namespace kt {

namespace {

/// How often a cell is read whose handlers have it read again.
constexpr int kMostReadings = 3;

}  // namespace

const TClassInfo* TKTInplaceEditList::Class() {
  static const TClassInfo info = TClassBuilder<TKTInplaceEditList>("TKTInplaceEditList").Done();
  return &info;
}

TKTInplaceEditList::~TKTInplaceEditList() = default;

void TKTInplaceEditList::Construct() {
  FMatcher = Make<TGRegularExpression>();
  TInplaceEdit::Construct();
}

void TKTInplaceEditList::CreateWnd() {
  TInplaceEdit::CreateWnd();
  if (FButtonWidth < 0) FButtonWidth = TEditButton::UsualWidth();
}

void TKTInplaceEditList::Notification(TComponent* component, TOperation operation) {
  TInplaceEdit::Notification(component, operation);
  if (operation != opRemove) return;
  if (component == FPickList) FPickList = nullptr;
  if (component != FActiveList) return;
  FActiveList = nullptr;
  FListVisible = false;
}

TKTCustomItemListEditor& TKTInplaceEditList::GetGrid() const {
  auto* grid = dynamic_cast<TKTCustomItemListEditor*>(TInplaceEdit::GetGrid());
  if (!grid) throw EInvalidCast(SInvalidCast);
  return *grid;
}

bool TKTInplaceEditList::HasReadOnlyItem() const {
  const TKTItemProp* item = GetGrid().GetSelected();
  return item && item->IsReadOnly();
}

void TKTInplaceEditList::UpdateContents() {
  TKTCustomItemListEditor& grid = GetGrid();
  const TLifeWatch self(this);
  // An open list is that of the former cell.
  if (FListVisible) CloseUp(false);
  // A handler that has the editor read a cell meanwhile comes first: what it was asked for is old by then. One that
  // does so each time is left alone with it.
  for (int i = 0; i < kMostReadings; ++i) {
    const quint64 reading = ++FReadings;
    const TLiveFlag fillingIn(this, FIsFillingIn);
    TInplaceEdit::UpdateContents();
    if (!self.IsAlive()) return;
    if (FReadings == reading) break;
  }
  FActiveList = nullptr;
  FPickListLoaded = false;
  const TEditStyle style = grid.GetEditStyle(grid.GetCol(), grid.GetRow());
  if (!self.IsAlive()) return;
  if (std::exchange(FEditStyle, style) != style) Invalidate();
  if (FEditStyle == esPickList) {
    FActiveList = &GetPickList();
    // That of a descendant may be anybody's.
    FActiveList->FreeNotification(this);
  }
  SetExpression(grid.GetExpressionMask(grid.GetCol(), grid.GetRow()));
  SetFont(grid.GetCellFont(grid.GetCol(), grid.GetRow()));
  FAcceptedText = GetText();
  FAcceptedCaret = GetCaretPos();
  const TKTItemProp* item = grid.GetSelected();
  SetAccessibleName(item ? item->GetName() : QString());
}

void TKTInplaceEditList::BoundsChanged() {
  // The place of an open list is that of the former bounds.
  if (FListVisible) CloseUp(false);
  QRect rect(2, 2, GetWidth() - 4, GetHeight() - 2);
  if (FEditStyle != esSimple) {
    if (GetGrid().UseRightToLeftAlignment()) {
      rect.setLeft(rect.left() + FButtonWidth - 2);
    } else {
      rect.setWidth(rect.width() - FButtonWidth);
    }
  }
  SetFormatRect(rect);
}

void TKTInplaceEditList::RestoreContents() {
  const TLifeWatch self(this);
  Reset();
  if (!self.IsAlive()) return;
  TKTCustomItemListEditor& grid = GetGrid();
  // Deliberately the grid's own text and not the editor's.
  if (grid.GetCol() != -1 && grid.GetRow() != -1) grid.SetEditText(grid.GetCol(), grid.GetRow(), grid.GetText());
}

void TKTInplaceEditList::PutText(const QString& text) {
  Perform(WM_SETTEXT, 0, PointerMessage(&text));
  SetModified(true);
  FAcceptedText = text;
  FAcceptedCaret = GetCaretPos();
}

void TKTInplaceEditList::PickText(const QString& text) {
  PutText(text);
  TKTCustomItemListEditor& grid = GetGrid();
  grid.SetEditText(grid.GetCol(), grid.GetRow(), text);
}

/// What an input method has composed is searched for in the open list, as what comes from keys.
bool TKTInplaceEditList::InputText(const QString& text) {
  if (!FListVisible || !FActiveList || text.isEmpty()) return TInplaceEdit::InputText(text);
  const TLifeWatch self(this);
  for (const QChar character : text) {
    if (!self.IsAlive() || !FListVisible || !FActiveList) break;
    FActiveList->Perform(WM_CHAR, character.unicode());
  }
  return true;
}

void TKTInplaceEditList::WndProc(TMessage& message) {
  if (message.Msg >= WM_MOUSEMOVE && message.Msg <= WM_MBUTTONDBLCLK) FMouse = PointOfMessage(message.LParam);
  const bool isKey = message.Msg == WM_KEYDOWN || message.Msg == WM_SYSKEYDOWN || message.Msg == WM_CHAR;
  if (isKey && FEditStyle == esPickList) {
    auto key = static_cast<quint16>(message.WParam);
    const TLifeWatch self(this);
    DoDropDownKeys(key, TShiftState::FromBits(static_cast<quint32>(message.LParam)));
    if (!self.IsAlive()) return;
    message.WParam = key;
    if (key != 0 && FListVisible && FActiveList) {
      FActiveList->Perform(message.Msg, message.WParam, message.LParam);
      return;
    }
  }
  TInplaceEdit::WndProc(message);
}

}  // namespace kt
