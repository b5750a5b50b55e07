#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/Font.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

namespace kt::tests {
namespace {

/// Refuses to become a copy of an item that is called bad.
class TPickyItem : public TKTItemProp {
 public:
  using Inherited = TKTItemProp;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TPickyItem>("TPickyItem").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  void Assign(TPersistent* source) override {
    TKTItemProp::Assign(source);
    if (GetName() == QLatin1StringView("bad")) throw EConvertError(QStringLiteral("refused"));
  }

 protected:
  explicit TPickyItem(TCollection* collection) : TKTItemProp(collection) {}
};

class TPickyEditor : public TKTItemListEditor {
 protected:
  explicit TPickyEditor(TComponent* owner = nullptr) : TKTItemListEditor(owner) {}
  std::unique_ptr<TKTItemProps> CreateItems(TPersistent* owner) override {
    return Make<TKTItemProps>(owner, TPickyItem::Class());
  }
};

/// Writes down which of its setters run.
class TSettersItem : public TKTItemProp {
 public:
  using Inherited = TKTItemProp;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TSettersItem>("TSettersItem").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  void SetReadOnly(bool value) override {
    Log += QStringLiteral("ReadOnly");
    TKTItemProp::SetReadOnly(value);
  }
  void SetEditStyle(TEditStyle value) override {
    Log += QStringLiteral("EditStyle");
    TKTItemProp::SetEditStyle(value);
  }
  void SetEditMask(const QString& value) override {
    Log += QStringLiteral("EditMask");
    TKTItemProp::SetEditMask(value);
  }
  void SetExpressionMask(bool value) override {
    Log += QStringLiteral("ExpressionMask");
    TKTItemProp::SetExpressionMask(value);
  }
  void SetItemObject(TObject* value) override {
    Log += QStringLiteral("ItemObject");
    TKTItemProp::SetItemObject(value);
  }

  static inline QStringList Log;

 protected:
  explicit TSettersItem(TCollection* collection) : TKTItemProp(collection) {}
};

class TSettersEditor : public TKTItemListEditor {
 protected:
  explicit TSettersEditor(TComponent* owner = nullptr) : TKTItemListEditor(owner) {}
  std::unique_ptr<TKTItemProps> CreateItems(TPersistent* owner) override {
    return Make<TKTItemProps>(owner, TSettersItem::Class());
  }
};

class ItemPropAssignTest : public TItemListTest {
 protected:
  ItemPropAssignTest() { Fill("s [x [y] z] t"); }

