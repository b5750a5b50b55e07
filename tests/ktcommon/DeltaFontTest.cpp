#include "kt/ktcommon/DeltaFont.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

/// A delta font over a base of 10 points Tahoma in navy.
class DeltaFontTest : public ::testing::Test {
 protected:
  DeltaFontTest() {
    FBase->SetName(QStringLiteral("Tahoma"));
    FBase->SetHeight(-13);
    FBase->SetColor(clNavy);
    FFont->OnChange = [this](TObject*) { ++FChanges; };
  }

  /// As its owners set one up: a copy first, then the way to the base.
  void CopyBase() {
    FFont->Assign(FBase.get());
    FFont->SetOnGetOriginalFont([this](TObject*, TFont*& font) { font = FBase.get(); });
    FChanges = 0;
  }

  std::unique_ptr<TFont> FBase = Make<TFont>();
  std::unique_ptr<TKTCustomDeltaFont> FFont = Make<TKTCustomDeltaFont>();
  int FChanges = 0;
};

TEST_F(DeltaFontTest, ACopyOfTheBaseFollowsItInEverything) {
  CopyBase();
  FBase->SetName(QStringLiteral("Arial"));
  FBase->SetHeight(-20);
  FBase->SetColor(clRed);
  FBase->SetCharset(GREEK_CHARSET);
  FBase->SetPitch(fpFixed);
  FBase->SetOrientation(900);
  FBase->SetStyle({fsItalic});
  FFont->BaseFontChanged(FBase.get());
  EXPECT_TRUE(FFont->IsSameAs(*FBase));
  EXPECT_EQ(1, FChanges);
}

TEST_F(DeltaFontTest, DoesNotChangeBeforeItIsTold) {
  CopyBase();
  FBase->SetColor(clRed);
  EXPECT_EQ(clNavy, FFont->GetColor());
}

TEST_F(DeltaFontTest, KeepsItsOwnColourAndStyle) {
  CopyBase();
  FFont->SetStyle({fsBold});
  FFont->SetColor(clPurple);
  FBase->SetColor(clRed);
  FBase->SetHeight(-20);
  FFont->BaseFontChanged(FBase.get());
  EXPECT_EQ(clPurple, FFont->GetColor());
  EXPECT_EQ((TFontStyles{fsBold}), FFont->GetStyle());
  EXPECT_EQ(-20, FFont->GetHeight());
}

TEST_F(DeltaFontTest, KeepsWhateverItSetsItself) {
  CopyBase();
  FFont->SetCharset(THAI_CHARSET);
  FFont->SetHeight(-9);
  FFont->SetName(QStringLiteral("Courier New"));
  FFont->SetOrientation(1);
  FFont->SetPitch(fpFixed);
  FFont->BaseFontChanged(Make<TFont>().get());
  EXPECT_EQ(THAI_CHARSET, FFont->GetCharset());
  EXPECT_EQ(-9, FFont->GetHeight());
  EXPECT_EQ(QStringLiteral("Courier New"), FFont->GetName());
  EXPECT_EQ(1, FFont->GetOrientation());
  EXPECT_EQ(fpFixed, FFont->GetPitch());
  EXPECT_EQ(clWindowText, FFont->GetColor());
}

TEST_F(DeltaFontTest, EachStyleIsADifferenceOfItsOwn) {
  CopyBase();
  FFont->SetStyle({fsBold});
  FBase->SetStyle({fsItalic, fsUnderline});
  FFont->BaseFontChanged(FBase.get());
  EXPECT_EQ((TFontStyles{fsBold, fsItalic, fsUnderline}), FFont->GetStyle());
}

TEST_F(DeltaFontTest, AStyleThatIsTakenAwayStaysAway) {
  FBase->SetStyle({fsBold});
  CopyBase();
  FFont->SetStyle({});
  FBase->SetStyle({fsBold, fsItalic});
  FFont->BaseFontChanged(FBase.get());
  EXPECT_EQ((TFontStyles{fsItalic}), FFont->GetStyle());
}

TEST_F(DeltaFontTest, ADifferenceSurvivesABaseThatComesToLookTheSame) {
  CopyBase();
  FFont->SetStyle({fsBold});
  FBase->SetStyle({fsBold});
  FFont->BaseFontChanged(FBase.get());
  FBase->SetStyle({});
  FFont->BaseFontChanged(FBase.get());
  EXPECT_EQ((TFontStyles{fsBold}), FFont->GetStyle());
}

