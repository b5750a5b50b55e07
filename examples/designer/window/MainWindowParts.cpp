// The commands of the component menu: what components are made of, and pictures.
#include "designer/document/Parts.h"
#include "designer/document/Pictures.h"
#include "designer/inspector/InspectorPanel.h"
#include "designer/window/MainWindowCommand.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/imagelist/ImageList.h"
#include "kt/vcl/menus/MenuItem.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace designer {

using namespace kt;

void TMainWindow::BuildComponentMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("&Component"));
  // What fits the selection is one of these at most.
  const QKeySequence insert(QStringLiteral("Ins"));
  menu->addAction(
      Add({"newPage", QStringLiteral("New &page"), insert, [this] { NewPart(*TTabSheet::Class()); }, true}));
  menu->addAction(
      Add({"newItem", QStringLiteral("New &item"), insert, [this] { NewPart(*TMenuItem::Class()); }, true}));
  menu->addAction(Add({"newSubItem", QStringLiteral("New &submenu item"), QKeySequence(QStringLiteral("Alt+Ins")),
                       [this] { NewPartIn(FSession.Main(), *TMenuItem::Class()); }, true}));
  menu->addAction(
      Add({"newAction", QStringLiteral("New &action"), insert, [this] { NewPart(*TAction::Class()); }, true}));
  menu->addSeparator();
  menu->addAction(Add(
      {"editValue", QStringLiteral("&Edit value of the row..."), QKeySequence(QStringLiteral("Alt+Return")), [this] {
         if (FinishEdits()) FPanel->EditSelected();
       }}));
  menu->addAction(Add({"clearPicture", QStringLiteral("&Clear picture"), {}, [this] { ClearPicture(); }}));
  menu->addSeparator();
  menu->addAction(Add({"addImages", QStringLiteral("Add i&mages..."), {}, [this] { AddImages(); }}));
  menu->addAction(Add({"clearImages", QStringLiteral("Clear all ima&ges"), {}, [this] { ClearImages(); }}));
}

QStringList TMainWindow::PartActions() {
  return {QStringLiteral("newPage"),     QStringLiteral("newItem"),   QStringLiteral("newSubItem"),
          QStringLiteral("newAction"),   QStringLiteral("addImages"), QStringLiteral("clearImages"),
          QStringLiteral("clearPicture")};
}

void TMainWindow::UpdatePartActions() {
  TComponent* main = FSession.Main();
  const auto isIn = [&](const TClassInfo* part) { return HolderAround(&FSession.Form(), main, part) != nullptr; };
  const auto* images = dynamic_cast<TCustomImageList*>(main);
  const auto enable = [this](const char* name, bool value) { Action(QString::fromLatin1(name))->setEnabled(value); };
  enable("newPage", isIn(TTabSheet::Class()));
  enable("newItem", isIn(TMenuItem::Class()));
  enable("newSubItem", dynamic_cast<TMenuItem*>(main));
  enable("newAction", isIn(TAction::Class()));
  enable("addImages", images);
  enable("clearImages", images && images->GetCount() > 0);
  enable("clearPicture", HasPicture(FSession.Selected()));
}

/// Into what is selected, or beside it.
void TMainWindow::NewPart(const TClassInfo& part) {
  TComponent* start = FSession.Main();
  if (dynamic_cast<TMenuItem*>(start)) start = FSession.Document().ParentOf(start);
  NewPartIn(HolderAround(&FSession.Form(), start, &part), part);
}

void TMainWindow::NewPartIn(TComponent* holder, const TClassInfo& part) {
  // Accepting what is typed in the inspector may do anything.
  const TObjectRef held(holder);
  if (!holder || !FinishEdits() || !held) return;
  TComponent* added = FSession.Document().Add(&part, holder, {});
  PutBehind(added, FSession.Main());
  ShowPage(added);
  FSession.Edited(StepText(QStringLiteral("Add"), {added}));
  FSession.Select(added);
}

/// So that a page that is new can be seen.
void TMainWindow::ShowPage(TComponent* component) {
  auto* page = dynamic_cast<TTabSheet*>(component);
  if (page && page->GetPageControl()) page->GetPageControl()->SetActivePage(page);
}

// Pictures.

void TMainWindow::ClearPicture() {
  if (!FinishEdits()) return;
  const std::vector<TComponent*> selected = FSession.Selected();
  ClearPictures(selected);
  FSession.Edited(StepText(QStringLiteral("Clear picture of"), selected));
}

void TMainWindow::AddImages() {
  const QStringList files = FinishEdits() ? FQuestions.AskPictureNames() : QStringList();
  auto* images = dynamic_cast<TCustomImageList*>(FSession.Main());
  if (!images || files.isEmpty()) return;
  try {
    for (const QString& file : files) AddImageFile(*images, file);
  } catch (...) {
    FSession.Revert();
    throw;
  }
  FSession.Edited(StepText(QStringLiteral("Add images to"), {images}));
}

void TMainWindow::ClearImages() {
  auto* images = dynamic_cast<TCustomImageList*>(FSession.Main());
  if (!images || !FinishEdits()) return;
  images->Clear();
  FSession.Edited(StepText(QStringLiteral("Clear images of"), {images}));
}

}  // namespace designer
