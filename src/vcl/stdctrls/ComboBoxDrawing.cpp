// Lines of TCustomComboBox that the program draws.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/stdctrls/ComboBoxView.h"

#include <QStyleOptionComboBox>
#include <QStylePainter>

#include <algorithm>

namespace kt {

TCanvas& TCustomComboBox::GetCanvas() {
  if (!FCanvas) FCanvas = Make<TCanvas>();
  return *FCanvas;
}

int TCustomComboBox::HeightOfLine(int index) {
  int height = FItemHeight;
  if (FStyle != csOwnerDrawVariable) return height;
  // A handler may free this one, whose list is on the stack.
  const TControlBody::TInEvent running;
  GuardedCall([&] { MeasureItem(index, height); });
  return std::max(height, 1);
}

bool TCustomComboBox::PaintLine(QPainter& painter, const QRect& rect, int index, TOwnerDrawState state) {
  if (!IsOwnerDraw() || index >= GetItemCount()) return false;
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
  if (index < 0) {
    canvas.FillRect(rect);
  } else {
    DrawItem(index, rect, state);
  }
  if (self.IsAlive() && state.Has(odFocused)) canvas.DrawFocusRect(rect);
  return true;
}

void TCustomComboBox::DrawItem(int index, const QRect& rect, TOwnerDrawState state) {
  if (OnDrawItem) return OnDrawItem(this, index, rect, state);
  DrawPlainItem(GetCanvas(), rect, GetItems().GetStrings(index));
}

void TCustomComboBox::TView::SetOwnerDrawn(bool value) {
  const bool isDrawn = dynamic_cast<TOwnerDrawDelegate*>(itemDelegate()) != nullptr;
  if (isDrawn == value) return;
  if (!value) return setItemDelegate(new QStyledItemDelegate(this));
  setItemDelegate(
      new TOwnerDrawDelegate(this, [this](QPainter& painter, const QRect& rect, int index, TOwnerDrawState state) {
        // Nothing is left to draw when it has gone.
        return !Control() || Box().PaintLine(painter, rect, index, state);
      }));
}

void TCustomComboBox::TView::paintEvent(QPaintEvent* event) {
  if (!Control() || !Box().IsOwnerDraw()) return QComboBox::paintEvent(event);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  QStylePainter painter(this);
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  const QRect place = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
  TOwnerDrawState state = OwnerDrawStateOf(option.state) + TOwnerDrawState{odComboBoxEdit};
  if (state.Has(odFocused)) state.Include(odSelected);
  GuardedCall([&] { Box().PaintLine(painter, place, currentIndex(), state); });
}

}  // namespace kt
