#include "kt/vcl/dialogs/OpenDialog.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/dialogs/FileFilters.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace kt {

namespace {

/// The kind of files that is shown, from 1; `otherwise` when that cannot be told.
int FilterIndexOf(const QFileDialog& box, int otherwise) {
  // Dialogs of the desktop have their own list, and no list at all is one of a single kind.
  const auto* kinds = box.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
  if (kinds && kinds->count() == box.nameFilters().size()) return kinds->currentIndex() + 1;
  const auto index = box.nameFilters().indexOf(box.selectedNameFilter());
  return index < 0 ? otherwise : static_cast<int>(index) + 1;
}

}  // namespace

/// Qt's dialog, which asks before it closes.
class TOpenDialog::TBox : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

  std::function<bool()> MayClose;

  void done(int result) override {
    const QPointer<TBox> self(this);
    const bool mayClose = result != Accepted || !MayClose || MayClose();
    if (self && mayClose) QFileDialog::done(result);
  }
};

const TClassInfo* TOpenDialog::Class() {
  using T = TOpenDialog;
  static const TClassInfo info = TClassBuilder<T>("TOpenDialog")
                                     .Property<&T::GetDefaultExt, &T::SetDefaultExt>("DefaultExt")
                                     .Property<&T::GetFileName, &T::SetFileName>("FileName", &TypeInfos::FileName)
                                     .Property<&T::GetFilter, &T::SetFilter>("Filter")
                                     .Property<&T::GetFilterIndex, &T::SetFilterIndex>("FilterIndex")
                                     .Default(1)
                                     .Property<&T::GetInitialDir, &T::SetInitialDir>("InitialDir")
                                     .Property<&T::GetOptions, &T::SetOptions>("Options")
                                     .Default(TOpenOptions{ofHideReadOnly, ofEnableSizing})
                                     .Property<&T::GetOptionsEx, &T::SetOptionsEx>("OptionsEx")
                                     .Default(TOpenOptionsEx{})
                                     .Property<&T::GetTitle, &T::SetTitle>("Title")
                                     .Property<&T::OnCanClose>("OnCanClose")
                                     .Property<&T::OnFolderChange>("OnFolderChange")
                                     .Property<&T::OnSelectionChange>("OnSelectionChange")
                                     .Property<&T::OnTypeChange>("OnTypeChange")
                                     .Creatable()
                                     .Done();
  return &info;
}

const TClassInfo* TSaveDialog::Class() {
  static const TClassInfo info = TClassBuilder<TSaveDialog>("TSaveDialog").Creatable().Done();
  return &info;
}

void TOpenDialog::Construct() {
  FFiles = Make<TStringList>();
  TCommonDialog::Construct();
}

// What is chosen.

TOpenDialog::TChoice TOpenDialog::Choice() const {
  TChoice choice{FFileName, {}, FFilterIndex};
  for (int i = 0; i < FFiles->GetCount(); ++i) choice.Files += FFiles->GetStrings(i);
  return choice;
}

void TOpenDialog::SetChoice(const TChoice& choice) {
  FFileName = choice.FileName;
  FFilterIndex = choice.FilterIndex;
  FFiles->Clear();
  for (const QString& file : choice.Files) FFiles->Add(file);
}

void TOpenDialog::Choose(const QFileDialog& box) {
  const QStringList files = box.selectedFiles();
  const bool hasKinds = !box.nameFilters().isEmpty() && !FFilter.isEmpty();
  SetChoice({files.value(0), files, hasKinds ? FilterIndexOf(box, FFilterIndex) : FFilterIndex});
}

bool TOpenDialog::CanClose(const QFileDialog& box) {
  const TChoice before = Choice();
  Choose(box);
  bool canClose = true;
  const TLifeWatch self(this);
  const TCloseQueryEvent handler = OnCanClose;
  handler(this, canClose);
  if (!self.IsAlive()) return false;
  if (!canClose) SetChoice(before);
  return canClose;
}

// The dialog.

