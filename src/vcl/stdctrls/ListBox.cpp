#include "kt/vcl/stdctrls/ListBox.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/graphics/RealFont.h"
#include "kt/vcl/stdctrls/ListBoxView.h"

#include <algorithm>

namespace kt {

namespace {

constexpr int kBorderWidth = 2;
/// The room that the view leaves on each side of a line's text.
constexpr int kTextMargin = 4;

}  // namespace

TCustomListBox::TCustomListBox(TComponent* owner) : TWinControl(owner) {}

TCustomListBox::~TCustomListBox() = default;

void TCustomListBox::Construct() {
  TWinControl::Construct();
  FLines = Make<TLines>(*this);
  FLines->SetDuplicates(dupAccept);
  SetControlStyle({csSetCaption, csDoubleClicks, csOpaque});
  SetParentColor(false);
  SetTabStop(true);
  SetBounds(0, 0, 121, 97);
  FIntegralHeight = false;
}

TStrings& TCustomListBox::GetItems() const { return *FLines; }

void TCustomListBox::SetItems(TStrings& value) { FLines->Assign(&value); }

// Lines that come and go.

void TCustomListBox::LineInserted(int index) {
  if (FItemIndex >= index) ++FItemIndex;
}

void TCustomListBox::LineDeleted(int index) {
  if (FItemIndex == index) {
    FItemIndex = -1;
  } else if (FItemIndex > index) {
    --FItemIndex;
  }
}

void TCustomListBox::LinesChanged() {
  FItemIndex = std::min(FItemIndex, GetCount() - 1);
  FTopIndex = std::clamp(FTopIndex, 0, std::max(GetCount() - 1, 0));
  TView* view = View();
  if (!view) return;
  const int top = view->GetTop();
  const bool outer = std::exchange(FIsSelecting, true);
  view->Model().Reset();
  FIsSelecting = outer;
  view->SetTop(top);
  SelectInView();
}

void TCustomListBox::SetSorted(bool value) {
  if (FSorted == value) return;
  FSorted = value;
  const QString selected = FItemIndex < 0 ? QString() : FLines->GetStrings(FItemIndex);
  const bool hasSelected = FItemIndex >= 0;
  FLines->SetSorted(value);
  if (hasSelected && value) SetItemIndex(FLines->IndexOf(selected));
}

// The selection.

void TCustomListBox::SetItemIndex(int value) {
  FItemIndex = value >= 0 && value < GetCount() ? value : -1;
  SelectInView();
}

void TCustomListBox::SetSelected(int index, bool value) {
  if (index < 0 || index >= GetCount()) throw EListError(Format(SListIndexError, {index}));
  if (value) {
    SetItemIndex(index);
  } else if (index == FItemIndex) {
    SetItemIndex(-1);
  }
}

void TCustomListBox::DeleteSelected() {
  if (FItemIndex >= 0) FLines->Delete(FItemIndex);
}

int TCustomListBox::SelectPrefix(const QString& text) {
  for (int i = 0; i < GetCount(); ++i) {
    if (!FLines->GetStrings(i).startsWith(text, Qt::CaseInsensitive)) continue;
    SetItemIndex(i);
    return i;
  }
  return -1;
}

// Sizes.

int TCustomListBox::GetItemHeight() const {
  return HandleAllocated() ? TRealFont::Of(const_cast<TCustomListBox*>(this)->GetFont())->Height() : FItemHeight;
}

void TCustomListBox::SetItemHeight(int value) {
  if (value > 0) FItemHeight = value;
}

void TCustomListBox::SetIntegralHeight(bool value) {
  if (FIntegralHeight == value) return;
  FIntegralHeight = value;
  FitHeight();
}

void TCustomListBox::FitHeight() {
  if (!FIntegralHeight || !HandleAllocated() || GetAlign() != alNone) return;
  const int rest = GetClientHeight() % GetItemHeight();
  if (rest > 0 && GetClientHeight() > rest) SetHeight(GetHeight() - rest);
}

void TCustomListBox::Resize() {
  FitHeight();
  TWinControl::Resize();
}

void TCustomListBox::SetBorderStyle(TBorderStyle value) {
  if (FBorderStyle == value) return;
  FBorderStyle = value;
  UpdateLook();
}

QMargins TCustomListBox::GetClientMargins() const {
  if (const TView* view = View()) return view->Margins();
  const int border = FBorderStyle == bsSingle ? kBorderWidth : 0;
  return {border, border, border, border};
}

int TCustomListBox::LinesInView() const { return std::max(GetClientHeight() / GetItemHeight(), 1); }

int TCustomListBox::GetTopIndex() const {
  const TView* view = View();
  return view ? view->GetTop() : FTopIndex;
}

void TCustomListBox::SetTopIndex(int value) {
  FTopIndex = std::clamp(value, 0, std::max(GetCount() - 1, 0));
  if (TView* view = View()) view->SetTop(FTopIndex);
}

int TCustomListBox::ItemAtPos(QPoint point, bool existing) const {
  if (!GetClientRect().contains(point)) return -1;
  const int index = GetTopIndex() + point.y() / GetItemHeight();
  if (index < GetCount()) return index;
  return existing ? -1 : GetCount();
}

QRect TCustomListBox::ItemRect(int index) const {
  return {0, (index - GetTopIndex()) * GetItemHeight(), GetClientWidth(), GetItemHeight()};
}

int TCustomListBox::LongestLineWidth() const {
  const QFontMetrics& metrics = TRealFont::Of(const_cast<TCustomListBox*>(this)->GetFont())->Metrics();
  int width = 0;
  for (int i = 0; i < GetCount(); ++i) width = std::max(width, metrics.horizontalAdvance(FLines->GetStrings(i)));
  return width + 2 * kTextMargin;
}

}  // namespace kt
