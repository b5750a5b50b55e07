// Setting properties of registered classes: run in this process, where the classes of the samples are registered.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/IntegerConsts.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "ktform/Commands.h"
#include "support/Samples.h"
#include "tools/ktform/KtFormFixture.h"

namespace {

using kt::tests::TSample;
using ktform::tests::KtFormTest;
using ktform::tests::TEdit;

constexpr char kPublishedForm[] = R"(object Sample1: TSample
  Whole = 12
  Color = 255
  Align = saTop
  Text = 'a'
  Partner = Other1
  Part.Size = 9
  Items = <
    item
      Caption = 'x'
    end
    item
      Caption = 'y'
    end>
  OnAction = HandleAction
  Foreign = 1
  object Other1: TSample
    Whole = 1
  end
  object Alien1: TAlien
    Left = 1
  end
end
)";

/// Shows its children last to first.
class TBackwards : public kt::TComponent {
 public:
  using Inherited = TComponent;
  static const kt::TClassInfo* Class() {
    static const kt::TClassInfo info = kt::TClassBuilder<TBackwards>("TBackwards").Creatable().Done();
    return &info;
  }
  const kt::TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TBackwards(TComponent* owner = nullptr) : TComponent(owner) {}
  void GetChildren(const TGetChildProc& proc, TComponent*) override {
    for (int i = GetComponentCount(); i-- > 0;) proc(GetComponents(i));
  }
};

std::optional<qint64> ColorOfName(QStringView name) {
  return name == u"scGreen" ? std::optional<qint64>(0x8000) : std::nullopt;
}

QString NameOfColor(qint64 color) { return color == 0x8000 ? QStringLiteral("scGreen") : QString(); }

class KtFormSetPublishedTest : public KtFormTest {
 protected:
  KtFormSetPublishedTest() {
    kt::RegisterClasses({TSample::Class(), TBackwards::Class()});
    kt::RegisterIntegerConsts(kt::tests::SampleColorTypeInfo(), {ColorOfName, NameOfColor});
  }
  ~KtFormSetPublishedTest() override {
    kt::UnRegisterIntegerConsts(kt::tests::SampleColorTypeInfo());
    kt::UnRegisterClasses({TSample::Class(), TBackwards::Class()});
  }

  QByteArray Set(const QByteArray& form, const QStringList& assignments) {
    Write("a.dfm", form);
    EXPECT_EQ(ktform::esDone, ktform::RunSet(QStringList{Path("a.dfm"), Path("b.dfm")} + assignments));
    return Content("b.dfm");
  }

  /// The message; nothing may have been written.
  QString ErrorOf(const QString& assignment) {
    Write("a.dfm", kPublishedForm);
    const QString message = kt::tests::MessageOf<kt::EPropertyError>([&] {
      ktform::RunSet({Path("a.dfm"), Path("b.dfm"), assignment});
    });
    EXPECT_EQ("no file", Content("b.dfm"));
    return message;
  }
};

class KtFormSetPublishedValueTest : public KtFormSetPublishedTest, public ::testing::WithParamInterface<TEdit> {};

TEST_P(KtFormSetPublishedValueTest, TheTextBecomesAValueOfThePropertysKind) {
  EXPECT_EQ(QByteArray(kPublishedForm).replace(GetParam().Old, GetParam().New),
            Set(kPublishedForm, {QString::fromUtf8(GetParam().Assignment)}));
}

INSTANTIATE_TEST_SUITE_P(
    Changed, KtFormSetPublishedValueTest,
    ::testing::Values(TEdit{"Whole=13", "= 12", "= 13"}, TEdit{"Whole=$FF", "= 12", "= 255"},
                      TEdit{"Whole=-5", "= 12", "= -5"}, TEdit{"Sample1.whole=13", "= 12", "= 13"},
                      TEdit{"Color=256", "= 255", "= 256"}, TEdit{"Color=scGreen", "= 255", "= scGreen"},
                      TEdit{"Color=$8000", "= 255", "= scGreen"}, TEdit{"Align=saBottom", "saTop", "saBottom"},
                      TEdit{"Align=SABOTTOM", "saTop", "saBottom"}, TEdit{"Text=it's", "'a'", "'it'#39's'"},
                      TEdit{"Partner=Alien1", "= Other1", "= Alien1"}, TEdit{"Partner=Sample1", "= Other1", "= Owner"},
                      TEdit{"Part.Size=10", "Size = 9", "Size = 10"}, TEdit{"Items[1].Caption=z", "'y'", "'z'"},
                      TEdit{"Other1.Whole=2", "Whole = 1\n", "Whole = 2\n"},
                      TEdit{"Foreign=2", "Foreign = 1", "Foreign = 2"},
                      TEdit{"Alien1.Left=2", "Left = 1", "Left = 2"}));

