// The way back to the value before any change.
#include "KTObjectInspector/InspectorWindowFixture.h"
#include "kt/vcl/menus/MenuItem.h"
#include "kt/vcl/menus/PopupMenu.h"
#include "qobjects/QObjectFixture.h"
#include "qobjects/SpecialObjects.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>

namespace kt::tests {
namespace {

class QObjectResetTest : public TInspectorWindowTest {
 protected:
  /// Asks for the menu of the inspector, and clicks its first entry; answers whether that was enabled.
  bool ChooseReset() {
    bool isEnabled = false;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [&] {
          auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
          if (!menu) return;
          QAction* action = menu->actions().constFirst();
          isEnabled = action->isEnabled();
          QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
          if (qobject_cast<QMenu*>(QApplication::activePopupWidget())) menu->close();
        },
        Qt::QueuedConnection);
    QWidget* body = FInspector->GetHandle();
    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 4}, body->mapToGlobal(QPoint(3, 4)));
    QApplication::sendEvent(body, &event);
    TWindowProbe::Settle();
    return isEnabled;
  }
  void UseMenu() {
    AddResetCommand(*FInspector, *FMenu);
    FInspector->SetPopupMenu(FMenu.get());
  }

  std::unique_ptr<TPopupMenu> FMenu = Make<TPopupMenu>();
};

TEST_F(QObjectResetTest, TheCommandGoesTheWayThatTheClassDeclares) {
  TQtCounter object;
  object.SetCount(50);
  Show({ComponentOf(&object)});
  UseMenu();
  Select("count");
  EXPECT_TRUE(ChooseReset());
  EXPECT_EQ(5, object.Count());
  EXPECT_EQ("5", Cell("count"));
  EXPECT_EQ("", TakeErrors());
}

TEST_F(QObjectResetTest, TheCommandWritesWhatAFreshObjectHas) {
  QLabel first;
  QLabel second;
  first.setText("a");
  second.setText("b");
  Show({ComponentOf(&first), ComponentOf(&second)});
  UseMenu();
  Select("text");
  Retype("typed");
  EXPECT_TRUE(ChooseReset());
  EXPECT_EQ("", first.text() + second.text());
}

TEST_F(QObjectResetTest, AMemberGoesBackAlone) {
  QCheckBox box;
  QFont font = box.font();
  font.setItalic(true);
  font.setBold(true);
  box.setFont(font);
  Show({ComponentOf(&box)});
  UseMenu();
  Item("font").SetExpanded(true);
  Select("font.bold");
  EXPECT_TRUE(ChooseReset());
  EXPECT_FALSE(box.font().bold());
  EXPECT_TRUE(box.font().italic());
}

TEST_F(QObjectResetTest, TheCommandIsDisabledWithoutAWayBack) {
  TQtCounter object;
  object.SetOther(4);
  Show({ComponentOf(&object)});
  UseMenu();
  Select("other");
  EXPECT_FALSE(ChooseReset());
  EXPECT_EQ(4, object.Other());
}

TEST_F(QObjectResetTest, TheMenusOwnHandlerGoesOnToBeCalled) {
  TQtCounter object;
  int calls = 0;
  FMenu->OnPopup = [&](TObject*) { ++calls; };
  Show({ComponentOf(&object)});
  UseMenu();
  ChooseReset();
  EXPECT_EQ(1, calls);
}

TEST_F(QObjectResetTest, TheInspectorMayGoBeforeTheMenu) {
  TQtCounter object;
  Show({ComponentOf(&object)});
  TMenuItem* command = AddResetCommand(*FInspector, *FMenu);
  FWindow.reset();
  FInspector.reset();
  FMenu->OnPopup(FMenu.get());
  EXPECT_FALSE(command->IsEnabled());
  command->OnClick(command);
}

class QObjectGadgetResetTest : public TQObjectTest {};

TEST_F(QObjectGadgetResetTest, AGadgetsMemberHasAWayOfItsOwn) {
  TQtFlaggedHolder object;
  InspectQ({&object});
  EXPECT_TRUE(FInspector->CanResetProperty(Item("gadget.resettable")));
  FInspector->ResetProperty(Item("gadget.resettable"));
  EXPECT_EQ(77, object.Gadget.Resettable());
  EXPECT_FALSE(FInspector->CanResetProperty(Item("gadget.plain")));
}

TEST_F(QObjectGadgetResetTest, AGadgetsFlagsAreRespected) {
  TQtFlaggedHolder object;
  InspectQ({&object});
  EXPECT_EQ("constant passing plain resettable", NamesBelow("gadget"));
  EXPECT_TRUE(Item("gadget.constant").IsReadOnly());
  EXPECT_FALSE(IsStoredProp(GetObjectProp(ComponentOf(&object), u"gadget"), u"passing"));
  EXPECT_TRUE(IsStoredProp(GetObjectProp(ComponentOf(&object), u"gadget"), u"plain"));
}

}  // namespace
}  // namespace kt::tests
