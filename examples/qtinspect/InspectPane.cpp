#include "qtinspect/InspectPane.h"

#include "inspectdump/InspectedText.h"
#include "kt/KTObjectInspector.h"
#include "kt/QObjects.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/forms/Application.h"
#include "qtinspect/ListedObjects.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPalette>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace qtinspect {

namespace {

QString TreeText(const QObject& object, int level) {
  QString text = QString(2 * level, u' ') + TitleOf(object) + u'\n';
  for (const QObject* child : ListedChildren(object)) text += TreeText(*child, level + 1);
  return text;
}

TObjectTree::TRoots Registered(TObjectTree::TRoots roots) {
  // Errors go to the application's handler from now on.
  kt::Application();
  kt::RegisterObjectInspector();
  return roots;
}

bool IsPartOf(const QObject* object, const QObject* whole) {
  while (object && object != whole) object = object->parent();
  return object != nullptr;
}

}  // namespace

TInspectPane::TInspectPane(TObjectTree::TRoots roots, QWidget* parent)
    : QWidget(parent),
      FRoots(Registered(std::move(roots))),
      FOutline(QApplication::palette().color(QPalette::Highlight)),
      FPick(new QToolButton),
      FTree(new TObjectTree(FSelection, FRoots)),
      FPanel(new TInspectPanel(FSelection)) {
  Build();
  FTree->OnInspect = [this] { FPanel->FocusGrid(); };
  FPicker.MayPick = [this](const QWidget& widget) { return MayPick(widget); };
  FPicker.OnPick = [this](QObject& object, bool adds) { Picked(object, adds); };
  FPicker.OnPicking = [this](bool isPicking) { FPick->setChecked(isPicking); };
  connect(FPick, &QToolButton::toggled, this, [this](bool value) { FPicker.SetPicking(value); });
  FSelection.Listen([this] { ShowFrames(); });
}

/// The parts go before what they share.
TInspectPane::~TInspectPane() {
  FPicker.OnPicking = nullptr;
  delete FPanel;
  delete FTree;
}

void TInspectPane::Build() {
  FPick->setObjectName(QStringLiteral("pick"));
  FPick->setText(QStringLiteral("Pick by pointer"));
  FPick->setToolTip(
      QStringLiteral("Then click on what to inspect; Shift+click adds, Esc ends.\n"
                     "Ctrl+Shift+click picks at any time."));
  FPick->setAccessibleName(QStringLiteral("Pick an object by pointer"));
  FPick->setCheckable(true);
  FPick->setFocusPolicy(Qt::StrongFocus);
  auto* parts = new QSplitter(Qt::Vertical);
  parts->addWidget(FTree);
  parts->addWidget(FPanel);
  parts->setSizes({200, 420});
  parts->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(FPick);
  layout->addWidget(parts, 1);
  setTabOrder(FPick, FTree);
}

void TInspectPane::ShowFrames() { FOutline.Frame(isVisible() ? FSelection.Objects() : std::vector<QObject*>{}); }

void TInspectPane::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  ShowFrames();
}

void TInspectPane::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  FPicker.SetPicking(false);
  ShowFrames();
}

bool TInspectPane::MayPick(const QWidget& widget) const {
  const std::vector<QObject*> roots = FRoots();
  return std::any_of(roots.begin(), roots.end(), [&](const QObject* root) { return IsPartOf(&widget, root); });
}

void TInspectPane::Picked(QObject& object, bool adds) {
  FTree->Refresh();
  adds ? FSelection.Toggle(&object) : FSelection.Select(&object);
  if (OnPicked) OnPicked();
}

QString TInspectPane::Text() {
  QString text;
  for (const QObject* root : FRoots()) text += TreeText(*root, 0);
  QObject* main = FSelection.Main();
  if (!main) return text;
  const auto inspector = kt::Make<kt::TKTObjectInspector>();
  text += u'\n' + TitleOf(*main) + u'\n';
  return text + TextOfProperties(*inspector, kt::ComponentOf(main), 1);
}

}  // namespace qtinspect
