#include "kt/vcl/stdctrls/ListBox.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
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
  if (FMultiSelect && index <= static_cast<int>(FSelected.size())) FSelected.insert(FSelected.begin() + index, false);
}

void TCustomListBox::LineDeleted(int index) {
  if (FMultiSelect && index < static_cast<int>(FSelected.size())) FSelected.erase(FSelected.begin() + index);
  if (FItemIndex == index) {
    FItemIndex = -1;
  } else if (FItemIndex > index) {
    --FItemIndex;
  }
}

void TCustomListBox::LinesChanged() {
  FItemIndex = std::min(FItemIndex, GetCount() - 1);
  FAnchorIndex = std::min(FAnchorIndex, GetCount() - 1);
  if (FMultiSelect) FSelected.resize(GetCount());
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

int TCustomListBox::SelectPrefix(const QString& text) {
  int found = -1;
  if (IsVirtual()) OnDataFind(this, text, found);
  for (int i = 0; !IsVirtual() && found < 0 && i < GetCount(); ++i) {
    if (FLines->GetStrings(i).startsWith(text, Qt::CaseInsensitive)) found = i;
  }
  if (!IsLine(found)) return -1;
  SetItemIndex(found);
  return found;
}

// Sizes.

int TCustomListBox::GetItemHeight() const {
  return HandleAllocated() && !IsOwnerDraw() ? TRealFont::Of(const_cast<TCustomListBox*>(this)->GetFont())->Height()
                                             : FItemHeight;
}

void TCustomListBox::SetItemHeight(int value) {
  if (value <= 0 || FItemHeight == value) return;
  FItemHeight = value;
  if (IsOwnerDraw()) UpdateLayout();
}

void TCustomListBox::SetIntegralHeight(bool value) {
  if (FIntegralHeight == value) return;
  FIntegralHeight = value;
  FitHeight();
}

void TCustomListBox::FitHeight() {
  if (!FIntegralHeight || FStyle == lbOwnerDrawVariable || !HandleAllocated() || GetAlign() != alNone) return;
  const int rest = GetClientHeight() % GetItemHeight();
  if (rest > 0 && GetClientHeight() > rest) SetHeight(GetHeight() - rest);
}

void TCustomListBox::Resize() {
  const TLifeWatch self(this);
  FitHeight();
  if (!self.IsAlive()) return;
  // Columns are as wide as there is room for them.
  if (FColumns > 0) LinesChanged();
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

int TCustomListBox::LinesInView() const {
  if (FStyle == lbOwnerDrawVariable && View()) return View()->LinesBelow(GetTopIndex());
  return std::max(GetClientHeight() / GetItemHeight(), 1) * std::max(FColumns, 1);
}

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
  if (IsLaidOut()) {
    const int laid = View()->LineAt(point);
    return laid >= 0 || existing ? laid : GetCount();
  }
  const int index = GetTopIndex() + point.y() / GetItemHeight();
  if (index < GetCount()) return index;
  return existing ? -1 : GetCount();
}

QRect TCustomListBox::ItemRect(int index) const {
  if (IsLaidOut()) return View()->RectOf(index);
  return {0, (index - GetTopIndex()) * GetItemHeight(), GetClientWidth(), GetItemHeight()};
}

int TCustomListBox::LongestLineWidth() const {
  const QFontMetrics& metrics = TRealFont::Of(const_cast<TCustomListBox*>(this)->GetFont())->Metrics();
  int width = 0;
  for (int i = 0; i < GetCount(); ++i) width = std::max(width, metrics.horizontalAdvance(GetLine(i)));
  return width + 2 * kTextMargin;
}

}  // namespace kt