void TOpenDialog::Prepare(QFileDialog& box) const {
  const bool mustExist = FOptions.Has(ofFileMustExist);
  box.setAcceptMode(QFileDialog::AcceptOpen);
  box.setFileMode(FOptions.Has(ofAllowMultiSelect) ? QFileDialog::ExistingFiles
                  : mustExist                      ? QFileDialog::ExistingFile
                                                   : QFileDialog::AnyFile);
}

void TSaveDialog::Prepare(QFileDialog& box) const {
  box.setAcceptMode(QFileDialog::AcceptSave);
  box.setFileMode(QFileDialog::AnyFile);
  box.setOption(QFileDialog::DontConfirmOverwrite, !GetOptions().Has(ofOverwritePrompt));
}

void TOpenDialog::PrepareBox(TBox& box) {
  const bool isListening = OnCanClose || OnFolderChange || OnSelectionChange || OnTypeChange;
  box.setOption(QFileDialog::DontUseNativeDialog, isListening);
  Prepare(box);
  if (!FTitle.isEmpty()) box.setWindowTitle(FTitle);
  box.setOption(QFileDialog::HideNameFilterDetails);
  box.setOption(QFileDialog::DontResolveSymlinks, FOptions.Has(ofNoDereferenceLinks));
  if (FOptions.Has(ofForceShowHidden)) box.setFilter(box.filter() | QDir::Hidden);
  QString extension = FDefaultExt;
  while (extension.startsWith(u'.')) extension.remove(0, 1);
  if (!extension.isEmpty()) box.setDefaultSuffix(extension);
  const QStringList filters = QtFileFilters(FFilter);
  if (!filters.isEmpty()) {
    box.setNameFilters(filters);
    box.selectNameFilter(filters[FFilterIndex >= 1 && FFilterIndex <= filters.size() ? FFilterIndex - 1 : 0]);
  }
  if (!FInitialDir.isEmpty()) box.setDirectory(FInitialDir);
  if (!FFileName.isEmpty()) box.selectFile(FFileName);
  Listen(box);
}

void TOpenDialog::Listen(TBox& box) {
  const TObjectRef ref(this);
  const auto dialog = [ref] { return static_cast<TOpenDialog*>(ref.Get()); };
  box.MayClose = [dialog, &box] {
    bool canClose = false;
    if (dialog()) dialog()->FromBox([&] { canClose = dialog()->CanClose(box); });
    return canClose;
  };
  const auto tell = [dialog](TNotifyEvent TOpenDialog::*event) {
    const auto raise = [dialog, event] { (dialog()->*event)(dialog()); };
    if (dialog()) dialog()->FromBox(raise);
  };
  QObject::connect(&box, &QFileDialog::directoryEntered, &box, [tell] { tell(&TOpenDialog::OnFolderChange); });
  QObject::connect(&box, &QFileDialog::currentChanged, &box, [dialog, tell](const QString& path) {
    if (dialog() && QFileInfo(path).isFile()) dialog()->FFileName = path;
    tell(&TOpenDialog::OnSelectionChange);
  });
  QObject::connect(&box, &QFileDialog::filterSelected, &box, [dialog, tell, &box] {
    if (dialog()) dialog()->FFilterIndex = FilterIndexOf(box, dialog()->FFilterIndex);
    tell(&TOpenDialog::OnTypeChange);
  });
}

bool TOpenDialog::Execute() {
  if (IsOpen()) return false;
  auto box = std::make_unique<TBox>(ParentWindow());
  const TBox& shown = *box;
  PrepareBox(*box);
  const TChoice before = Choice();
  const TLifeWatch self(this);
  bool isTaken = false;
  const auto take = [&] {
    isTaken = true;
    Choose(shown);
    const QString extension = QFileInfo(FFileName).suffix();
    const bool isOther = !FDefaultExt.isEmpty() && !FDefaultExt.endsWith(extension, Qt::CaseInsensitive);
    FOptions.Put(ofExtensionDifferent, isOther || (!FDefaultExt.isEmpty() && extension.isEmpty()));
  };
  const bool isAgreed = Run(std::move(box), take);
  // What was only looked at counts for nothing.
  if (self.IsAlive() && !isTaken) SetChoice(before);
  return isAgreed;
}

}  // namespace kt
