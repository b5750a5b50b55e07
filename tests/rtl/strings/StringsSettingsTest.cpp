#include "rtl/strings/StringsFixture.h"

namespace kt::tests {
namespace {

TEST(StringsSettingsTest, HaveTheirDefaults) {
  auto list = NewList();
  EXPECT_EQ(u',', list->GetDelimiter());
  EXPECT_EQ(u'"', list->GetQuoteChar());
  EXPECT_EQ(u'=', list->GetNameValueSeparator());
  EXPECT_EQ("\r\n", list->GetLineBreak());
  EXPECT_FALSE(list->GetStrictDelimiter());
}

TEST(StringsSettingsTest, KeepWhatIsSet) {
  auto list = NewList();
  list->SetDelimiter(u';');
  list->SetQuoteChar(u'\'');
  list->SetNameValueSeparator(u':');
  list->SetLineBreak("\n");
  list->SetStrictDelimiter(true);
  EXPECT_EQ(u';', list->GetDelimiter());
  EXPECT_EQ(u'\'', list->GetQuoteChar());
  EXPECT_EQ(u':', list->GetNameValueSeparator());
  EXPECT_EQ("\n", list->GetLineBreak());
  EXPECT_TRUE(list->GetStrictDelimiter());
}

TEST(StringsSettingsTest, CanBeSetBackToTheDefaults) {
  auto list = NewList();
  list->SetDelimiter(u';');
  list->SetDelimiter(u',');
  list->SetStrictDelimiter(true);
  list->SetStrictDelimiter(false);
  EXPECT_EQ(u',', list->GetDelimiter());
  EXPECT_FALSE(list->GetStrictDelimiter());
}

TEST(StringsSettingsTest, BelongToOneListAlone) {
  auto list = NewList();
  list->SetDelimiter(u';');
  EXPECT_EQ(u',', NewList()->GetDelimiter());
}

TEST(StringsSettingsTest, RaiseNoEvents) {
  auto list = NewList({"a"});
  TEventLog log(*list);
  list->SetDelimiter(u';');
  list->SetLineBreak("\n");
  EXPECT_EQ("", log.Take());
}

}  // namespace
}  // namespace kt::tests
