#include "kt/rtl/objects/Make.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"

#include <QCoreApplication>

#include <gtest/gtest.h>
#include <stdexcept>

namespace kt {
namespace {

using tests::TControlProbe;

class ApplicationTest : public testing::Test {
 protected:
  void TearDown() override {
    Application().SetMainForm(nullptr);
    Application().OnException = nullptr;
    Application().OnHint = nullptr;
    Application().SetHint({});
  }
  /// Has something done as soon as events are handled.
  static void Later(std::function<void()> what) {
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(what), Qt::QueuedConnection);
  }
  static std::string ShownFor(const Exception& error) {
    testing::internal::CaptureStderr();
    Application().ShowException(error);
    return testing::internal::GetCapturedStderr();
  }
};

TEST_F(ApplicationTest, RunShowsTheMainFormUntilItIsTerminated) {
  auto form = Make<TForm>();
  Application().SetMainForm(form.get());
  bool wasShowing = false;
  Later([&] {
    wasShowing = form->IsShowing();
    Application().Terminate();
  });
  Application().Run();
  EXPECT_TRUE(wasShowing);
  EXPECT_TRUE(Application().IsTerminated());
}

TEST_F(ApplicationTest, ClosingTheMainFormEndsTheProgram) {
  auto form = Make<TForm>();
  Application().SetMainForm(form.get());
  Later([&] { form->Close(); });
  Application().Run();
  EXPECT_TRUE(Application().IsTerminated());
}

TEST_F(ApplicationTest, ClosingAnotherFormDoesNot) {
  auto form = Make<TForm>();
  auto other = Make<TForm>();
  Application().SetMainForm(form.get());
  bool wasTerminated = true;
  Later([&] {
    other->Show();
    other->Close();
    wasTerminated = Application().IsTerminated();
    Application().Terminate();
  });
  Application().Run();
  EXPECT_FALSE(wasTerminated);
}

TEST_F(ApplicationTest, RunsWithoutAMainForm) {
  bool hasRun = false;
  Later([&] {
    hasRun = true;
    Application().Terminate();
  });
  Application().Run();
  EXPECT_TRUE(hasRun);
}

TEST_F(ApplicationTest, AProgramThatIsTerminatedWhileItsFormAppearsHandlesNoEvents) {
  auto form = Make<TForm>();
  form->OnShow = [](TObject*) { Application().Terminate(); };
  Application().SetMainForm(form.get());
  Application().Run();
  EXPECT_TRUE(Application().IsTerminated());
}

TEST_F(ApplicationTest, AMainFormThatDiesIsForgotten) {
  auto form = Make<TForm>();
  Application().SetMainForm(form.get());
  form.reset();
  EXPECT_EQ(Application().GetMainForm(), nullptr);
}

TEST_F(ApplicationTest, ProcessMessagesHandlesWhatWaits) {
  class TUserListener : public TControlProbe {
   public:
    int Heard = 0;
    void Dispatch(TMessage& message) override {
      if (message.Msg == WM_USER) ++Heard;
      TControlProbe::Dispatch(message);
    }

   protected:
    explicit TUserListener(TComponent* owner = nullptr) : TControlProbe(owner) {}
  };
  auto control = Make<TUserListener>();
  control->PostMessage(WM_USER);
  control->PostMessage(WM_USER);
  EXPECT_EQ(control->Heard, 0);
  Application().ProcessMessages();
  EXPECT_EQ(control->Heard, 2);
}

TEST_F(ApplicationTest, WithoutADisplayAnExceptionIsWrittenToStandardError) {
  EXPECT_EQ(ShownFor(Exception(QStringLiteral("no such item"))), "no such item\n");
}

TEST_F(ApplicationTest, AnExceptionThatNobodyHandlesIsShown) {
  testing::internal::CaptureStderr();
  Application().HandleException(std::make_exception_ptr(Exception(QStringLiteral("ouch"))));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "ouch\n");
}

TEST_F(ApplicationTest, AHandlerGetsForeignExceptionsAsWell) {
  QString message;
  Application().OnException = [&](TObject*, const Exception& error) { message = error.Message(); };
  Application().HandleException(std::make_exception_ptr(std::runtime_error("foreign")));
  EXPECT_EQ(message, "foreign");
}

TEST_F(ApplicationTest, TellsOfAnotherHintOnly) {
  int told = 0;
  Application().OnHint = [&](TObject*) { ++told; };
  Application().SetHint(QStringLiteral("a"));
  Application().SetHint(QStringLiteral("a"));
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace kt
