// Whoever dies while something is dragged, in whatever handler: the drag goes on or ends, and leaves nothing behind.
#include "support/DragWorld.h"

#include <gtest/gtest.h>
#include <string>
#include <tuple>

namespace kt {
namespace {

using tests::TDragWorld;

using TDying = std::tuple<const char*, const char*>;

/// A is dragged to B, within B, to C on the other form, and dropped there.
class DragLifeTest : public TDragWorld, public testing::WithParamInterface<TDying> {
 protected:
  DragLifeTest() {
    // The object is the application's, who has not waited for the end when it is to die earlier.
    FParcel = Make<TDragControlObject>(*A()).release();
    if (Victim() == "object") Given = FParcel;
    At[QLatin1String(std::get<0>(GetParam()))] = [this] { Kill(Victim()); };
  }
  ~DragLifeTest() override {
    CancelDrag();
    delete FParcel.Get();
  }

  static QLatin1String Victim() { return QLatin1String(std::get<1>(GetParam())); }
  void Kill(QLatin1String victim) {
    if (victim == "A") delete A();
    if (victim == "B") delete B();
    if (victim == "C") delete C();
    if (victim == "first") First.reset();
    if (victim == "second") Second.reset();
    if (victim == "object") delete FParcel.Get();
    if (victim == "window" && First) First->GetHandle()->close();
  }
  /// Stops for a moment where nothing is being told.
  void Pause(const char* name) { Note(QLatin1String(name) + QStringLiteral(" pause")); }
  void DragAll() {
    Drag(A());
    Pause("first");
    MoveTo(B(), {7, 8});
    Pause("second");
    MoveTo(B(), {9, 9});
    MoveTo(C(), {3, 4});
    Pause("third");
    Release();
  }

  TObjectRef FParcel;
};

TEST_P(DragLifeTest, LeavesNothingBehind) {
  DragAll();
  tests::TWindowProbe::Settle();
  EXPECT_EQ(Left(), "") << Log().toStdString();
}

TEST_P(DragLifeTest, TheNextDragGoesWell) {
  DragAll();
  At.clear();
  Given = nullptr;
  if (!First) First = Make<TForm>();
  First->SetBounds(0, 0, 300, 200);
  First->Show();
  First->GetHandle()->move(0, 0);
  tests::TWindowProbe::Settle();
  tests::TDragProbe* const next = Add(*First, "N", 100);
  Log();
  Drag(next);
  EXPECT_EQ(Log(), "N start | N enter 5,5 | N move 5,5");
  Release();
  EXPECT_EQ(Log(), "N leave 5,5 | N drop 5,5 | N end N 5,5");
  EXPECT_EQ(Left(), "");
}

/// "B_drop_A": while B is told of the drop, A dies.
std::string NameOfDying(const testing::TestParamInfo<TDying>& info) {
  const QString when = QLatin1String(std::get<0>(info.param));
  return (when.section(u' ', 0, 0) + u'_' + when.section(u' ', 1) + u'_' + QLatin1String(std::get<1>(info.param)))
      .toStdString();
}

INSTANTIATE_TEST_SUITE_P(WhenAndWho, DragLifeTest,
                         testing::Combine(testing::Values("A start", "A enter", "A move", "A leave", "first pause",
                                                          "B enter", "B move", "B leave", "second pause", "C enter",
                                                          "C move", "C leave", "third pause", "C drop", "A end"),
                                          testing::Values("A", "B", "C", "first", "second", "object", "window")),
                         NameOfDying);

/// A few of these told in words.
class DragDeathTest : public TDragWorld {
 protected:
  DragDeathTest() {
    Drag(A());
    MoveTo(B(), {7, 8});
    Log();
  }
};

TEST_F(DragDeathTest, ASourceThatGoesEndsTheDragWhileItIsStillComplete) {
  At["A end"] = [this] { EXPECT_EQ(A()->ClassName(), "TCustomControl"); };
  delete A();
  EXPECT_EQ(Log(), "B leave 7,8 | A end nobody 0,0");
  EXPECT_EQ(Left(), "");
}

TEST_F(DragDeathTest, AFormThatGoesEndsTheDragOfItsControls) {
  TForm* const form = First.release();
  At["A end"] = [&] { EXPECT_EQ(A()->GetParent(), form); };
  delete form;
  EXPECT_EQ(Log(), "B leave 7,8 | A end nobody 0,0");
}

TEST_F(DragDeathTest, ATargetThatGoesIsNotTold) {
  delete B();
  EXPECT_EQ(Log(), "");
  EXPECT_TRUE(A()->Dragging());
  Release();
  EXPECT_EQ(Log(), "A end nobody 0,0");
}

TEST_F(DragDeathTest, ATargetThatGoesAtTheLastMomentGetsNothing) {
  At["B leave"] = [this] { delete B(); };
  Release();
  EXPECT_EQ(Log(), "B leave 7,8 | A end nobody 0,0");
}

TEST_F(DragDeathTest, ATargetMayGoByWhatIsDroppedOnIt) {
  At["B drop"] = [this] { delete B(); };
  Release();
  EXPECT_EQ(Log(), "B leave 7,8 | B drop 7,8 | A end nobody 7,8");
}

TEST_F(DragDeathTest, AControlThatDiesBeginsNoDrag) {
  CancelDrag();
  Release();
  Log();
  First->OnDestroy = [this](TObject*) { A()->BeginDrag(true); };
  First.reset();
  EXPECT_EQ(Log(), "");
}

}  // namespace
}  // namespace kt
