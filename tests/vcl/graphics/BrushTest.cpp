#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/Brush.h"
#include "kt/vcl/graphics/Pen.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

class BrushTest : public ::testing::Test {
 protected:
  BrushTest() {
    FBrush->OnChange = [this](TObject*) { ++FChanges; };
  }

  std::unique_ptr<TBrush> FBrush = Make<TBrush>();
  int FChanges = 0;
};

TEST_F(BrushTest, ANewOneIsSolidWhite) {
  EXPECT_EQ(clWhite, FBrush->GetColor());
  EXPECT_EQ(bsSolid, FBrush->GetStyle());
}

TEST_F(BrushTest, ChangesAreToldAndNothingElse) {
  FBrush->SetColor(clRed);
  FBrush->SetColor(clRed);
  FBrush->SetStyle(bsCross);
  FBrush->SetStyle(bsCross);
  EXPECT_EQ(2, FChanges);
}

TEST_F(BrushTest, AColourMakesAClearBrushSolid) {
  FBrush->SetStyle(bsClear);
  FBrush->SetColor(clRed);
  EXPECT_EQ(bsSolid, FBrush->GetStyle());
  EXPECT_EQ(2, FChanges);
}

TEST_F(BrushTest, AColourKeepsAPattern) {
  FBrush->SetStyle(bsVertical);
  FBrush->SetColor(clRed);
  EXPECT_EQ(bsVertical, FBrush->GetStyle());
}

TEST_F(BrushTest, AssigningCopiesAndTellsOnce) {
  const auto source = Make<TBrush>();
  source->SetColor(clGreen);
  source->SetStyle(bsClear);
  FBrush->Assign(source.get());
  EXPECT_EQ(clGreen, FBrush->GetColor());
  EXPECT_EQ(bsClear, FBrush->GetStyle());
  EXPECT_EQ(1, FChanges);
}

TEST_F(BrushTest, APenIsNoBrush) {
  EXPECT_EQ(QStringLiteral("Cannot assign a TPen to a TBrush"),
            tests::MessageOf<EConvertError>([&] { FBrush->Assign(Make<TPen>().get()); }));
}

}  // namespace
}  // namespace kt
