#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/forms/Screen.h"
#include "kt/vcl/grids/DrawGrid.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TControlProbe;
using tests::TWindowProbe;

class FormTest : public testing::Test {
 protected:
  FormTest() {
    const auto note = [this](const char* what) {
      return TNotifyEvent([this, what](TObject*) { FLog += QLatin1String(what); });
    };
    Form.OnShow = note("show");
    Form.OnHide = note("hide");
    Form.OnDestroy = note("destroy");
    Form.OnCloseQuery = [this](TObject*, bool& canClose) {
      FLog += QStringLiteral("query");
      canClose = CanClose;
    };
    Form.OnClose = [this](TObject*, TCloseAction& action) {
      FLog += QStringLiteral("close");
      action = Action;
    };
  }
  void TearDown() override { Application().OnException = nullptr; }
  QString Log() { return std::exchange(FLog, {}).join(u' '); }
  TControlProbe& AddControl(const QString& name) {
    auto& control = *New<TControlProbe>(FForm.get());
    control.SetName(name);
    control.SetParent(FForm.get());
    control.SetTabStop(true);
    return control;
  }

  QStringList FLog;
  std::unique_ptr<TForm> FForm = Make<TForm>();
  TForm& Form = *FForm;
  bool CanClose = true;
  TCloseAction Action = caHide;
};

TEST_F(FormTest, IsHiddenUntilItIsShown) {
  EXPECT_FALSE(Form.IsVisible());
  Form.Show();
  EXPECT_TRUE(Form.IsShowing());
  EXPECT_EQ(Log(), "show");
}

TEST_F(FormTest, ClosingAsksThenTellsThenHides) {
  Form.Show();
  Log();
  Form.Close();
  EXPECT_EQ(Log(), "query close hide");
  EXPECT_FALSE(Form.IsVisible());
}

TEST_F(FormTest, AFormThatMayNotCloseStays) {
  CanClose = false;
  Form.Show();
  Log();
  Form.GetHandle()->close();
  EXPECT_EQ(Log(), "query");
  EXPECT_TRUE(Form.IsShowing());
}

TEST_F(FormTest, TheActionOfTheHandlerDecides) {
  Action = caNone;
  Form.Show();
  Form.Close();
  EXPECT_TRUE(Form.IsShowing());
}

TEST_F(FormTest, AFormThatFreesItselfDoesSoLater) {
  Action = caFree;
  Form.Show();
  Log();
  TForm* form = FForm.release();
  form->Close();
  EXPECT_EQ(Log(), "query close");
  TWindowProbe::Settle();
  EXPECT_EQ(Log(), "destroy");
  EXPECT_EQ(Screen().GetFormCount(), 0);
}

TEST_F(FormTest, AModalFormAnswersItsResult) {
  Form.OnShow = [this](TObject*) { Form.PostMessage(WM_USER); };
  Form.OnHide = nullptr;
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [this] { Form.SetModalResult(mrYes); }, Qt::QueuedConnection);
  EXPECT_EQ(Form.ShowModal(), mrYes);
  EXPECT_FALSE(Form.IsVisible());
  EXPECT_EQ(Log(), "query close");
}

TEST_F(FormTest, ClosingAModalFormCancels) {
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [this] { Form.GetHandle()->close(); }, Qt::QueuedConnection);
  EXPECT_EQ(Form.ShowModal(), mrCancel);
}

TEST_F(FormTest, AHandlerMayTakeTheAnswerOfAModalFormBack) {
  const auto later = [](auto call) {
    QMetaObject::invokeMethod(QCoreApplication::instance(), call, Qt::QueuedConnection);
  };
  later([this] {
    Form.SetModalResult(mrOk);
    Form.SetModalResult(mrNone);
  });
  later([&] { later([this] { Form.SetModalResult(mrYes); }); });
  EXPECT_EQ(Form.ShowModal(), mrYes);
  EXPECT_EQ(Log(), "show query close hide");
}

TEST_F(FormTest, AModalFormMayFreeItselfWhenItCloses) {
  Action = caFree;
  TForm* form = FForm.release();
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [form] { form->SetModalResult(mrYes); }, Qt::QueuedConnection);
  EXPECT_EQ(form->ShowModal(), mrYes);
  TWindowProbe::Settle();
  EXPECT_EQ(Log(), "show query close hide destroy");
  EXPECT_EQ(Screen().GetFormCount(), 0);
}

TEST_F(FormTest, AModalFormThatIsFreedHasCancelled) {
  TForm* form = FForm.release();
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [form] { delete form; }, Qt::QueuedConnection);
  EXPECT_EQ(form->ShowModal(), mrCancel);
  EXPECT_EQ(Screen().GetFormCount(), 0);
}

TEST_F(FormTest, AVisibleFormCannotBecomeModal) {
  Form.Show();
  EXPECT_EQ(MessageOf<EInvalidOperation>([this] { Form.ShowModal(); }), "Cannot make a visible window modal");
}

