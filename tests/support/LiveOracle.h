#pragma once

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "support/FormOracle.h"
#include "support/Samples.h"

#include <memory>

/// What must hold for any bytes whatever that are loaded into live objects. Shared by the fuzz target and by the tests
/// that run its corpus.
namespace kt::oracle {

inline int LiveObjects() { return tests::TSample::Alive + tests::TSampleItem::Alive; }

inline std::unique_ptr<TComponent> LoadLive(const QByteArray& form, TUnknownPolicy policy) {
  TReader reader(form);
  reader.UnknownClasses = policy;
  reader.UnknownProperties = policy;
  return std::unique_ptr<TComponent>(reader.ReadRootComponent(nullptr));
}

/// Writes what was read with everything kept, and requires that it reads back and is written as the same.
inline void RequireWrittenSurvives(TComponent* root) {
  QByteArray written;
  try {
    written = WriteComponentToBinary(root);
  } catch (const EWriteError&) {
    return;
  }
  QByteArray again;
  try {
    again = WriteComponentToBinary(LoadLive(written, upKeep).get());
  } catch (const Exception& error) {
    throw EBrokenPromise("what was written cannot be read: " + error.Message().toStdString());
  }
  Require(again == written, "what was read is written as the same");
}

/// Where in the bytes an error is.
inline void RequirePlace(const Exception& error) {
  Require(Matches(error, R"( at offset \d+( \(|$)| on line \d+, column \d+$)"), "an error has a place");
}

inline void CheckLiveLoad(const QByteArray& input, TUnknownPolicy policy) {
  const int before = LiveObjects();
  try {
    const std::unique_ptr<TComponent> root = LoadLive(input, policy);
    Require(LiveObjects() - before <= input.size(), "the count of objects is bounded by the input");
    if (policy == upKeep) RequireWrittenSurvives(root.get());
  } catch (const Exception& error) {
    RequirePlace(error);
  }
  Require(LiveObjects() == before, "no object is left over");
}

/// A form with children, items, references and an event, which many names in the corpus fit.
inline std::unique_ptr<tests::TSample> ExistingForm() {
  auto root = Make<tests::TSample>();
  root->SetName(QStringLiteral("S"));
  root->Text = QStringLiteral("before");
  root->Whole = 7;
  root->SetDesignInfo(0x20001);
  root->GetPart().SetTitle(QStringLiteral("part"));
  root->GetItems().AddItem(QStringLiteral("one"));
  root->GetItems().AddItem(QStringLiteral("two"));
  root->OnAction = TNotifyEvent(root.get(), &tests::TSample::HandleAction);
  for (const char* name : {"A", "B", "Child"}) New<tests::TSample>(root.get())->SetName(QLatin1StringView(name));
  root->Partner = root->GetComponents(0);
  return root;
}

/// All that a form holds, and which objects these are.
inline QByteArray StateOf(tests::TSample& root) {
  QByteArray state = WriteComponentToBinary(&root);
  for (int i = 0; i < root.GetComponentCount(); ++i) state += QByteArray::number(quintptr(root.GetComponents(i))) + ' ';
  for (int i = 0; i < root.GetItems().GetCount(); ++i) {
    const TCollectionItem* item = root.GetItems().GetItem(i);
    state += QByteArray::number(quintptr(item)) + ':' + QByteArray::number(item->GetID()) + ' ';
  }
  return state + QByteArray::number(root.GetComponentState().Bits());
}

/// Loads over a form that exists: when that fails, the form is as it was.
inline void CheckLoadOver(const QByteArray& input, TUnknownPolicy policy) {
  const int before = LiveObjects();
  {
    const std::unique_ptr<tests::TSample> root = ExistingForm();
    const QByteArray state = StateOf(*root);
    const int withForm = LiveObjects();
    TReader reader(input);
    reader.UnknownClasses = policy;
    reader.UnknownProperties = policy;
    try {
      reader.ReadRootComponent(root.get());
    } catch (const Exception& error) {
      RequirePlace(error);
      Require(LiveObjects() == withForm, "a failed load leaves no object behind");
      Require(StateOf(*root) == state, "a failed load leaves an existing form as it was");
    }
  }
  Require(LiveObjects() == before, "no object is left over");
}

/// Loads the bytes with each policy, into new objects and over a form.
inline void CheckLiveLoad(const QByteArray& input) {
  RegisterClass(tests::TSample::Class());
  for (const TUnknownPolicy policy : {upRaise, upSkip, upKeep}) {
    CheckLiveLoad(input, policy);
    CheckLoadOver(input, policy);
  }
}

}  // namespace kt::oracle
