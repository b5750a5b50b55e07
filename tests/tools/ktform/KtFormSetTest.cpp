#include "tools/ktform/KtFormFixture.h"

namespace {

using ktform::tests::KtFormTest;
using ktform::tests::TEdit;
using ktform::tests::TRun;

/// As the program itself writes it.
constexpr char kSetForm[] = R"(object Form1: TForm1
  Left = 12
  Caption = 'Hello'
  Visible = True
  Ratio = 1.500000000000000000
  Styles = [fsBold, fsItalic]
  Lines = (
    1
    'two')
  Data = {00FF}
  OnClick = Form1Click
  object Panel1: TSidePanel
    Font.Size = 8
    object Button1: TButton
      Caption = 'OK'
    end
  end
  inline Frame1: TFrame1
    object Edit1: TEdit
      Text = 'a'
    end
  end
end
)";

class KtFormSetTest : public KtFormTest {
 protected:
  KtFormSetTest() { Write("a.dfm", kSetForm); }

  TRun Set(const QStringList& assignments) { return Run(QStringList{"set", "a.dfm", "b.dfm"} + assignments); }

  /// The form when `line` stands in place of `old`.
  static QByteArray FormWith(const char* old, const char* line) { return QByteArray(kSetForm).replace(old, line); }

  /// What the program says when it cannot set `assignment`; it must not have made a file then.
  QByteArray ErrorOf(const QString& assignment) {
    const TRun run = Set({assignment});
    EXPECT_EQ(1, run.Status);
    EXPECT_EQ("", run.Output);
    EXPECT_EQ("no file", Content("b.dfm"));
    return run.Errors;
  }
};

class KtFormSetValueTest : public KtFormSetTest, public ::testing::WithParamInterface<TEdit> {};

TEST_P(KtFormSetValueTest, OneValueChangesAndNothingElse) {
  const TRun run = Set({QString::fromUtf8(GetParam().Assignment)});
  EXPECT_EQ(0, run.Status);
  EXPECT_EQ("", run.Output + run.Errors);
  EXPECT_EQ(FormWith(GetParam().Old, GetParam().New), Content("b.dfm"));
  EXPECT_NE(QByteArray(kSetForm), Content("b.dfm"));
  EXPECT_EQ(QByteArray(kSetForm), Content("a.dfm"));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, KtFormSetValueTest,
    ::testing::Values(TEdit{"Caption=Good day", "'Hello'", "'Good day'"}, TEdit{"Caption=", "'Hello'", "''"},
                      TEdit{"Caption=a=b", "'Hello'", "'a=b'"}, TEdit{"Caption=--help me", "'Hello'", "'--help me'"},
                      TEdit{"Caption=\xC3\xA9", "'Hello'", "#233"}, TEdit{"Left=13", "Left = 12", "Left = 13"},
                      TEdit{"Left=-2147483649", "Left = 12", "Left = -2147483649"},
                      TEdit{"Visible=False", "Visible = True", "Visible = False"},
                      TEdit{"OnClick=DoClick", "Form1Click", "DoClick"},
                      TEdit{"Ratio=2.25", "1.500000000000000000", "2.250000000000000000"},
                      TEdit{"Styles=[fsBold]", "[fsBold, fsItalic]", "[fsBold]"},
                      TEdit{"Styles=fsBold, fsUnderline", "[fsBold, fsItalic]", "[fsBold, fsUnderline]"},
                      TEdit{"Styles=[]", "[fsBold, fsItalic]", "[]"}));

INSTANTIATE_TEST_SUITE_P(Paths, KtFormSetValueTest,
                         ::testing::Values(TEdit{"Form1.Left=13", "Left = 12", "Left = 13"},
                                           TEdit{"FORM1.lEFT=13", "Left = 12", "Left = 13"},
                                           TEdit{"Panel1.Font.Size=9", "Size = 8", "Size = 9"},
                                           TEdit{"Form1.Panel1.Font.Size=9", "Size = 8", "Size = 9"},
                                           TEdit{"Button1.Caption=Go", "'OK'", "'Go'"},
                                           TEdit{"Frame1.Edit1.Text=b", "'a'", "'b'"},
                                           TEdit{"Form1.Frame1.Edit1.Text=b", "'a'", "'b'"}));