TEST_F(FormTest, TheActiveControlGetsTheFocusWhenTheFormIsShown) {
  AddControl(QStringLiteral("A"));
  TControlProbe& second = AddControl(QStringLiteral("B"));
  Form.SetActiveControl(&second);
  Form.Show();
  QApplication::setActiveWindow(Form.GetHandle());
  EXPECT_TRUE(second.Focused());
}

TEST_F(FormTest, TheActiveControlFollowsTheFocus) {
  TControlProbe& first = AddControl(QStringLiteral("A"));
  Form.Show();
  QApplication::setActiveWindow(Form.GetHandle());
  first.SetFocus();
  EXPECT_EQ(Form.GetActiveControl(), &first);
  EXPECT_EQ(Screen().GetActiveControl(), &first);
}

TEST_F(FormTest, AnActiveControlThatDiesIsForgotten) {
  TControlProbe& first = AddControl(QStringLiteral("A"));
  Form.SetActiveControl(&first);
  delete &first;
  EXPECT_EQ(Form.GetActiveControl(), nullptr);
}

TEST_F(FormTest, TabsFollowTheTabOrder) {
  TControlProbe& first = AddControl(QStringLiteral("A"));
  TControlProbe& second = AddControl(QStringLiteral("B"));
  TControlProbe& third = AddControl(QStringLiteral("C"));
  third.SetTabOrder(0);
  Form.Show();
  QApplication::setActiveWindow(Form.GetHandle());
  third.SetFocus();
  TWindowProbe::Key(Qt::Key_Tab);
  EXPECT_TRUE(first.Focused());
  TWindowProbe::Key(Qt::Key_Tab);
  EXPECT_TRUE(second.Focused());
}

TEST_F(FormTest, WithKeyPreviewTheFormSeesTheKeysFirst) {
  TControlProbe& first = AddControl(QStringLiteral("A"));
  Form.SetKeyPreview(true);
  Form.OnKeyDown = [this](TObject*, quint16& key, TShiftState) {
    FLog += QStringLiteral("form");
    if (key == VK_F1) key = 0;
  };
  first.OnKeyDown = [this](TObject*, quint16&, TShiftState) { FLog += QStringLiteral("control"); };
  Form.Show();
  QApplication::setActiveWindow(Form.GetHandle());
  first.SetFocus();
  Log();
  TWindowProbe::Key(Qt::Key_F1);
  TWindowProbe::Key(Qt::Key_F2);
  EXPECT_EQ(Log(), "form form control");
}

TEST_F(FormTest, TheCaptionIsTheTitleOfTheWindow) {
  Form.SetCaption(QStringLiteral("Items"));
  EXPECT_EQ(Form.GetHandle()->windowTitle(), "Items");
}

TEST_F(FormTest, IsReadFromAFormFile) {
  RegisterVisualPlatform();
  ReadFormText(Form,
               "object TheForm: TForm\r\n"
               "  BorderStyle = bsDialog\r\n"
               "  Caption = 'Grid'\r\n"
               "  ClientHeight = 200\r\n"
               "  ClientWidth = 300\r\n"
               "  Color = clBtnFace\r\n"
               "  object Grid: TDrawGrid\r\n"
               "    Left = 10\r\n"
               "    Top = 20\r\n"
               "    Width = 280\r\n"
               "    Height = 170\r\n"
               "    Anchors = [akLeft, akTop, akRight, akBottom]\r\n"
               "    RowCount = 7\r\n"
               "    TabOrder = 0\r\n"
               "  end\r\n"
               "end\r\n");
  auto* grid = dynamic_cast<TDrawGrid*>(Form.FindComponent(u"Grid"));
  ASSERT_NE(grid, nullptr);
  EXPECT_EQ(grid->GetParent(), &Form);
  EXPECT_EQ(grid->GetRowCount(), 7);
  Form.SetClientWidth(350);
  EXPECT_EQ(grid->GetWidth(), 330);
}

TEST_F(FormTest, AnExceptionOfAHandlerGoesToTheApplication) {
  QString message;
  Application().OnException = [&](TObject*, const Exception& error) { message = error.Message(); };
  TControlProbe& first = AddControl(QStringLiteral("A"));
  first.SetBounds(0, 0, 50, 50);
  first.OnMouseDown = [](TObject*, TMouseButton, TShiftState, int, int) { throw Exception(QStringLiteral("ouch")); };
  Form.Show();
  QTest::mouseClick(first.GetHandle(), Qt::LeftButton);
  EXPECT_EQ(message, "ouch");
}

TEST_F(FormTest, AnAbortPassesSilently) {
  int count = 0;
  Application().OnException = [&](TObject*, const Exception&) { ++count; };
  Application().HandleException(std::make_exception_ptr(EAbort(QString())));
  EXPECT_EQ(count, 0);
}

}  // namespace
}  // namespace kt