// The place is the one where the class publishes the property, behind what the file has before it.
INSTANTIATE_TEST_SUITE_P(
    Added, KtFormSetPublishedValueTest,
    ::testing::Values(TEdit{"Small=5", "= 12\n", "= 12\n  Small = 5\n"},
                      TEdit{"Letter=x", "= 255\n", "= 255\n  Letter = 'x'\n"},
                      TEdit{"WideLetter=\xC3\xA9", "= 255\n", "= 255\n  WideLetter = #233\n"},
                      TEdit{"Flag=True", "= 255\n", "= 255\n  Flag = True\n"},
                      TEdit{"Wide=true", "= 255\n", "= 255\n  Wide = True\n"},
                      TEdit{"Styles=[ssBold, ssUnderline]", "saTop\n", "saTop\n  Styles = [ssBold, ssUnderline]\n"},
                      TEdit{"Styles=ssitalic", "saTop\n", "saTop\n  Styles = [ssItalic]\n"},
                      TEdit{"Ratio=2.25", "saTop\n", "saTop\n  Ratio = 2.250000000000000000\n"},
                      TEdit{"Ratio=1e3", "saTop\n", "saTop\n  Ratio = 1000.000000000000000000\n"},
                      TEdit{"Price=12.3456", "saTop\n", "saTop\n  Price = 12.345600000000000000\n"},
                      TEdit{"Big=9007199254740993", "'a'\n", "'a'\n  Big = 9007199254740993\n"},
                      TEdit{"Huge=18446744073709551615", "'a'\n", "'a'\n  Huge = -1\n"},
                      TEdit{"ShortText=b", "'a'\n", "'a'\n  ShortText = 'b'\n"},
                      TEdit{"Sibling=Other1", "= Other1\n", "= Other1\n  Sibling = Other1\n"},
                      TEdit{"Reference=Other1", "= Other1\n", "= Other1\n  Reference = Other1\n"},
                      TEdit{"Part.Style=[ssBold]", "Size = 9\n", "Size = 9\n  Part.Style = [ssBold]\n"},
                      TEdit{"Other1.OnAction=HandleAction", "Whole = 1\n",
                            "Whole = 1\n    OnAction = HandleAction\n"}));

INSTANTIATE_TEST_SUITE_P(Removed, KtFormSetPublishedValueTest,
                         ::testing::Values(TEdit{"Whole=0", "  Whole = 12\n", ""}, TEdit{"Text=", "  Text = 'a'\n", ""},
                                           TEdit{"Align=saNone", "  Align = saTop\n", ""},
                                           TEdit{"Partner=", "  Partner = Other1\n", ""},
                                           TEdit{"Partner=nil", "  Partner = Other1\n", ""},
                                           TEdit{"Part.Size=8", "  Part.Size = 9\n", ""},
                                           TEdit{"OnAction=", "  OnAction = HandleAction\n", ""},
                                           TEdit{"OnAction=Nil", "  OnAction = HandleAction\n", ""},
                                           TEdit{"Other1.Whole=0", "    Whole = 1\n", ""}));

struct TRefusal {
  const char* Assignment;
  const char* Reason;
};

void PrintTo(const TRefusal& refusal, std::ostream* out) { *out << refusal.Assignment; }

class KtFormSetRefusedTest : public KtFormSetPublishedTest, public ::testing::WithParamInterface<TRefusal> {};

TEST_P(KtFormSetRefusedTest, AWrongValueIsAnErrorThatNamesThePropertyAndTheReason) {
  const QString assignment = QString::fromUtf8(GetParam().Assignment);
  EXPECT_EQ(
      QStringLiteral("cannot set %1: %2").arg(assignment.section(u'=', 0, 0), QString::fromUtf8(GetParam().Reason)),
      ErrorOf(assignment));
}

