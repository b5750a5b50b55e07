// Properties of classes that nobody knows keep the kind of number that they have.
#include "tools/ktform/KtFormFixture.h"

namespace {

using ktform::tests::KtFormTest;
using ktform::tests::TEdit;
using ktform::tests::TRun;

constexpr char kKeptForm[] = R"(object A: TA
  Single = 1.5s
  Money = 122500c
  Day = 36526.25d
  Double = 0.5w
  Wide = 1.500000000000000000
  Numbers = [1, 3]
end
)";

class KtFormSetKeptTest : public KtFormTest, public ::testing::WithParamInterface<TEdit> {
 protected:
  /// As the program itself writes it.
  KtFormSetKeptTest() {
    Write("raw.dfm", kKeptForm);
    Run({"to-binary", "raw.dfm", "a.bin"});
    Run({"to-text", "a.bin", "a.dfm"});
  }
  QByteArray Line(const char* file, const char* property) {
    const QByteArray text = Content(file);
    const qsizetype from = text.indexOf(QByteArray(property) + " = ");
    return text.mid(from, text.indexOf('\n', from) - from);
  }
};

TEST_P(KtFormSetKeptTest, ANumberKeepsItsKindInTextAndInBinary) {
  const QString assignment = QString::fromLatin1(GetParam().Assignment);
  EXPECT_EQ("", Run({"set", "a.dfm", "b.dfm", assignment}).Errors);
  EXPECT_EQ(GetParam().New, Line("b.dfm", GetParam().Old));
  EXPECT_EQ("", Run({"set", "a.bin", "b.bin", assignment}).Errors);
  EXPECT_EQ("", Run({"to-text", "b.bin", "c.dfm"}).Errors);
  EXPECT_EQ(GetParam().New, Line("c.dfm", GetParam().Old));
}

INSTANTIATE_TEST_SUITE_P(Kinds, KtFormSetKeptTest,
                         ::testing::Values(TEdit{"Single=2.5", "Single", "Single = 2.5s"},
                                           TEdit{"Money=-0.0001", "Money", "Money = -1c"},
                                           TEdit{"Money=99.5", "Money", "Money = 995000c"},
                                           TEdit{"Day=1.25", "Day", "Day = 1.25d"},
                                           TEdit{"Double=0.1", "Double", "Double = 0.1w"},
                                           TEdit{"Wide=3", "Wide", "Wide = 3.000000000000000000"},
                                           TEdit{"Numbers=[2, 7]", "Numbers", "Numbers = [2, 7]"},
                                           TEdit{"Numbers=5", "Numbers", "Numbers = [5]"}));

class KtFormSetKeptErrorTest : public KtFormSetKeptTest {};

TEST_P(KtFormSetKeptErrorTest, WhatIsNoSuchNumberIsRefused) {
  const TRun run = Run({"set", "a.dfm", "b.dfm", QString::fromLatin1(GetParam().Assignment)});
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ(QByteArray("a.dfm: error: cannot set ") + GetParam().New + "\n", run.Errors);
  EXPECT_EQ("no file", Content("b.dfm"));
}

INSTANTIATE_TEST_SUITE_P(Kinds, KtFormSetKeptErrorTest,
                         ::testing::Values(TEdit{"Single=x", "", "Single: 'x' is not a valid floating point value"},
                                           TEdit{"Single=1e39", "", "Single: Range check error"},
                                           TEdit{"Single=TRUE", "",
                                                 "Single: 'TRUE' is not a valid floating point value"},
                                           TEdit{"Money=1,5", "", "Money: '1,5' is not a valid floating point value"},
                                           TEdit{"Money=9e30", "", "Money: Range check error"},
                                           TEdit{"Day=today", "", "Day: 'today' is not a valid floating point value"},
                                           TEdit{"Numbers=[1x]", "", "Numbers: Invalid property value"}));

TEST_F(KtFormTest, TheVersionIsThatOfThePackage) {
  const TRun run = Run({"--version"});
  EXPECT_EQ(0, run.Status);
  EXPECT_EQ("ktform " KT_VERSION "\n", run.Output);
}

}  // namespace
