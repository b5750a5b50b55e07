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

inline void CheckLiveLoad(const QByteArray& input, TUnknownPolicy policy) {
  const int before = LiveObjects();
  try {
    const std::unique_ptr<TComponent> root = LoadLive(input, policy);
    Require(LiveObjects() - before <= input.size(), "the count of objects is bounded by the input");
    if (policy == upKeep) RequireWrittenSurvives(root.get());
  } catch (const Exception&) {
    // Any of ours is an answer.
  }
  Require(LiveObjects() == before, "no object is left over");
}

/// Loads the bytes with each policy.
inline void CheckLiveLoad(const QByteArray& input) {
  RegisterClass(tests::TSample::Class());
  CheckLiveLoad(input, upRaise);
  CheckLiveLoad(input, upSkip);
  CheckLiveLoad(input, upKeep);
}

}  // namespace kt::oracle
