// What a load that fails leaves of the objects that existed before it.
#include "rtl/streams/UndoLogFixture.h"

namespace kt {
namespace {

using namespace kt::tests;

class UndoLogTest : public TUndoLogFixture {};

constexpr char kFailed[] = "Error reading Changed.NoSuch: Property NoSuch does not exist";

TEST_F(UndoLogTest, TheFormChangesTheRoomWhenItIsReadWhole) {
  EXPECT_EQ(u"read", ReadOver(BinaryOf(kRoomForm)));
  EXPECT_NE(FBefore, TextOf(FRoom.get()));
  EXPECT_EQ(29, static_cast<TRoom*>(FRoom->FindComponent(u"Old1"))->Whole);
  EXPECT_EQ(QStringLiteral("newer item"), FRoom->GetItems().ItemAt(0)->GetCaption());
  EXPECT_EQ(QString(), FReported);
}

TEST_F(UndoLogTest, AFailureAtAnyPropertyLeavesTheRoomAsItWas) {
  EXPECT_EQ(QString(), LinesThatDoNotFailCleanly());
  EXPECT_EQ(QString(), FReported);
}

TEST_F(UndoLogTest, AFormCutAnywhereLeavesTheRoomAsItWas) { EXPECT_EQ(0, CutsThatDoNotFailCleanly()); }

TEST_F(UndoLogTest, AFailureInLoadedLeavesTheRoomAsItWas) {
  const QByteArray form = QByteArray(kRoomForm).replace("New2", "Bad");
  EXPECT_TRUE(ReadOver(BinaryOf(form)).startsWith(u"not loaded at offset "));
  EXPECT_EQ(FBefore, TextOf(FRoom.get()));
  EXPECT_EQ(FRoom->FindComponent(u"Old1"), FRoom->GetComponents(0));
}

TEST_F(UndoLogTest, ItemsComeBackThemselvesWithTheirIds) {
  TSampleItem* second = FRoom->GetItems().ItemAt(1);
  EXPECT_EQ(kFailed, FailAfter("  Items = <item end>"));
  EXPECT_EQ(second, FRoom->GetItems().ItemAt(1));
  EXPECT_EQ(1, second->GetID());
}

TEST_F(UndoLogTest, LinesComeBackWithTheirObjects) {
  EXPECT_EQ(kFailed, FailAfter("  Lines.Strings = ('x')"));
  EXPECT_EQ(QStringLiteral("one,two"), FRoom->GetLines().GetCommaText());
  EXPECT_EQ(FRoom.get(), FRoom->GetLines().GetObjects(1));
}

TEST_F(UndoLogTest, ObjectsComeBackAlsoWhereTheLinesAreTheSame) {
  EXPECT_EQ(kFailed, FailAfter("  Lines.Strings = ('one' 'two')"));
  EXPECT_EQ(FRoom.get(), FRoom->GetLines().GetObjects(1));
}

TEST_F(UndoLogTest, ASilentEndIsNoErrorOfThePropertyAndIsUndoneAsWell) {
  FRoom->OnSetFragile = [] { throw EAbort(QStringLiteral("stop")); };
  EXPECT_EQ(u"stop", ReadOver(BinaryOf("object Changed: TRoom\n  Whole = 99\n  Fragile = 1\nend\n")));
  EXPECT_EQ(FBefore, TextOf(FRoom.get()));
}

TEST_F(UndoLogTest, WhatASetterChangesBesideItsOwnPropertyComesBackToo) {
  EXPECT_EQ(kFailed, FailAfter("  Shade = 3"));
  EXPECT_TRUE(FRoom->IsFollowing());
  EXPECT_EQ(7, FRoom->GetShade());
}

TEST_F(UndoLogTest, ReferencesAndEventsComeBack) {
  EXPECT_EQ(kFailed, FailAfter("  Partner = nil\n  Sibling = nil\n  Reference = nil\n  OnAction = nil"));
  EXPECT_EQ(FBefore, TextOf(FRoom.get()));
}

TEST_F(UndoLogTest, AReferenceToAnObjectThatWasFreedMeanwhileStaysNil) {
  FRoom->OnSetFragile = [this] { delete FRoom->FindComponent(u"Old1"); };
  EXPECT_EQ(kFailed, FailAfter("  Fragile = 1"));
  EXPECT_EQ(nullptr, FRoom->Partner);
  EXPECT_EQ(nullptr, FRoom->Sibling);
}

TEST_F(UndoLogTest, AnObjectThatWasFreedMeanwhileIsLeftOut) {
  FRoom->OnSetFragile = [this] { delete FRoom->FindComponent(u"Old1"); };
  EXPECT_NE(u"read", ReadOver(BinaryOf("inherited Changed: TRoom\n  inherited Old1: TRoom\n    Whole = 1\n  end\n"
                                       "  inherited Old2: TRoom\n    Whole = 9\n    NoSuch = 1\n  end\nend\n")));
  EXPECT_EQ(5, static_cast<TRoom*>(FRoom->FindComponent(u"Old2"))->Whole);
}

TEST_F(UndoLogTest, ASetterThatRefusesTheOldValueIsReportedAndDoesNotHideTheFirstError) {
  int calls = 0;
  FRoom->OnSetFragile = [&calls] {
    if (++calls > 1) throw Exception(QStringLiteral("refused"));
  };
  EXPECT_EQ(kFailed, FailAfter("  Fragile = 1\n  Whole = 2"));
  EXPECT_EQ(QStringLiteral("refused;"), FReported);
  EXPECT_EQ(1, FRoom->Whole);
}

TEST_F(UndoLogTest, AGetterThatRaisesDoesNotStopALoad) {
  FRoom->IsFragile = true;
  EXPECT_EQ(u"read", ReadOver(BinaryOf("object Changed: TRoom\n  Fragile = 8\nend\n")));
  FRoom->IsFragile = false;
  EXPECT_EQ(8, FRoom->GetFragile());
}

TEST_F(UndoLogTest, DeliberatelyAValueWhoseGetterRaisedIsNotPutBack) {
  FRoom->IsFragile = true;
  EXPECT_EQ(kFailed, FailAfter("  Fragile = 8"));
  FRoom->IsFragile = false;
  EXPECT_EQ(8, FRoom->GetFragile());
}

TEST_F(UndoLogTest, DeliberatelyDefinedDataThatWereNotThereBeforeStay) {
  FRoom->Extra = 0;
  EXPECT_EQ(kFailed, FailAfter("  Extra = 9"));
  EXPECT_EQ(9, FRoom->Extra);
}

TEST_F(UndoLogTest, ThePlaceOnADesignersFormComesBack) {
  EXPECT_EQ(kFailed, FailAfter("  Left = 100\n  Top = 200"));
  EXPECT_EQ(0x00050006, FRoom->GetDesignInfo());
}

TEST_F(UndoLogTest, WhatWasKeptForTheRoomIsForgotten) {
  // A method that the root lacks is kept; an unknown ancestor's child cannot be.
  EXPECT_NE(u"read", ReadOver(BinaryOf("object Changed: TRoom\n  object Strange: TStrange\n  end\n"
                                       "  object Bad: TRoom\n  end\nend\n"),
                              upKeep));
  EXPECT_EQ(FBefore, TextOf(FRoom.get()));
}

TEST_F(UndoLogTest, UnknownPropertiesThatWereKeptForTheRoomAreForgotten) {
  TReader reader(BinaryOf("object Changed: TRoom\n  Strange = 1\n  object Bad: TRoom\n  end\nend\n"));
  reader.UnknownProperties = upKeep;
  EXPECT_EQ(QStringLiteral("not loaded at offset 29 (Changed.Bad)"),
            MessageOf<Exception>([&] { reader.ReadRootComponent(FRoom.get()); }));
  EXPECT_EQ(FBefore, TextOf(FRoom.get()));
}

TEST_F(UndoLogTest, AReferenceThatFoundNothingNoLongerWaits) {
  EXPECT_EQ(u"not loaded at offset 37 (Changed.Bad)", ReadOver(BinaryOf("object Changed: TRoom\n  Partner = Far.Away\n"
                                                                        "  object Bad: TRoom\n  end\nend\n")));
  EXPECT_EQ(QStringList(), GetFixupReferenceNames(FRoom.get()));
  EXPECT_FALSE(FRoom->HasState(csFixups));
}

TEST_F(UndoLogTest, AFinderThatRaisesLeavesWaitingReferencesWaiting) {
  EXPECT_EQ(u"read", ReadOver(BinaryOf("object Changed: TRoom\n  Partner = Far.Away\n  Sibling = Near.By\nend\n")));
  const int finder = RegisterFindGlobalComponentProc([this](const QString& name) -> TComponent* {
    if (name == u"Near") throw Exception(QStringLiteral("no finder"));
    return name == u"Far" ? FRoom.get() : nullptr;
  });
  FRoom->Add("Away");
  EXPECT_EQ(QStringLiteral("no finder"), MessageOf<Exception>([] { GlobalFixupReferences(); }));
  UnRegisterFindGlobalComponentProc(finder);
  EXPECT_EQ(2, GetFixupReferenceNames(FRoom.get()).size());
}

TEST_F(UndoLogTest, PropertiesReadIntoAnObjectAreUndoneWhenOneFails) {
  QByteArray data = BinaryOf("object X: TRoom\n  Whole = 5\n  Text = 'x'\n  NoSuch = 1\nend\n");
  TReader reader(data.mid(QByteArray("TPF0\5TRoom\1X").size()));
  EXPECT_THROW(reader.ReadProperties(*FRoom), EReadError);
  EXPECT_EQ(FBefore, TextOf(FRoom.get()));
}

TEST_F(UndoLogTest, WhatIsReadIntoAnItemOfDefinedDataIsNew) {
  EXPECT_EQ(u"read", ReadOver(BinaryOf("object Changed: TRoom\n  object Inner: TRoom\n    Items = <item end>\n"
                                       "    Lines.Strings = ('x')\n    Part.Size = 4\n  end\nend\n")));
  auto* inner = static_cast<TRoom*>(FRoom->FindComponent(u"Inner"));
  EXPECT_EQ(4, inner->GetPart().GetSize());
  EXPECT_EQ(1, inner->GetItems().GetCount());
}

TEST_F(UndoLogTest, AComponentThatAPathLeadsToFromANewOneIsNoPartOfThat) {
  // The new room refers to the old one by the time its second property is read.
  TReader reader(
      BinaryOf("object Changed: TRoom\n  object Inner: TRoom\n    Partner.Whole = 4\n    NoSuch = 1\n  end\n"
               "end\n"));
  reader.OnSetName = [this](TComponent* component, QString&) {
    if (component != FRoom.get()) static_cast<TRoom*>(component)->Partner = FRoom.get();
  };
  EXPECT_THROW(reader.ReadRootComponent(FRoom.get()), EReadError);
  EXPECT_EQ(FBefore, TextOf(FRoom.get()));
}

TEST_F(UndoLogTest, APasteThatFailsLeavesTheInheritedAsTheyWere) {
  TWriter writer;
  const auto source = ExistingRoom();
  auto* old1 = static_cast<TRoom*>(source->FindComponent(u"Old1"));
  old1->Whole = 77;
  writer.WriteComponents({old1}, source.get());
  TReader reader(writer.Data());
  EXPECT_THROW(reader.ReadComponents(FRoom.get(), FRoom.get(), [](TComponent*) { FAIL(); }), EComponentError);
  EXPECT_EQ(FBefore, TextOf(FRoom.get()));
}

}  // namespace
}  // namespace kt
