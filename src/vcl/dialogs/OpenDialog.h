#pragma once

#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "kt/vcl/dialogs/CommonDialog.h"
#include "kt/vcl/forms/FormTypes.h"

class QFileDialog;

namespace kt {

/// What a file dialog does. Kept, as Qt's dialogs have no such thing: ofReadOnly, ofHideReadOnly, ofShowHelp,
/// ofNoValidate, ofCreatePrompt, ofShareAware, ofNoReadOnlyReturn, ofNoTestFileCreate, ofNoNetworkButton,
/// ofNoLongNames, ofOldStyleDialog, ofEnableIncludeNotify, ofEnableSizing, ofDontAddToRecent. The current folder of the
/// program never changes, with ofNoChangeDir or without.
enum TOpenOption {
  ofReadOnly,
  ofOverwritePrompt,
  ofHideReadOnly,
  ofNoChangeDir,
  ofShowHelp,
  ofNoValidate,
  ofAllowMultiSelect,
  ofExtensionDifferent,  ///< set by Execute(): the extension chosen is not DefaultExt
  ofPathMustExist,
  ofFileMustExist,
  ofCreatePrompt,
  ofShareAware,
  ofNoReadOnlyReturn,
  ofNoTestFileCreate,
  ofNoNetworkButton,
  ofNoLongNames,
  ofOldStyleDialog,
  ofNoDereferenceLinks,
  ofEnableIncludeNotify,
  ofEnableSizing,
  ofDontAddToRecent,
  ofForceShowHidden
};
using TOpenOptions = TSet<TOpenOption>;
/// Kept for the forms that say it.
enum TOpenOptionEx { ofExNoPlacesBar };
using TOpenOptionsEx = TSet<TOpenOptionEx>;

/// Asks for a file that is there.
///
/// While there are handlers for what happens in the dialog it is Qt's own and not the desktop's, which tells less.
class TOpenDialog : public TCommonDialog {
 public:
  using Inherited = TCommonDialog;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// What a name without extension gets, with or without dot.
  const QString& GetDefaultExt() const { return FDefaultExt; }
  void SetDefaultExt(const QString& value) { FDefaultExt = value; }
  /// What is chosen at first, and what was chosen.
  const QString& GetFileName() const { return FFileName; }
  void SetFileName(const QString& value) { FFileName = value; }
  /// All that were chosen with ofAllowMultiSelect, else one line.
  TStrings& GetFiles() { return *FFiles; }
  /// Names of kinds of files and their patterns in turns: "Texts|*.txt;*.text|All|*.*".
  const QString& GetFilter() const { return FFilter; }
  void SetFilter(const QString& value) { FFilter = value; }
  /// The kind of files that is shown, from 1.
  int GetFilterIndex() const { return FFilterIndex; }
  void SetFilterIndex(int value) { FFilterIndex = value; }
  /// The folder that is shown at first, unless FileName has one.
  const QString& GetInitialDir() const { return FInitialDir; }
  void SetInitialDir(const QString& value) { FInitialDir = value; }
  TOpenOptions GetOptions() const { return FOptions; }
  void SetOptions(TOpenOptions value) { FOptions = value; }
  TOpenOptionsEx GetOptionsEx() const { return FOptionsEx; }
  void SetOptionsEx(TOpenOptionsEx value) { FOptionsEx = value; }
  /// What the window is called; when empty, what it does.
  const QString& GetTitle() const { return FTitle; }
  void SetTitle(const QString& value) { FTitle = value; }

  bool Execute() override;

  /// The dialog is about to close with what the user has chosen, which FileName and Files have already; a handler that
  /// sets the last one to false keeps it open.
  TCloseQueryEvent OnCanClose;
  TNotifyEvent OnFolderChange;
  /// FileName is what is chosen at the moment.
  TNotifyEvent OnSelectionChange;
  /// FilterIndex is what is shown at the moment.
  TNotifyEvent OnTypeChange;

 protected:
  explicit TOpenDialog(TComponent* owner = nullptr) : TCommonDialog(owner) {}

  void Construct() override;
  /// What the dialog is for.
  virtual void Prepare(QFileDialog& box) const;

 private:
  class TBox;

  /// What a dialog changes.
  struct TChoice {
    QString FileName;
    QStringList Files;
    int FilterIndex;
  };
  TChoice Choice() const;
  void SetChoice(const TChoice& choice);
  void Choose(const QFileDialog& box);
  void PrepareBox(TBox& box);
  void Listen(TBox& box);
  bool CanClose(const QFileDialog& box);

  std::unique_ptr<TStringList> FFiles;
  QString FDefaultExt;
  QString FFileName;
  QString FFilter;
  QString FInitialDir;
  QString FTitle;
  int FFilterIndex = 1;
  TOpenOptions FOptions = {ofHideReadOnly, ofEnableSizing};
  TOpenOptionsEx FOptionsEx;
};

/// Asks for the name of a file to be written.
class TSaveDialog : public TOpenDialog {
 public:
  using Inherited = TOpenDialog;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TSaveDialog(TComponent* owner = nullptr) : TOpenDialog(owner) {}

  void Prepare(QFileDialog& box) const override;
};

template <>
struct TEnumNames<TOpenOption> {
  static constexpr char Name[] = "TOpenOption";
  static constexpr const char* Values[] = {
      "ofReadOnly",        "ofOverwritePrompt",  "ofHideReadOnly",       "ofNoChangeDir",         "ofShowHelp",
      "ofNoValidate",      "ofAllowMultiSelect", "ofExtensionDifferent", "ofPathMustExist",       "ofFileMustExist",
      "ofCreatePrompt",    "ofShareAware",       "ofNoReadOnlyReturn",   "ofNoTestFileCreate",    "ofNoNetworkButton",
      "ofNoLongNames",     "ofOldStyleDialog",   "ofNoDereferenceLinks", "ofEnableIncludeNotify", "ofEnableSizing",
      "ofDontAddToRecent", "ofForceShowHidden"};
  static constexpr char SetName[] = "TOpenOptions";
};
template <>
struct TEnumNames<TOpenOptionEx> {
  static constexpr char Name[] = "TOpenOptionEx";
  static constexpr const char* Values[] = {"ofExNoPlacesBar"};
  static constexpr char SetName[] = "TOpenOptionsEx";
};

}  // namespace kt
