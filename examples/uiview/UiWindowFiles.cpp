// Opening forms.
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "qtinspect/ListedObjects.h"
#include "uiview/UiFile.h"
#include "uiview/UiWindow.h"

#include <QAbstractButton>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>

#include <algorithm>

namespace uiview {

namespace {

/// The first file of this machine among what is dragged; empty for none.
QString FileIn(const QMimeData* data) {
  for (const QUrl& url : data->urls()) {
    if (url.isLocalFile()) return url.toLocalFile();
  }
  return QString();
}

QObject* FindNamed(QObject* root, const QString& name) {
  if (!root || root->objectName() == name) return root;
  return root->findChild<QObject*>(name);
}

}  // namespace

bool TUiWindow::Open(const QString& fileName) {
  try {
    TUiForm form = LoadUi(fileName);
    FRemarks = form.Remarks;
    Show(QFileInfo(fileName).absoluteFilePath(), std::move(form.Widget));
    return true;
  } catch (const EUiFile& error) {
    Tell(error.Message());
    return false;
  }
}

bool TUiWindow::Reload() {
  if (FFileName.isEmpty()) return false;
  QStringList names;
  for (const QObject* object : FPane->Selection().Objects()) names.append(object->objectName());
  if (!Open(FFileName)) return false;
  std::vector<QObject*> found;
  for (const QString& name : names) {
    QObject* object = name.isEmpty() ? nullptr : FindNamed(Form(), name);
    if (object) found.push_back(object);
  }
  if (!found.empty()) FPane->Selection().Select(found);
  return true;
}

/// The inspector lets go of the former form first, also of what is being typed.
void TUiWindow::Show(const QString& fileName, std::unique_ptr<QWidget> form) {
  FPane->Picker().SetPicking(false);
  FPane->Selection().Clear();
  FPane->Panel().LetGo();
  FFileName = fileName;
  FHost->Show(std::move(form));
  FPane->Tree().Refresh();
  FPane->Selection().Select(Form());
}

bool TUiWindow::Select(const QString& objectName) {
  QObject* object = FindNamed(Form(), objectName);
  if (object) FPane->Selection().Select(object);
  return object != nullptr;
}

void TUiWindow::AskAndOpen() {
  const QString name = AskFileName(QFileInfo(FFileName.isEmpty() ? FirstUiForm() : FFileName).path());
  if (!name.isEmpty()) Open(name);
}

void TUiWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!FileIn(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

/// Later: where the file is dragged from waits for the answer, and errors are told in a window.
void TUiWindow::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  QTimer::singleShot(0, this, [this, name = FileIn(event->mimeData())] { kt::GuardedCall([&] { Open(name); }); });
}

void TUiWindow::ShowOff() {
  const auto buttons = Form() ? Form()->findChildren<QAbstractButton*>() : QList<QAbstractButton*>();
  const auto isGood = [](const QAbstractButton* button) {
    return qtinspect::IsListed(*button) && button->isVisible() && !button->objectName().isEmpty();
  };
  const auto found = std::find_if(buttons.begin(), buttons.end(), isGood);
  if (found != buttons.end()) FPane->Selection().Select(*found);
  designer::TDesignInspector& inspector = FPane->Panel().Inspector();
  inspector.Rescan();
  inspector.SetSelected(inspector.GetItems().FindItemByFullPathName(QStringLiteral("text")));
}

QString FirstUiForm() {
  const QDir folder(QStringLiteral(KT_EXAMPLE_UI_FORMS));
  const QStringList names = folder.entryList({QStringLiteral("*.ui")}, QDir::Files, QDir::Name);
  return names.isEmpty()
             ? QString()
             : folder.filePath(names.contains(u"settings.ui") ? QStringLiteral("settings.ui") : names.first());
}

}  // namespace uiview
