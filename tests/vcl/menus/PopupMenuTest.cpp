// The menu on the screen, and the controls that open it.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/menus/PopupMenu.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QContextMenuEvent>
#include <QMenu>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TControlProbe;
using tests::TWindowProbe;

class PopupMenuTest : public testing::Test {
 protected:
  PopupMenuTest() {
    Add("&Open").SetShortCut(TextToShortCut(QStringLiteral("Ctrl+O")));
    Add("-");
    Add("Save");
  }
  void SetUp() override {
    Child.SetParent(FParent.get());
    Child.SetBounds(20, 30, 50, 40);
    Child.SetTabStop(true);
    FParent->SetPopupMenu(&Menu);
    FWindow = std::make_unique<TWindowProbe>(*FParent);
  }
  void TearDown() override { Application().SetHint({}); }
  TMenuItem& Add(const char* caption) {
    auto& item = *New<TMenuItem>(FMenu.get());
    item.SetCaption(QLatin1String(caption));
    item.OnClick = [this](TObject* sender) { FLog += static_cast<TMenuItem*>(sender)->GetCaption(); };
    Menu.GetItems().Add(&item);
    return item;
  }
  TMenuItem& Get(int index) { return *Menu.GetItems().GetItems(index); }
  QString Log() { return std::exchange(FLog, {}).join(u' '); }

  static QMenu* Open() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
  /// Has something done with the next menu that opens, which is closed then if it is not yet.
  void WhenOpen(const std::function<void(QMenu&)>& what) {
    FWhat = what;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [this] {
          if (QMenu* const menu = Open()) {
            FWasOpen = true;
            FWhat(*menu);
          }
          if (QMenu* const menu = Open()) menu->close();
        },
        Qt::QueuedConnection);
  }
  static void Choose(QMenu& menu, int index) {
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, menu.actionGeometry(menu.actions()[index]).center());
  }
  /// "Open|-|Save" of a menu that is open.
  static QString Entries(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions()) {
      texts += action->isSeparator() ? QStringLiteral("-") : action->text().replace(u'\t', u'~');
    }
    return texts.join(u'|');
  }
  QString EntriesOfPopup() {
    QString entries;
    WhenOpen([&](QMenu& menu) { entries = Entries(menu); });
    Menu.Popup(100, 100);
    return entries;
  }
  /// Right-clicks a control; answers whether a menu opened.
  bool Ask(TWinControl& control, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse) {
    WhenOpen([](QMenu&) {});
    QWidget* const body = control.GetHandle();
    QContextMenuEvent event(reason, {3, 4}, body->mapToGlobal(QPoint(3, 4)));
    QApplication::sendEvent(body, &event);
    TWindowProbe::Settle();
    return std::exchange(FWasOpen, false);
  }

  QStringList FLog;
  std::function<void(QMenu&)> FWhat;
  bool FWasOpen = false;
  std::unique_ptr<TPopupMenu> FMenu = Make<TPopupMenu>();
  TPopupMenu& Menu = *FMenu;
  std::unique_ptr<TControlProbe> FParent = Make<TControlProbe>();
  TControlProbe& Child = *New<TControlProbe>(FParent.get());
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(PopupMenuTest, ShowsItsItemsWithTheirShortCuts) { EXPECT_EQ(EntriesOfPopup(), "&Open~Ctrl+O|-|&Save"); }

TEST_F(PopupMenuTest, DoesNotShowWhatIsInvisible) {
  Get(2).SetVisible(false);
  Add("Close");
  EXPECT_EQ(EntriesOfPopup(), "&Open~Ctrl+O|-|&Close");
}

