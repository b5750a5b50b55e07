// Steps, and the way back.
#include "examples/designer/document/DocumentFixture.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

namespace designer::tests {
namespace {

class FormDocumentUndoTest : public TDocumentTest {
 protected:
  const std::unique_ptr<TFormDocument> FDocument = Opened();

  bool Move(int left, const char* mergeKey = "") {
    SetLeft(*FDocument, "OkButton", left);
    return FDocument->Commit("Move", QString::fromLatin1(mergeKey));
  }
  qint64 Left() { return kt::GetOrdProp(Named(*FDocument, "OkButton"), u"Left"); }
};

TEST_F(FormDocumentUndoTest, WithoutAChangeThereIsNoStep) {
  EXPECT_FALSE(FDocument->Commit("Nothing"));
  EXPECT_FALSE(Move(3));
  EXPECT_EQ(0, FDocument->UndoStack().count());
  EXPECT_FALSE(FDocument->IsModified());
}

TEST_F(FormDocumentUndoTest, UndoAndRedoGiveBackEachStateByteForByte) {
  const QByteArray first = FDocument->Written();
  EXPECT_TRUE(Move(50));
  const QByteArray second = FDocument->Written();
  FDocument->Delete(All(*FDocument, {"Box1"}));
  EXPECT_TRUE(FDocument->Commit("Delete"));
  const QByteArray third = FDocument->Written();
  FDocument->Undo();
  EXPECT_EQ(second, FDocument->Written());
  FDocument->Undo();
  EXPECT_EQ(first, FDocument->Written());
  EXPECT_EQ(kDocumentForm, FDocument->FileBytes());
  EXPECT_FALSE(FDocument->IsModified());
  FDocument->Redo();
  EXPECT_EQ(second, FDocument->Written());
  FDocument->Redo();
  EXPECT_EQ(third, FDocument->Written());
  EXPECT_TRUE(FDocument->IsModified());
}

TEST_F(FormDocumentUndoTest, AtTheEndsNothingHappens) {
  FDocument->Undo();
  FDocument->Redo();
  EXPECT_EQ(kDocumentForm, FDocument->FileBytes());
}

TEST_F(FormDocumentUndoTest, StepsHaveTheirTexts) {
  Move(50);
  EXPECT_EQ("Move", FDocument->UndoStack().undoText());
  FDocument->UndoStack().undo();
  EXPECT_EQ("Move", FDocument->UndoStack().redoText());
  EXPECT_EQ(3, Left());
}

TEST_F(FormDocumentUndoTest, StepsWithTheSameKeyBecomeOne) {
  EXPECT_TRUE(Move(50, "nudge OkButton"));
  EXPECT_TRUE(Move(51, "nudge OkButton"));
  EXPECT_TRUE(Move(52, "nudge OkButton"));
  EXPECT_EQ(1, FDocument->UndoStack().count());
  FDocument->Undo();
  EXPECT_EQ(3, Left());
  FDocument->Redo();
  EXPECT_EQ(52, Left());
}

TEST_F(FormDocumentUndoTest, OtherKeysAndStepsWithoutOneStayApart) {
  Move(50, "a");
  Move(51, "b");
  Move(52);
  Move(53);
  EXPECT_EQ(4, FDocument->UndoStack().count());
}

TEST_F(FormDocumentUndoTest, StepsThatLeadBackTogetherDisappear) {
  Move(50, "nudge");
  EXPECT_TRUE(Move(3, "nudge"));
  EXPECT_EQ(0, FDocument->UndoStack().count());
  EXPECT_FALSE(FDocument->IsModified());
  EXPECT_TRUE(Move(50, "nudge"));
  FDocument->Undo();
  EXPECT_EQ(3, Left());
}

TEST_F(FormDocumentUndoTest, AStepAfterSavingIsOneOfItsOwn) {
  Move(50, "nudge");
  FDocument->Save(FFolder.filePath("a.dfm"));
  Move(51, "nudge");
  EXPECT_TRUE(FDocument->IsModified());
  FDocument->Undo();
  EXPECT_EQ(50, Left());
  EXPECT_FALSE(FDocument->IsModified());
}

TEST_F(FormDocumentUndoTest, ViewsAreToldBeforeTheFormGoesAndAfterAnotherHasCome) {
  QStringList log;
  const kt::TCustomForm* before = &FDocument->Form();
  Move(50);
  FDocument->OnFormLeaving = [&] { log += &FDocument->Form() == before ? "leaving" : "too late"; };
  FDocument->OnFormReplaced = [&] { log += QStringLiteral("replaced, Left %1").arg(Left()); };
  Move(51);
  EXPECT_EQ(QStringList(), log);
  FDocument->Undo();
  EXPECT_EQ(QStringList({"leaving", "replaced, Left 50"}), log);
}

TEST_F(FormDocumentUndoTest, WhoIsToldOfAnotherFormFindsTheListOfStepsWhereItIs) {
  Move(50);
  QStringList log;
  FDocument->OnFormReplaced = [&] {
    log +=
        QStringLiteral("at %1%2").arg(FDocument->UndoStack().index()).arg(FDocument->IsModified() ? " modified" : "");
  };
  FDocument->Undo();
  FDocument->Redo();
  FDocument->UndoStack().undo();
  EXPECT_EQ(QStringList({"at 0", "at 1 modified", "at 0"}), log);
}

TEST_F(FormDocumentUndoTest, OfSeveralStepsAtOnceViewsAreToldOnce) {
  Move(50);
  Move(51);
  QStringList log;
  FDocument->OnFormLeaving = [&] { log += "leaving"; };
  FDocument->OnFormReplaced = [&] { log += QStringLiteral("replaced, Left %1").arg(Left()); };
  FDocument->UndoStack().setIndex(0);
  EXPECT_EQ(QStringList({"leaving", "replaced, Left 3"}), log);
}

TEST_F(FormDocumentUndoTest, WhatAViewOfTheNewFormRaisesComesOutOfUndo) {
  Move(50);
  FDocument->OnFormReplaced = [] { throw kt::EInvalidOperation("busy"); };
  EXPECT_EQ("busy", MessageOf<kt::EInvalidOperation>([this] { FDocument->Undo(); }));
  EXPECT_EQ(3, Left());
}

TEST_F(FormDocumentUndoTest, AnEditThatWasNotCommittedCanBeTakenBack) {
  Move(50);
  EXPECT_FALSE(FDocument->Revert());
  SetLeft(*FDocument, "OkButton", 99);
  EXPECT_TRUE(FDocument->Revert());
  EXPECT_EQ(50, Left());
  EXPECT_EQ(1, FDocument->UndoStack().count());
}

TEST_F(FormDocumentUndoTest, WhatAViewRaisesComesOutOfUndo) {
  Move(50);
  FDocument->OnFormLeaving = [] { throw kt::EInvalidOperation("busy"); };
  EXPECT_EQ("busy", MessageOf<kt::EInvalidOperation>([this] { FDocument->Undo(); }));
  EXPECT_EQ(50, Left());
  // The step is undone as far as the list knows; going back leads to where the form is.
  FDocument->OnFormLeaving = {};
  FDocument->Redo();
  EXPECT_EQ(50, Left());
  FDocument->Undo();
  EXPECT_EQ(3, Left());
}

TEST_F(FormDocumentUndoTest, FromTheListItGoesToTheExceptionHandler) {
  Move(50);
  FDocument->OnFormLeaving = [] { throw kt::EInvalidOperation("busy"); };
  QString told;
  const auto before = kt::SetExceptionHandler([&told](std::exception_ptr error) {
    told = MessageOf<kt::EInvalidOperation>([&error] { std::rethrow_exception(error); });
  });
  FDocument->UndoStack().undo();
  kt::SetExceptionHandler(before);
  EXPECT_EQ("busy", told);
}

/// The reference to it is kept, and written at another place when it has been read again.
TEST_F(FormDocumentUndoTest, AStandInThatIsGoneMakesNoStepsByItself) {
  const auto document = Opened("object A: TA\n  ActiveControl = C\n  object C: TNobodyKnows\n  end\nend\n");
  document->Delete(All(*document, {"C"}));
  EXPECT_TRUE(document->Commit("Delete"));
  document->Undo();
  document->Redo();
  EXPECT_FALSE(document->Revert());
  EXPECT_FALSE(document->Commit("Nothing"));
  EXPECT_EQ(1, document->UndoStack().count());
}

TEST_F(FormDocumentUndoTest, ReferencesAreThereAgain) {
  Move(50);
  FDocument->Delete(All(*FDocument, {"OkButton"}));
  EXPECT_EQ(nullptr, kt::GetObjectProp(Named(*FDocument, "Box1"), u"Friend"));
  FDocument->Commit("Delete");
  FDocument->Undo();
  EXPECT_EQ(Named(*FDocument, "OkButton"), kt::GetObjectProp(Named(*FDocument, "Box1"), u"Friend"));
}

}  // namespace
}  // namespace designer::tests