TEST_F(KtFormSetTest, SeveralPropertiesAreSetInOneRun) {
  EXPECT_EQ(0, Set({"Left=13", "Button1.Caption=Go", "Left=14"}).Status);
  EXPECT_EQ(FormWith("Left = 12", "Left = 14").replace("'OK'", "'Go'"), Content("b.dfm"));
}

TEST_F(KtFormSetTest, OutMayBeIn) {
  EXPECT_EQ(0, Run({"set", "a.dfm", "a.dfm", "Left=13"}).Status);
  EXPECT_EQ(FormWith("Left = 12", "Left = 13"), Content("a.dfm"));
}

TEST_F(KtFormSetTest, BinaryStaysBinary) {
  Write("a.bin", QByteArray("TPF0\2TA\1A\1X\6\1x\0\0", 16));
  EXPECT_EQ(0, Run({"set", "a.bin", "b.bin", "X=yz"}).Status);
  EXPECT_EQ(QByteArray("TPF0\2TA\1A\1X\6\2yz\0\0", 17), Content("b.bin"));
}

TEST_F(KtFormSetTest, AResourceStaysAResource) {
  const QByteArray header("\xFF\x0A\0TA\0\x30\x10", 8);
  Write("a.res", header + QByteArray("\x10\0\0\0TPF0\2TA\1A\1X\6\1x\0\0", 20));
  EXPECT_EQ(0, Run({"set", "a.res", "b.res", "X=yz"}).Status);
  EXPECT_EQ(header + QByteArray("\x11\0\0\0TPF0\2TA\1A\1X\6\2yz\0\0", 21), Content("b.res"));
}

TEST_F(KtFormSetTest, AResourceKeepsItsHeader) {
  // A number in place of a name, other flags, and padding in the resource and behind it.
  const QByteArray header("\xFF\x0A\0\xFF\x07\0\x20\x01", 8);
  Write("a.res", header + QByteArray("\x12\0\0\0TPF0\2TA\1A\1X\6\1x\0\0\0\0\0\0\0", 25));
  EXPECT_EQ(0, Run({"set", "a.res", "b.res", "X=yz"}).Status);
  EXPECT_EQ(header + QByteArray("\x13\0\0\0TPF0\2TA\1A\1X\6\2yz\0\0\0\0\0\0\0", 26), Content("b.res"));
  Write("a.res", QByteArray("\xFF\x0A\0Name\0\x30\x10\x10\0\0\0TPF0\2TA\1A\1X\6\1x\0\0", 30));
  EXPECT_EQ(0, Run({"set", "a.res", "b.res", "X=z"}).Status);
  EXPECT_EQ(QByteArray("\xFF\x0A\0Name\0\x30\x10\x10\0\0\0TPF0\2TA\1A\1X\6\1z\0\0", 30), Content("b.res"));
}

TEST_F(KtFormSetTest, ABinaryFormKeepsThePaddingBehindIt) {
  Write("a.bin", QByteArray("TPF0\2TA\1A\1X\6\1x\0\0\0\0", 18));
  EXPECT_EQ(0, Run({"set", "a.bin", "b.bin", "X=yz"}).Status);
  EXPECT_EQ(QByteArray("TPF0\2TA\1A\1X\6\2yz\0\0\0\0", 19), Content("b.bin"));
}

TEST_F(KtFormSetTest, AnUnknownPropertyIsAnError) {
  EXPECT_EQ("a.dfm: error: cannot set Width: Property Width does not exist\n", ErrorOf("Width=1"));
}

TEST_F(KtFormSetTest, AnUnknownComponentIsAnError) {
  EXPECT_EQ("a.dfm: error: cannot set Panel9.Left: Property Panel9.Left does not exist\n", ErrorOf("Panel9.Left=1"));
}

TEST_F(KtFormSetTest, AComponentOfANestedFormIsNotReachedWithoutIt) {
  EXPECT_EQ("a.dfm: error: cannot set Edit1.Text: Property Edit1.Text does not exist\n", ErrorOf("Edit1.Text=b"));
}