TEST_F(PopupMenuTest, ShowsStatesOfItsItems) {
  Get(0).SetChecked(true);
  Get(2).SetEnabled(false);
  TMenuItem& bold = Add("Bold");
  bold.SetDefault(true);
  bold.SetRadioItem(true);
  bold.SetChecked(true);
  QString states;
  WhenOpen([&](QMenu& menu) {
    const auto actions = menu.actions();
    states = QStringLiteral("%1%2%3%4%5")
                 .arg(actions[0]->isChecked())
                 .arg(actions[2]->isEnabled())
                 .arg(actions[2]->isCheckable())
                 .arg(actions[3]->isChecked() && actions[3]->actionGroup() != nullptr)
                 .arg(menu.defaultAction() == actions[3]);
  });
  Menu.Popup(100, 100);
  EXPECT_EQ(states, "10011");
}

TEST_F(PopupMenuTest, ItemsBelowAnItemAreAMenuOfTheirOwn) {
  auto& below = *New<TMenuItem>(FMenu.get());
  below.SetCaption(QStringLiteral("As..."));
  Get(2).Add(&below);
  QString entries;
  WhenOpen([&](QMenu& menu) { entries = Entries(*menu.actions()[2]->menu()); });
  Menu.Popup(100, 100);
  EXPECT_EQ(entries, "&As...");
}

TEST_F(PopupMenuTest, WhatIsChosenIsClickedWhenTheMenuHasGone) {
  bool wasOpen = true;
  Get(2).OnClick = [&](TObject*) { wasOpen = Open() != nullptr; };
  WhenOpen([](QMenu& menu) { Choose(menu, 2); });
  Menu.Popup(100, 100);
  EXPECT_FALSE(wasOpen);
}

TEST_F(PopupMenuTest, NothingIsClickedWhenTheMenuIsClosed) {
  WhenOpen([this](QMenu&) { Menu.CloseMenu(); });
  Menu.Popup(100, 100);
  EXPECT_EQ(Log(), "");
  EXPECT_EQ(Open(), nullptr);
}

TEST_F(PopupMenuTest, AHandlerMayChangeTheItemsBeforeItOpens) {
  Menu.OnPopup = [this](TObject*) { Menu.GetItems().Clear(); };
  EXPECT_EQ(EntriesOfPopup(), "");
}

TEST_F(PopupMenuTest, AnItemThatDiesWhileTheMenuIsOpenIsNotClicked) {
  WhenOpen([this](QMenu& menu) {
    delete &Get(2);
    Choose(menu, 2);
  });
  Menu.Popup(100, 100);
  EXPECT_EQ(Log(), "");
}

TEST_F(PopupMenuTest, AMenuMayDieWhileItIsOpen) {
  WhenOpen([this](QMenu&) { FMenu.reset(); });
  FMenu->Popup(100, 100);
  EXPECT_EQ(FParent->GetPopupMenu(), nullptr);
}

TEST_F(PopupMenuTest, TheHighlightedItemTellsItsHint) {
  Get(2).SetHint(QStringLiteral("Short|Writes the file"));
  QString hint;
  WhenOpen([&](QMenu& menu) {
    menu.setActiveAction(menu.actions()[2]);
    hint = Application().GetHint();
  });
  Menu.Popup(100, 100);
  EXPECT_EQ(hint, "Writes the file");
}

TEST_F(PopupMenuTest, StandsAtThePointWithThePartThatIsAskedFor) {
  QRect place;
  WhenOpen([&](QMenu& menu) { place = menu.geometry(); });
  Menu.Popup(300, 200);
  EXPECT_EQ(place.topLeft(), QPoint(300, 200));
  Menu.SetAlignment(paRight);
  WhenOpen([&](QMenu& menu) { place = menu.geometry(); });
  Menu.Popup(300, 200);
  EXPECT_EQ(place.left() + place.width(), 300);
  Menu.SetAlignment(paCenter);
  WhenOpen([&](QMenu& menu) { place = menu.geometry(); });
  Menu.Popup(300, 200);
  EXPECT_EQ(place.left() + place.width() / 2, 300);
}

TEST_F(PopupMenuTest, AControlOpensItsMenu) {
  EXPECT_TRUE(Ask(*FParent));
  EXPECT_EQ(Menu.GetPopupComponent(), FParent.get());
  EXPECT_EQ(Menu.GetPopupPoint(), FParent->GetHandle()->mapToGlobal(QPoint(3, 4)));
}

