// Files and steps.
#include "designer/document/FormDocument.h"

#include "designer/document/FormLoading.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/streams/FileSaving.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/FormTextEdit.h"
#include "kt/rtl/streams/Writer.h"

#include <QFileInfo>
#include <QScopeGuard>
#include <QUndoStack>

#include <utility>

namespace designer {

/// Takes the form from one state to another.
class TFormDocument::TStep : public QUndoCommand {
 public:
  struct TStates {
    QByteArray Before;
    QByteArray After;
  };

  TStep(TFormDocument& document, TStates states, const QString& text, const QString& mergeKey)
      : QUndoCommand(text), FDocument(document), FStates(std::move(states)), FMergeKey(mergeKey) {}

  void undo() override { FDocument.RunStep(FStates.Before); }
  void redo() override { FDocument.RunStep(FStates.After); }
  /// Only steps with the same number are asked to merge.
  int id() const override { return FMergeKey.isEmpty() ? -1 : int(qHash(FMergeKey) & 0x7FFFFFFF); }
  bool mergeWith(const QUndoCommand* other) override {
    const auto* step = dynamic_cast<const TStep*>(other);
    if (!step || step->FMergeKey != FMergeKey) return false;
    FStates.After = step->FStates.After;
    setObsolete(FStates.After == FStates.Before);
    return true;
  }

 private:
  TFormDocument& FDocument;
  TStates FStates;
  QString FMergeKey;
};

TFormDocument::TFormDocument(const QByteArray& file, kt::TEightBitEncoding encoding)
    : FEncoding(encoding),
      FFile(file),
      FForm(LoadDesignForm(BinaryOf(file, encoding), PlacesIn(file, encoding))),
      FUndoStack(std::make_unique<QUndoStack>()) {
  QObject::connect(FUndoStack.get(), &QUndoStack::indexChanged, FUndoStack.get(), [this] {
    try {
      TellReplaced();
    } catch (...) {
      KeepStepError();
    }
  });
  FFileState = Written();
  FState = FFileState;
  FShown = FFileState;
}

TFormDocument::~TFormDocument() = default;

std::unique_ptr<TFormDocument> TFormDocument::Open(const QByteArray& file, kt::TEightBitEncoding encoding) {
  return std::unique_ptr<TFormDocument>(new TFormDocument(file, encoding));
}

std::unique_ptr<TFormDocument> TFormDocument::OpenFile(const QString& fileName, kt::TEightBitEncoding encoding) {
  const QByteArray file = FileContent(fileName);
  try {
    std::unique_ptr<TFormDocument> document = Open(file, encoding);
    document->FFileName = fileName;
    return document;
  } catch (kt::Exception& error) {
    error.SetMessage(QStringLiteral("%1: %2").arg(QFileInfo(fileName).absoluteFilePath(), error.Message()));
    throw;
  }
}

std::unique_ptr<TFormDocument> TFormDocument::OpenCopy(const QString& fileName) {
  std::unique_ptr<TFormDocument> document = OpenFile(fileName);
  document->FFileName.clear();
  return document;
}

std::unique_ptr<TFormDocument> TFormDocument::New(const QString& name) {
  auto document = Open(QStringLiteral("object %1: T%1\n  Caption = '%1'\nend\n").arg(name).toUtf8());
  // As the writer writes it, so that the first change adds no other lines.
  kt::ObjectBinaryToText(document->FState, document->FFile);
  return document;
}

QByteArray TFormDocument::Written() const { return kt::WriteComponentToBinary(FForm.get()); }

QByteArray TFormDocument::FileBytes() const { return kt::EditFormFile(FFile, FFileState, Written(), FEncoding); }

void TFormDocument::Save(const QString& fileName) {
  const QByteArray state = Written();
  const QByteArray file = kt::EditFormFile(FFile, FFileState, state, FEncoding);
  kt::SaveBytesToFile(fileName, file);
  FFile = file;
  FFileState = state;
  FFileName = fileName;
  FUndoStack->setClean();
}

bool TFormDocument::IsModified() const { return !FUndoStack->isClean(); }

bool TFormDocument::Commit(const QString& text, const QString& mergeKey) {
  const QByteArray state = Written();
  if (state == FShown) return false;
  auto step = std::make_unique<TStep>(*this, TStep::TStates{FState, state}, text, mergeKey);
  FState = state;
  FShown = state;
  FUndoStack->push(step.release());
  return true;
}

bool TFormDocument::Revert() {
  if (Written() == FShown) return false;
  ReplaceForm(FState);
  TellReplaced();
  return true;
}

void TFormDocument::Settle() {
  const QByteArray state = Written();
  if (state == FShown) return;
  if (FFileState == FState) FFileState = state;
  if (FState == FShown) FState = state;
  FShown = state;
}

void TFormDocument::Undo() { Walk(&QUndoStack::undo); }

void TFormDocument::Redo() { Walk(&QUndoStack::redo); }

void TFormDocument::Walk(void (QUndoStack::*step)()) {
  FKeepsStepErrors = true;
  const auto done = qScopeGuard([this] { FKeepsStepErrors = false; });
  (FUndoStack.get()->*step)();
  if (FStepError) std::rethrow_exception(std::exchange(FStepError, nullptr));
}

/// Qt calls steps, and no exception may pass through it: what one raises below Undo() or Redo() waits until these are
/// back.
void TFormDocument::RunStep(const QByteArray& state) {
  try {
    // A step that has just been made leads to the state that is there.
    if (state != FState) ReplaceForm(state);
  } catch (...) {
    KeepStepError();
  }
}

void TFormDocument::KeepStepError() {
  if (FKeepsStepErrors)
    FStepError = std::current_exception();
  else
    kt::HandleException(std::current_exception());
}

void TFormDocument::ReplaceForm(const QByteArray& state) {
  std::unique_ptr<kt::TCustomForm> form = LoadDesignForm(state);
  // Of several steps at once, nobody sees the forms between.
  if (const auto leaving = OnFormLeaving; leaving && !FIsReplaced) leaving();
  std::swap(FForm, form);
  FState = state;
  form.reset();
  FShown = Written();
  FIsReplaced = true;
}

void TFormDocument::TellReplaced() {
  if (!std::exchange(FIsReplaced, false)) return;
  if (const auto replaced = OnFormReplaced) replaced();
}

}  // namespace designer
