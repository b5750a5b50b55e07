// Opening, saving and showing.
#include "examples/designer/document/DocumentFixture.h"
#include "kt/rtl/streams/FormConversion.h"

#include <gmock/gmock.h>

namespace designer::tests {
namespace {

using ::testing::HasSubstr;

class FormDocumentTest : public TDocumentTest {};

TEST_F(FormDocumentTest, TheFormIsLiveInDesignModeUnderItsOwnClassName) {
  const auto document = Opened();
  kt::TCustomForm& form = document->Form();
  EXPECT_EQ("TOrderForm", form.ClassName());
  EXPECT_EQ("OrderForm", form.GetName());
  EXPECT_EQ("Orders", form.GetCaption());
  EXPECT_TRUE(form.HasState(kt::csDesigning));
  EXPECT_TRUE(form.HasState(kt::csDesignInstance));
  EXPECT_TRUE(Named(*document, "OkButton")->HasState(kt::csDesigning));
  EXPECT_FALSE(Named(*document, "OkButton")->HasState(kt::csDesignInstance));
}

TEST_F(FormDocumentTest, AFormThatIsShownLaterIsNotShownNow) {
  const auto document = Opened();
  EXPECT_EQ(1, kt::GetOrdProp(&document->Form(), u"Visible"));
  EXPECT_FALSE(document->Form().IsVisible());
}

TEST_F(FormDocumentTest, TheActiveControlMayStandOnSomethingUnknown) {
  const QByteArray file(
      "object A: TA\n  ActiveControl = C\n  object B: TNobodyKnows\n    object C: TButton\n    end\n  end\nend\n");
  const auto document = Opened(file);
  EXPECT_EQ(Named(*document, "C"), kt::GetObjectProp(&document->Form(), u"ActiveControl"));
  document->Delete(All(*document, {"C"}));
  EXPECT_EQ(nullptr, kt::GetObjectProp(&document->Form(), u"ActiveControl"));
  EXPECT_EQ("object A: TA\n  object B: TNobodyKnows\n  end\nend\n", document->FileBytes());
}

TEST_F(FormDocumentTest, ComponentsStandInTheOrderOfTheFile) {
  EXPECT_EQ("OrderForm[Box1[OkButton Alien1[Inner1] CancelButton] Menu1[Open1]]", Tree(*Opened()));
}

TEST_F(FormDocumentTest, EachComponentKnowsItsParent) {
  const auto document = Opened();
  EXPECT_EQ(nullptr, document->ParentOf(&document->Form()));
  EXPECT_EQ(&document->Form(), document->ParentOf(Named(*document, "Menu1")));
  EXPECT_EQ(Named(*document, "Menu1"), document->ParentOf(Named(*document, "Open1")));
  EXPECT_EQ(Named(*document, "Box1"), document->ParentOf(Named(*document, "Alien1")));
  EXPECT_EQ(Named(*document, "Alien1"), document->ParentOf(Named(*document, "Inner1")));
}

TEST_F(FormDocumentTest, ComponentsAreFoundByNameInAnyCase) {
  const auto document = Opened();
  EXPECT_EQ(&document->Form(), document->Find(u"orderform"));
  EXPECT_EQ("Inner1", document->Find(u"INNER1")->GetName());
  EXPECT_EQ(nullptr, document->Find(u"Nobody"));
}

TEST_F(FormDocumentTest, TheTreeOfPropertiesIsText) {
  const std::string text = Opened()->TreeText().toStdString();
  EXPECT_THAT(text, ::testing::StartsWith("OrderForm: TOrderForm\n"));
  EXPECT_THAT(text, HasSubstr("\n  * Caption = Orders\n"));
  EXPECT_THAT(text, HasSubstr("\n  Box1: TTestBox\n"));
  EXPECT_THAT(text, HasSubstr("\n    OkButton: TButton\n"));
  EXPECT_THAT(text, HasSubstr("\n      * Caption = OK\n"));
  EXPECT_THAT(text, HasSubstr("\n    Alien1: TNobodyKnows\n"));
}

TEST_F(FormDocumentTest, WithoutAChangeTheFileStaysByteForByte) {
  EXPECT_EQ(kDocumentForm, Opened()->FileBytes());
  const QByteArray lines = QByteArray(kDocumentForm).replace('\n', "\r\n");
  EXPECT_EQ(lines, Opened(lines)->FileBytes());
}

TEST_F(FormDocumentTest, AChangedPropertyChangesItsLineAlone) {
  const auto document = Opened();
  SetLeft(*document, "CancelButton", 91);
  EXPECT_EQ(QByteArray(kDocumentForm).replace("Left=90", "Left=91"), document->FileBytes());
}

TEST_F(FormDocumentTest, ABinaryFileStaysBinary) {
  QByteArray binary;
  kt::ObjectTextToBinary(kDocumentForm, binary);
  const auto document = Opened(binary);
  EXPECT_EQ(binary, document->FileBytes());
  SetLeft(*document, "CancelButton", 91);
  QByteArray changed;
  kt::ObjectTextToBinary(QByteArray(kDocumentForm).replace("Left=90", "Left=91"), changed);
  EXPECT_EQ(changed, document->FileBytes());
}

TEST_F(FormDocumentTest, AResourceStaysAResource) {
  QByteArray resource;
  kt::ObjectTextToResource(kDocumentForm, resource);
  const auto document = Opened(resource);
  EXPECT_EQ(resource, document->FileBytes());
  SetLeft(*document, "CancelButton", 91);
  EXPECT_EQ(kt::sofResource, kt::TestStreamFormat(document->FileBytes()));
}

TEST_F(FormDocumentTest, ARootThatIsNoFormOpensAndStaysWhatItIs) {
  const QByteArray frame(
      "object Frame1: TFrame1\n  Left = 0\n  Width=320\n  TabOrder = 0\n  object B: TButton\n  end\nend\n");
  const QByteArray module(
      "object Data1: TData1\n  OldCreateOrder = False\n  Height = 150\n  object X: TQuery\n  end\nend\n");
  const QByteArray menu(
      "object Menu: TPopupMenu\n  AutoPopup = False\n  object Open: TMenuItem\n    Caption='x'\n  end\nend\n");
  for (const QByteArray& file : {frame, module, menu}) {
    const auto document = Opened(file);
    EXPECT_EQ(file, document->FileBytes());
    kt::SetOrdProp(&document->Form(), u"Tag", 7);
    EXPECT_EQ(file.count('\n') + 1, document->FileBytes().count('\n')) << document->FileBytes().toStdString();
  }
}

TEST_F(FormDocumentTest, ADescendantStaysOne) {
  const QByteArray file(
      "inherited Form2: TForm2\n  Caption = 'd'\n  inherited Box1: TTestBox\n    Left=1\n  end\n"
      "  inline Frame1: TFrame1 [1]\n    Left=2\n    inherited Edit1: TEdit\n      Top=3\n    end\n  end\nend\n");
  const auto document = Opened(file);
  EXPECT_EQ(file, document->FileBytes());
  document->Form().SetCaption("e");
  EXPECT_EQ(QByteArray(file).replace("'d'", "'e'"), document->FileBytes());
}

TEST_F(FormDocumentTest, ANewFormIsText) {
  const auto document = TFormDocument::New();
  EXPECT_EQ("Form1", document->Form().GetName());
  EXPECT_EQ("TForm1", document->Form().ClassName());
  EXPECT_THAT(document->FileBytes().toStdString(), ::testing::StartsWith("object Form1: TForm1\n"));
  EXPECT_EQ("", document->FileName());
  const QByteArray before = document->FileBytes();
  document->Form().SetCaption("x");
  EXPECT_EQ(QByteArray(before).replace("Caption = 'Form1'", "Caption = 'x'"), document->FileBytes());
  EXPECT_EQ("Other", TFormDocument::New("Other")->Form().GetName());
}

TEST_F(FormDocumentTest, ATextThatIsNoFormIsToldWithItsPlace) {
  EXPECT_EQ("Identifier expected on line 2, column 3",
            MessageOf<kt::EParserError>([] { Opened("object A: TA\n  = 1\nend\n"); }));
}

TEST_F(FormDocumentTest, AValueThatCannotBeReadIsToldWithObjectPropertyAndLine) {
  EXPECT_EQ(
      "Error reading B.Caption: Invalid property value on line 3, column 5 (A.B.Caption)",
      MessageOf<kt::EReadError>([] { Opened("object A: TA\n  object B: TButton\n    Caption = 5\n  end\nend\n"); }));
}

TEST_F(FormDocumentTest, AnErrorInAFileNamesTheFile) {
  const QString file = Write("bad.dfm", "object A: TA\n  X =\nend\n");
  EXPECT_THAT(MessageOf<kt::EParserError>([&] { TFormDocument::OpenFile(file); }).toStdString(),
              ::testing::StartsWith(file.toStdString() + ": "));
  EXPECT_THAT(MessageOf<kt::EFOpenError>([&] { TFormDocument::OpenFile(FFolder.filePath("no.dfm")); }).toStdString(),
              HasSubstr("no.dfm"));
  EXPECT_THAT(MessageOf<kt::EFOpenError>([&] { TFormDocument::OpenFile(FFolder.path()); }).toStdString(),
              HasSubstr("It is a folder"));
}

TEST_F(FormDocumentTest, SavingReplacesTheFileAndGoesOnFromThere) {
  const QString fileName = Write("a.dfm", kDocumentForm);
  const auto document = TFormDocument::OpenFile(fileName);
  EXPECT_EQ(fileName, document->FileName());
  SetLeft(*document, "CancelButton", 91);
  EXPECT_TRUE(document->Commit("Move"));
  EXPECT_TRUE(document->IsModified());
  const QString other = FFolder.filePath("b.dfm");
  document->Save(other);
  EXPECT_FALSE(document->IsModified());
  EXPECT_EQ(other, document->FileName());
  EXPECT_EQ(kDocumentForm, Content(fileName));
  const QByteArray saved = QByteArray(kDocumentForm).replace("Left=90", "Left=91");
  EXPECT_EQ(saved, Content(other));
  SetLeft(*document, "OkButton", 9);
  EXPECT_EQ(QByteArray(saved).replace("Left=3", "Left=9"), document->FileBytes());
}

TEST_F(FormDocumentTest, AfterSavingUndoneStepsAreInTheFileAgain) {
  const auto document = TFormDocument::OpenFile(Write("a.dfm", kDocumentForm));
  document->Delete(All(*document, {"CancelButton"}));
  document->Commit("Delete");
  document->Save(document->FileName());
  document->Undo();
  EXPECT_TRUE(document->IsModified());
  EXPECT_THAT(document->FileBytes().toStdString(), HasSubstr("    object CancelButton: TButton\n      Left = 90\n"));
}

TEST_F(FormDocumentTest, AFailedSaveLeavesTheFileAndTheDocument) {
  const QString fileName = Write("a.dfm", kDocumentForm);
  const auto document = TFormDocument::OpenFile(fileName);
  SetLeft(*document, "CancelButton", 91);
  document->Commit("Move");
  // A folder is no file that could be replaced, whoever runs this.
  ASSERT_TRUE(QDir(FFolder.path()).mkdir("folder"));
  EXPECT_THROW(document->Save(FFolder.filePath("folder")), kt::Exception);
  EXPECT_THROW(document->Save(FFolder.filePath("nowhere/a.dfm")), kt::EFCreateError);
  EXPECT_EQ(kDocumentForm, Content(fileName));
  EXPECT_TRUE(document->IsModified());
  EXPECT_EQ(fileName, document->FileName());
  EXPECT_EQ(QByteArray(kDocumentForm).replace("Left=90", "Left=91"), document->FileBytes());
}

TEST_F(FormDocumentTest, AFolderThatCannotBeWrittenKeepsItsFile) {
  const QString fileName = Write("a.dfm", kDocumentForm);
  const auto document = TFormDocument::OpenFile(fileName);
  SetLeft(*document, "CancelButton", 91);
  QFile::setPermissions(FFolder.path(), QFile::ReadOwner | QFile::ExeOwner);
  const bool isReadOnly = !QFile(FFolder.filePath("probe")).open(QIODevice::WriteOnly);
  if (isReadOnly) {
    EXPECT_THROW(document->Save(fileName), kt::Exception);
  }
  QFile::setPermissions(FFolder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  if (!isReadOnly) GTEST_SKIP() << "this user may write into any folder";
  EXPECT_EQ(kDocumentForm, Content(fileName));
}

}  // namespace
}  // namespace designer::tests
