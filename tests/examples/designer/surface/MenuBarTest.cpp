// The bar of the live form's menu, below the surface.
#include "DesignerFixture.h"
#include "designer/surface/MenuBarPlaces.h"

#include <QMenuBar>

namespace designer::tests {
namespace {

class MenuBarTest : public TDesignerTest {
 protected:
  MenuBarTest() {
    EXPECT_TRUE(FWindow->Open(FileWith("menu.dfm",
                                       "object MenuForm: TMenuForm\n"
                                       "  ClientHeight = 200\n"
                                       "  ClientWidth = 300\n"
                                       "  Menu = Menu\n"
                                       "  object Button: TButton\n"
                                       "    Left = 16\n"
                                       "    Top = 16\n"
                                       "    Width = 75\n"
                                       "    Height = 25\n"
                                       "  end\n"
                                       "  object Menu: TMainMenu\n"
                                       "    Left = 200\n"
                                       "    Top = 120\n"
                                       "    object FileItem: TMenuItem\n"
                                       "      Caption = '&File'\n"
                                       "      object OpenItem: TMenuItem\n"
                                       "        Caption = '&Open'\n"
                                       "      end\n"
                                       "    end\n"
                                       "    object HiddenItem: TMenuItem\n"
                                       "      Caption = 'Hidden'\n"
                                       "      Visible = False\n"
                                       "    end\n"
                                       "    object ViewItem: TMenuItem\n"
                                       "      Caption = '&View'\n"
                                       "    end\n"
                                       "  end\n"
                                       "end\n")));
    Surface().setFocus();
    Settle();
  }
  QMenuBar& Bar() { return *MenuBarOf(Session().Form()); }
  QPoint OnBar(QPoint point) { return Surface().mapFromGlobal(Bar().mapToGlobal(point)); }
};

TEST_F(MenuBarTest, TheFrameOfTheFormIsAroundItsWholeWindow) {
  const QWidget& window = *Session().Form().GetHandle();
  EXPECT_EQ(RectOf("MenuForm"), QRect(Surface().mapFromGlobal(window.mapToGlobal(QPoint())), window.size()));
  EXPECT_GT(Bar().height(), 0);
  EXPECT_EQ(OnForm(0, 0).y(), RectOf("MenuForm").top() + Bar().height());
}

TEST_F(MenuBarTest, AClickOnAnEntrySelectsItsItem) {
  Click(OnBar(Bar().actionGeometry(Bar().actions().at(0)).center()));
  EXPECT_EQ(Selected(), "FileItem");
  Click(OnBar(Bar().actionGeometry(Bar().actions().at(1)).center()));
  EXPECT_EQ(Selected(), "ViewItem");
}

TEST_F(MenuBarTest, AClickBesideTheEntriesSelectsTheMenu) {
  Click(OnBar(Bar().rect().topRight() + QPoint(-4, 4)));
  EXPECT_EQ(Selected(), "Menu");
}

TEST_F(MenuBarTest, ASelectedItemHasItsFrameAroundTheEntry) {
  const QRect entry = Bar().actionGeometry(Bar().actions().at(1));
  EXPECT_EQ(RectOf("ViewItem"), QRect(OnBar(entry.topLeft()), entry.size()));
  EXPECT_TRUE(Surface().Places().IsShown(Component("ViewItem")));
  EXPECT_FALSE(Surface().Places().IsShown(Component("HiddenItem")));
  EXPECT_FALSE(Surface().Places().IsShown(Component("OpenItem")));
}

TEST_F(MenuBarTest, WhatIsPlacedOnTheBarComesBelowIt) {
  Surface().SetTool(TPaletteList::ClassOf(FWindow->Palette().ItemOf("TCheckBox")));
  Click(OnBar(Bar().rect().center()));
  EXPECT_EQ(Control("CheckBox1").GetTop(), 0);
}

TEST_F(MenuBarTest, AnEntryIsNotMoved) {
  const QPoint entry = OnBar(Bar().actionGeometry(Bar().actions().at(0)).center());
  Drag(entry, entry + QPoint(60, 60));
  Key(Qt::Key_Right);
  EXPECT_FALSE(Document().IsModified());
}

}  // namespace
}  // namespace designer::tests
