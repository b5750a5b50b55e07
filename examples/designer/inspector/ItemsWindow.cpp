#include "designer/inspector/ItemsWindow.h"

#include "designer/inspector/DesignInspector.h"
#include "designer/inspector/ValuePresets.h"
#include "kt/KTPropertyPresets.h"
#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace designer {

using namespace kt;

TItemsWindow::TItemsWindow(const QString& title, TCollection& items, QWidget* parent)
    : QDialog(parent), FItems(&items), FList(new QListWidget) {
  setWindowTitle(title);
  setObjectName(QStringLiteral("items"));
  auto* label = new QLabel(QStringLiteral("&Items:"));
  label->setBuddy(FList);
  auto* buttons = new QVBoxLayout;
  buttons->addWidget(MakeButton(QStringLiteral("&Add"), "add", QStringLiteral("Add item to"), &TItemsWindow::AddItem));
  FDelete =
      MakeButton(QStringLiteral("&Delete"), "delete", QStringLiteral("Delete item of"), &TItemsWindow::DeleteItem);
  FUp = MakeButton(QStringLiteral("Move &up"), "up", QStringLiteral("Move item of"), &TItemsWindow::MoveUp);
  FDown = MakeButton(QStringLiteral("Move do&wn"), "down", QStringLiteral("Move item of"), &TItemsWindow::MoveDown);
  for (QPushButton* button : {FDelete, FUp, FDown}) buttons->addWidget(button);
  buttons->addStretch(1);
  auto* close = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(close, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* middle = new QHBoxLayout;
  middle->addWidget(FList, 1);
  middle->addLayout(buttons);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label);
  layout->addLayout(middle, 1);
  layout->addWidget(close);
  connect(FList, &QListWidget::currentRowChanged, this, [this] { UpdateButtons(); });
  Fill(0);
  FList->setFocus();
  resize(360, 260);
}

TCollection* TItemsWindow::Items() const { return static_cast<TCollection*>(FItems.Get()); }

QPushButton* TItemsWindow::MakeButton(const QString& text, const char* name, const QString& what,
                                      void (TItemsWindow::*change)()) {
  auto* button = new QPushButton(text);
  button->setObjectName(QString::fromLatin1(name));
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, what, change] {
    GuardedCall([&] {
      if (!Items()) return reject();
      if (OnChanging) OnChanging();
      (this->*change)();
      if (OnChanged) OnChanged(what);
    });
  });
  return button;
}

void TItemsWindow::AddItem() {
  Items()->Add();
  Fill(Items()->GetCount() - 1);
}

void TItemsWindow::DeleteItem() {
  const int row = FList->currentRow();
  if (row < 0) return;
  Items()->Delete(row);
  Fill(std::min(row, Items()->GetCount() - 1));
}

void TItemsWindow::MoveBy(int by) {
  const int row = FList->currentRow();
  if (row < 0) return;
  Items()->GetItem(row)->SetIndex(row + by);
  Fill(row + by);
}

void TItemsWindow::Fill(int current) {
  FList->clear();
  for (int i = 0; i < Items()->GetCount(); ++i) {
    FList->addItem(QStringLiteral("%1 - %2").arg(i).arg(Items()->GetItem(i)->GetDisplayName()));
  }
  FList->setCurrentRow(current);
  UpdateButtons();
}

void TItemsWindow::UpdateButtons() {
  const int row = FList->currentRow();
  const bool hasFocus = FDelete->hasFocus() || FUp->hasFocus() || FDown->hasFocus();
  FDelete->setEnabled(row >= 0);
  FUp->setEnabled(row > 0);
  FDown->setEnabled(row >= 0 && row + 1 < FList->count());
  // The keyboard stays where the items are when its button has no more to do.
  const bool hasLostIt = hasFocus && !FDelete->hasFocus() && !FUp->hasFocus() && !FDown->hasFocus();
  if (hasLostIt) FList->setFocus();
}

namespace {

TCollection* CollectionOf(TDesignInspector& inspector, TKTItemProperty& item) {
  const TKTInspectorObjects& objects = inspector.GetObjects();
  TObject* first = objects.GetCount() > 0 ? objects.GetItem(0)->GetObjects() : nullptr;
  TObject* holder = first ? HolderOf(first, item) : nullptr;
  return holder ? dynamic_cast<TCollection*>(GetObjectProp(holder, item.GetRealPropName())) : nullptr;
}

/// Of several inspected objects, the first one's.
void EditItems(TDesignInspector& inspector, TKTItemProperty& item) {
  TCollection* items = CollectionOf(inspector, item);
  if (!items) return;
  const QString name = item.GetName();
  TItemsWindow window(item.GetFullPathName(), *items, inspector.GetHandle()->window());
  window.OnChanging = inspector.OnWriting;
  window.OnChanged = [&inspector, name](const QString& what) {
    if (inspector.OnEdited) inspector.OnEdited(what + u' ' + name);
    inspector.InvalidateScan();
  };
  window.exec();
}

}  // namespace

void AddItemsButton(TDesignInspector& inspector) {
  TKTPropertyPreset* preset = inspector.GetPresets().Add();
  preset->SetName(QStringLiteral("Items"));
  preset->GetTypeNames().Add(QStringLiteral("TCollection"));
  preset->SetTypeKinds({tkClass});
  preset->SetEditStyle(esEllipsis);
  preset->OnEditButtonClick = [&inspector](TObject* sender) {
    if (auto* item = dynamic_cast<TKTItemProperty*>(sender)) EditItems(inspector, *item);
  };
  preset->SetMatchTypes({mtPropertyType});
  preset->SetActions({pftEditStyle});
}

}  // namespace designer
