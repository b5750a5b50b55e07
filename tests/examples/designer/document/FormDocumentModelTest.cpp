// Random edits, undone and redone: the states come back byte for byte, and what is saved opens as the same form.
#include "examples/designer/document/DocumentFixture.h"
#include "kt/vcl/menus/PopupMenu.h"
#include "kt/vcl/stdctrls/Button.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "support/ModelRun.h"

namespace designer::tests {
namespace {

using kt::tests::ModelSeed;
using kt::tests::TModelRun;
using kt::tests::TStepRandom;

class TDocumentMachine {
 public:
  TDocumentMachine() : FDocument(TFormDocument::Open(kDocumentForm)) { FStates.push_back(FDocument->Written()); }

  void Step(quint32 number) {
    TStepRandom random(number);
    const int what = random.Below(10);
    if (what == 0) return Undo();
    if (what == 1) return Redo();
    Edit(what, random);
    if (!FDocument->Commit(FStepText)) return;
    FStates.resize(++FIndex);
    FStates.push_back(FDocument->Written());
  }

  QString Fault() const {
    const QByteArray written = FDocument->Written();
    if (written != FStates[FIndex]) return QStringLiteral("another state");
    const QByteArray file = FDocument->FileBytes();
    if (TFormDocument::Open(file)->Written() != written) return QStringLiteral("saved as another form:\n") + file;
    if (FIndex == 0 && file != kDocumentForm) return QStringLiteral("another file:\n") + file;
    return {};
  }

  QString StepText() const { return FStepText; }

 private:
  void Undo() {
    FStepText = QStringLiteral("undo");
    FDocument->Undo();
    if (FIndex > 0) --FIndex;
  }

  void Redo() {
    FStepText = QStringLiteral("redo");
    FDocument->Redo();
    if (FIndex + 1 < FStates.size()) ++FIndex;
  }

  /// A component of the form, or the form itself.
  kt::TComponent* Any(TStepRandom& random) {
    std::vector<kt::TComponent*> all = {&FDocument->Form()};
    for (size_t i = 0; i < all.size(); ++i)
      for (kt::TComponent* child : FDocument->ChildrenOf(all[i])) all.push_back(child);
    return all[size_t(random.Below(int(all.size())))];
  }

  void Edit(int what, TStepRandom& random) {
    kt::TComponent* component = Any(random);
    FStepText = QStringLiteral("%1 %2").arg(what).arg(component->GetName());
    switch (what) {
      case 2:
      case 3:
        return void(FDocument->Add(AnyClass(random), component, QRect(random.Below(99), random.Below(99), 0, 0)));
      case 4:
        if (component != &FDocument->Form()) FDocument->Delete({component});
        return;
      case 5:
        return Paste(FDocument->CopyText({component}), Any(random));
      case 6:
        return component->SetTag(random.Below(1000));
      case 7:
        if (auto* control = dynamic_cast<kt::TControl*>(component)) control->SetLeft(random.Below(1000));
        return;
      case 8:
        if (component != &FDocument->Form()) component->SetName(FDocument->NewName(u"TRenamed"));
        return;
      default:
        return Reparent(component, random);
    }
  }

  /// With something that nobody knows.
  void Paste(const QString& text, kt::TComponent* parent) {
    FDocument->Paste(text + QStringLiteral("object X: TNobodyKnows\n  Y = 1\nend\n"), parent);
  }

  static const kt::TClassInfo* AnyClass(TStepRandom& random) {
    const kt::TClassInfo* const classes[] = {kt::TButton::Class(), TTestBox::Class(), kt::TListBox::Class(),
                                             kt::TPopupMenu::Class()};
    return classes[random.Below(4)];
  }

  void Reparent(kt::TComponent* component, TStepRandom& random) {
    auto* control = dynamic_cast<kt::TControl*>(component);
    auto* parent = dynamic_cast<TTestBox*>(Any(random));
    if (!control || !parent || control == &FDocument->Form() || control == parent) return;
    auto* window = dynamic_cast<kt::TWinControl*>(control);
    const bool isKnown = control->GetParent() && parent->GetParent();
    if (isKnown && !(window && window->ContainsControl(parent))) control->SetParent(parent);
  }

  std::unique_ptr<TFormDocument> FDocument;
  std::vector<QByteArray> FStates;
  size_t FIndex = 0;
  QString FStepText;
};

TEST(FormDocumentModelTest, StatesComeBackAndWhatIsSavedOpensAsTheSameForm) {
  kt::RegisterClass(TTestBox::Class());
  for (quint32 seed = 1; seed <= 6; ++seed)
    TModelRun(
        ModelSeed(seed), [] { return std::make_unique<TDocumentMachine>(); }, 3000)
        .Run(60);
}

}  // namespace
}  // namespace designer::tests
