#include "qtinspect/InspectPanel.h"

#include "kt/QObjects.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/strings/StringList.h"
#include "qtinspect/ListedObjects.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace qtinspect {

using namespace kt;

TInspectPanel::TInspectPanel(TSelection& selection, QWidget* parent)
    : QWidget(parent),
      FSelection(selection),
      FInspector(Make<designer::TDesignInspector>()),
      FHead(new QLabel),
      FFilter(new QLineEdit),
      FGroups(MakeButton(QStringLiteral("Groups"), QStringLiteral("List properties below the classes that have them"))),
      FHidden(MakeButton(QStringLiteral("Hidden"), QStringLiteral("Also what designers are not meant to see"))) {
  FInspector->SetDropDownRows(14);
  FInspector->SetShowValueChangedFont(true);
  Build();
  selection.Listen([this] { GuardedCall([this] { Inspect(); }); });
  Inspect();
}

TInspectPanel::~TInspectPanel() = default;

QToolButton* TInspectPanel::MakeButton(const QString& text, const QString& hint) {
  auto* button = new QToolButton;
  button->setText(text);
  button->setToolTip(hint);
  button->setAccessibleName(hint);
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

void TInspectPanel::Build() {
  FHead->setObjectName(QStringLiteral("head"));
  FHead->setTextInteractionFlags(Qt::TextSelectableByMouse);
  // Names of classes read from left to right everywhere, which would have the label stand there, too.
  FHead->setAlignment(Qt::AlignVCenter | Qt::AlignAbsolute | (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
  FHead->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  FFilter->setObjectName(QStringLiteral("filter"));
  FFilter->setPlaceholderText(QStringLiteral("Filter by name"));
  FFilter->setAccessibleName(QStringLiteral("Filter properties by name"));
  FFilter->setClearButtonEnabled(true);
  connect(FFilter, &QLineEdit::textChanged, this,
          [this](const QString& text) { GuardedCall([&] { FInspector->SetNameFilter(text.trimmed()); }); });
  FGroups->setCheckable(true);
  connect(FGroups, &QToolButton::toggled, this, [this](bool value) { GuardedCall([&] { SetGroups(value); }); });
  FHidden->setCheckable(true);
  FHidden->setChecked(GetListsHiddenProperties());
  connect(FHidden, &QToolButton::toggled, this, [this](bool value) { GuardedCall([&] { SetHidden(value); }); });
  QToolButton* reset =
      MakeButton(QStringLiteral("Reset"), QStringLiteral("Give the selected property its first value"));
  connect(reset, &QToolButton::clicked, this, [this] { GuardedCall([this] { ResetSelected(); }); });

  auto* row = new QHBoxLayout;
  row->setSpacing(2);
  row->addWidget(FFilter, 1);
  for (QToolButton* button : {FGroups, FHidden, reset}) row->addWidget(button);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(FHead);
  layout->addLayout(row);
  QWidget* grid = FInspector->GetHandle();
  grid->setAccessibleName(QStringLiteral("Object inspector"));
  layout->addWidget(grid, 1);
  QWidget* before = FFilter;
  for (QWidget* next : std::initializer_list<QWidget*>{FGroups, FHidden, reset, grid}) {
    setTabOrder(std::exchange(before, next), next);
  }
}

void TInspectPanel::FocusGrid() { FInspector->SetFocus(); }

void TInspectPanel::FocusFilter() {
  FFilter->setFocus(Qt::ShortcutFocusReason);
  FFilter->selectAll();
}

void TInspectPanel::SetGroups(bool value) {
  FGroups->setChecked(value);
  FInspector->SetArrangeByCategory(value);
}

void TInspectPanel::SetHidden(bool value) {
  FHidden->setChecked(value);
  SetListsHiddenProperties(value);
  FillCategories(FSelection.Objects());
  FInspector->InvalidateScan();
}

void TInspectPanel::ResetSelected() {
  TKTItemProperty* item = FInspector->GetSelected();
  if (item && FInspector->CanResetProperty(*item)) FInspector->ResetProperty(*item);
}

// What is inspected.

void TInspectPanel::LetGo() {
  FInspector->Inspect({});
  FInspector->Rescan();
}

void TInspectPanel::Inspect() {
  std::vector<TObject*> components;
  const std::vector<QObject*> objects = FSelection.Objects();
  for (QObject* object : objects) {
    if (TComponent* component = ComponentOf(object)) components.push_back(component);
  }
  FHead->setText(objects.empty()       ? QStringLiteral("Nothing selected")
                 : objects.size() == 1 ? TitleOf(*objects.front())
                                       : QStringLiteral("%1 objects selected").arg(objects.size()));
  FillCategories(objects);
  FInspector->Inspect(components);
}

/// A category for each class, with the properties that it declares.
void TInspectPanel::FillCategories(const std::vector<QObject*>& objects) {
  const auto lines = Make<TStringList>();
  QSet<const QMetaObject*> seen;
  for (const QObject* object : objects) {
    for (const QMetaObject* meta = object->metaObject(); meta && !seen.contains(meta); meta = meta->superClass()) {
      seen.insert(meta);
      for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        lines->Add(
            QStringLiteral("%1=%2").arg(QLatin1String(meta->property(i).name()), QLatin1String(meta->className())));
      }
    }
  }
  FInspector->GetItems().GetCategories().Assign(lines.get());
}

}  // namespace qtinspect
