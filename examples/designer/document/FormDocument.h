#pragma once

#include "designer/document/DocumentErrors.h"
#include "kt/rtl/conversions/EightBit.h"
#include "kt/vcl/forms/Form.h"

#include <QByteArray>
#include <QRect>
#include <QString>
#include <QStringList>

#include <exception>
#include <functional>
#include <memory>
#include <vector>

class QUndoStack;

namespace kt {
class TClassInfo;
class TPropInfo;
}  // namespace kt

namespace designer {

class THolders;

/// A form file being edited: the live form that it describes, what the file itself looked like, and all steps that can
/// be undone.
///
/// The live form is in design mode: it carries the class name and the handler names of the file, although no such class
/// exists here, and no handler ever runs. Classes and properties that nobody knows are kept (kt::upKeep), so that a
/// file loses nothing. A root that is no form, a frame or data module for example, is shown as a form too, under its
/// own class name.
///
/// Whoever changes the live form calls Commit() when a step is complete; undoing and redoing replace the live form by
/// another. So hold no pointer to any of it across OnFormLeaving, only names.
///
/// Everything raises a kt::Exception that names the place; what raises has changed nothing. One thread.
class TFormDocument {
 public:
  /// The form in the bytes of a file: text, binary, or a resource; `encoding` is that of text which is not Unicode.
  /// Errors of a text tell line and column.
  static std::unique_ptr<TFormDocument> Open(const QByteArray& file,
                                             kt::TEightBitEncoding encoding = kt::eeWindows1252);
  /// As above; errors also name the file.
  static std::unique_ptr<TFormDocument> OpenFile(const QString& fileName,
                                                 kt::TEightBitEncoding encoding = kt::eeWindows1252);
  /// What is in the file, as a form without a file: saving it asks for another.
  static std::unique_ptr<TFormDocument> OpenCopy(const QString& fileName);
  /// An empty form, "Form1: TForm1" unless named otherwise.
  static std::unique_ptr<TFormDocument> New(const QString& name = QStringLiteral("Form1"));
  ~TFormDocument();
  TFormDocument(const TFormDocument&) = delete;
  TFormDocument& operator=(const TFormDocument&) = delete;

  /// The file that the document came from or was last saved to; empty for others.
  const QString& FileName() const { return FFileName; }
  /// The live form; another one after each undo and redo. The document owns it.
  kt::TCustomForm& Form() const { return *FForm; }
  /// The component of that name on the form, the form itself, or null.
  kt::TComponent* Find(QStringView name) const;
  /// The parent as a tree of components shows it: that of a control, of a menu item, of a stand-in; else the form. Null
  /// for the form itself.
  kt::TComponent* ParentOf(kt::TComponent* component) const;
  /// The components shown below `component`, in the order of the file.
  std::vector<kt::TComponent*> ChildrenOf(kt::TComponent* component) const;
  /// Every component with its class and published properties as text, a line each, children indented.
  QString TreeText() const;

  // Files.

  /// The live form in the binary format.
  QByteArray Written() const;
  /// The file that was opened with all changes since, in its own format and manner: what is untouched keeps its bytes.
  /// A new form is text.
  QByteArray FileBytes() const;
  /// Replaces the file as a whole, or leaves it as it was and raises kt::EFCreateError or kt::EWriteError. Afterwards
  /// the document is not modified.
  void Save(const QString& fileName);
  /// Whether a commit, undo or redo has led away from what was opened or saved. Changes that nobody committed do not
  /// count.
  bool IsModified() const;

  // Undo.

  /// Called before the live form goes and after another one has come in its place, when the list of steps knows where
  /// it is.
  std::function<void()> OnFormLeaving;
  std::function<void()> OnFormReplaced;

