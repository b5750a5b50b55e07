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
  TStringList::Clear();
}

void TCustomListBox::TLines::Changed() {
  TStringList::Changed();
  if (GetUpdateCount() == 0) FBox.LinesChanged();
}

// Model.

QVariant TCustomListBox::TModel::data(const QModelIndex& index, int role) const {
  if (!FBox || index.row() >= FBox->GetCount()) return {};
  if (role == Qt::DisplayRole) return FBox->GetItems().GetStrings(index.row());
  if (role == Qt::SizeHintRole) return QSize(1, FBox->GetItemHeight());
  return {};
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
  TCustomListBox* const control = &box;
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
  return verticalScrollBar()->value();
}

void TCustomListBox::TView::SetTop(int row) {
  visualRect(FModel.index(0));
  verticalScrollBar()->setValue(row);
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
