// What is not accepted yet when a file is saved or left, and what nobody has edited.
#include "DesignerFixture.h"
#include "designer/window/ShippedForms.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

namespace designer::tests {
namespace {

class UnfinishedEditsTest : public TDesignerTest {
 protected:
  void TypeWidth(const QString& text) {
    Select("Button1");
    GoToRow("Width");
    Key(Qt::Key_A, Qt::ControlModifier);
    Type(text);
  }
  /// Until the program has nothing to do.
  static void Idle() {
    QEventLoop loop;
    QTimer::singleShot(1, &loop, &QEventLoop::quit);
    loop.exec();
  }
  static QByteArray BytesOf(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }
  /// Opens a copy of the form, saves it, and tells whether it has changed.
  bool ChangesBySaving(const QString& form) {
    const QByteArray before = BytesOf(form);
    const QString copy = FileWith(QFileInfo(form).fileName(), before);
    EXPECT_TRUE(FWindow->Open(copy));
    Idle();
    Do("save");
    return BytesOf(copy) != before;
  }
  QString FormsChangedBySaving() {
    QStringList changed;
    for (const QString& form : ShippedForms()) {
      if (ChangesBySaving(form)) changed += QFileInfo(form).fileName();
    }
    return changed.join(u' ');
  }
};

TEST_F(UnfinishedEditsTest, WhatIsBeingTypedIsSaved) {
  TypeWidth("120");
  Do("save");
  EXPECT_EQ(ContentOf(FFile), QString(SmallForm()).replace("Width = 75", "Width = 120"));
  EXPECT_FALSE(Document().IsModified());
}

TEST_F(UnfinishedEditsTest, WhatIsBeingTypedIsAskedForBeforeTheWindowCloses) {
  TypeWidth("120");
  FAnswer = saCancel;
  EXPECT_FALSE(FWindow->close());
  EXPECT_EQ(TakeTold(), "save small.dfm?");
}

TEST_F(UnfinishedEditsTest, ATextThatIsRefusedKeepsTheFormFromBeingSaved) {
  TypeWidth("wide");
  Do("save");
  EXPECT_NE(TakeTold(), "");
  EXPECT_EQ(ContentOf(FFile), SmallForm());
}

TEST_F(UnfinishedEditsTest, SavingInTheMiddleOfADragSavesThePlaceBefore) {
  Press(At("Button1"));
  MoveTo(At("Button1") + QPoint(40, 40));
  Do("save");
  EXPECT_EQ(ContentOf(FFile), SmallForm());
  EXPECT_EQ(Bounds("Button1"), "16 16 75 25");
}

TEST_F(UnfinishedEditsTest, TheKeysOfUndoingWorkInTheInspector) {
  Select("Button1");
  TypeInto("Width", "120");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Bounds("Button1"), "16 16 75 25");
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Bounds("Button1"), "16 16 120 25");
}

TEST_F(UnfinishedEditsTest, MovesOfOtherComponentsAreStepsOfTheirOwn) {
  Session().Select({&Component("Button1"), &Component("Button2")});
  Surface().setFocus();
  Key(Qt::Key_Right);
  Session().Select({&Component("Button2"), &Component("CheckBox1")});
  Key(Qt::Key_Down);
  Do("undo");
  EXPECT_EQ(Bounds("Button1"), "17 16 75 25");
  EXPECT_EQ(Bounds("CheckBox1"), "16 80 97 17");
}

TEST_F(UnfinishedEditsTest, AFormThatWasOnlyLookedAtIsSavedAsItWas) {
  EXPECT_FALSE(ShippedForms().isEmpty());
  EXPECT_EQ(FormsChangedBySaving(), "");
}

TEST_F(UnfinishedEditsTest, ActionsAreNotUpdatedWhileTheirFormIsDesigned) {
  const QString file = FileWith("actions.dfm",
                                "object ActionForm: TActionForm\n"
                                "  ClientHeight = 100\n"
                                "  ClientWidth = 200\n"
                                "  object Button1: TButton\n"
                                "    Action = Action1\n"
                                "  end\n"
                                "  object List1: TActionList\n"
                                "    object Action1: TAction\n"
                                "      Caption = 'Do'\n"
                                "    end\n"
                                "  end\n"
                                "end\n");
  EXPECT_TRUE(FWindow->Open(file));
  Idle();
  EXPECT_TRUE(Control("Button1").IsEnabled());
}

}  // namespace
}  // namespace designer::tests