TEST_F(KtFormSetTest, ATextIsNoInteger) {
  EXPECT_EQ("a.dfm: error: cannot set Left: 'x' is not a valid integer value\n", ErrorOf("Left=x"));
}

TEST_F(KtFormSetTest, ATextIsNoFloat) {
  EXPECT_EQ("a.dfm: error: cannot set Ratio: 'x' is not a valid floating point value\n", ErrorOf("Ratio=x"));
}

TEST_F(KtFormSetTest, AnIdentifierHasNoSpace) {
  EXPECT_EQ("a.dfm: error: cannot set Visible: Invalid property value\n", ErrorOf("Visible=not now"));
}

TEST_F(KtFormSetTest, ListsAndBytesCannotBeSet) {
  EXPECT_EQ("a.dfm: error: cannot set Lines: Invalid property value\n", ErrorOf("Lines=1"));
  EXPECT_EQ("a.dfm: error: cannot set Data: Invalid property value\n", ErrorOf("Data=00"));
}

TEST_F(KtFormSetTest, AnAssignmentNeedsAPathAndAnEqualsSign) {
  EXPECT_EQ("a.dfm: error: 'Left' is not of the form Path=Value\n", ErrorOf("Left"));
  EXPECT_EQ("a.dfm: error: '=1' is not of the form Path=Value\n", ErrorOf("=1"));
}

TEST_F(KtFormSetTest, ABadNameInASetIsAnErrorInEitherFormat) {
  EXPECT_EQ("a.dfm: error: cannot set Styles: Invalid property value\n", ErrorOf("Styles=[fs-bold]"));
  EXPECT_EQ(0, Run({"to-binary", "a.dfm", "a.bin"}).Status);
  EXPECT_EQ(1, Run({"set", "a.bin", "b.bin", "Styles=[fs-bold]"}).Status);
}

TEST_F(KtFormSetTest, AFailureLeavesOutAsItWas) {
  Write("b.dfm", "old");
  EXPECT_EQ(1, Set({"Left=13", "Width=1"}).Status);
  EXPECT_EQ("old", Content("b.dfm"));
  EXPECT_EQ(1, Run({"set", "a.dfm", "a.dfm", "Left=13", "Width=1"}).Status);
  EXPECT_EQ(QByteArray(kSetForm), Content("a.dfm"));
}

TEST_F(KtFormSetTest, ABrokenFormLeavesOutAsItWas) {
  Write("a.dfm", "object A: TA\n  X = \nend");
  Write("b.dfm", "old");
  const TRun run = Set({"X=1"});
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("a.dfm: error: Identifier expected on line 3, column 4\n", run.Errors);
  EXPECT_EQ("old", Content("b.dfm"));
}

TEST_F(KtFormSetTest, AFileThatIsNotThereIsAnError) {
  const TRun run = Run({"set", "nowhere.dfm", "b.dfm", "X=1"});
  EXPECT_EQ(1, run.Status);
  EXPECT_TRUE(run.Errors.startsWith("nowhere.dfm: error: Cannot open file \"nowhere.dfm\". "))
      << run.Errors.toStdString();
  EXPECT_EQ("no file", Content("b.dfm"));
}

class KtFormSetUsageTest : public KtFormSetTest, public ::testing::WithParamInterface<QStringList> {};

TEST_P(KtFormSetUsageTest, WrongUsageIsStatus2AndTheUsage) {
  const TRun run = Run(GetParam());
  EXPECT_EQ(2, run.Status);
  EXPECT_EQ("ktform: usage: ktform set [--encoding NAME] IN OUT Path=Value...\nTry 'ktform --help'.\n", run.Errors);
}

INSTANTIATE_TEST_SUITE_P(Calls, KtFormSetUsageTest,
                         ::testing::Values(QStringList{"set"}, QStringList{"set", "a.dfm"},
                                           QStringList{"set", "a.dfm", "b.dfm"},
                                           QStringList{"set", "--loud", "b.dfm", "X=1"}));

}  // namespace
