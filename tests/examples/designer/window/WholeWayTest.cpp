#include "DesignerFixture.h"

namespace designer::tests {
namespace {

/// From opening a file to loading what was saved, with keys and mouse only.
class WholeWayTest : public TDesignerTest {
 protected:
  QString File() { return QString::fromUtf8(Document().FileBytes()); }
  /// A click on the value of a row that shows.
  void ClickRow(const QString& path) {
    for (int row = 0; row < Inspector().GetVisibleItemCount(); ++row) {
      kt::TKTItemProperty* item = Inspector().GetVisibleItem(row);
      if (item->GetFullPathName() != path) continue;
      const QRect cell = Inspector().CellRect(1, row + 1);
      QWidget* grid = Inspector().GetHandle();
      QWidget* there = grid->childAt(cell.center()) ? grid->childAt(cell.center()) : grid;
      QTest::mouseClick(there, Qt::LeftButton, Qt::NoModifier, there->mapFrom(grid, cell.center()));
      Settle();
    }
    EXPECT_EQ(SelectedRow(), path);
  }
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
  /// On the form, by its key.
  void OnTheForm(Qt::Key key) {
    Key(Qt::Key_F12);
    EXPECT_TRUE(Surface().hasFocus());
    Key(key, Qt::ControlModifier);
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

TEST_F(WholeWayTest, TheMouseFindsARowToTypeInto) {
  Click(At("Button1"));
  ClickRow("Caption");
  Key(Qt::Key_A, Qt::ControlModifier);
  Type("Go");
  Key(Qt::Key_Return);
  OnTheForm(Qt::Key_S);
  EXPECT_EQ(ContentOf(FFile), QString(SmallForm()).replace("'One'", "'Go'"));
}

TEST_F(WholeWayTest, EachStepIsUndoneAndRedone) {
  Edit();
  EXPECT_EQ(Document().UndoStack().count(), 3);
  QStringList back(File());
  for (int i = 0; i < 3; ++i) {
    OnTheForm(Qt::Key_Z);
    back.prepend(File());
  }
  EXPECT_EQ(back, FStates);
  EXPECT_EQ(Selected(), "Button1 Button2");
  for (int i = 0; i < 3; ++i) OnTheForm(Qt::Key_Y);
  EXPECT_EQ(File(), FStates.last());
}

TEST_F(WholeWayTest, WhatIsSavedDiffersInTheChangedLinesOnly) {
  Edit();
  OnTheForm(Qt::Key_S);
  EXPECT_FALSE(FWindow->isWindowModified());
  QStringList added;
  QStringList left = QString(SmallForm()).split(u'\n');
  for (const QString& line : ContentOf(FFile).split(u'\n')) {
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
  OnTheForm(Qt::Key_S);
  OnTheForm(Qt::Key_N);
  EXPECT_EQ(Session().Form().GetName(), "Form1");
  FWindow->Questions().AskOpenName = [this](const QString&) { return FFile; };
  OnTheForm(Qt::Key_O);
  EXPECT_EQ(Document().TreeText(), tree);
  EXPECT_EQ(QString::fromUtf8(Document().FileBytes()), ContentOf(FFile));
  EXPECT_EQ(TakeTold(), "");
}

}  // namespace
}  // namespace designer::tests
