#include "DesignerFixture.h"

namespace designer::tests {
namespace {

/// From opening a file to loading what was saved, with keys and mouse only.
class WholeWayTest : public TDesignerTest {
 protected:
  QString File() { return QString::fromUtf8(Document().FileBytes()); }
  void Edit() {
    Click(At("Button1"));
    Click(At("Button2"), Qt::ShiftModifier);
    TypeInto("Width", "120");
    FStates.append(File());
    GoToRow("Font");
    Key(Qt::Key_Right, Qt::AltModifier);
    GoToRow("Font.Style");
    Key(Qt::Key_Right, Qt::AltModifier);
    Pick("Font.Style.fsBold", "True");
    FStates.append(File());
    Pick("Font.Color", "clRed");
    FStates.append(File());
  }

  QStringList FStates{QString(SmallForm())};
};

TEST_F(WholeWayTest, BothButtonsGetWhatIsTypedAndPicked) {
  Edit();
  EXPECT_EQ(Bounds("Button1"), "16 16 120 25");
  EXPECT_EQ(Bounds("Button2"), "120 16 120 25");
  EXPECT_EQ(Control("Button1").GetFont().GetStyle(), kt::TFontStyles{kt::fsBold});
  EXPECT_EQ(Control("Button2").GetFont().GetStyle(), kt::TFontStyles{kt::fsBold});
  EXPECT_EQ(Control("Button1").GetFont().GetColor(), kt::clRed);
  EXPECT_EQ(Control("Button2").GetFont().GetColor(), kt::clRed);
  EXPECT_EQ(TakeTold(), "");
}

TEST_F(WholeWayTest, EachStepIsUndoneAndRedone) {
  Edit();
  EXPECT_EQ(Document().UndoStack().count(), 3);
  QStringList back(File());
  for (int i = 0; i < 3; ++i) {
    Do("undo");
    back.prepend(File());
  }
  EXPECT_EQ(back, FStates);
  EXPECT_EQ(Selected(), "Button1 Button2");
  for (int i = 0; i < 3; ++i) Do("redo");
  EXPECT_EQ(File(), FStates.last());
}

TEST_F(WholeWayTest, WhatIsSavedDiffersInTheChangedLinesOnly) {
  Edit();
  const QString other = FFolder.filePath("saved.dfm");
  EXPECT_TRUE(FWindow->SaveTo(other));
  QStringList added;
  QStringList left = QString(SmallForm()).split(u'\n');
  for (const QString& line : ContentOf(other).split(u'\n')) {
    if (!left.removeOne(line)) added.append(line.trimmed());
  }
  left.replaceInStrings(QStringLiteral("    "), QString());
  EXPECT_EQ(left.join(u'|'), "Width = 75|Width = 89");
  const QString font = QStringLiteral("Font.Color = clRed");
  EXPECT_EQ(added.count(font), 2) << added.join(u'|').toStdString();
  EXPECT_EQ(added.count("Font.Style = [fsBold]"), 2) << added.join(u'|').toStdString();
  EXPECT_EQ(added.count("Width = 120"), 2);
}

TEST_F(WholeWayTest, WhatIsSavedLoadsAgain) {
  Edit();
  const QString tree = Document().TreeText();
  const QString other = FFolder.filePath("saved.dfm");
  EXPECT_TRUE(FWindow->SaveTo(other));
  EXPECT_TRUE(FWindow->Open(other));
  EXPECT_EQ(Document().TreeText(), tree);
  EXPECT_EQ(QString::fromUtf8(Document().FileBytes()), ContentOf(other));
}

}  // namespace
}  // namespace designer::tests
