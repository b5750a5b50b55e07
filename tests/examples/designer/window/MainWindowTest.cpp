#include "DesignerFixture.h"

#include <QItemSelectionModel>

namespace designer::tests {
namespace {

class MainWindowTest : public TDesignerTest {
 protected:
  /// How many colours the picture of the window has where a part is.
  int ColoursOf(const QImage& picture, const QWidget& part) {
    const QImage place = picture.copy(QRect(part.mapTo(FWindow.get(), QPoint()), part.size()));
    QSet<QRgb> colours;
    for (int y = 0; y < place.height(); ++y) {
      for (int x = 0; x < place.width(); ++x) colours.insert(place.pixel(x, y));
    }
    return static_cast<int>(colours.size());
  }
  void Change() {
    Select("Button1");
    Surface().setFocus();
    Key(Qt::Key_Right);
  }
};

TEST_F(MainWindowTest, ABadFileIsToldOnceAndLeavesTheOpenForm) {
  const QString bad = FileWith("bad.dfm", "object Form1: TForm1\n  Caption = \nend\n");
  EXPECT_FALSE(FWindow->Open(bad));
  EXPECT_EQ(FTold.size(), 1);
  EXPECT_EQ(Session().Form().GetName(), "SmallForm");
}

TEST_F(MainWindowTest, AFileThatIsNotThereIsTold) {
  EXPECT_FALSE(FWindow->Open(FFolder.filePath("nowhere.dfm")));
  EXPECT_EQ(FTold.size(), 1);
}

TEST_F(MainWindowTest, TheTitleTellsFileAndChanges) {
  EXPECT_EQ(FWindow->windowTitle(), "small.dfm[*] - Form designer");
  EXPECT_FALSE(FWindow->isWindowModified());
  Change();
  EXPECT_TRUE(FWindow->isWindowModified());
  Do("save");
  EXPECT_FALSE(FWindow->isWindowModified());
}

TEST_F(MainWindowTest, SavingChangesOnlyTheLinesThatChanged) {
  Change();
  Do("save");
  EXPECT_EQ(ContentOf(FFile),
            QString(SmallForm()).replace("    Left = 16\n    Top = 16\n", "    Left = 17\n    Top = 16\n"));
}

TEST_F(MainWindowTest, ClosingAsksWhenSomethingWouldBeLost) {
  Change();
  FAnswer = saCancel;
  EXPECT_FALSE(FWindow->close());
  EXPECT_EQ(TakeTold(), "save small.dfm?");
  FAnswer = saDiscard;
  EXPECT_TRUE(FWindow->close());
  EXPECT_EQ(ContentOf(FFile), SmallForm());
}

TEST_F(MainWindowTest, ClosingCanSave) {
  Change();
  FAnswer = saSave;
  EXPECT_TRUE(FWindow->close());
  EXPECT_NE(ContentOf(FFile), SmallForm());
}

TEST_F(MainWindowTest, ClosingAnUntouchedFormAsksNothing) {
  EXPECT_TRUE(FWindow->close());
  EXPECT_EQ(TakeTold(), "");
}

TEST_F(MainWindowTest, OpeningAsksToo) {
  Change();
  FAnswer = saCancel;
  EXPECT_FALSE(FWindow->Open(FFile));
  EXPECT_EQ(Bounds("Button1"), "17 16 75 25");
}

TEST_F(MainWindowTest, SavingUnderAnotherNameGoesOnWithThat) {
  const QString other = FFolder.filePath("other.dfm");
  FWindow->Questions().AskSaveName = [&](const QString&) { return other; };
  Do("saveAs");
  EXPECT_EQ(ContentOf(other), SmallForm());
  EXPECT_EQ(FWindow->windowTitle(), "other.dfm[*] - Form designer");
}

TEST_F(MainWindowTest, SavingWhereItCannotBeIsTold) {
  EXPECT_FALSE(FWindow->SaveTo(FFolder.filePath("no/such/folder.dfm")));
  EXPECT_EQ(FTold.size(), 1);
}

TEST_F(MainWindowTest, ANewFormIsEmpty) {
  Do("new");
  EXPECT_EQ(Session().Form().GetComponentCount(), 0);
  EXPECT_EQ(Selected(), "Form1");
}

TEST_F(MainWindowTest, ADoubleClickInThePalettePlacesInTheMiddle) {
  Select("SmallForm");
  FWindow->Palette().OnPlace(TPaletteList::ClassOf(FWindow->Palette().ItemOf("TButton")));
  EXPECT_EQ(Selected(), "Button3");
  EXPECT_TRUE(QRect(100, 60, 100, 80).contains(Control("Button3").GetBoundsRect().center()));
}

TEST_F(MainWindowTest, ThePalettePlacesByKeys) {
  Select("SmallForm");
  FWindow->Palette().setFocus();
  FWindow->Palette().setCurrentItem(FWindow->Palette().ItemOf("TCheckBox"));
  Key(Qt::Key_Return);
  EXPECT_EQ(Selected(), "CheckBox2");
}

TEST_F(MainWindowTest, TheTreeAndTheFormShareTheSelection) {
  // Not by what keys a test before has held last.
  FWindow->Tree().setCurrentItem(FWindow->Tree().ItemOf(&Component("CheckBox1")), 0,
                                 QItemSelectionModel::ClearAndSelect);
  EXPECT_EQ(Selected(), "CheckBox1");
  Click(At("Button2"));
  EXPECT_TRUE(FWindow->Tree().ItemOf(&Component("Button2"))->isSelected());
  EXPECT_EQ(FWindow->Tree().selectedItems().size(), 1);
}

TEST_F(MainWindowTest, WhatIsSelectedComesIntoView) {
  Control("SmallForm").SetBounds(0, 0, 3000, 2000);
  Control("Button2").SetBounds(2800, 1800, 75, 25);
  Session().Edited("Size");
  Settle();
  Select("Button2");
  EXPECT_TRUE(Surface().visibleRegion().contains(At("Button2")));
}

TEST_F(MainWindowTest, AFormLargerThanAnyScreenIsShownInPartAndKept) {
  const QByteArray huge = QByteArray(SmallForm()).replace("ClientWidth = 300", "ClientWidth = 99999999");
  FFile = FileWith("huge.dfm", huge);
  EXPECT_TRUE(FWindow->Open(FFile));
  Settle();
  EXPECT_LT(Surface().width(), 40000);
  Click(At("Button1"));
  EXPECT_EQ(Selected(), "Button1");
  Key(Qt::Key_Right);
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(ContentOf(FFile), QString(huge).replace("Left = 16\n    Top = 16", "Left = 17\n    Top = 16"));
}

TEST_F(MainWindowTest, UndoBringsBackWhatWasDeleted) {
  Select("Button1");
  Surface().setFocus();
  Key(Qt::Key_Delete);
  Do("undo");
  EXPECT_EQ(Bounds("Button1"), "16 16 75 25");
  EXPECT_EQ(Document().FileBytes(), QByteArray(SmallForm()));
  Do("redo");
  EXPECT_EQ(Document().Find(u"Button1"), nullptr);
}

TEST_F(MainWindowTest, TheFormsVisibilityIsNotTheDesigners) {
  Control("SmallForm").SetVisible(true);
  Control("SmallForm").SetVisible(false);
  Control("Button1").SetVisible(false);
  Settle();
  EXPECT_TRUE(Session().Form().GetHandle()->isVisible());
  EXPECT_FALSE(Session().Form().GetHandle()->isWindow());
  EXPECT_TRUE(dynamic_cast<kt::TWinControl&>(Control("Button1")).GetHandle()->isVisible());
}

TEST_F(MainWindowTest, TheFormReadsAsItSaysWhateverTheDesignerDoes) {
  QApplication::setLayoutDirection(Qt::RightToLeft);
  Settle();
  EXPECT_EQ(Control("SmallForm").GetBiDiMode(), kt::bdLeftToRight);
  EXPECT_TRUE(FWindow->Open(FFile));
  EXPECT_EQ(Control("Button1").GetBiDiMode(), kt::bdLeftToRight);
  QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(MainWindowTest, EveryPartHasANameForScreenReaders) {
  EXPECT_EQ(Surface().accessibleName(), "Form");
  EXPECT_EQ(FWindow->Tree().accessibleName(), "Components of the form");
  EXPECT_EQ(FWindow->Palette().accessibleName(), "Components to place");
  EXPECT_EQ(FWindow->Panel().Inspector().GetHandle()->accessibleName(), "Object inspector");
}

TEST_F(MainWindowTest, ItDrawsItself) {
  FWindow->ShowOff();
  Settle();
  const QImage picture = FWindow->grab().toImage();
  const auto colourAt = [&](const QWidget& part, QPoint point) {
    return picture.pixelColor(part.mapTo(FWindow.get(), point)).name();
  };
  // The form's ground with a dot of the grid, a handle of what is selected, and texts in all lists.
  EXPECT_NE(colourAt(Surface(), OnForm(240, 160)), colourAt(Surface(), OnForm(243, 163)));
  EXPECT_EQ(colourAt(Surface(), OnForm(241, 161)), colourAt(Surface(), OnForm(243, 163)));
  EXPECT_EQ(Selected(), "Button1");
  EXPECT_EQ(colourAt(Surface(), RectOf("Button1").topLeft()), Surface().palette().color(QPalette::Highlight).name());
  EXPECT_GT(ColoursOf(picture, FWindow->Tree()), 8);
  EXPECT_GT(ColoursOf(picture, FWindow->Palette()), 8);
  EXPECT_GT(ColoursOf(picture, *FWindow->Panel().Inspector().GetHandle()), 8);
}

}  // namespace
}  // namespace designer::tests
