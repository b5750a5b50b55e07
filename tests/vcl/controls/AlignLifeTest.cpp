// Handlers of controls that are resized, which free what is being aligned.
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/vcl/extctrls/Panel.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "support/WindowProbe.h"

#include <gtest/gtest.h>
#include <tuple>

namespace kt {
namespace {

using tests::TWindowProbe;

enum TVictim { vSelf, vNext, vPrevious, vParent, vForm };
enum TOccasion { oParentResized, oAlignedLater, oSiblingHidden, oSiblingFreed, oSiblingComes, oWindowResized };
enum TKeeping { kAligned, kAnchored };

/// A form with a panel, in which three controls stand side by side below one that keeps to the top.
class AlignLifeTest : public testing::TestWithParam<std::tuple<TVictim, TOccasion, TKeeping, bool>> {
 protected:
  AlignLifeTest() {
    FForm->SetBounds(0, 0, 300, 200);
    FPanel = Add(FForm.get());
    FPanel->SetBounds(0, 0, 300, 200);
    FPanel->SetAlign(alClient);
    FTop = Add(FPanel);
    FTop->SetAlign(alTop);
    FTop->SetHeight(20);
    for (int i = 0; i < 3; ++i) FChildren.at(i) = AddChild(i);
    FTopRef = FTop;
  }
  TPanel* Add(TWinControl* parent) {
    auto* const panel = New<TPanel>(FForm.get());
    panel->SetBevelOuter(bvNone);
    panel->SetParent(parent);
    return panel;
  }
  TPanel* AddChild(int index) {
    TPanel* const child = Add(FPanel);
    child->SetBounds(index * 60, 20, 60, FPanel->GetHeight() - 20);
    if (Keeping() == kAligned) child->SetAlign(alLeft);
    if (Keeping() == kAnchored) child->SetAnchors({akLeft, akTop, akBottom});
    return child;
  }

  static TVictim Victim() { return std::get<0>(GetParam()); }
  static TOccasion Occasion() { return std::get<1>(GetParam()); }
  static TKeeping Keeping() { return std::get<2>(GetParam()); }
  static bool IsShown() { return std::get<3>(GetParam()); }
  /// Anchored controls stand where they are when a sibling goes.
  static bool MovesByOccasion() {
    return Keeping() == kAligned || Occasion() == oParentResized || Occasion() == oAlignedLater ||
           Occasion() == oWindowResized;
  }

  TObjectRef FreeVictim() {
    TObject* const victims[] = {FChildren[1], FChildren[2], FChildren[0], FPanel, FForm.get()};
    const TObjectRef ref(victims[Victim()]);
    Victim() == vForm ? FForm.reset() : delete victims[Victim()];
    return ref;
  }
  void Act() {
    switch (Occasion()) {
      case oParentResized:
        return FForm->SetBounds(0, 0, 300, 260);
      case oAlignedLater:
        FPanel->DisableAlign();
        FForm->SetBounds(0, 0, 300, 260);
        return FPanel->EnableAlign();
      case oSiblingHidden:
        return FTop->SetVisible(false);
      case oSiblingFreed:
        delete FTop;
        return;
      case oSiblingComes: {
        TPanel* const other = New<TPanel>(FForm.get());
        other->SetAlign(alTop);
        return other->SetParent(FPanel);
      }
      case oWindowResized:
        FForm->GetHandle()->resize(300, 260);
        return TWindowProbe::Settle();
    }
  }

  std::unique_ptr<TForm> FForm = Make<TForm>();
  TPanel* FPanel = nullptr;
  TPanel* FTop = nullptr;
  std::array<TPanel*, 3> FChildren{};
  TObjectRef FTopRef;
};

TEST_P(AlignLifeTest, OnResizeMayFreeAnything) {
  if (IsShown() || Occasion() == oWindowResized) {
    FForm->Show();
    TWindowProbe::Settle();
  }
  int resized = 0;
  TObjectRef victim;
  bool isFreed = false;
  FChildren[1]->OnResize = [&](TObject*) {
    ++resized;
    victim = FreeVictim();
    isFreed = !victim;
  };
  const TObjectRef first(FChildren[0]);
  const TObjectRef last(FChildren[2]);
  Act();
  EXPECT_EQ(resized, MovesByOccasion() ? 1 : 0);
  EXPECT_EQ(isFreed, MovesByOccasion());
  // Those that are still there have been placed all the same.
  for (const TObjectRef* ref : {&first, &last}) {
    const auto* const child = static_cast<TPanel*>(ref->Get());
    if (!child || !MovesByOccasion()) continue;
    const int top = Keeping() == kAnchored ? 20 : child->GetTop();
    EXPECT_EQ(child->GetHeight(), FPanel->GetClientHeight() - top);
  }
}

INSTANTIATE_TEST_SUITE_P(Matrix, AlignLifeTest,
                         testing::Combine(testing::Values(vSelf, vNext, vPrevious, vParent, vForm),
                                          testing::Values(oParentResized, oAlignedLater, oSiblingHidden, oSiblingFreed,
                                                          oSiblingComes, oWindowResized),
                                          testing::Values(kAligned, kAnchored), testing::Bool()));

// The window.

TEST(WindowMakingLifeTest, OnResizeMayFreeTheFormWhoseWindowIsBeingMade) {
  auto form = Make<TForm>();
  for (int i = 0; i < 2; ++i) {
    auto* const list = New<TListBox>(form.get());
    list->SetParent(form.get());
    list->SetBounds(0, 0, 100, 101);
    list->SetIntegralHeight(true);
    list->OnResize = [&form](TObject*) { form.reset(); };
  }
  EXPECT_EQ(form->GetHandle(), nullptr);
  EXPECT_EQ(form, nullptr);
}

TEST(WindowMakingLifeTest, OnResizeMayFreeTheSiblingsWhoseWindowsAreStillToBeMade) {
  auto form = Make<TForm>();
  auto* const list = New<TListBox>(form.get());
  auto* const other = New<TPanel>(form.get());
  list->SetParent(form.get());
  other->SetParent(form.get());
  list->SetBounds(0, 0, 100, 101);
  list->SetIntegralHeight(true);
  list->OnResize = [other](TObject*) { delete other; };
  EXPECT_TRUE(form->GetHandle());
  EXPECT_EQ(form->GetControlCount(), 1);
}

TEST(WindowMakingLifeTest, OnResizeMayFreeTheFormThatIsAboutToShow) {
  auto form = Make<TForm>();
  auto* const list = New<TListBox>(form.get());
  list->SetParent(form.get());
  list->SetBounds(0, 0, 100, 101);
  list->SetIntegralHeight(true);
  list->OnResize = [&form](TObject*) { form.reset(); };
  form->Show();
  EXPECT_EQ(form, nullptr);
}

TEST(ConstraintsLifeTest, OnResizeMayFreeTheControlWhoseConstraintsAreSet) {
  auto panel = Make<TPanel>();
  panel->OnResize = [&panel](TObject*) { panel.reset(); };
  panel->GetConstraints().SetMaxWidth(10);
  EXPECT_EQ(panel, nullptr);
}

}  // namespace
}  // namespace kt
