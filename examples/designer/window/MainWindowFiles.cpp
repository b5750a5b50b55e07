// Opening and saving.
#include "designer/inspector/InspectorPanel.h"
#include "designer/surface/Surface.h"
#include "designer/window/MainWindow.h"
#include "kt/rtl/objects/Exceptions.h"

#include <QCloseEvent>
#include <QFileInfo>

#include <utility>

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
    // What the form's windows have brought about is no edit.
    FSession.Document().Settle();
    FPanel->Inspector().Validate();
  });
}

bool TMainWindow::MayLeave() {
  if (!FinishEdits()) return false;
  if (!FSession.Document().IsModified()) return true;
  switch (FQuestions.AskToSave(ShownName())) {
    case saSave:
      return Save();
    case saDiscard:
      return true;
    default:
      return false;
  }
}

bool TMainWindow::Take(const std::function<std::unique_ptr<TFormDocument>()>& make, const QString& untitled) {
  if (!MayLeave()) return false;
  return Try([&] {
    std::unique_ptr<TFormDocument> document = make();
    FUntitled = untitled;
    FSession.SetDocument(std::move(document));
  });
}

bool TMainWindow::Open(const QString& fileName) {
  return Take([&] { return TFormDocument::OpenFile(fileName); }, {});
}

bool TMainWindow::OpenExample(const QString& fileName) {
  return Take([&] { return TFormDocument::OpenCopy(fileName); }, QFileInfo(fileName).fileName());
}

bool TMainWindow::NewForm() {
  return Take([] { return TFormDocument::New(); }, {});
}

void TMainWindow::AskAndOpen() {
  const QString present = FSession.Document().FileName();
  const QString folder = present.isEmpty() ? QString() : QFileInfo(present).path();
  const QString name = FQuestions.AskOpenName(folder);
  if (!name.isEmpty()) Open(name);
}

bool TMainWindow::Save() {
  const QString name = FSession.Document().FileName();
  return name.isEmpty() ? SaveAs() : SaveTo(name);
}

bool TMainWindow::SaveAs() {
  const QString present = FSession.Document().FileName();
  const QString unnamed = FUntitled.isEmpty() ? QStringLiteral("form1.dfm") : FUntitled;
  const QString name = FQuestions.AskSaveName(present.isEmpty() ? unnamed : present);
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