TEST_F(PopupMenuTest, AChildWithoutAMenuOpensThatOfItsParent) {
  EXPECT_TRUE(Ask(Child));
  EXPECT_EQ(Menu.GetPopupComponent(), FParent.get());
}

TEST_F(PopupMenuTest, AChildWithAMenuOpensItsOwn) {
  auto own = Make<TPopupMenu>();
  auto& item = *New<TMenuItem>(own.get());
  item.SetCaption(QStringLiteral("own"));
  own->GetItems().Add(&item);
  Child.SetPopupMenu(own.get());
  EXPECT_TRUE(Ask(Child));
  EXPECT_EQ(own->GetPopupComponent(), &Child);
  EXPECT_EQ(Menu.GetPopupComponent(), nullptr);
}

TEST_F(PopupMenuTest, AHandlerThatSeesToItKeepsTheMenuClosed) {
  QPoint place;
  FParent->OnContextPopup = [&](TObject*, const QPoint& position, bool& handled) {
    place = position;
    handled = true;
  };
  EXPECT_FALSE(Ask(*FParent));
  EXPECT_EQ(place, QPoint(3, 4));
}

TEST_F(PopupMenuTest, WithTheKeyboardThereIsNoPlaceAndTheMenuStandsAtTheControl) {
  QPoint place;
  FParent->OnContextPopup = [&](TObject*, const QPoint& position, bool&) { place = position; };
  EXPECT_TRUE(Ask(*FParent, QContextMenuEvent::Keyboard));
  EXPECT_EQ(place, QPoint(-1, -1));
  EXPECT_EQ(Menu.GetPopupPoint(), FParent->GetHandle()->mapToGlobal(QPoint(0, 0)));
}

TEST_F(PopupMenuTest, DoesNotOpenByItselfWhenItIsToldSo) {
  Menu.SetAutoPopup(false);
  EXPECT_FALSE(Ask(*FParent));
}

TEST_F(PopupMenuTest, AShortCutIsClickedFromAChildThatDoesNotHearTheKey) {
  Child.OnKeyDown = [this](TObject*, quint16& key, TShiftState) { FLog += QString::number(key); };
  Child.SetFocus();
  TWindowProbe::Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Log(), "17 &Open");
  Get(0).SetEnabled(false);
  TWindowProbe::Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Log(), "17 79");
}

TEST_F(PopupMenuTest, AMenuThatDiesIsForgotten) {
  FMenu.reset();
  EXPECT_EQ(FParent->GetPopupMenu(), nullptr);
  EXPECT_FALSE(Ask(*FParent));
}

TEST_F(PopupMenuTest, IsReadFromAFormFile) {
  RegisterVisualPlatform();
  auto form = Make<TForm>();
  ReadFormText(*form,
               "object TheForm: TForm\r\n"
               "  PopupMenu = TheMenu\r\n"
               "  object TheMenu: TPopupMenu\r\n"
               "    Alignment = paCenter\r\n"
               "    object First: TMenuItem\r\n"
               "      Caption = 'First'\r\n"
               "      ShortCut = 16429\r\n"
               "      object Below: TMenuItem\r\n"
               "        Caption = 'Below'\r\n"
               "        RadioItem = True\r\n"
               "      end\r\n"
               "    end\r\n"
               "    object Second: TMenuItem\r\n"
               "      Caption = '-'\r\n"
               "    end\r\n"
               "  end\r\n"
               "end\r\n");
  TPopupMenu* const menu = form->GetPopupMenu();
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->GetAlignment(), paCenter);
  ASSERT_EQ(menu->GetItems().GetCount(), 2);
  EXPECT_EQ(ShortCutToText(menu->GetItems().GetItems(0)->GetShortCut()), "Ctrl+Ins");
  EXPECT_EQ(menu->GetItems().GetItems(0)->GetItems(0), form->FindComponent(u"Below"));
}

}  // namespace
}  // namespace kt
