#include "designer/window/MainWindow.h"

#include "designer/inspector/InspectorPanel.h"
#include "designer/palette/PaletteList.h"
#include "designer/surface/Stage.h"
#include "designer/surface/Surface.h"
#include "designer/tree/ComponentTree.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/vcl/forms/Application.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>

namespace designer {

using namespace kt;

namespace {

std::unique_ptr<TFormDocument> FirstDocument() {
  RegisterObjectInspector();
  return TFormDocument::New();
}

}  // namespace

TMainWindow::TMainWindow() : FSession(FirstDocument()), FQuestions(QuestionsOf(*this)) {
  Application().OnException = [this](TObject*, const Exception& error) { FQuestions.Tell(error.Message()); };
  BuildParts();
  BuildActions();
  ConnectParts();
  FSession.Listen([this](TNews news) { Heard(news); });
  Heard(nwForm);
  resize(1180, 760);
  QCoreApplication::instance()->installEventFilter(this);
}

TMainWindow::~TMainWindow() {
  QCoreApplication::instance()->removeEventFilter(this);
  // The parts go before what they share.
  delete takeCentralWidget();
  Application().OnException = nullptr;
}

/// The inspector's editor would keep the keys of undoing for itself, also where it has nothing to undo.
bool TMainWindow::eventFilter(QObject* watched, QEvent* event) {
  const auto* edit = event->type() == QEvent::ShortcutOverride ? qobject_cast<QLineEdit*>(watched) : nullptr;
  if (edit && FPanel->Inspector().GetHandle()->isAncestorOf(edit)) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isForForm = (key->matches(QKeySequence::Undo) && !edit->isModified()) ||
                           (key->matches(QKeySequence::Redo) && !edit->isRedoAvailable());
    if (isForForm) {
      event->ignore();
      return true;
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

TSurface& TMainWindow::Surface() const { return FStage->Surface(); }

// The parts.

QWidget* TMainWindow::MakeSide(const QString& title, QWidget* content) {
  auto* side = new QWidget;
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  auto* label = new QLabel(title);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  label->setIndent(4);
  layout->addWidget(label);
  layout->addWidget(content, 1);
  return side;
}

void TMainWindow::BuildParts() {
  FPalette = new TPaletteList;
  FStage = new TStage(FSession);
  FScroll = new QScrollArea;
  FScroll->setWidget(FStage);
  FScroll->setWidgetResizable(true);
  FScroll->setFocusPolicy(Qt::NoFocus);
  FTree = new TComponentTree(FSession);
  FPanel = new TInspectorPanel(FSession);

  auto* right = new QSplitter(Qt::Vertical);
  right->addWidget(MakeSide(QStringLiteral("Components"), FTree));
  right->addWidget(MakeSide(QStringLiteral("Object inspector"), FPanel));
  right->setSizes({200, 480});
  auto* all = new QSplitter(Qt::Horizontal);
  all->addWidget(MakeSide(QStringLiteral("Palette"), FPalette));
  all->addWidget(FScroll);
  all->addWidget(right);
  all->setStretchFactor(1, 1);
  all->setSizes({170, 640, 350});
  auto* framed = new QWidget;
  auto* layout = new QVBoxLayout(framed);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->addWidget(all);
  setCentralWidget(framed);
  FStatus = new QLabel;
  statusBar()->addWidget(FStatus, 1);
}

void TMainWindow::ConnectParts() {
  FPalette->OnTake = [this](const TClassInfo* info) { Surface().SetTool(info); };
  FPalette->OnPlace = [this](const TClassInfo* info) { PlaceInMiddle(info); };
  Surface().OnToolDone = [this] {
    Surface().SetTool(nullptr);
    FPalette->LayAside();
  };
  Surface().OnInspect = [this] { FPanel->FocusGrid(); };
  FTree->OnInspect = [this] { FPanel->FocusGrid(); };
  Surface().OnMenu = [this](QPoint point) { OpenMenu(point); };
  FTree->OnMenu = [this](QPoint point) { OpenMenu(point); };
}

void TMainWindow::Heard(TNews news) {
  if (news == nwLeaving) return;
  UpdateTitle();
  UpdateStatus();
  UpdateActions();
  if (news == nwSelection) BringIntoView();
}

/// What was selected elsewhere, as in the tree, may be out of sight.
void TMainWindow::BringIntoView() {
  TComponent* main = FSession.Main();
  if (!Surface().Places().IsShown(*main)) return;
  const QRect place = Surface().Places().RectOf(*main);
  const QRect inView(FStage->mapFrom(FScroll->viewport(), QPoint()), FScroll->viewport()->size());
  if (!inView.intersects(place)) FScroll->ensureVisible(place.center().x(), place.center().y(), 80, 80);
}

void TMainWindow::UpdateTitle() {
  const QString file = FSession.Document().FileName();
  const QString name = file.isEmpty() ? FSession.Form().GetName() : QFileInfo(file).fileName();
  setWindowTitle(name + QStringLiteral("[*] - Form designer"));
  setWindowModified(FSession.Document().IsModified());
}

void TMainWindow::UpdateStatus() {
  const std::vector<TComponent*> selected = FSession.Selected();
  QString text =
      selected.size() == 1 ? TitleOf(*selected.front()) : QStringLiteral("%1 components selected").arg(selected.size());
  if (const auto* control = dynamic_cast<TControl*>(selected.front()); control && selected.size() == 1) {
    const QRect bounds = control->GetBoundsRect();
    text += QStringLiteral("   at %1, %2   size %3 × %4")
                .arg(bounds.x())
                .arg(bounds.y())
                .arg(bounds.width())
                .arg(bounds.height());
  }
  FStatus->setText(text);
}

void TMainWindow::ShowOff() {
  const std::vector<TComponent*> all = FSession.Components();
  const TPlaces places = Surface().Places();
  const auto hasCaption = [&](TComponent* component) {
    return component->ClassType()->FindProp(u"Caption") && places.IsShown(*component);
  };
  const auto found = std::find_if(all.begin() + 1, all.end(), hasCaption);
  FSession.Select(found == all.end() ? all.front() : *found);
  TDesignInspector& inspector = FPanel->Inspector();
  inspector.Rescan();
  TKTItemProperty* font = inspector.GetItems().FindItemByFullPathName(QStringLiteral("Font"));
  if (font) font->Expand();
  inspector.SetSelected(inspector.GetItems().FindItemByFullPathName(QStringLiteral("Caption")));
  Surface().setFocus();
}

}  // namespace designer
