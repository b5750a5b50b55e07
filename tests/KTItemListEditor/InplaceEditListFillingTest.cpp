#include "KTItemListEditor/InplaceEditListFixture.h"

namespace kt::tests {
namespace {

/// When a list is filled, and with what.
using InplaceEditListFillingTest = TInplaceEditListTest;

TEST_F(InplaceEditListFillingTest, TheHandlerAddsToTheItemsPickList) {
  ShowColors();
  Editor.OnGetPickList = [this](TObject* sender, const QString& name, TStrings& values) {
    Log += sender == &Editor ? name : QStringLiteral("?");
    values.Add(QStringLiteral("more"));
  };
  OpenList();
  EXPECT_EQ("red green blue more", Lines());
  EXPECT_EQ("a", TakeLog());
}

TEST_F(InplaceEditListFillingTest, TheItemsHandlerGoesBeforeTheEditors) {
  ShowPickList({});
  Editor.OnGetPickList = [](TObject*, const QString&, TStrings& values) { values.Add(QStringLiteral("editor")); };
  Item(0).SetOnGetPickList([this](TObject* sender, const QString&, TStrings& values) {
    values.Add(sender == &Item(0) ? QStringLiteral("item") : QStringLiteral("?"));
  });
  OpenList();
  EXPECT_EQ("item", Lines());
}

TEST_F(InplaceEditListFillingTest, AListIsFilledOnceAVisit) {
  ShowPickList({});
  Editor.OnGetPickList = [this](TObject*, const QString& name, TStrings& values) {
    Log += name;
    values.Add(QStringLiteral("x"));
  };
  OpenList();
  Key(Qt::Key_Escape);
  OpenList();
  Key(Qt::Key_Escape);
  EXPECT_EQ("a", TakeLog());
  Key(Qt::Key_Down);
  Key(Qt::Key_Up);
  OpenList();
  EXPECT_EQ("a", TakeLog());
}

TEST_F(InplaceEditListFillingTest, AListThatCameEmptyIsFilledAgain) {
  ShowPickList({});
  Editor.OnGetPickList = [this](TObject*, const QString& name, TStrings&) { Log += name; };
  OpenList();
  Key(Qt::Key_Escape);
  OpenList();
  EXPECT_EQ("a a", TakeLog());
}

TEST_F(InplaceEditListFillingTest, AnItemWithoutANameIsNotAskedFor) {
  Item(0).SetName({});
  ShowPickList({});
  Editor.OnGetPickList = [this](TObject*, const QString&, TStrings&) { Log += QStringLiteral("asked"); };
  OpenList();
  EXPECT_EQ("", TakeLog());
}

TEST_F(InplaceEditListFillingTest, OtherCellsHaveNoList) {
  ShowColors();
  Key(Qt::Key_Down);
  EXPECT_EQ(nullptr, Edit().GetActiveList());
  EXPECT_EQ(esSimple, Edit().GetEditStyle());
  OpenList();
  EXPECT_FALSE(Edit().IsListVisible());
}

}  // namespace
}  // namespace kt::tests
