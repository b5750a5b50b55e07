#include "kt/KTItemListEditor/ItemStrings.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/strings/StringList.h"
#include "support/Expect.h"
#include "support/ItemLists.h"

namespace kt::tests {
namespace {

class ItemStringsTest : public TItemListTest {
 protected:
  TKTItemStrings& Lines() { return FEditor->GetStrings(); }
  QString Text() { return Lines().GetText().replace("\r\n", " ").trimmed(); }
};

TEST_F(ItemStringsTest, EachItemIsALineOfFullPathAndValueWhetherItHasARowOrNot) {
  Fill("Font [Name] b");
  Item("Font.Name").SetValue("Arial \r\n");
  Item("b").SetVisible(false);
  EXPECT_FALSE(Lines().GetShowVisibleOnly());
  EXPECT_EQ(3, Lines().GetCount());
  EXPECT_EQ("Font= Font.Name=Arial b=", Text());
}

TEST_F(ItemStringsTest, WithShowVisibleOnlyTheLinesAreTheRows) {
  Fill("a [b] c");
  Item("c").SetVisible(false);
  Lines().SetShowVisibleOnly(true);
  EXPECT_EQ("a=", Text());
  Item("a").Expand();
  EXPECT_EQ("a= a.b=", Text());
  EXPECT_EQ(2, Lines().GetCount());
}

TEST_F(ItemStringsTest, PathsAreDelimitedAsTheEditorSays) {
  Fill("a [b]");
  FEditor->SetPathDelimiter("/");
  EXPECT_EQ("a= a/b=", Text());
}

TEST_F(ItemStringsTest, TheObjectsAreTheItemObjects) {
  Fill("a b");
  Lines().SetObjects(1, FEditor.get());
  EXPECT_EQ(FEditor.get(), Item("b").GetItemObject());
  Item("a").SetItemObject(&Items());
  EXPECT_EQ(&Items(), Lines().GetObjects(0));
}

TEST_F(ItemStringsTest, NamesAndValuesAreThoseOfTheLines) {
  Fill("a [b]");
  Item("a.b").SetValue("1=2");
  EXPECT_EQ("a.b", Lines().GetNames(1));
  EXPECT_EQ("1=2", Lines().GetValues(u"A.B"));
}

TEST_F(ItemStringsTest, IndexOfNameFindsByFullPath) {
  Fill("a [b] c");
  EXPECT_EQ(1, Lines().IndexOfName(u"A.b"));
  EXPECT_EQ(2, Lines().IndexOfName(u"c"));
  EXPECT_EQ(-1, Lines().IndexOfName(u"b"));
}

TEST_F(ItemStringsTest, WithShowVisibleOnlyIndexOfNameIsTheRow) {
  Fill("a [b] c");
  Lines().SetShowVisibleOnly(true);
  EXPECT_EQ(1, Lines().IndexOfName(u"c"));
  EXPECT_EQ(-1, Lines().IndexOfName(u"a.b"));
}

// Changing.

TEST_F(ItemStringsTest, ALineIsSplitAtItsFirstSeparator) {
  Lines().Add("a=1=2");
  Lines().Add("b");
  EXPECT_EQ("a=1=2", Items().GetItem(0)->GetDisplayName());
  EXPECT_EQ("b=", Items().GetItem(1)->GetDisplayName());
}

TEST_F(ItemStringsTest, ALineOfAPathLandsWhereThePathPutsItWhateverItsIndex) {
  Fill("x [y] z");
  Lines().Insert(0, "x.w=1");
  EXPECT_EQ("x [y w] z", TreeText());
  Lines().Insert(1, "v=1");
  EXPECT_EQ("x [y w] z v", TreeText());
}

TEST_F(ItemStringsTest, APathTwiceMakesASecondItemBelowTheFirstParent) {
  Lines().Add("A.B=1");
  EXPECT_EQ("A [B]", TreeText());
  Lines().Add("A.B=1");
  EXPECT_EQ("A [B B]", TreeText());
}

TEST_F(ItemStringsTest, WithUniqueNamesAPathTwiceSetsTheValue) {
  FEditor->SetPropertyOptions({propUnique});
  Lines().Add("A.B=1");
  Lines().Add("a.b=2");
  EXPECT_EQ("A= A.B=2", Text());
}

TEST_F(ItemStringsTest, AnIndexOutsideTheLinesIsAnError) {
  Fill("a");
  EXPECT_EQ("List index out of bounds (2)", MessageOf<EStringListError>([&] { Lines().Insert(2, "b=1"); }));
  EXPECT_EQ("List index out of bounds (-1)", MessageOf<EStringListError>([&] { Lines().Insert(-1, "b=1"); }));
  EXPECT_EQ("List index out of bounds (1)", MessageOf<EStringListError>([&] { Lines().GetStrings(1); }));
  EXPECT_EQ("List index out of bounds (1)", MessageOf<EStringListError>([&] { Lines().Delete(1); }));
  EXPECT_EQ("List index out of bounds (1)", MessageOf<EStringListError>([&] { Lines().GetObjects(1); }));
  EXPECT_EQ("a", TreeText());
}

TEST_F(ItemStringsTest, DeletingALineFreesItsItemAndAllBelow) {
  Fill("a [b [c] d] e");
  Lines().Delete(1);
  EXPECT_EQ("a [d] e", TreeText());
  Lines().Delete(0);
  EXPECT_EQ("e", TreeText());
}

TEST_F(ItemStringsTest, WithShowVisibleOnlyTheRowOfThatNumberIsDeleted) {
  Fill("a [b] c");
  Lines().SetShowVisibleOnly(true);
  Lines().Delete(1);
  EXPECT_EQ("a [b]", TreeText());
}

TEST_F(ItemStringsTest, ClearFreesAllItems) {
  Fill("a [b] c");
  Lines().Clear();
  EXPECT_EQ("", TreeText());
  EXPECT_EQ(0, Lines().GetCount());
}

TEST_F(ItemStringsTest, AssigningLinesBuildsTheTree) {
  const auto lines = Make<TStringList>();
  lines->SetText("a=1\r\na.b=2\r\nc.d.e=3\r\na.b=4");
  Fill("old");
  FEditor->SetStrings(*lines);
  // Duplicates are allowed, also of the parent of what comes later.
  EXPECT_EQ("a [b b] c [d [e]]", TreeText());
  EXPECT_EQ("a=1 a.b=2 a.b=4 c= c.d= c.d.e=3", Text());
}

// Objects of lines that are added.

TEST_F(ItemStringsTest, TheObjectOfAnAddedLineGoesToTheItemThatItsPathLeadsTo) {
  Fill("A [x] c");
  FEditor->SetSorted(true);
  Lines().AddObject("A.B=1", FEditor.get());
  EXPECT_EQ(FEditor.get(), Item("A.B").GetItemObject());
  EXPECT_EQ(nullptr, Item("A").GetItemObject());
  Lines().InsertObject(0, "b=1", &Items());
  EXPECT_EQ(&Items(), Item("b").GetItemObject());
}

TEST_F(ItemStringsTest, ALineThatComesTwiceSetsTheValueWhereNamesAreUnique) {
  FEditor->SetPropertyOptions({propUnique});
  const auto lines = Make<TStringList>();
  lines->Add("a=1");
  lines->AddObject("a=2", FEditor.get());
  Lines().Assign(lines.get());
  EXPECT_EQ("a=2", Text());
  EXPECT_EQ(FEditor.get(), Item("a").GetItemObject());
}

TEST_F(ItemStringsTest, ALineWithoutARowTakesItsObjectAllTheSame) {
  Fill("a [b]");
  Lines().SetShowVisibleOnly(true);
  Lines().AddObject("a.n=1", FEditor.get());
  EXPECT_EQ("a=", Text());
  EXPECT_EQ(FEditor.get(), Item("a.n").GetItemObject());
}

}  // namespace
}  // namespace kt::tests
