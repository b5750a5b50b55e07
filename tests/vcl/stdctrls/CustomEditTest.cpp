#include "kt/rtl/objects/Make.h"
#include "kt/vcl/stdctrls/CustomEdit.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TWindowProbe;

class TEditProbe : public TCustomEdit {
 public:
  QStringList Log;
  bool Overlay = false;

 protected:
  explicit TEditProbe(TComponent* owner = nullptr) : TCustomEdit(owner) {}
  void Change() override { Log += GetText(); }
  bool HasOverlay() override { return Overlay; }
  void PaintOver(TCanvas& canvas) override {
    canvas.GetBrush().SetColor(clRed);
    canvas.FillRect({GetWidth() - 10, 0, 10, GetHeight()});
  }
};

class CustomEditTest : public testing::Test {
 protected:
  void Show() {
    FWindow = std::make_unique<TWindowProbe>(Edit, QSize(200, 24));
    Edit.SetFocus();
  }
  std::unique_ptr<TEditProbe> FEdit = Make<TEditProbe>();
  TEditProbe& Edit = *FEdit;
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(CustomEditTest, KeepsTextAndSelectionWithoutAWindow) {
  Edit.SetText(QStringLiteral("hello"));
  Edit.Select(1, 3);
  EXPECT_EQ(Edit.GetSelText(), "el");
  Edit.SetSelText(QStringLiteral("EL"));
  EXPECT_EQ(Edit.GetText(), "hELlo");
  EXPECT_FALSE(Edit.HandleAllocated());
}

TEST_F(CustomEditTest, TakesTextAndSelectionIntoItsWindow) {
  Edit.SetText(QStringLiteral("hello"));
  Edit.Select(1, 3);
  Show();
  Edit.Select(1, 3);
  TWindowProbe::Type(QStringLiteral("x"));
  EXPECT_EQ(Edit.GetText(), "hxlo");
}

TEST_F(CustomEditTest, EachKeyIsOneChange) {
  Show();
  TWindowProbe::Type(QStringLiteral("ab"));
  EXPECT_EQ(Edit.Log.join(u' '), "a ab");
  EXPECT_TRUE(Edit.IsModified());
}

TEST_F(CustomEditTest, ATextThatIsSetIsNoModification) {
  Show();
  TWindowProbe::Type(QStringLiteral("ab"));
  Edit.SetText(QStringLiteral("z"));
  EXPECT_EQ(Edit.Log.join(u' '), "a ab z");
  EXPECT_FALSE(Edit.IsModified());
}

TEST_F(CustomEditTest, TheMessageThatSetsTheTextTellsNobody) {
  Show();
  const QString text = QStringLiteral("quiet");
  Edit.Perform(WM_SETTEXT, 0, PointerMessage(&text));
  EXPECT_EQ(Edit.GetText(), "quiet");
  EXPECT_EQ(Edit.Log.join(u' '), "");
}

TEST_F(CustomEditTest, AHandlerMayChangeWhatIsTyped) {
  Edit.OnKeyPress = [](TObject*, QChar& key) { key = key.toUpper(); };
  Show();
  TWindowProbe::Type(QStringLiteral("ab"));
  EXPECT_EQ(Edit.GetText(), "AB");
}

TEST_F(CustomEditTest, AReadOnlyTextStays) {
  Edit.SetReadOnly(true);
  Show();
  TWindowProbe::Type(QStringLiteral("ab"));
  Edit.Perform(WM_CHAR, 'x');
  EXPECT_EQ(Edit.GetText(), "");
}

TEST_F(CustomEditTest, TheLengthIsLimited) {
  Edit.SetMaxLength(2);
  Show();
  TWindowProbe::Type(QStringLiteral("abc"));
  EXPECT_EQ(Edit.GetText(), "ab");
}

TEST_F(CustomEditTest, KeysThatMoveAreTheEditorsOwn) {
  Edit.SetText(QStringLiteral("abc"));
  Show();
  TWindowProbe::Key(Qt::Key_Home);
  TWindowProbe::Key(Qt::Key_Delete);
  TWindowProbe::Key(Qt::Key_End);
  TWindowProbe::Key(Qt::Key_Backspace);
  EXPECT_EQ(Edit.GetText(), "b");
}

TEST_F(CustomEditTest, AnOverlayIsPaintedOverTheText) {
  Edit.Overlay = true;
  Show();
  const QImage image = Edit.GetHandle()->grab().toImage();
  EXPECT_EQ(image.pixelColor(195, 12), QColor(Qt::red));
  EXPECT_NE(image.pixelColor(150, 12), QColor(Qt::red));
}

}  // namespace
}  // namespace kt