INSTANTIATE_TEST_SUITE_P(
    Values, KtFormSetRefusedTest,
    ::testing::Values(
        TRefusal{"Whole=x", "'x' is not a valid integer value"}, TRefusal{"Whole=", "'' is not a valid integer value"},
        TRefusal{"Whole=1.5", "'1.5' is not a valid integer value"}, TRefusal{"Whole=2147483648", "Range check error"},
        TRefusal{"Small=256", "Range check error"}, TRefusal{"Small=-1", "Range check error"},
        TRefusal{"Color=scPurple", "'scPurple' is not a valid integer value"},
        TRefusal{"Align=saLeft", "Invalid property element: saLeft"},
        TRefusal{"Align=2", "Invalid property element: 2"}, TRefusal{"Align=", "Invalid property element: "},
        TRefusal{"Styles=[ssBold, ssLoud]", "Invalid property element: ssLoud"},
        TRefusal{"Flag=perhaps", "Invalid property element: perhaps"}, TRefusal{"Letter=xy", "Invalid property value"},
        TRefusal{"Letter=", "Invalid property value"}, TRefusal{"Letter=\xD0\xB6", "Range check error"},
        TRefusal{"Ratio=x", "'x' is not a valid floating point value"},
        TRefusal{"Ratio=1,5", "'1,5' is not a valid floating point value"},
        TRefusal{"Big=9223372036854775808", "'9223372036854775808' is not a valid integer value"},
        TRefusal{"Big=1.5", "'1.5' is not a valid integer value"},
        TRefusal{"Huge=1.5", "'1.5' is not a valid integer value"},
        TRefusal{"Whole=1.5", "'1.5' is not a valid integer value"},
        TRefusal{"Partner=Nobody", "Invalid property value"}, TRefusal{"Sibling=Alien1", "Invalid class typecast"},
        TRefusal{"OnAction=Missing", "Invalid property value"}, TRefusal{"Double=4", "Property is read-only"}));

INSTANTIATE_TEST_SUITE_P(Paths, KtFormSetRefusedTest,
                         ::testing::Values(TRefusal{"Width=1", "Property Width does not exist"},
                                           TRefusal{"Other1.Width=1", "Property Width does not exist"},
                                           TRefusal{"Part.Width=1", "Property Width does not exist"},
                                           TRefusal{"Nobody.Whole=1", "Property Nobody does not exist"},
                                           TRefusal{"Whole.Size=1", "Invalid property path"},
                                           TRefusal{"Items[2].Caption=z", "List index out of bounds (2)"},
                                           TRefusal{"Alien1.Name=B", "Property Name does not exist"}));

TEST_F(KtFormSetPublishedTest, OneErrorOfSeveralAssignmentsWritesNothing) {
  Write("a.dfm", kPublishedForm);
  EXPECT_THROW(ktform::RunSet({Path("a.dfm"), Path("b.dfm"), "Whole=13", "Align=saLeft"}), kt::EPropertyError);
  EXPECT_EQ("no file", Content("b.dfm"));
}

TEST_F(KtFormSetPublishedTest, AddingAndRemovingAtOnePlaceGoTogether) {
  EXPECT_EQ("object Sample1: TSample\n  Whole = 12\n  Small = 1\n  Flag = True\n  Text = 'a'\nend\n",
            Set("object Sample1: TSample\n  Whole = 12\n  Align = saTop\n  Text = 'a'\nend\n",
                {"Align=saNone", "Flag=True", "Small=1"}));
}

TEST_F(KtFormSetPublishedTest, TheFirstPropertyGoesBehindTheHeader) {
  EXPECT_EQ("object Sample1: TSample\n  object Other1: TSample [0]\n    Whole = 2\n  end\nend\n",
            Set("object Sample1: TSample\n  object Other1: TSample [0]\n  end\nend\n", {"Other1.Whole=2"}));
}

