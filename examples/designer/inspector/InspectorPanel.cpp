#include "designer/inspector/InspectorPanel.h"

#include "designer/inspector/ValuePresets.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace designer {

using namespace kt;

TInspectorPanel::TInspectorPanel(TSession& session, QWidget* parent)
    : QWidget(parent),
      FSession(session),
      FInspector(Make<TDesignInspector>()),
      FCombo(new QComboBox),
      FFilter(new QLineEdit),
      FPages(new QTabBar) {
  AddNamedNumbers(*FInspector);
  AddReferences(*FInspector, session);
  AddHandlerNames(*FInspector, session);
  AddLinesButton(*FInspector);
  AddItemsButton(*FInspector);
  AddPictureButton(*FInspector, [this] { return OnAskPicture ? OnAskPicture() : QString(); });
  FInspector->SetDropDownRows(14);
  // What the rows had to look at is no part of the step.
  FInspector->OnWriting = [this] { FSession.Document().Settle(); };
  FInspector->OnEdited = [this](const QString& step) { FSession.Edited(step); };
  FInspector->OnWritten = [this](const QString& name) { Written(name); };
  // Later: what failed is still being handled by the item that would go.
  FInspector->OnFailed = [this] {
    QTimer::singleShot(0, this, [this] { GuardedCall([this] { FSession.Revert(); }); });
  };
  Build();
  session.Listen([this](TNews news) { Heard(news); });
  FillCombo();
  Inspect();
}

TInspectorPanel::~TInspectorPanel() = default;

QToolButton* TInspectorPanel::MakeSwitch(const QString& text, const QString& hint, std::function<void(bool)> changed) {
  auto* button = new QToolButton;
  button->setText(text);
  button->setToolTip(hint);
  button->setAccessibleName(hint);
  button->setCheckable(true);
  button->setFocusPolicy(Qt::StrongFocus);
  connect(button, &QToolButton::toggled, this,
          [changed = std::move(changed)](bool value) { GuardedCall([&] { changed(value); }); });
  return button;
}

void TInspectorPanel::Build() {
  FCombo->setObjectName(QStringLiteral("component"));
  FCombo->setAccessibleName(QStringLiteral("Inspected component"));
  FCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  FCombo->setMaxVisibleItems(20);
  connect(FCombo, &QComboBox::activated, this, [this](int index) { GuardedCall([&] { ComboPicked(index); }); });

  FFilter->setObjectName(QStringLiteral("filter"));
  FFilter->setPlaceholderText(QStringLiteral("Filter by name"));
  FFilter->setAccessibleName(QStringLiteral("Filter properties by name"));
  FFilter->setClearButtonEnabled(true);
  connect(FFilter, &QLineEdit::textChanged, this,
          [this](const QString& text) { GuardedCall([&] { FInspector->SetNameFilter(text.trimmed()); }); });

  FPages->addTab(QStringLiteral("Properties"));
  FPages->addTab(QStringLiteral("Events"));
  FPages->setObjectName(QStringLiteral("pages"));
  FPages->setAccessibleName(QStringLiteral("Properties or events"));
  FPages->setExpanding(false);
  FPages->setDrawBase(false);
  connect(FPages, &QTabBar::currentChanged, this, [this](int page) { GuardedCall([&] { ShowEvents(page == 1); }); });

  FCategories = MakeSwitch(QStringLiteral("Groups"), QStringLiteral("List properties below their categories"),
                           [this](bool value) { SetCategories(value); });
  FAcross = MakeSwitch(QStringLiteral("Across"), QStringLiteral("Properties run across the columns"),
                       [this](bool value) { SetAcross(value); });
  FCompare = MakeSwitch(QStringLiteral("Compare"), QStringLiteral("A column for each selected component"),
                        [this](bool value) { SetCompare(value); });

  auto* switches = new QHBoxLayout;
  switches->setSpacing(2);
  switches->addWidget(FPages, 1);
  for (QToolButton* button : {FCategories, FAcross, FCompare}) switches->addWidget(button);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(FCombo);
  layout->addWidget(FFilter);
  layout->addLayout(switches);
  QWidget* grid = FInspector->GetHandle();
  grid->setAccessibleName(QStringLiteral("Object inspector"));
  layout->addWidget(grid, 1);
  QWidget* before = FCombo;
  for (QWidget* next : std::initializer_list<QWidget*>{FFilter, FPages, FCategories, FAcross, FCompare, grid}) {
    setTabOrder(std::exchange(before, next), next);
  }
}

