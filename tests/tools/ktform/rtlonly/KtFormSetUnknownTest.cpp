// A program without the visual platform goes by what the form itself holds.
#include "tools/ktform/KtFormFixture.h"

namespace {

using ktform::tests::KtFormTest;
using ktform::tests::TRun;

class KtFormSetUnknownTest : public KtFormTest {
 protected:
  KtFormSetUnknownTest() { Write("a.dfm", "object Grid1: TDrawGrid\n  ColCount = 4\nend\n"); }
};

TEST_F(KtFormSetUnknownTest, WhatTheFormHasCanBeSet) {
  EXPECT_EQ(0, Run({"set", "a.dfm", "b.dfm", "ColCount=3"}).Status);
  EXPECT_EQ("object Grid1: TDrawGrid\n  ColCount = 3\nend\n", Content("b.dfm"));
}

TEST_F(KtFormSetUnknownTest, WhatItLacksCannot) {
  const TRun run = Run({"set", "a.dfm", "b.dfm", "RowCount=3"});
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("a.dfm: error: cannot set RowCount: Property RowCount does not exist\n", run.Errors);
}

}  // namespace
