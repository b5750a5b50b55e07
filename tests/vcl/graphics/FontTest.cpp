#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/graphics/Font.h"
#include "support/Expect.h"
#include "support/FontHolder.h"
#include "support/FormText.h"

#include <gtest/gtest.h>
#include <limits>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::MessageOf;
using tests::TextOf;
using tests::TFontHolder;

class FontTest : public ::testing::Test {
 protected:
  FontTest() {
    RegisterVisualPlatform();
    FFont->OnChange = [this](TObject* sender) {
      EXPECT_EQ(FFont.get(), sender);
      ++FChanges;
    };
  }

  std::unique_ptr<TFont> FFont = Make<TFont>();
  int FChanges = 0;
};

TEST_F(FontTest, ANewFontIsThatOfTheFramework) {
  EXPECT_EQ(DEFAULT_CHARSET, FFont->GetCharset());
  EXPECT_EQ(clWindowText, FFont->GetColor());
  EXPECT_EQ(-11, FFont->GetHeight());
  EXPECT_EQ(8, FFont->GetSize());
  EXPECT_EQ(QStringLiteral("MS Sans Serif"), FFont->GetName());
  EXPECT_EQ(fpDefault, FFont->GetPitch());
  EXPECT_EQ(0, FFont->GetOrientation());
  EXPECT_EQ(96, FFont->GetPixelsPerInch());
  EXPECT_TRUE(FFont->GetStyle().IsEmpty());
}

TEST_F(FontTest, EachSetterTellsOneChange) {
  FFont->SetCharset(GREEK_CHARSET);
  FFont->SetColor(clRed);
  FFont->SetHeight(-13);
  FFont->SetName(QStringLiteral("Tahoma"));
  FFont->SetOrientation(900);
  FFont->SetPitch(fpFixed);
  FFont->SetSize(12);
  FFont->SetStyle({fsBold});
  EXPECT_EQ(8, FChanges);
}

TEST_F(FontTest, SettingWhatIsThereTellsNothing) {
  FFont->SetCharset(FFont->GetCharset());
  FFont->SetColor(FFont->GetColor());
  FFont->SetHeight(FFont->GetHeight());
  FFont->SetName(FFont->GetName());
  FFont->SetOrientation(FFont->GetOrientation());
  FFont->SetPitch(FFont->GetPitch());
  FFont->SetSize(FFont->GetSize());
  FFont->SetStyle(FFont->GetStyle());
  EXPECT_EQ(0, FChanges);
}

TEST_F(FontTest, AnEmptyNameIsIgnored) {
  FFont->SetName(QString());
  EXPECT_EQ(QStringLiteral("MS Sans Serif"), FFont->GetName());
  EXPECT_EQ(0, FChanges);
}

struct TSizeAndHeight {
  int Size;
  int Height;
  int PixelsPerInch;
};

class FontSizeTest : public ::testing::TestWithParam<TSizeAndHeight> {};

TEST_P(FontSizeTest, IsTheNegativeHeightInPoints) {
  const auto font = Make<TFont>();
  font->SetPixelsPerInch(GetParam().PixelsPerInch);
  font->SetSize(GetParam().Size);
  EXPECT_EQ(GetParam().Height, font->GetHeight());
  EXPECT_EQ(GetParam().Size, font->GetSize());
}

INSTANTIATE_TEST_SUITE_P(FontTest, FontSizeTest,
                         ::testing::Values(TSizeAndHeight{8, -11, 96}, TSizeAndHeight{9, -12, 96},
                                           TSizeAndHeight{10, -13, 96}, TSizeAndHeight{11, -15, 96},
                                           TSizeAndHeight{12, -16, 96}, TSizeAndHeight{24, -32, 96},
                                           TSizeAndHeight{8, -13, 120}, TSizeAndHeight{10, -20, 144},
                                           TSizeAndHeight{-8, 11, 96}, TSizeAndHeight{0, 0, 96}));

TEST_F(FontTest, SizesBeyondAllFontsAreCut) {
  FFont->SetSize(std::numeric_limits<int>::min());
  EXPECT_EQ(std::numeric_limits<int>::max(), FFont->GetHeight());
  FFont->SetHeight(std::numeric_limits<int>::min());
  EXPECT_EQ(1610612736, FFont->GetSize());
}

TEST_F(FontTest, TheScaleChangesTheSizeAndNoPixel) {
  FFont->SetPixelsPerInch(144);
  EXPECT_EQ(-11, FFont->GetHeight());
  EXPECT_EQ(6, FFont->GetSize());
  EXPECT_EQ(0, FChanges);
}

