#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/Font.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(FontWithoutApplicationTest, AFontIsPlainData) {
  ASSERT_EQ(nullptr, QCoreApplication::instance());
  const auto font = Make<TFont>();
  const auto copy = Make<TFont>();
  font->SetSize(12);
  copy->Assign(font.get());
  EXPECT_EQ(-16, copy->GetHeight());
}

}  // namespace
}  // namespace kt