  /// The steps, with their texts; for menus and for signals. Undoing through it is the same as Undo(), but what is
  /// raised goes to the exception handler (kt::HandleException()).
  QUndoStack& UndoStack() const { return *FUndoStack; }
  /// Makes what changed in the live form since the last commit one step named `text`; false when nothing changed. Steps
  /// with the same key, unless it is empty, that follow each other become one: arrow keys, typing into one property.
  bool Commit(const QString& text, const QString& mergeKey = QString());
  /// Gives the live form the state of the last commit, undo or redo again, for an edit that failed half-way; false when
  /// it has that.
  bool Revert();
  /// Takes the live form for what was last read or committed, whatever it writes: once it has its windows, edits are as
  /// high as their font, and nobody has changed anything. To be called when it has just been shown or looked at.
  void Settle();
  /// What was not committed is lost.
  void Undo();
  void Redo();

  // Edits. They change the live form only, so that several make one step: Commit() is the caller's.

  /// A name that no component has yet: Button1 for TButton.
  QString NewName(QStringView className) const;
  /// Creates a component on the form. A control comes at `place` on the next parent that takes controls, from `parent`
  /// upwards, with its own size where that of `place` is empty; another component shows at its top left corner. A page,
  /// a menu item or an action comes into what holds these: `parent`, what is around it, else any on the form.
  kt::TComponent* Add(const kt::TClassInfo* classInfo, kt::TComponent* parent, const QRect& place);
  /// Frees components with all that is on them. Raises EDocumentError for the form itself.
  void Delete(const std::vector<kt::TComponent*>& components);
  /// The components, each with its children, as text objects one behind the other, in the order of the form. Those on
  /// other ones of the list come with these alone; the form itself does not come.
  QString CopyText(const std::vector<kt::TComponent*>& components) const;
  /// Creates the components of such a text on `parent`, or what is around it, and answers the outermost ones. Names
  /// that are taken change, and so do references among the new components. Pages, menu items and actions come into what
  /// holds these: `parent`, what is around it, else `origin`, which they may have been copied from, else any on the
  /// form.
  std::vector<kt::TComponent*> Paste(const QString& text, kt::TComponent* parent, kt::TComponent* origin = nullptr);

  // Event handlers: names of methods that exist elsewhere, in the code that the form belongs to.

  /// The names that handlers of events of this type have on the form, sorted.
  QStringList HandlerNames(const kt::TPropInfo* event) const;
  /// The name of the handler, empty without one.
  QString HandlerName(kt::TPersistent* object, const kt::TPropInfo* event) const;
  /// Gives an event a handler by name; an empty one clears it. Raises EDocumentError for what is no name.
  void SetHandlerName(kt::TPersistent* object, const kt::TPropInfo* event, const QString& name);

 private:
  class TStep;

  TFormDocument(const QByteArray& file, kt::TEightBitEncoding encoding);
  void Walk(void (QUndoStack::*step)());
  void RunStep(const QByteArray& state);
  void ReplaceForm(const QByteArray& state);
  void TellReplaced();
  void KeepStepError();
  void RequireOnForm(const kt::TComponent* component) const;
  QString NewNameBeside(const QString& className, const QStringList& others) const;
  kt::TComponent* TakesControls(kt::TComponent* component) const;
  void PlaceNew(kt::TComponent& component, const THolders& holders, kt::TComponent* parent, const QRect& place);

  QString FFileName;
  kt::TEightBitEncoding FEncoding;
  /// The file as it was opened or saved last, and the form as it was written then.
  QByteArray FFile;
  QByteArray FFileState;
  std::unique_ptr<kt::TCustomForm> FForm;
  /// The form as it was written after the last step.
  QByteArray FState;
  /// What the live form wrote when it was in that state. A form that was read again may write what is the same in other
  /// words: a reference to something unknown that is gone, or tab orders with gaps.
  QByteArray FShown;
  /// What a step has raised below Undo() or Redo(); outside of these it goes to the exception handler.
  std::exception_ptr FStepError;
  bool FKeepsStepErrors = false;
  /// Another live form is there, and nobody has been told yet.
  bool FIsReplaced = false;
  std::unique_ptr<QUndoStack> FUndoStack;
};

}  // namespace designer