TEST_F(KtFormSetPublishedTest, AnAddedLineIsIndentedLikeTheOneBefore) {
  EXPECT_EQ("object Sample1: TSample\r\n\tWhole=1\r\n\tText = 'b'\r\nend\r\n",
            Set("object Sample1: TSample\r\n\tWhole=1\r\nend\r\n", {"Text=b"}));
}

TEST_F(KtFormSetPublishedTest, WhatSharesALineStays) {
  EXPECT_EQ("object Sample1: TSample Text='a' end", Set("object Sample1: TSample Whole=1 Text='a' end", {"Whole=0"}));
  EXPECT_EQ("object Sample1: TSample Whole=1\n  Text = 'b' end",
            Set("object Sample1: TSample Whole=1 end", {"Text=b"}));
}

TEST_F(KtFormSetPublishedTest, AStoredDefaultAndAnOrderOfItsOwnStay) {
  EXPECT_EQ("object Sample1: TSample\n  Text = 'b'\n  Flag = False\n  Whole = 1\nend\n",
            Set("object Sample1: TSample\n  Text = 'a'\n  Flag = False\n  Whole = 1\nend\n", {"Text=b"}));
}

TEST_F(KtFormSetPublishedTest, ANewNameIsPutIntoTheHeaderAndTheReferences) {
  EXPECT_EQ(QByteArray(kPublishedForm).replace("Other1", "Renamed"), Set(kPublishedForm, {"Other1.Name=Renamed"}));
}

TEST_F(KtFormSetPublishedTest, ObjectsThatAreSavedInAnotherOrderStayInThatOfTheFile) {
  EXPECT_EQ(
      "object Root: TBackwards\r\n object A: TBackwards\r\n  Tag=2\r\n end\r\n"
      " object B: TBackwards\r\n  Tag=1\r\n end\r\nend\r\n",
      Set("object Root: TBackwards\r\n object A: TBackwards\r\n  Tag=1\r\n end\r\n"
          " object B: TBackwards\r\n  Tag=1\r\n end\r\nend\r\n",
          {"A.Tag=2"}));
}

/// The file has values that the class would leave out, and in another order.
TEST_F(KtFormSetPublishedTest, InABinaryFormOnlyTheValueChanges) {
  const QByteArray text("object Sample1: TSample\n  Text = 'a'\n  Whole = 12\n  Small = 0\n  Big = 0\nend\n");
  QByteArray before;
  kt::ObjectTextToBinary(text, before);
  QByteArray after;
  kt::ObjectTextToBinary(QByteArray(text).replace("12", "13"), after);
  EXPECT_EQ(after.toHex(' '), Set(before, {"Whole=13"}).toHex(' '));
}

TEST_F(KtFormSetPublishedTest, AValueThatTheClassDoesNotTakeTellsTheLine) {
  Write("a.dfm", "object Sample1: TSample\n  Text = 'a'\n  Align = saLeft\nend\n");
  EXPECT_EQ(QStringLiteral("Error reading Sample1.Align: Invalid property value on line 3, column 3 (Sample1.Align)"),
            kt::tests::MessageOf<kt::EReadError>([&] {
              ktform::RunSet({Path("a.dfm"), Path("b.dfm"), QStringLiteral("Text=b")});
            }));
}

/// What the class does not know is written behind the rest.
TEST_F(KtFormSetPublishedTest, APropertyBeforeACollectionStaysThere) {
  EXPECT_EQ("object Sample1: TSample\n  Foreign = 2\n  Items = <\n    item\n      Caption = 'x'\n    end>\nend\n",
            Set("object Sample1: TSample\n  Foreign = 1\n  Items = <\n    item\n      Caption = 'x'\n    end>\nend\n",
                {"Foreign=2"}));
}

TEST_F(KtFormSetPublishedTest, CollectionsInAnotherOrderStayInThatOfTheFile) {
  EXPECT_EQ(
      "object Sample1: TSample\n  Whole = 1\n  Foreign = <\n    item\n      Caption = 'x'\n    end>\n  Items = <\n"
      "    item\n      Caption = 'y'\n    end>\nend\n",
      Set("object Sample1: TSample\n  Foreign = <\n    item\n      Caption = 'x'\n    end>\n  Items = <\n"
          "    item\n      Caption = 'y'\n    end>\nend\n",
          {"Whole=1"}));
}

}  // namespace