void TInspectorPanel::FocusGrid() { FInspector->SetFocus(); }

void TInspectorPanel::FocusFilter() {
  FFilter->setFocus(Qt::ShortcutFocusReason);
  FFilter->selectAll();
}

void TInspectorPanel::ExpandSelected() {
  TKTItemProperty* item = FInspector->GetSelected();
  if (item) item->Expand();
}

void TInspectorPanel::CollapseSelected() {
  TKTItemProperty* item = FInspector->GetSelected();
  if (item && !item->IsExpanded() && item->GetParent()) item = item->GetParent();
  if (!item) return;
  FInspector->SetSelected(item);
  item->Collapse();
}

void TInspectorPanel::EditSelected() {
  TKTItemProperty* item = FInspector->GetSelected();
  const TNotifyEvent click = item ? item->GetOnEditButtonClick() : TNotifyEvent();
  if (click) click(item);
}

// What is inspected.

void TInspectorPanel::Heard(TNews news) {
  switch (news) {
    case nwLeaving:
      return FInspector->Inspect({});
    case nwForm:
    case nwSelection:
      FillCombo();
      return Inspect();
    case nwEdited:
      FillCombo();
      // Later, as the inspector itself may be in the middle of what is told. What several have in common takes a scan.
      return FInspector->GetObjects().GetCount() > 1 ? FInspector->InvalidateScan()
                                                     : FInspector->InvalidateProperty(-1);
  }
}

void TInspectorPanel::Inspect() {
  const std::vector<TComponent*> selected = FSession.Selected();
  // A column for all of them is nobody's.
  FInspector->SetDynamicTitleCaptions(selected.size() == 1 || FCompare->isChecked());
  FInspector->Inspect({selected.begin(), selected.end()});
}

void TInspectorPanel::FillCombo() {
  const QScopedValueRollback<bool> filling(FIsFilling, true);
  const std::vector<TComponent*> selected = FSession.Selected();
  QStringList titles;
  int current = -1;
  for (const TComponent* component : FSession.Components()) {
    if (component == selected.front()) current = static_cast<int>(titles.size());
    titles.append(TitleOf(*component));
  }
  if (selected.size() > 1) {
    current = static_cast<int>(titles.size());
    titles.append(QStringLiteral("%1 components selected").arg(selected.size()));
  }
  FCombo->clear();
  FCombo->addItems(titles);
  FCombo->setCurrentIndex(current);
}

void TInspectorPanel::ComboPicked(int index) {
  const std::vector<TComponent*> all = FSession.Components();
  if (!FIsFilling && index >= 0 && static_cast<size_t>(index) < all.size())
    FSession.Select(all[static_cast<size_t>(index)]);
}

void TInspectorPanel::Written(const QString& name) { FSession.Edited(QStringLiteral("Change ") + name); }

// How it looks.

void TInspectorPanel::ShowEvents(bool value) {
  FPages->setCurrentIndex(value ? 1 : 0);
  FInspector->SetDisplayKinds(value ? tkMethods : tkProperties);
}

void TInspectorPanel::SetCategories(bool value) {
  FCategories->setChecked(value);
  FInspector->SetArrangeByCategory(value);
}

void TInspectorPanel::SetAcross(bool value) {
  FAcross->setChecked(value);
  const TILEDisplayOptions fills{doAutoColResize};
  const TILEDisplayOptions others = FInspector->GetDisplayOptions() - fills;
  FInspector->SetDisplayOptions(value ? others : others + fills);
  FInspector->SetOrientation(value ? goHorizontal : goVertical);
  if (value) FInspector->SetDefaultColWidth(110);
}

void TInspectorPanel::SetCompare(bool value) {
  FCompare->setChecked(value);
  const TILEDisplayOptions columns{doMultiColValues};
  const TILEDisplayOptions others = FInspector->GetDisplayOptions() - columns;
  FInspector->SetDisplayOptions(value ? others + columns : others);
  FInspector->SetDynamicTitleCaptions(value || FSession.Selected().size() == 1);
}

}  // namespace designer
