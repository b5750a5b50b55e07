#include "kt/vcl/stdctrls/ComboBoxView.h"

#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

namespace kt {

// Lines.

void TCustomComboBox::TLines::InsertItem(int index, const QString& text, TObject* object) {
  FBox.LineInserted(index);
  TStringList::InsertItem(index, text, object);
}

void TCustomComboBox::TLines::Delete(int index) {
  if (index >= 0 && index < GetCount()) FBox.LineDeleted(index);
  TStringList::Delete(index);
}

void TCustomComboBox::TLines::Clear() {
  FBox.FItemIndex = -1;
  TStringList::Clear();
}

void TCustomComboBox::TLines::Changed() {
  TStringList::Changed();
  if (GetUpdateCount() == 0) FBox.LinesChanged();
}

// Model.

QVariant TCustomComboBox::TModel::data(const QModelIndex& index, int role) const {
  const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
  const bool isSize = role == Qt::SizeHintRole && FBox && FBox->IsOwnerDraw();
  if (!(isText || isSize) || !FBox || index.row() < 0 || index.row() >= FBox->GetItemCount()) return {};
  if (isSize) return QSize(1, FBox->HeightOfLine(index.row()));
  return FBox->GetItems().GetStrings(index.row());
}

void TCustomComboBox::TModel::Reset() {
  beginResetModel();
  FRows = FBox ? FBox->GetItemCount() : 0;
  endResetModel();
}

void TCustomComboBox::TModel::Detach() {
  FBox = nullptr;
  Reset();
}

// View.

TCustomComboBox::TView::TView(TCustomComboBox& box, QWidget* parent)
    : QComboBox(parent), TControlBody(&box, this), FModel(box) {
  setModel(&FModel);
  setInsertPolicy(NoInsert);
  // As wide as the control, whatever the lines are.
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  WatchList();
  connect(this, &QComboBox::activated, this, [this](int index) {
    // The list is a window of its own.
    const TInEvent running;
    if (Control()) GuardedCall([&] { Box().PickedByUser(index); });
  });
}

void TCustomComboBox::TView::WatchList() {
  view()->installEventFilter(this);
  view()->parentWidget()->installEventFilter(this);
}

void TCustomComboBox::TView::SetEditable(bool value) {
  if (isEditable() == value) return;
  setEditable(value);
  if (value) WatchLine();
}

void TCustomComboBox::TView::WatchLine() {
  lineEdit()->installEventFilter(this);
  // Whoever leaves a text that is a line but for its letters' case has not picked that line.
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this] {
    const TInEvent running;
    if (Control()) GuardedCall([&] { Box().TextTyped(); });
  });
}

bool TCustomComboBox::TView::event(QEvent* event) {
  if (event->type() == QEvent::FocusOut && QApplication::focusWidget() == view()) {
    // Who goes to the open list has not left.
    QFocusEvent toList(QEvent::FocusOut, Qt::PopupFocusReason);
    return HandleEvent(&toList, [this](QEvent* passed) { return QComboBox::event(passed); });
  }
  return HandleEvent(event, [this](QEvent* passed) { return QComboBox::event(passed); });
}

bool TCustomComboBox::TView::eventFilter(QObject* object, QEvent* event) {
  if (!Control()) return QComboBox::eventFilter(object, event);
  const QEvent::Type type = event->type();
  const bool isMouse = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
                       type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove;
  if (object == lineEdit()) {
    if (isMouse) return UseMouseOfLine(static_cast<QMouseEvent*>(event));
    if (type != QEvent::ContextMenu) return QComboBox::eventFilter(object, event);
    QLineEdit* const line = lineEdit();
    HandleEvent(event, [line](QEvent* passed) { return line->event(passed); });
    return true;
  }
  if (object == view() && type == QEvent::ShortcutOverride && !FIsActing) {
    // Comes again as a key, after the control has heard of it.
    event->accept();
    return true;
  }
  const bool isKey = type == QEvent::KeyPress || type == QEvent::KeyRelease;
  if (object == view() && isKey) return UseKeyOfList(event);
  if (object == view()->parentWidget() && type == QEvent::Hide) ListWasHidden();
  return QComboBox::eventFilter(object, event);
}

bool TCustomComboBox::TView::UseMouseOfLine(QMouseEvent* event) {
  QLineEdit* const line = lineEdit();
  QMouseEvent moved(event->type(), event->position() + QPointF(line->pos()), event->scenePosition(),
                    event->globalPosition(), event->button(), event->buttons(), event->modifiers(),
                    event->pointingDevice());
  HandleEvent(&moved, [line, event](QEvent*) { return line->event(event); });
  event->setAccepted(moved.isAccepted());
  return true;
}

bool TCustomComboBox::TView::UseKeyOfList(QEvent* event) {
  bool isLeft = false;
  HandleEvent(event, [&isLeft](QEvent*) { return isLeft = true; });
  if (!isLeft || !Control()) return true;
  if (event->type() == QEvent::KeyPress) ActOnKey(*static_cast<QKeyEvent*>(event));
  return !Control() || !FIsOpen;
}

/// Qt's list knows the keys that close it before they are keys.
void TCustomComboBox::TView::ActOnKey(const QKeyEvent& event) {
  const TInEvent running;
  QKeyEvent before(QEvent::ShortcutOverride, event.key(), event.modifiers(), event.text());
  FIsActing = true;
  QApplication::sendEvent(view(), &before);
  FIsActing = false;
}

void TCustomComboBox::TView::showPopup() {
  if (!Control() || FIsOpen || Box().HasState(csDesigning)) return;
  const TInEvent running;
  GuardedCall([this] { Box().DropDownByUser(); });
  if (!Control()) return;
  FIsOpen = true;
  QComboBox::showPopup();
  // The list has the mouse from now on.
  ButtonsReleased();
  if (!view()->isVisible()) ListWasHidden();
}

void TCustomComboBox::TView::ListWasHidden() {
  if (!FIsOpen) return;
  FIsOpen = false;
  const TInEvent running;
  GuardedCall([this] { Box().CloseUp(); });
}

}  // namespace kt
