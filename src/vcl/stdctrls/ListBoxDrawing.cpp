// Lines of TCustomListBox that the program has, or draws.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/stdctrls/ListBoxView.h"

#include <QLatin1StringView>

#include <algorithm>

namespace kt {

namespace {

constexpr QLatin1StringView SNotVirtual{"Only a virtual list box is told how many lines it has"};

}  // namespace

void TCustomListBox::SetCount(int value) {
  if (!IsVirtual()) throw EInvalidOperation(SNotVirtual);
  FVirtualCount = std::max(value, 0);
  LinesChanged();
}

QString TCustomListBox::GetLine(int index) const {
  if (!IsVirtual()) return GetItems().GetStrings(index);
  QString text;
  OnData(const_cast<TCustomListBox*>(this), index, text);
  return text;
}

TObject* TCustomListBox::GetLineObject(int index) const {
  if (!IsVirtual()) return GetItems().GetObjects(index);
  TObject* object = nullptr;
  OnDataObject(const_cast<TCustomListBox*>(this), index, object);
  return object;
}

void TCustomListBox::SetStyle(TListBoxStyle value) {
  if (FStyle == value) return;
  FStyle = value;
  if (IsVirtual()) GetItems().Clear();
  UpdateLayout();
}

void TCustomListBox::SetColumns(int value) {
  value = std::max(value, 0);
  if (FColumns == value) return;
  FColumns = value;
  UpdateLayout();
}

void TCustomListBox::SetScrollWidth(int value) {
  value = std::max(value, 0);
  if (FScrollWidth == value) return;
  FScrollWidth = value;
  UpdateLayout();
}

void TCustomListBox::UpdateLayout() {
  TView* view = View();
  if (!view) return;
  view->SetLayout(FColumns, FScrollWidth, FStyle != lbOwnerDrawVariable);
  const TLifeWatch self(this);
  LinesChanged();
  if (self.IsAlive()) FitHeight();
}

int TCustomListBox::HeightOfLine(int index) {
  int height = GetItemHeight();
  if (FStyle != lbOwnerDrawVariable) return height;
  // A handler may free this one, whose view is on the stack.
  const TControlBody::TInEvent running;
  GuardedCall([&] { MeasureItem(index, height); });
  return std::max(height, 1);
}

TCanvas& TCustomListBox::GetCanvas() {
  if (!FCanvas) FCanvas = Make<TCanvas>();
  return *FCanvas;
}

bool TCustomListBox::PaintLine(QPainter& painter, const QRect& rect, int index, TOwnerDrawState state) {
  if (!IsOwnerDraw() || !IsLine(index)) return false;
  const TLifeWatch self(this);
  TCanvas& canvas = GetCanvas();
  BeginOwnerDraw(canvas, *this, painter, rect, state);
  struct TEnd {
    const TLifeWatch& Life;
    TCanvas& Canvas;
    ~TEnd() {
      if (Life.IsAlive()) Canvas.End();
    }
  } end{self, canvas};
  DrawItem(index, rect, state);
  if (self.IsAlive() && state.Has(odFocused)) canvas.DrawFocusRect(rect);
  return true;
}

void TCustomListBox::DrawItem(int index, const QRect& rect, TOwnerDrawState state) {
  if (OnDrawItem) return OnDrawItem(this, index, rect, state);
  DrawPlainItem(GetCanvas(), rect, GetLine(index));
}

}  // namespace kt
