#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/mask/MaskEdit.h"
#include "kt/vcl/mask/MaskErrors.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QLineEdit>
#include <QPushButton>
#include <QStringList>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TWindowProbe;

/// A masked line with a button beside it that one can go to.
class MaskEditLeavingTest : public testing::Test {
 protected:
  MaskEditLeavingTest() {
    Edit.SetEditMask(QStringLiteral("00-00;0"));
    Edit.SetText(QStringLiteral("1234"));
    Edit.OnExit = [this](TObject*) { FLog += QStringLiteral("exit"); };
    FWindow = std::make_unique<TWindowProbe>(Edit, QSize(200, 60));
    FButton = new QPushButton;
    FWindow->Window()->layout()->addWidget(FButton);
    TWindowProbe::Settle();
    Edit.SetFocus();
    Edit.SetSelStart(0);
    FOuter = SetExceptionHandler(
        [this](std::exception_ptr error) { FLog += MessageOf<EDBEditError>([&] { std::rethrow_exception(error); }); });
  }
  ~MaskEditLeavingTest() override { SetExceptionHandler(FOuter); }
  QString Log() { return std::exchange(FLog, {}).join(u'|'); }

  std::unique_ptr<TMaskEdit> FEdit = Make<TMaskEdit>();
  TMaskEdit& Edit = *FEdit;
  std::unique_ptr<TWindowProbe> FWindow;
  QPushButton* FButton = nullptr;
  TExceptionHandler FOuter;
  QStringList FLog;
};

TEST_F(MaskEditLeavingTest, ACompleteTextMayBeLeft) {
  TWindowProbe::Type(QStringLiteral("9"));
  FButton->setFocus();
  EXPECT_TRUE(FButton->hasFocus());
  EXPECT_EQ(Log(), "exit");
}

TEST_F(MaskEditLeavingTest, AnIncompleteTextKeepsTheKeyboard) {
  Edit.SetSelStart(3);
  TWindowProbe::Key(Qt::Key_Delete);
  TWindowProbe::Key(Qt::Key_Home);
  FButton->setFocus();
  EXPECT_TRUE(Edit.Focused());
  EXPECT_EQ(Log(), "Invalid input value.  Use escape key to abandon changes");
  EXPECT_EQ(Edit.GetSelStart(), 3);
}

TEST_F(MaskEditLeavingTest, TabDoesNotLeaveAnIncompleteText) {
  TWindowProbe::Key(Qt::Key_Delete);
  TWindowProbe::Key(Qt::Key_Tab);
  EXPECT_TRUE(Edit.Focused());
  EXPECT_EQ(Log(), "Invalid input value.  Use escape key to abandon changes");
}

TEST_F(MaskEditLeavingTest, OnChangeMayFreeALineWhoseTextMovesToTheRightAsItIsLeft) {
  Edit.SetEditMask(QStringLiteral("!9999;1;_"));
  Edit.SetText({});
  Edit.SetSelStart(0);
  TWindowProbe::Type(QStringLiteral("7"));
  ASSERT_TRUE(Edit.IsModified());
  Edit.OnChange = [this](TObject*) { FEdit.reset(); };
  FButton->setFocus();
  EXPECT_EQ(FEdit, nullptr);
}

TEST_F(MaskEditLeavingTest, AfterEscapeItMayBeLeft) {
  TWindowProbe::Key(Qt::Key_Delete);
  TWindowProbe::Key(Qt::Key_Escape);
  FButton->setFocus();
  EXPECT_TRUE(FButton->hasFocus());
  EXPECT_EQ(Log(), "exit");
}

TEST_F(MaskEditLeavingTest, AnIncompleteTextThatNobodyChangedMayBeLeft) {
  Edit.SetText(QStringLiteral("1"));
  FButton->setFocus();
  EXPECT_TRUE(FButton->hasFocus());
  EXPECT_EQ(Log(), "exit");
}

TEST_F(MaskEditLeavingTest, EscapeGoesBackToTheTextOnEntryAndNotBeyond) {
  TWindowProbe::Type(QStringLiteral("9"));
  FButton->setFocus();
  Edit.SetFocus();
  Edit.SetSelStart(1);
  TWindowProbe::Type(QStringLiteral("8"));
  TWindowProbe::Key(Qt::Key_Escape);
  EXPECT_EQ(Edit.GetText(), "9234");
}

TEST_F(MaskEditLeavingTest, EnterValidates) {
  TWindowProbe::Key(Qt::Key_Delete);
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ(Log(), "Invalid input value.  Use escape key to abandon changes");
}

}  // namespace
}  // namespace kt
