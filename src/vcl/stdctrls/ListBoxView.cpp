#include "kt/vcl/stdctrls/ListBoxView.h"

#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QMouseEvent>
#include <QScrollBar>

namespace kt {

namespace {

/// The border that list boxes have on each side, whatever the style's is.
constexpr int kBorder = 2;

bool IsMouse(const QEvent& event) {
  return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonRelease ||
         event.type() == QEvent::MouseButtonDblClick || event.type() == QEvent::MouseMove;
}

}  // namespace

// Lines.

void TCustomListBox::TLines::InsertItem(int index, const QString& text, TObject* object) {
  FBox.LineInserted(index);
  TStringList::InsertItem(index, text, object);
}

void TCustomListBox::TLines::Delete(int index) {
  if (index >= 0 && index < GetCount()) FBox.LineDeleted(index);
  TStringList::Delete(index);
}

void TCustomListBox::TLines::Clear() {
  FBox.FItemIndex = -1;
  FBox.FSelected.clear();
  TStringList::Clear();
}

void TCustomListBox::TLines::Changed() {
  TStringList::Changed();
  if (GetUpdateCount() == 0) FBox.LinesChanged();
}

// Model.

QVariant TCustomListBox::TModel::data(const QModelIndex& index, int role) const {
  if (!FBox || index.row() >= FBox->GetCount()) return {};
  if (role == Qt::DisplayRole) {
    // A handler may free the list box.
    const TControlBody::TInEvent running;
    QString text;
    GuardedCall([&] { text = FBox->GetLine(index.row()); });
    return text;
  }
  if (role != Qt::SizeHintRole) return {};
  const int width = FBox->FColumns > 0 ? FBox->GetClientWidth() / FBox->FColumns : FBox->FScrollWidth;
  return QSize(std::max(width, 1), FBox->HeightOfLine(index.row()));
}

void TCustomListBox::TModel::Reset() {
  beginResetModel();
  FRows = FBox ? FBox->GetCount() : 0;
  endResetModel();
}

void TCustomListBox::TModel::Detach() {
  FBox = nullptr;
  Reset();
}

// View.

TCustomListBox::TView::TView(TCustomListBox& box, QWidget* parent)
    : QListView(parent), TControlBody(&box, this), FModel(box, nullptr) {
  setModel(&FModel);
  setUniformItemSizes(true);
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  setEditTriggers(NoEditTriggers);
  setTextElideMode(Qt::ElideNone);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerItem);
  setResizeMode(Adjust);
  TCustomListBox* const control = &box;
  const auto draw = [this, control](QPainter& painter, const QRect& rect, int index, TOwnerDrawState state) {
    // Nothing is left to draw when it has gone.
    return !Control() || control->PaintLine(painter, rect, index, state);
  };
  setItemDelegate(new TOwnerDrawDelegate(this, draw));
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this, control](const QModelIndex& current) {
    if (Control()) GuardedCall([&] { control->SelectedInView(current.row()); });
  });
}

QMargins TCustomListBox::TView::Margins() const {
  const int border = frameWidth() + viewportMargins().left();
  QMargins margins(border, border, border, border);
  const QScrollBar* bar = verticalScrollBar();
  const bool hasBar = bar->isVisibleTo(this) && bar->parentWidget()->isVisibleTo(this);
  if (hasBar && isRightToLeft()) margins.setLeft(border + bar->width());
  if (hasBar && !isRightToLeft()) margins.setRight(border + bar->width());
  const QScrollBar* across = horizontalScrollBar();
  if (across->isVisibleTo(this) && across->parentWidget()->isVisibleTo(this)) {
    margins.setBottom(border + across->height());
  }
  return margins;
}

void TCustomListBox::TView::SetBordered(bool value) {
  setFrameStyle(value ? static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken)
                      : static_cast<int>(QFrame::NoFrame));
  const int rest = value ? std::max(kBorder - frameWidth(), 0) : 0;
  setViewportMargins(rest, rest, rest, rest);
}

int TCustomListBox::TView::GetTop() const {
  // Asking for a place has the view lay out what it has put off.
  visualRect(FModel.index(0));
  if (isWrapping()) return horizontalScrollBar()->value() * LinesInColumn();
  return verticalScrollBar()->value();
}

void TCustomListBox::TView::SetTop(int row) {
  visualRect(FModel.index(0));
  if (isWrapping()) return horizontalScrollBar()->setValue(row / LinesInColumn());
  verticalScrollBar()->setValue(row);
}

int TCustomListBox::TView::LinesInColumn() const {
  const int height = FModel.rowCount() > 0 ? visualRect(FModel.index(0)).height() : 0;
  return std::max(height > 0 ? viewport()->height() / height : 1, 1);
}

void TCustomListBox::TView::SetLayout(int columns, int scrollWidth, bool isUniform) {
  const bool isWide = columns > 0 || scrollWidth > 0;
  setUniformItemSizes(isUniform);
  setWrapping(columns > 0);
  setHorizontalScrollMode(columns > 0 ? ScrollPerItem : ScrollPerPixel);
  setHorizontalScrollBarPolicy(isWide ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(columns > 0 ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

/// One range for each run of lines, however many there are.
void TCustomListBox::TView::ShowSelection(const std::vector<bool>& selected, int current) {
  QItemSelection ranges;
  const auto count = static_cast<int>(selected.size());
  for (int first = 0; first < count; ++first) {
    if (!selected[first]) continue;
    int last = first;
    while (last + 1 < count && selected[last + 1]) ++last;
    ranges.select(FModel.index(first), FModel.index(last));
    first = last;
  }
  selectionModel()->setCurrentIndex(FModel.index(current), QItemSelectionModel::NoUpdate);
  selectionModel()->select(ranges, QItemSelectionModel::ClearAndSelect);
}

int TCustomListBox::TView::LinesBelow(int row) const {
  int height = viewport()->height();
  int lines = 0;
  for (; row < FModel.rowCount(); ++row, ++lines) {
    height -= visualRect(FModel.index(row)).height();
    if (height < 0) break;
  }
  return std::max(lines, 1);
}

bool TCustomListBox::TView::event(QEvent* event) {
  if (event->type() == QEvent::Wheel) return QListView::event(event);
  return HandleEvent(event, [this](QEvent* passed) { return QListView::event(passed); });
}

void TCustomListBox::TView::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);  // NOLINT(bugprone-parent-virtual-call): what lies between selects
  viewport()->update();
}

bool TCustomListBox::TView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ContextMenu) {
    return HandleEvent(event, [this](QEvent* passed) { return QListView::viewportEvent(passed); });
  }
  if (!IsMouse(*event)) return QListView::viewportEvent(event);
  auto* mouse = static_cast<QMouseEvent*>(event);
  // Positions are those in the control, and not in the part of it that scrolls.
  QMouseEvent moved(mouse->type(), mouse->position() + QPointF(viewport()->pos()), mouse->scenePosition(),
                    mouse->globalPosition(), mouse->button(), mouse->buttons(), mouse->modifiers(),
                    mouse->pointingDevice());
  const bool result = HandleEvent(&moved, [this, event](QEvent*) { return QListView::viewportEvent(event); });
  event->setAccepted(moved.isAccepted());
  return result;
}

}  // namespace kt
