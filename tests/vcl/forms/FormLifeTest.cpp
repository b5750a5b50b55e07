// Handlers of a form's own events, which free the form.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/extctrls/Panel.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/stdctrls/Edit.h"
#include "kt/vcl/stdctrls/Label.h"
#include "support/WindowProbe.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TWindowProbe;

class FormLifeTest : public testing::Test {
 protected:
  TNotifyEvent Freeing() {
    return [this](TObject*) { FForm.reset(); };
  }
  void Show() {
    FForm->Show();
    QApplication::setActiveWindow(FForm->GetHandle());
    TWindowProbe::Settle();
  }

  std::unique_ptr<TForm> FForm = Make<TForm>();
};

TEST_F(FormLifeTest, OnShowMayFreeTheFormThatShows) {
  FForm->OnShow = Freeing();
  FForm->Show();
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(FormLifeTest, OnShowMayFreeTheFormThatShowsModally) {
  FForm->OnShow = Freeing();
  EXPECT_EQ(FForm->ShowModal(), mrCancel);
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(FormLifeTest, AFormThatOnShowHidesDoesNotAppear) {
  FForm->OnShow = [this](TObject*) { FForm->Hide(); };
  FForm->Show();
  TWindowProbe::Settle();
  EXPECT_FALSE(FForm->IsShowing());
  EXPECT_FALSE(FForm->GetHandle()->isVisible());
}

TEST_F(FormLifeTest, OnActivateMayFreeTheForm) {
  FForm->OnActivate = Freeing();
  FForm->Show();
  if (FForm) QApplication::setActiveWindow(FForm->GetHandle());
  TWindowProbe::Settle();
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(FormLifeTest, OnDeactivateMayFreeTheForm) {
  Show();
  FForm->OnDeactivate = Freeing();
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  TWindowProbe::Settle();
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(FormLifeTest, OnDeactivateMayFreeTheFormThatBecomesActive) {
  Show();
  auto former = std::exchange(FForm, Make<TForm>());
  former->OnDeactivate = Freeing();
  FForm->Show();
  if (FForm) QApplication::setActiveWindow(FForm->GetHandle());
  TWindowProbe::Settle();
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(FormLifeTest, OnHideMayFreeTheForm) {
  Show();
  FForm->OnHide = Freeing();
  FForm->Hide();
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(FormLifeTest, OnCloseQueryMayFreeTheForm) {
  Show();
  FForm->OnCloseQuery = [this](TObject*, bool&) { FForm.reset(); };
  FForm->Close();
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(FormLifeTest, OnCloseMayFreeTheFormThatTheUserCloses) {
  Show();
  FForm->OnClose = [this](TObject*, TCloseAction&) { FForm.reset(); };
  FForm->GetHandle()->close();
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(FormLifeTest, OnCloseMayFreeTheFormThatHasBeenAnswered) {
  FForm->OnShow = [this](TObject*) { FForm->SetModalResult(mrOk); };
  FForm->OnClose = [this](TObject*, TCloseAction&) { FForm.reset(); };
  EXPECT_EQ(FForm->ShowModal(), mrCancel);
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(FormLifeTest, OnPaintMayFreeTheForm) {
  Show();
  FForm->OnPaint = Freeing();
  FForm->Repaint();
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(FormLifeTest, OnResizeMayFreeTheFormThatTheUserResizes) {
  Show();
  FForm->OnResize = Freeing();
  FForm->GetHandle()->resize(500, 400);
  TWindowProbe::Settle();
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(FormLifeTest, OnResizeOfALabelMayFreeTheFormWhoseFontChanges) {
  auto* const panel = New<TPanel>(FForm.get());
  panel->SetParent(FForm.get());
  for (int i = 0; i < 2; ++i) {
    auto* const label = New<TLabel>(FForm.get());
    label->SetParent(panel);
    label->SetCaption(QStringLiteral("Some text"));
    label->OnResize = Freeing();
  }
  FForm->GetFont().SetSize(30);
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(FormLifeTest, OnEnterMayFreeTheFormThatShows) {
  auto* const edit = New<TEdit>(FForm.get());
  edit->SetParent(FForm.get());
  edit->OnEnter = Freeing();
  FForm->SetActiveControl(edit);
  FForm->Show();
  if (FForm) QApplication::setActiveWindow(FForm->GetHandle());
  TWindowProbe::Settle();
  EXPECT_EQ(FForm, nullptr);
}

}  // namespace
}  // namespace kt
