#pragma once

#include "designer/document/FormDocument.h"
#include "kt/rtl/objects/ObjectRef.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace designer {

/// What the parts of the window are told.
enum TNews {
  nwLeaving,    ///< the live form is about to go: let go of everything of it
  nwForm,       ///< another live form is there
  nwSelection,  ///< other components are selected
  nwEdited      ///< something of the live form has changed
};

/// What all parts of the designer's window share: the document, which of its components are selected, and the news.
///
/// Something is always selected: the form, when nothing else is. The selection outlives the live form, by names.
class TSession {
 public:
  using TListener = std::function<void(TNews news)>;

  explicit TSession(std::unique_ptr<TFormDocument> document);
  ~TSession();
  TSession(const TSession&) = delete;
  TSession& operator=(const TSession&) = delete;

  TFormDocument& Document() const { return *FDocument; }
  void SetDocument(std::unique_ptr<TFormDocument> document);
  kt::TCustomForm& Form() const { return FDocument->Form(); }
  /// All that can be selected, in the order of the tree: the form first.
  std::vector<kt::TComponent*> Components() const;

  // The selection.

  /// In the order in which they were selected.
  std::vector<kt::TComponent*> Selected() const;
  /// The one that was selected first.
  kt::TComponent* Main() const { return Selected().front(); }
  bool IsSelected(const kt::TComponent* component) const;
  void Select(const std::vector<kt::TComponent*>& components);
  void Select(kt::TComponent* component) { Select(std::vector<kt::TComponent*>{component}); }
  /// Takes one in or out.
  void Toggle(kt::TComponent* component);

  // Changes.

  /// The live form has changed: makes it a step that can be undone, and tells.
  void Edited(const QString& text, const QString& mergeKey = QString());
  /// Another one for each time that something was selected: steps of before are not those of now.
  QString SelectionKey() const { return QStringLiteral(" #%1").arg(FSelectionNumber); }
  /// The live form is being changed, as while something is dragged; tells, and makes no step.
  void Editing() { Tell(nwEdited); }
  /// An edit has failed half-way: as if it had not been begun.
  void Revert();
  void Undo();
  void Redo();

  /// Listeners live as long as the session, and are told in the order in which they came.
  void Listen(TListener listener) { FListeners.push_back(std::move(listener)); }

 private:
  /// What finds a component again on another live form.
  struct TKey {
    QString Name;
    int Index;
    QString ClassName;
  };

  void Watch();
  void Tell(TNews news);
  void Keep(const std::vector<kt::TComponent*>& components);
  void KeepKeys();
  kt::TComponent* Found(const TKey& key) const;
  void Leave();
  void Arrive();

  std::vector<TListener> FListeners;
  std::vector<kt::TObjectRef> FSelected;
  int FSelectionNumber = 0;
  std::vector<TKey> FKeys;
  std::unique_ptr<TFormDocument> FDocument;
};

/// "Move Button1", or "Move 3 components".
QString StepText(const QString& verb, const std::vector<kt::TComponent*>& components);
/// The name, or what stands for it where there is none.
QString NameOf(const kt::TComponent& component);
/// "Button1: TButton".
QString TitleOf(const kt::TComponent& component);

}  // namespace designer
