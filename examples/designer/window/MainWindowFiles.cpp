// Opening and saving.
#include "designer/inspector/InspectorPanel.h"
#include "designer/surface/Surface.h"
#include "designer/window/MainWindow.h"
#include "designer/window/ShippedForms.h"
#include "kt/rtl/objects/Exceptions.h"

#include <QCloseEvent>
#include <QFileInfo>

namespace designer {

using namespace kt;

bool TMainWindow::Try(const std::function<void()>& call) {
  try {
    call();
    return true;
  } catch (const EAbort&) {
    return false;
  } catch (const Exception& error) {
    FQuestions.Tell(error.Message());
    return false;
  }
}

bool TMainWindow::FinishEdits() {
  return Try([this] {
    Surface().CancelDrag();
    FPanel->Inspector().Validate();
  });
}

bool TMainWindow::MayLeave() {
  if (!FinishEdits()) return false;
  if (!FSession.Document().IsModified()) return true;
  const QString file = FSession.Document().FileName();
  const QString name = file.isEmpty() ? FSession.Form().GetName() : QFileInfo(file).fileName();
  switch (FQuestions.AskToSave(name)) {
    case saSave:
      return Save();
    case saDiscard:
      return true;
    default:
      return false;
  }
}

bool TMainWindow::Open(const QString& fileName) {
  if (!MayLeave()) return false;
  return Try([&] { FSession.SetDocument(TFormDocument::OpenFile(fileName)); });
}

bool TMainWindow::NewForm() {
  if (!MayLeave()) return false;
  return Try([&] { FSession.SetDocument(TFormDocument::New()); });
}

void TMainWindow::AskAndOpen() {
  const QString present = FSession.Document().FileName();
  const QString folder = QFileInfo(present.isEmpty() ? FirstForm() : present).path();
  const QString name = FQuestions.AskOpenName(folder);
  if (!name.isEmpty()) Open(name);
}

bool TMainWindow::Save() {
  const QString name = FSession.Document().FileName();
  return name.isEmpty() ? SaveAs() : SaveTo(name);
}

bool TMainWindow::SaveAs() {
  const QString present = FSession.Document().FileName();
  const QString name = FQuestions.AskSaveName(present.isEmpty() ? QStringLiteral("form1.dfm") : present);
  return !name.isEmpty() && SaveTo(name);
}

bool TMainWindow::SaveTo(const QString& fileName) {
  const bool isSaved = FinishEdits() && Try([&] { FSession.Document().Save(fileName); });
  UpdateTitle();
  return isSaved;
}

void TMainWindow::closeEvent(QCloseEvent* event) {
  bool mayLeave = false;
  Try([&] { mayLeave = MayLeave(); });
  mayLeave ? event->accept() : event->ignore();
}

}  // namespace designer
