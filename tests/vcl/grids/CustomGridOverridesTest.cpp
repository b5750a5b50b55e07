// Grids that decide for themselves which keys they take, and how much text.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "support/Expect.h"
#include "support/GridProbe.h"
#include "support/WindowProbe.h"

#include <QInputMethodEvent>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TGridProbe;
using tests::TWindowProbe;

/// Takes digits only, three of them, and does not move down.
class TPickyGrid : public TGridProbe {
 public:
  QStringList Asked;
  QString Text;

 protected:
  explicit TPickyGrid(TComponent* owner = nullptr) : TGridProbe(owner) {}

  bool CanEditAcceptKey(QChar key) override { return key.isDigit(); }
  bool CanGridAcceptKey(quint16 key, TShiftState shift) override {
    Asked += QStringLiteral("%1%2").arg(key).arg(shift.Has(ssShift) ? QStringLiteral("s") : QString());
    return key != VK_DOWN;
  }
  int GetEditLimit() override { return 3; }
  void SetEditText(int, int, const QString& value) override { Text = value; }
};

class CustomGridOverridesTest : public testing::Test {
 protected:
  CustomGridOverridesTest() {
    Grid.SetOptions(Grid.GetOptions() + TGridOptions{goEditing});
    FWindow = std::make_unique<TWindowProbe>(Grid);
    Grid.SetFocus();
  }
  QString Edited() { return Grid.InplaceEditor() ? Grid.InplaceEditor()->GetText() : QStringLiteral("-"); }

  std::unique_ptr<TPickyGrid> FGrid = Make<TPickyGrid>();
  TPickyGrid& Grid = *FGrid;
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(CustomGridOverridesTest, CharactersThatTheGridRefusesAreNotTyped) {
  TWindowProbe::Key(Qt::Key_F2);
  TWindowProbe::Type(QStringLiteral("a1b2"));
  EXPECT_EQ(Edited(), "12");
  EXPECT_EQ(Grid.Text, "12");
}

TEST_F(CustomGridOverridesTest, ACharacterThatTheGridRefusesOpensTheEditorWithoutIt) {
  TWindowProbe::Type(QStringLiteral("a"));
  ASSERT_NE(Grid.InplaceEditor(), nullptr);
  EXPECT_TRUE(Grid.InplaceEditor()->Visible());
  EXPECT_EQ(Edited(), "");
}

TEST_F(CustomGridOverridesTest, TextOfAnInputMethodIsJudgedByItsCharacters) {
  TWindowProbe::Key(Qt::Key_F2);
  QInputMethodEvent event;
  event.setCommitString(QStringLiteral("x7y"));
  QApplication::sendEvent(QApplication::focusWidget(), &event);
  EXPECT_EQ(Edited(), "7");
}

TEST_F(CustomGridOverridesTest, KeysThatEditAreNoCharactersToJudge) {
  TWindowProbe::Type(QStringLiteral("12"));
  TWindowProbe::Key(Qt::Key_Backspace);
  EXPECT_EQ(Edited(), "1");
}

TEST_F(CustomGridOverridesTest, AKeyThatTheGridRefusesMovesNothing) {
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ(Grid.Where(), "1,1 sel 1,1-1,1 at 1,1");
  TWindowProbe::Key(Qt::Key_Right);
  EXPECT_EQ(Grid.Where(), "2,1 sel 2,1-2,1 at 1,1");
}

TEST_F(CustomGridOverridesTest, TheGridIsAskedWithTheShiftKeys) {
  TWindowProbe::Key(Qt::Key_Right, Qt::ShiftModifier);
  // The first is the shift key itself.
  EXPECT_EQ(Grid.Asked.join(u' '), QStringLiteral("%1s %2s").arg(VK_SHIFT).arg(VK_RIGHT));
}

TEST_F(CustomGridOverridesTest, AKeyThatAHandlerTookIsRefusedUnseen) {
  Grid.OnKeyDown = [](TObject*, quint16& key, TShiftState) { key = 0; };
  TWindowProbe::Key(Qt::Key_Right);
  EXPECT_EQ(Grid.GetCol(), 1);
}

TEST_F(CustomGridOverridesTest, AKeyThatTheGridRefusesDoesNotLeaveTheEditor) {
  TWindowProbe::Key(Qt::Key_F2);
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ(Grid.GetRow(), 1);
  EXPECT_TRUE(Grid.InplaceEditor()->Focused());
}

TEST_F(CustomGridOverridesTest, TheEditorTakesAsManyCharactersAsTheGridSays) {
  TWindowProbe::Key(Qt::Key_F2);
  EXPECT_EQ(Grid.InplaceEditor()->GetMaxLength(), 3);
  TWindowProbe::Type(QStringLiteral("12345"));
  EXPECT_EQ(Edited(), "123");
}

}  // namespace
}  // namespace kt