  void Copy() { Item("t").Assign(&Item("s")); }
  /// The copy: its name is that of its source.
  TKTItemProp& Target() { return *Items().GetItem(1); }
};

TEST_F(ItemPropAssignTest, TheSubtreeIsCopied) {
  Copy();
  EXPECT_EQ("s [x [y] z] s [x [y] z]", TreeText());
}

TEST_F(ItemPropAssignTest, WhatTheTargetHadBelowIsGone) {
  Item("t").GetItems().Add("old", {});
  Item("s").GetItems().Clear();
  Copy();
  EXPECT_EQ("s s", TreeText());
}

TEST_F(ItemPropAssignTest, PlainPropertiesAreCopied) {
  TKTItemProp& s = Item("s");
  s.SetHint("h");
  s.SetReadOnly(true);
  s.SetEditMask("m");
  s.SetExpressionMask(true);
  s.SetItemObject(FEditor.get());
  s.SetTag(7);
  s.SetCategory(true);
  Item("s").SetValue("1");
  Copy();
  EXPECT_EQ("h", Target().GetHint());
  EXPECT_TRUE(Target().GetReadOnly());
  EXPECT_EQ("m", Target().GetEditMask());
  EXPECT_TRUE(Target().GetExpressionMask());
  EXPECT_EQ(FEditor.get(), Target().GetItemObject());
  EXPECT_EQ(7, Target().GetTag());
  EXPECT_TRUE(Target().GetCategory());
  EXPECT_EQ("s=1", Target().GetDisplayName());
}

TEST_F(ItemPropAssignTest, AFontOfTheTargetsOwnGivesWayToTheLookOfTheSource) {
  Item("t").GetFont().SetColor(clRed);
  Item("t").GetValueFont().SetColor(clRed);
  Copy();
  EXPECT_EQ(Item("s").GetFont().GetColor(), Target().GetFont().GetColor());
  EXPECT_EQ(Item("s").GetValueFont().GetColor(), Target().GetValueFont().GetColor());
  // Another look than before becomes the item's own, whatever the source's was.
  EXPECT_FALSE(Target().GetParentFont());
  // The value font was back at its parent's when it was compared.
  EXPECT_TRUE(Target().GetParentValueFont());
}

TEST_F(ItemPropAssignTest, TheCategoryMapBelowIsCopiedAlsoWhenItIsEmpty) {
  Fill("leaf");
  Item("t").GetItems().GetCategories().Add("a=b");
  Item("t").Assign(&Item("leaf"));
  EXPECT_EQ(0, Target().GetItems().GetCategories().GetCount());
}

TEST_F(ItemPropAssignTest, ThePickListAndItsStyleAreCopied) {
  Item("s").GetPickList().SetCommaText("1,2");
  Copy();
  EXPECT_EQ("1,2", Target().GetPickList().GetCommaText());
  EXPECT_EQ(esPickList, Target().GetEditStyle());
}

TEST_F(ItemPropAssignTest, AStyleForPickingWithoutAnythingToPickDoesNotSurviveTheCopy) {
  Item("s").SetEditStyle(esPickList);
  Copy();
  EXPECT_EQ(esPickList, Item("s").GetEditStyle());
  EXPECT_EQ(esSimple, Target().GetEditStyle());
}

TEST_F(ItemPropAssignTest, ASimpleStyleDespiteAPickListDoesNotSurviveTheCopy) {
  Item("s").GetPickList().Add("1");
  Item("s").SetEditStyle(esSimple);
  Copy();
  EXPECT_EQ(esPickList, Target().GetEditStyle());
}

TEST_F(ItemPropAssignTest, AnEllipsisSurvivesTheCopy) {
  Item("s").SetEditStyle(esEllipsis);
  Item("t").GetPickList().Add("1");
  Copy();
  EXPECT_EQ(esEllipsis, Target().GetEditStyle());
  EXPECT_FALSE(Target().HasPickList());
}

TEST_F(ItemPropAssignTest, ADisabledSourceArrivesAsReadOnlyAndTheTargetStaysEnabled) {
  Item("s").SetEnabled(false);
  Copy();
  EXPECT_TRUE(Target().GetEnabled());
  EXPECT_TRUE(Target().GetReadOnly());
}

TEST_F(ItemPropAssignTest, ADisabledTargetStaysDisabled) {
  Item("t").SetEnabled(false);
  Copy();
  EXPECT_FALSE(Target().GetEnabled());
}

TEST_F(ItemPropAssignTest, ADisabledTargetIsReadOnlyAlreadySoAReadOnlySourceLeavesItsFlagAlone) {
  Item("s").SetReadOnly(true);
  Item("t").SetEnabled(false);
  Copy();
  EXPECT_TRUE(Target().IsReadOnly());
  Target().SetEnabled(true);
  EXPECT_FALSE(Target().GetReadOnly());
}

TEST_F(ItemPropAssignTest, ADisabledTargetLosesItsReadOnlyFlagToASourceThatHasNone) {
  Item("t").SetReadOnly(true);
  Item("t").SetEnabled(false);
  Copy();
  EXPECT_TRUE(Target().IsReadOnly());
  Target().SetEnabled(true);
  EXPECT_FALSE(Target().GetReadOnly());
}

TEST_F(ItemPropAssignTest, WhatADescendantsSettersDoIsDone) {
  FEditor = Make<TSettersEditor>();
  Fill("s t");
  Item("s").SetReadOnly(true);
  Item("s").SetEditStyle(esEllipsis);
  Item("s").SetEditMask("m");
  Item("s").SetExpressionMask(true);
  Item("s").SetItemObject(FEditor.get());
  TSettersItem::Log.clear();
  Copy();
  EXPECT_EQ("ReadOnly EditStyle EditMask ExpressionMask ItemObject", TSettersItem::Log.join(u' '));
}

TEST_F(ItemPropAssignTest, ReadOnlySourcesLeaveNoRowWhereTheseDoNotShow) {
  FEditor->SetDisplayOptions({doColumnTitles});
  Item("s").SetReadOnly(true);
  EXPECT_EQ(">t", RowsText());
  Copy();
  EXPECT_EQ("", RowsText());
}

TEST_F(ItemPropAssignTest, NoneOfTheFiveEventsIsCopied) {
  TKTItemProp& s = Item("s");
  s.SetOnEditButtonClick([](TObject*) {});
  s.SetOnGetPickList([](TObject*, const QString&, TStrings&) {});
  s.SetOnValidate([](TObject*, TKTItemProp*, int) {});
  s.SetOnValidated([](TObject*, TKTItemProp*, int) {});
  s.SetOnValidateError([](TObject*, TKTItemProp*, int, const Exception&) {});
  Copy();
  EXPECT_FALSE(Target().GetOnEditButtonClick());
  EXPECT_FALSE(Target().GetOnGetPickList());
  EXPECT_FALSE(Target().GetOnValidate());
  EXPECT_FALSE(Target().GetOnValidated());
  EXPECT_FALSE(Target().GetOnValidateError());
}

TEST_F(ItemPropAssignTest, AssignEventsCopiesThreeOfTheFiveDeliberately) {
  TKTItemProp& s = Item("s");
  s.SetOnEditButtonClick([](TObject*) {});
  s.SetOnGetPickList([](TObject*, const QString&, TStrings&) {});
  s.SetOnValidate([](TObject*, TKTItemProp*, int) {});
  s.SetOnValidated([](TObject*, TKTItemProp*, int) {});
  s.SetOnValidateError([](TObject*, TKTItemProp*, int, const Exception&) {});
  TKTItemProp& t = Item("t");
  t.AssignEvents(&s);
  EXPECT_EQ(s.GetOnEditButtonClick(), t.GetOnEditButtonClick());
  EXPECT_EQ(s.GetOnGetPickList(), t.GetOnGetPickList());
  EXPECT_EQ(s.GetOnValidate(), t.GetOnValidate());
  EXPECT_FALSE(t.GetOnValidated());
  EXPECT_FALSE(t.GetOnValidateError());
}

TEST_F(ItemPropAssignTest, AssignEventsClearsWhatTheSourceDoesNotHave) {
  Item("t").SetOnValidate([](TObject*, TKTItemProp*, int) {});
  Item("t").AssignEvents(&Item("s"));
  EXPECT_FALSE(Item("t").GetOnValidate());
}

TEST_F(ItemPropAssignTest, AssignEventsIgnoresOtherSources) {
  Item("t").SetOnValidate([](TObject*, TKTItemProp*, int) {});
  Item("t").AssignEvents(FEditor.get());
  Item("t").AssignEvents(nullptr);
  EXPECT_TRUE(Item("t").GetOnValidate());
}

TEST_F(ItemPropAssignTest, ExpansionAndVisibilityAreCopiedWithTheirRows) {
  FEditor->FullExpand();
  Copy();
  EXPECT_EQ(">s | x | y | z | s | x | y | z", RowsText());
  Item("s").SetVisible(false);
  Target().Assign(&Item("s"));
  EXPECT_EQ("", RowsText());
  EXPECT_FALSE(Target().GetVisible());
}

TEST_F(ItemPropAssignTest, SeveralValuesAreCopied) {
  FEditor->SetColCount(4);
  Item("s").GetValues().SetText("1\r\n2\r\n3");
  Copy();
  EXPECT_EQ("1\r\n2\r\n3\r\n", Target().GetValuesText());
}

TEST_F(ItemPropAssignTest, NamesAreNotCheckedForUniqueness) {
  FEditor->SetPropertyOptions({propUnique});
  Copy();
  EXPECT_EQ("s [x [y] z] s [x [y] z]", TreeText());
}

TEST_F(ItemPropAssignTest, NothingMovesOnASortedLevel) {
  FEditor->SetSorted(true);
  Items().GetItem(0)->SetName("u");
  EXPECT_EQ("t u [x [y] z]", TreeText());
  Item("t").Assign(&Item("u"));
  EXPECT_EQ("u [x [y] z] u [x [y] z]", TreeText());
  Items().GetItem(0)->Assign(Make<TKTItemProp>(nullptr).get());
  EXPECT_EQ(" u [x [y] z]", TreeText());
}

TEST_F(ItemPropAssignTest, ACopiedDefaultCategoryBecomesThatOfItsCollection) {
  Item("s").SetDefaultCategory(true);
  Copy();
  EXPECT_TRUE(Target().GetDefaultCategory());
  EXPECT_EQ(&Target(), Items().GetDefaultCategory());
}

TEST_F(ItemPropAssignTest, AFontOfItsOwnIsCopied) {
  Item("s").GetFont().SetColor(clRed);
  Item("s").GetValueFont().SetColor(clBlue);
  Copy();
  EXPECT_EQ(clRed, Target().GetFont().GetColor());
  EXPECT_EQ(clBlue, Target().GetValueFont().GetColor());
  EXPECT_FALSE(Target().GetParentFont());
  EXPECT_FALSE(Target().GetParentValueFont());
}

TEST_F(ItemPropAssignTest, AnInheritingSourceThatLooksTheSameMakesAnInheritingCopy) {
  Item("s").GetFont();
  Copy();
  EXPECT_TRUE(Target().GetParentFont());
  FEditor->GetFont().SetColor(clRed);
  EXPECT_EQ(clRed, Target().GetFont().GetColor());
}

TEST_F(ItemPropAssignTest, AnotherSourceIsAnError) {
  EXPECT_EQ("Cannot assign a TKTItemListEditor to a TKTItemProp",
            MessageOf<EConvertError>([&] { Item("t").Assign(FEditor.get()); }));
}

TEST_F(ItemPropAssignTest, AnItemAssignedToItselfStaysAsItIs) {
  Item("s").Assign(&Item("s"));
  EXPECT_EQ("s [x [y] z] t", TreeText());
}

TEST_F(ItemPropAssignTest, ALeafThatIsAssignedToALeafIsAStructuralChangeLikeAnyOther) {
  FEditor = Make<TProbeEditor>();
  Fill("a b");
  EXPECT_EQ("editor.AdjustGridCount editor.Invalidate [].Update(nil) b.UpdateItemProp(nil) [].Update(b)",
            QString::fromStdString(Heard([&] { Item("a").Assign(&Item("b")); }))
                .section(QStringLiteral("VisibleChanged "), -1)
                .toStdString());
}

// Whole collections.

TEST_F(ItemPropAssignTest, ACollectionCopiesItemsCategoriesAndTheBareSortedFlag) {
  const auto other = Make<TKTItemListEditor>();
  Items().GetCategories().Add("x=A");
  Items().Exchange(0, 1);
  Items().SetDefaultCategoryName("Rest");
  other->SetItems(Items());
  EXPECT_EQ("t s [x [y] z]", Tree(other->GetItems()));
  EXPECT_EQ("x=A", other->GetItems().GetCategories().GetCommaText());
  EXPECT_FALSE(other->IsSorted());
  EXPECT_EQ("Miscellaneous", other->GetItems().GetDefaultCategoryName());
}

TEST_F(ItemPropAssignTest, AssigningASortedCollectionSortsNothing) {
  const auto other = Make<TKTItemListEditor>();
  FEditor->SetSorted(true);
  Items().Add("a", {});
  Items().GetItem(1)->SetIndex(2);
  const std::string order = TreeText();
  other->SetItems(Items());
  EXPECT_TRUE(other->IsSorted());
  EXPECT_EQ(order, Tree(other->GetItems()));
  EXPECT_TRUE(other->GetItems().GetItem(0)->GetItems().GetSorted());
  EXPECT_TRUE(other->GetItems().GetCategories().GetSorted());
}

TEST_F(ItemPropAssignTest, AFailedAssignKeepsSortedMapAndDefaultCategory) {
  Items().Add("bad", {})->SetDefaultCategory(true);
  Items().GetCategories().Add("x=A");
  FEditor->SetSorted(true);
  const auto picky = Make<TPickyEditor>();
  TKTItemProps& items = picky->GetItems();
  items.Add("z", {});
  items.Add("a", {})->SetDefaultCategory(true);
  items.GetCategories().SetCommaText("z=1,a=2");
  EXPECT_EQ("refused", MessageOf<EConvertError>([&] { items.Assign(&Items()); }));
  EXPECT_EQ("z a", Tree(items));
  EXPECT_FALSE(items.GetSorted());
  EXPECT_EQ("z=1,a=2", items.GetCategories().GetCommaText());
  EXPECT_FALSE(items.GetCategories().GetSorted());
  EXPECT_EQ(items.GetItem(1), items.GetDefaultCategory());
  EXPECT_TRUE(items.GetItem(1)->GetDefaultCategory());
}

TEST_F(ItemPropAssignTest, AFailedAssignToASortedLevelLeavesItSorted) {
  Items().Add("bad", {});
  const auto picky = Make<TPickyEditor>();
  TKTItemProps& items = picky->GetItems();
  picky->SetSorted(true);
  items.Add("b", {});
  EXPECT_THROW(items.Assign(&Items()), EConvertError);
  EXPECT_TRUE(items.GetSorted());
  items.Add("a", {});
  EXPECT_EQ("a b", Tree(items));
}

TEST_F(ItemPropAssignTest, WhoeverHearsOfTheMapBeingSortedMayFreeBoth) {
  auto source = Make<TKTItemListEditor>();
  source->GetItems().GetCategories().SetCommaText("z=1,a=2");
  source->SetSorted(true);
  TStringList& categories = Items().GetCategories();
  categories.OnChanging = [&](TObject*) {
    // The lines have been copied: next they are sorted.
    if (categories.GetCount() == 2) source.reset();
  };
  EXPECT_THROW(Items().Assign(&source->GetItems()), EInvalidOperation);
  EXPECT_EQ("s [x [y] z] t", TreeText());
}

TEST_F(ItemPropAssignTest, WhoeverHearsOfTheMapMayFreeTheSource) {
  auto source = Make<TKTItemListEditor>();
  source->GetItems().GetCategories().Add("x=A");
  Items().GetCategories().OnChange = [&](TObject*) { source.reset(); };
  EXPECT_THROW(Items().Assign(&source->GetItems()), EInvalidOperation);
  EXPECT_EQ("s [x [y] z] t", TreeText());
  EXPECT_EQ(0, Items().GetCategories().GetCount());
}

}  // namespace
}  // namespace kt::tests
