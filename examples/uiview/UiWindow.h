#pragma once

#include "qtinspect/InspectPane.h"
#include "uiview/FormHost.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class QLabel;

namespace uiview {

/// A form of Qt's own designer, alive, beside the tree of its objects and the object inspector. Edits are made to the
/// live form alone: no file is written.
///
/// What goes wrong is told once, and leaves the open form as it was.
class TUiWindow : public QMainWindow {
 public:
  TUiWindow();
  ~TUiWindow() override;

  /// False when the file could not be opened, which was told.
  bool Open(const QString& fileName);
  /// The file anew, as it is now; edits of the form are gone.
  bool Reload();
  const QString& FileName() const { return FFileName; }
  /// Selects the object of that name; false when there is none.
  bool Select(const QString& objectName);

  QWidget* Form() const { return FHost->Form(); }
  TFormHost& Host() const { return *FHost; }
  qtinspect::TInspectPane& Pane() const { return *FPane; }
  /// What the loader had to say about the open form, a line each.
  const QStringList& Remarks() const { return FRemarks; }
  /// The tree of objects and the properties of the selected one.
  QString Text();
  /// As somebody sees it in the middle of working.
  void ShowOff();

  // What the window tells and asks its user, each in a window of its own; tests answer for the user.
  std::function<void(const QString& message)> Tell;
  /// The name of a file; empty when the user does not want to.
  std::function<QString(const QString& folder)> AskFileName;
  QAction* Action(const QString& name) const;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void BuildParts();
  void BuildMenus();
  QAction* Add(const char* name, const QString& text, const QKeySequence& key, std::function<void()> call);
  void Show(const QString& fileName, std::unique_ptr<QWidget> form);
  void AskAndOpen();
  void UpdateStatus();
  void GoToPane(int step);
  void ShowHelp();

  TFormHost* FHost = nullptr;
  qtinspect::TInspectPane* FPane = nullptr;
  QLabel* FStatus = nullptr;
  QString FFileName;
  QStringList FRemarks;
};

/// A form that comes with the program; empty where there is none.
QString FirstUiForm();

}  // namespace uiview
