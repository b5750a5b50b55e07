// Pages, menu items and actions: adding, copying and pasting them.
#include "DesignerFixture.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/menus/MenuItem.h"

#include <QMenu>
#include <QTimer>

namespace designer::tests {
namespace {

class PartsTest : public TDesignerTest {
 protected:
  PartsTest() {
    FFile = FileWith("parts.dfm",
                     "object PartForm: TPartForm\n"
                     "  ClientHeight = 300\n"
                     "  ClientWidth = 400\n"
                     "  Menu = Menu\n"
                     "  object Pages: TPageControl\n"
                     "    Left = 16\n"
                     "    Top = 16\n"
                     "    Width = 200\n"
                     "    Height = 150\n"
                     "    ActivePage = FirstPage\n"
                     "    TabOrder = 0\n"
                     "    object FirstPage: TTabSheet\n"
                     "      Caption = 'First'\n"
                     "      object Inner: TButton\n"
                     "        Left = 8\n"
                     "        Top = 8\n"
                     "        Width = 75\n"
                     "        Height = 25\n"
                     "        TabOrder = 0\n"
                     "      end\n"
                     "    end\n"
                     "    object SecondPage: TTabSheet\n"
                     "      Caption = 'Second'\n"
                     "      ImageIndex = 1\n"
                     "    end\n"
                     "  end\n"
                     "  object Menu: TMainMenu\n"
                     "    Left = 240\n"
                     "    Top = 32\n"
                     "    object FileItem: TMenuItem\n"
                     "      Caption = '&File'\n"
                     "      object OpenItem: TMenuItem\n"
                     "        Caption = '&Open'\n"
                     "      end\n"
                     "      object ExitItem: TMenuItem\n"
                     "        Caption = 'E&xit'\n"
                     "      end\n"
                     "    end\n"
                     "    object ViewItem: TMenuItem\n"
                     "      Caption = '&View'\n"
                     "    end\n"
                     "  end\n"
                     "  object Popup: TPopupMenu\n"
                     "    Left = 300\n"
                     "    Top = 32\n"
                     "  end\n"
                     "  object Actions: TActionList\n"
                     "    Left = 240\n"
                     "    Top = 96\n"
                     "    object FirstAction: TAction\n"
                     "      Caption = 'First'\n"
                     "    end\n"
                     "  end\n"
                     "end\n");
    EXPECT_TRUE(FWindow->Open(FFile));
    Surface().setFocus();
    Settle();
  }
  /// The components with what is in them.
  QString Tree(const QString& name) {
    QStringList children;
    for (kt::TComponent* child : Document().ChildrenOf(&Component(name))) children += Tree(child->GetName());
    return children.isEmpty() ? name : QStringLiteral("%1[%2]").arg(name, children.join(u' '));
  }
  void CopyAndPaste(const QString& what, const QString& where) {
    Select(what);
    Key(Qt::Key_C, Qt::ControlModifier);
    Select(where);
    Key(Qt::Key_V, Qt::ControlModifier);
  }
  bool IsEnabled(const QString& action) { return FWindow->Action(action)->isEnabled(); }
};

TEST_F(PartsTest, InsertAddsAPageToThePageControlAndShowsIt) {
  Select("Pages");
  Key(Qt::Key_Insert);
  EXPECT_EQ(Tree("Pages"), "Pages[FirstPage[Inner] SecondPage TabSheet1]");
  EXPECT_EQ(Selected(), "TabSheet1");
  EXPECT_EQ(UndoText(), "Add TabSheet1");
  const auto& pages = dynamic_cast<kt::TPageControl&>(Component("Pages"));
  EXPECT_EQ(pages.GetActivePage(), &Component("TabSheet1"));
  EXPECT_EQ(pages.GetActivePage()->GetCaption(), "TabSheet1");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(QString::fromUtf8(Document().FileBytes()), ContentOf(FFile));
}

TEST_F(PartsTest, APageComesBehindThatOfWhatIsSelected) {
  Select("FirstPage");
  Key(Qt::Key_Insert);
  EXPECT_EQ(Tree("Pages"), "Pages[FirstPage[Inner] TabSheet1 SecondPage]");
}

TEST_F(PartsTest, InsertAddsAnItemToAMenu) {
  Select("Popup");
  Key(Qt::Key_Insert);
  EXPECT_EQ(Tree("Popup"), "Popup[MenuItem1]");
  EXPECT_EQ(dynamic_cast<kt::TMenuItem&>(Component("MenuItem1")).GetCaption(), "MenuItem1");
  EXPECT_EQ(UndoText(), "Add MenuItem1");
}

TEST_F(PartsTest, InsertAddsAnItemBehindTheSelectedOne) {
  Select("FileItem");
  Key(Qt::Key_Insert);
  EXPECT_EQ(Tree("Menu"), "Menu[FileItem[OpenItem ExitItem] MenuItem1 ViewItem]");
}

TEST_F(PartsTest, AltAndInsertAddAnItemBelow) {
  Select("ViewItem");
  Key(Qt::Key_Insert, Qt::AltModifier);
  EXPECT_EQ(Tree("Menu"), "Menu[FileItem[OpenItem ExitItem] ViewItem[MenuItem1]]");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(QString::fromUtf8(Document().FileBytes()), ContentOf(FFile));
}

TEST_F(PartsTest, InsertAddsAnAction) {
  Select("Actions");
  Key(Qt::Key_Insert);
  EXPECT_EQ(Tree("Actions"), "Actions[FirstAction Action1]");
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(ContentOf(FFile).contains("    object Action1: TAction\n"));
}

TEST_F(PartsTest, TheTreeTakesTheSameKeys) {
  Select("Actions");
  FWindow->Tree().setFocus();
  Key(Qt::Key_Insert);
  EXPECT_EQ(Tree("Actions"), "Actions[FirstAction Action1]");
}

TEST_F(PartsTest, OnlyWhatFitsTheSelectionCanBeAdded) {
  Select("PartForm");
  EXPECT_FALSE(IsEnabled("newPage") || IsEnabled("newItem") || IsEnabled("newSubItem") || IsEnabled("newAction"));
  Select("Inner");
  EXPECT_TRUE(IsEnabled("newPage"));
  EXPECT_FALSE(IsEnabled("newItem") || IsEnabled("newAction"));
  Select("Popup");
  EXPECT_TRUE(IsEnabled("newItem"));
  EXPECT_FALSE(IsEnabled("newSubItem"));
}

TEST_F(PartsTest, TheMenuOfTheSurfaceOffersIt) {
  Select("Actions");
  QStringList offered;
  QTimer::singleShot(0, FWindow.get(), [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return;
    for (const QAction* action : menu->actions()) offered.append(action->objectName());
    QTest::keyClick(menu, Qt::Key_Escape);
  });
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QApplication::sendEvent(&Surface(), &event);
  EXPECT_TRUE(offered.contains("newAction"));
  EXPECT_FALSE(offered.contains("newPage"));
}

TEST_F(PartsTest, AMenuItemIsPastedBesideTheOneItWasCopiedFrom) {
  CopyAndPaste("FileItem", "FileItem");
  EXPECT_EQ(Tree("Menu"), "Menu[FileItem[OpenItem ExitItem] MenuItem1[MenuItem2 MenuItem3] ViewItem]");
  EXPECT_EQ(Selected(), "MenuItem1");
}

TEST_F(PartsTest, AMenuItemIsPastedIntoTheSelectedMenu) {
  CopyAndPaste("OpenItem", "Popup");
  EXPECT_EQ(Tree("Popup"), "Popup[MenuItem1]");
}

TEST_F(PartsTest, AMenuItemIsPastedIntoTheSelectedItemThatHasOthers) {
  CopyAndPaste("ViewItem", "FileItem");
  EXPECT_EQ(Tree("FileItem"), "FileItem[OpenItem ExitItem MenuItem1]");
}

TEST_F(PartsTest, AMenuItemGoesBackToItsMenuWhenSomethingElseIsSelected) {
  CopyAndPaste("OpenItem", "PartForm");
  EXPECT_EQ(Tree("FileItem"), "FileItem[OpenItem ExitItem MenuItem1]");
  EXPECT_EQ(TakeTold(), "");
}

TEST_F(PartsTest, APageIsPastedIntoItsPageControl) {
  CopyAndPaste("FirstPage", "FirstPage");
  EXPECT_EQ(Tree("Pages"), "Pages[FirstPage[Inner] TabSheet1[Button1] SecondPage]");
  CopyAndPaste("SecondPage", "PartForm");
  EXPECT_EQ(Tree("Pages"), "Pages[FirstPage[Inner] TabSheet1[Button1] SecondPage TabSheet2]");
}

TEST_F(PartsTest, AnActionIsPastedIntoItsList) {
  CopyAndPaste("FirstAction", "PartForm");
  EXPECT_EQ(Tree("Actions"), "Actions[FirstAction Action1]");
}

TEST_F(PartsTest, AControlIsPastedOnThePageThatShows) {
  CopyAndPaste("Inner", "Pages");
  EXPECT_EQ(Tree("Pages"), "Pages[FirstPage[Inner Button1] SecondPage]");
}

TEST_F(PartsTest, AMenuItemThatFindsNoMenuIsToldAndNothingIsPasted) {
  Select("OpenItem");
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(FWindow->NewForm());
  Surface().setFocus();
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(TakeTold(), "A TMenuItem needs a menu, and the form has none");
  EXPECT_EQ(Session().Form().GetComponentCount(), 0);
  EXPECT_FALSE(Document().IsModified());
}

TEST_F(PartsTest, APageIsNeitherMovedNorSized) {
  Select("FirstPage");
  const QString before = Bounds("FirstPage");
  Key(Qt::Key_Right);
  EXPECT_EQ(Bounds("FirstPage"), before);
  EXPECT_FALSE(Document().IsModified());
}

TEST_F(PartsTest, AContainerIsPastedBesideItselfAndNotIntoItself) {
  EXPECT_TRUE(FWindow->Open(FileWith("panel.dfm",
                                     "object PanelForm: TPanelForm\n"
                                     "  ClientHeight = 200\n"
                                     "  ClientWidth = 300\n"
                                     "  object Panel1: TPanel\n"
                                     "    Left = 8\n"
                                     "    Top = 8\n"
                                     "    Width = 100\n"
                                     "    Height = 80\n"
                                     "    TabOrder = 0\n"
                                     "  end\n"
                                     "end\n")));
  Select("Panel1");
  Surface().setFocus();
  Key(Qt::Key_C, Qt::ControlModifier);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(dynamic_cast<kt::TControl&>(Component("Panel2")).GetParent(), &Session().Form());
}

}  // namespace
}  // namespace designer::tests