TEST_F(DeltaFontTest, GoingBackToTheValueOfTheBaseGivesTheDifferenceUp) {
  CopyBase();
  FFont->SetColor(clPurple);
  FFont->SetColor(clNavy);
  FBase->SetColor(clRed);
  FFont->BaseFontChanged(FBase.get());
  EXPECT_EQ(clRed, FFont->GetColor());
}

TEST_F(DeltaFontTest, AssigningAnotherFontMakesItsDifferencesOwn) {
  CopyBase();
  const auto other = Make<TFont>();
  other->Assign(FBase.get());
  other->SetColor(clGreen);
  FFont->Assign(other.get());
  FBase->SetColor(clRed);
  FBase->SetHeight(-20);
  FFont->BaseFontChanged(FBase.get());
  EXPECT_EQ(clGreen, FFont->GetColor());
  EXPECT_EQ(-20, FFont->GetHeight());
}

TEST_F(DeltaFontTest, AFontThatNobodyTouchedFollowsTheFirstBaseItIsTold) {
  FFont->BaseFontChanged(FBase.get());
  EXPECT_TRUE(FFont->IsSameAs(*FBase));
}

TEST_F(DeltaFontTest, WhatWasSetBeforeThereWasABaseIsOwn) {
  FFont->SetColor(clGreen);
  FFont->BaseFontChanged(FBase.get());
  EXPECT_EQ(clGreen, FFont->GetColor());
  EXPECT_EQ(QStringLiteral("Tahoma"), FFont->GetName());
}

TEST_F(DeltaFontTest, AskingForTheBaseChangesNothingThatIsSeen) {
  FFont->SetOnGetOriginalFont([this](TObject*, TFont*& font) { font = FBase.get(); });
  EXPECT_EQ(clWindowText, FFont->GetColor());
  EXPECT_EQ(0, FChanges);
}

TEST_F(DeltaFontTest, TheCallbackIsAskedWithTheFontAndMayHaveNone) {
  TObject* asker = nullptr;
  FFont->SetOnGetOriginalFont([&](TObject* sender, TFont*&) { asker = sender; });
  EXPECT_EQ(FFont.get(), asker);
  EXPECT_FALSE(FFont->GetOnGetOriginalFont().IsEmpty());
}

TEST_F(DeltaFontTest, NoBaseChangesNothing) {
  CopyBase();
  FFont->BaseFontChanged(nullptr);
  EXPECT_TRUE(FFont->IsSameAs(*FBase));
  EXPECT_EQ(0, FChanges);
}

TEST_F(DeltaFontTest, ABaseThatLooksAsBeforeTellsNothing) {
  CopyBase();
  FFont->BaseFontChanged(FBase.get());
  EXPECT_EQ(0, FChanges);
}

TEST_F(DeltaFontTest, AFontLikeItsBaseSharesItsData) {
  CopyBase();
  FBase->SetColor(clRed);
  FFont->BaseFontChanged(FBase.get());
  EXPECT_EQ(&FBase->Data(), &FFont->Data());
}

TEST_F(DeltaFontTest, ABaseOfAnotherScaleCountsByItsPoints) {
  CopyBase();
  FBase->SetPixelsPerInch(192);
  FBase->SetSize(12);
  FFont->BaseFontChanged(FBase.get());
  EXPECT_EQ(12, FFont->GetSize());
  EXPECT_EQ(-16, FFont->GetHeight());
}

TEST_F(DeltaFontTest, WhatAHandlerSetsWhileTheBaseChangesIsOwn) {
  CopyBase();
  FFont->OnChange = [this](TObject*) { FFont->SetColor(clLime); };
  FBase->SetHeight(-20);
  FFont->BaseFontChanged(FBase.get());
  FFont->OnChange = nullptr;
  FBase->SetColor(clRed);
  FFont->BaseFontChanged(FBase.get());
  EXPECT_EQ(clLime, FFont->GetColor());
  EXPECT_EQ(-20, FFont->GetHeight());
}

TEST_F(DeltaFontTest, IsMadeByItsClassReference) {
  const std::unique_ptr<TObject> made(TKTCustomDeltaFont::Class()->CreateInstance(nullptr));
  EXPECT_EQ(QStringLiteral("TKTCustomDeltaFont"), made->ClassName());
  EXPECT_TRUE(made->InheritsFrom(TFont::Class()));
}

}  // namespace
}  // namespace kt