TEST_F(FontTest, AssigningCopiesEverythingAndTellsOneChange) {
  const auto source = Make<TFont>();
  source->SetCharset(RUSSIAN_CHARSET);
  source->SetColor(clNavy);
  source->SetHeight(-20);
  source->SetName(QStringLiteral("Arial"));
  source->SetPitch(fpVariable);
  source->SetStyle({fsItalic, fsStrikeOut});
  source->SetOrientation(450);
  FFont->Assign(source.get());
  EXPECT_TRUE(FFont->IsSameAs(*source));
  EXPECT_EQ(QStringLiteral("Arial"), FFont->GetName());
  EXPECT_EQ((TFontStyles{fsItalic, fsStrikeOut}), FFont->GetStyle());
  EXPECT_EQ(1, FChanges);
}

TEST_F(FontTest, AssigningWhatLooksTheSameTellsNothing) {
  FFont->Assign(Make<TFont>().get());
  EXPECT_EQ(0, FChanges);
}

TEST_F(FontTest, AssigningAFontOfAnotherScaleKeepsItsSizeInPoints) {
  const auto source = Make<TFont>();
  source->SetPixelsPerInch(192);
  source->SetSize(10);
  FFont->Assign(source.get());
  EXPECT_EQ(96, FFont->GetPixelsPerInch());
  EXPECT_EQ(10, FFont->GetSize());
  EXPECT_EQ(-13, FFont->GetHeight());
  EXPECT_EQ(-27, source->GetHeight());
}

TEST_F(FontTest, AssigningSomethingElseIsRefused) {
  const auto other = Make<TFontHolder>();
  EXPECT_EQ(QStringLiteral("Cannot assign a TFontHolder to a TFont"),
            MessageOf<EConvertError>([&] { FFont->Assign(other.get()); }));
}

TEST_F(FontTest, AssigningNilIsRefused) {
  EXPECT_EQ(QStringLiteral("Cannot assign a nil to a TFont"),
            MessageOf<EConvertError>([&] { FFont->Assign(nullptr); }));
}

TEST_F(FontTest, FontsShareTheirDataUntilOneDiffers) {
  const auto other = Make<TFont>();
  EXPECT_EQ(&other->Data(), &FFont->Data());
  other->SetColor(clRed);
  EXPECT_NE(&other->Data(), &FFont->Data());
  EXPECT_EQ(clWindowText, FFont->GetColor());
  FFont->Assign(other.get());
  EXPECT_EQ(&other->Data(), &FFont->Data());
}

TEST_F(FontTest, AFontTakesThreePointers) { EXPECT_EQ(3 * sizeof(void*), sizeof(TFont)); }

TEST_F(FontTest, FontsAreTheSameWhenTheyLookTheSame) {
  const auto other = Make<TFont>();
  other->SetHeight(-12);
  EXPECT_FALSE(FFont->IsSameAs(*other));
  other->SetHeight(-11);
  EXPECT_TRUE(FFont->IsSameAs(*other));
}

TEST_F(FontTest, TheHandlerOfAChangeMayFreeTheFont) {
  TFont* font = Make<TFont>().release();
  font->OnChange = [](TObject* sender) { delete sender; };
  font->SetColor(clRed);
}

TEST_F(FontTest, PublishesItsPropertiesInTheFrameworksOrder) {
  QStringList names;
  for (const TPropInfo* property : TFont::Class()->Props()) names.append(property->Name());
  EXPECT_EQ(QStringLiteral("Charset Color Height Name Orientation Pitch Size Style"), names.join(u' '));
}

TEST_F(FontTest, AFormHasThePropertiesThatDeclareNoDefault) {
  const auto holder = Make<TFontHolder>();
  EXPECT_EQ(
      "object TFontHolder\n"
      "  Font.Charset = DEFAULT_CHARSET\n"
      "  Font.Color = clWindowText\n"
      "  Font.Height = -11\n"
      "  Font.Name = 'MS Sans Serif'\n"
      "  Font.Style = []\n"
      "end\n",
      TextOf(holder.get()));
}

constexpr char kFancyForm[] =
    "object TFontHolder\n"
    "  Color = 65793\n"
    "  Font.Charset = RUSSIAN_CHARSET\n"
    "  Font.Color = clInactiveCaptionText\n"
    "  Font.Height = -16\n"
    "  Font.Name = 'Tahoma'\n"
    "  Font.Orientation = 900\n"
    "  Font.Pitch = fpFixed\n"
    "  Font.Style = [fsBold, fsUnderline]\n"
    "end\n";

TEST_F(FontTest, AFormGivesAFontBack) {
  RegisterClass(TFontHolder::Class());
  const auto form = ReadComponentFromBinary(BinaryOf(kFancyForm));
  TFont& font = static_cast<TFontHolder&>(*form).GetFont();
  EXPECT_EQ(12, font.GetSize());
  EXPECT_EQ(clInactiveCaptionText, font.GetColor());
  EXPECT_EQ((TFontStyles{fsBold, fsUnderline}), font.GetStyle());
  EXPECT_EQ(kFancyForm, TextOf(form.get()));
  UnRegisterClass(TFontHolder::Class());
}

}  // namespace
}  // namespace kt
