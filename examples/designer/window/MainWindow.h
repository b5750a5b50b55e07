#pragma once

#include "designer/session/Session.h"
#include "designer/window/Questions.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class QLabel;
class QScrollArea;

namespace designer {

class TComponentTree;
class TInspectorPanel;
class TPaletteList;
class TStage;
class TSurface;

/// The designer's window: the palette, the live form, its components as a tree, and the object inspector.
///
/// What goes wrong anywhere in it is told once, and leaves the open form as it was.
class TMainWindow : public QMainWindow {
 public:
  /// Begins with an empty form.
  TMainWindow();
  ~TMainWindow() override;

  TSession& Session() { return FSession; }
  TSurface& Surface() const;
  TComponentTree& Tree() const { return *FTree; }
  TPaletteList& Palette() const { return *FPalette; }
  TInspectorPanel& Panel() const { return *FPanel; }
  TQuestions& Questions() { return FQuestions; }

  // Files. What fails is told; false then, and when the user does not want to.
  bool Open(const QString& fileName);
  /// One of those that come with the program, as a form that has no file yet.
  bool OpenExample(const QString& fileName);
  bool NewForm();
  bool Save();
  bool SaveTo(const QString& fileName);
  /// As somebody sees it in the middle of working: something is selected, and expanded in the inspector.
  void ShowOff();
  /// The action of that name; never null for one of the window's own.
  QAction* Action(const QString& name) const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct TCommand;

  // The parts.
  void BuildParts();
  QWidget* MakeSide(const QString& title, QWidget* content);
  void ConnectParts();
  void Heard(TNews news);
  /// What the title and questions call the form.
  QString ShownName() const;
  void UpdateTitle();
  void UpdateStatus();
  void BringIntoView();

  // Actions.
  void BuildActions();
  QAction* Add(const TCommand& command);
  void BuildMenus();
  void BuildFileMenu();
  void BuildEditMenu();
  void BuildComponentMenu();
  void BuildViewMenu();
  void BuildHelpMenu();
  void BuildToolBar();
  void UpdateActions();
  void UpdatePartActions();
  /// The names of those that depend on what is selected.
  static QStringList PartActions();
  void OpenMenu(QPoint globalPoint);
  void GoToPane(int step);
  void ShowKeys();

  // Files.
  void AskAndOpen();
  /// Goes on with another document; `untitled` is what it is called while it has no file.
  bool Take(const std::function<std::unique_ptr<TFormDocument>()>& make, const QString& untitled);
  bool SaveAs();
  /// Whether nothing is lost by leaving the document.
  bool MayLeave();
  /// Has what is typed in the inspector accepted or refused, and what the mouse is in the middle of taken back. False
  /// when it was refused.
  bool FinishEdits();
  bool Try(const std::function<void()>& call);

  // Edits.
  void Step(void (TSession::*step)());
  void Cut();
  void Copy();
  kt::TComponent* PasteTarget() const;
  void Paste();
  void Delete();
  void Remove(const QString& verb);
  void SelectAll();
  void PlaceInMiddle(const kt::TClassInfo* classInfo);
  void NewPart(const kt::TClassInfo& part);
  void NewPartIn(kt::TComponent* holder, const kt::TClassInfo& part);
  static void ShowPage(kt::TComponent* component);
  void ClearPicture();
  void AddImages();
  void ClearImages();

  TSession FSession;
  TQuestions FQuestions;
  TPaletteList* FPalette = nullptr;
  QScrollArea* FScroll = nullptr;
  TStage* FStage = nullptr;
  TComponentTree* FTree = nullptr;
  TInspectorPanel* FPanel = nullptr;
  QLabel* FStatus = nullptr;
  /// What a form without a file is called.
  QString FUntitled;
  /// The names of what was copied last, and of what it was in.
  QStringList FCopied;
  QString FCopiedFrom;
};

}  // namespace designer
