#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/PropInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/graphics/Font.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

#include <functional>

namespace kt::tests {
namespace {

/// An editor as the root of a form: with a handler that forms know by name, two value columns, and something to do
/// while it is being loaded.
class TStreamedEditor : public TKTItemListEditor {
 public:
  using Inherited = TKTItemListEditor;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TStreamedEditor>("TStreamedEditor")
                                       .Method("HandleValidate", &TStreamedEditor::HandleValidate)
                                       .Creatable()
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  void HandleValidate(TObject*, TKTItemProp* item, int) { Validated += item->GetName(); }
  void SetArrangeByCategory(bool value) override {
    if (HasState(csLoading) && WhileLoading) WhileLoading(*this);
    TKTItemListEditor::SetArrangeByCategory(value);
  }

  QString Validated;
  static inline std::function<void(TStreamedEditor&)> WhileLoading;

 protected:
  explicit TStreamedEditor(TComponent* owner = nullptr) : TKTItemListEditor(owner) {}
  void Construct() override {
    TKTItemListEditor::Construct();
    SetColCount(3);
  }
};

class ItemListStreamTest : public testing::Test {
 protected:
  ItemListStreamTest() {
    RegisterVisualPlatform();
    RegisterClass(TStreamedEditor::Class());
  }
  ~ItemListStreamTest() override {
    TStreamedEditor::WhileLoading = nullptr;
    UnRegisterClass(TStreamedEditor::Class());
  }

  /// An item with all that an item can have, in a tree.
  void FillWithEverything() {
    TKTItemProps& items = FEditor->GetItems();
    items.AddFullPath("a.b.c", "deep", false);
    TKTItemProp* b = items.FindItemByFullPathName("a.b");
    b->SetHint("a hint");
    b->SetEditMask("000;1;_");
    b->SetExpressionMask(true);
    b->GetPickList().SetText("1\r\ntwo words\r\n");
    b->SetTag(-7);
    b->GetValues().SetText("first\r\nsecond");
    b->GetFont().SetColor(clRed);
    b->GetFont().SetStyle({fsBold});
    b->GetValueFont().SetSize(20);
    b->SetOnValidate({FEditor.get(), &TStreamedEditor::HandleValidate});
    TKTItemProp* category = items.AddCategory("C", false);
    category->SetDefaultCategory(true);
    category->GetItems().Add("x", "1")->SetEnabled(false);
    category->Expand();
    items.Add("hidden", "it's \xC3\xA9")->SetVisible(false);
    items.Add("ellipsis", {})->SetEditStyle(esEllipsis);
  }
  void ReadBack(const QByteArray& binary) {
    TReader reader(binary);
    FCopy = reader.ReadRoot<TStreamedEditor>();
  }
  void ReadBackThroughText() { ReadBack(BinaryOf(TextOf(FEditor.get()).c_str())); }
  /// What the form says of the items, without blanks at the beginnings of lines.
  static std::string ItemsText(TComponent* editor) {
    const QString text = QString::fromStdString(TextOf(editor));
    return text.mid(text.indexOf("  Items = <")).simplified().toStdString();
  }
  /// Puts the cursor into the name column: an item whose value column has it is brought to as many values as columns.
  void LeaveTheValues() {
    FEditor->SetPropertyOptions({propEdit});
    FEditor->SetCol(0);
  }
  void CheckCopy() {
    TKTItemProp* b = FCopy->GetItems().FindItemByFullPathName("a.b");
    EXPECT_EQ("a [b [c]] C [x] hidden ellipsis", Tree(FCopy->GetItems()));
    EXPECT_EQ("a hint", b->GetHint());
    EXPECT_EQ("000;1;_", b->GetEditMask());
    EXPECT_TRUE(b->GetExpressionMask());
    EXPECT_EQ("1\r\ntwo words\r\n", b->GetPickList().GetText());
    EXPECT_EQ(esPickList, b->GetEditStyle());
    EXPECT_EQ(-7, b->GetTag());
    EXPECT_EQ("first\r\nsecond\r\n", b->GetValuesText());
    EXPECT_EQ(clRed, b->GetFont().GetColor());
    EXPECT_EQ(TFontStyles{fsBold}, b->GetFont().GetStyle());
    EXPECT_EQ(20, b->GetValueFont().GetSize());
    EXPECT_FALSE(b->GetParentFont());
    b->Validate();
    EXPECT_EQ("b", FCopy->Validated);
    CheckOthers();
  }
  void CheckOthers() {
    TKTItemProps& items = FCopy->GetItems();
    EXPECT_EQ(items.GetItem(1), items.GetDefaultCategory());
    EXPECT_TRUE(items.GetItem(1)->IsExpanded());
    EXPECT_TRUE(items.GetItem(1)->GetReadOnly());
    EXPECT_FALSE(items.FindItemByFullPathName("C.x")->GetEnabled());
    EXPECT_FALSE(items.GetItem(2)->GetVisible());
    EXPECT_EQ(QStringLiteral("hidden=it's \u00e9"), items.GetItem(2)->GetDisplayName());
    EXPECT_EQ(esEllipsis, items.GetItem(3)->GetEditStyle());
    EXPECT_EQ(WalkedRows(*FCopy), Rows(*FCopy));
    EXPECT_EQ(">a | C | x | ellipsis", Rows(*FCopy));
  }

  std::unique_ptr<TStreamedEditor> FEditor = Make<TStreamedEditor>();
  std::unique_ptr<TStreamedEditor> FCopy;
};

TEST_F(ItemListStreamTest, ATreeWithEverythingComesBackThroughBinary) {
  FillWithEverything();
  ReadBack(WriteComponentToBinary(FEditor.get()));
  CheckCopy();
}

TEST_F(ItemListStreamTest, ATreeWithEverythingComesBackThroughText) {
  FillWithEverything();
  ReadBackThroughText();
  CheckCopy();
}

TEST_F(ItemListStreamTest, WhatComesBackIsWrittenAsTheSame) {
  FillWithEverything();
  ReadBackThroughText();
  EXPECT_EQ(TextOf(FEditor.get()), TextOf(FCopy.get()));
}

TEST_F(ItemListStreamTest, AFreshItemIsWrittenWithWhatHasNoDefault) {
  LeaveTheValues();
  FEditor->GetItems().Add();
  EXPECT_EQ(
      "Items = < item ExpressionMask = False Items.DefaultCategoryName = 'Miscellaneous' Items = <> Tag = 0 end> end",
      ItemsText(FEditor.get()));
}

TEST_F(ItemListStreamTest, ValueAndValuesAreBothWritten) {
  LeaveTheValues();
  FEditor->GetItems().Add();
  FEditor->GetItems().Add("a", "1\r\n2");
  EXPECT_EQ(
      "Items = < item ExpressionMask = False Items.DefaultCategoryName = 'Miscellaneous' Items = <> Tag = 0 end item "
      "Name = 'a' "
      "Value = '1'#13#10'2' Values.Strings = ( '1' '2') ExpressionMask = False Items.DefaultCategoryName = "
      "'Miscellaneous' Items = <> Tag = 0 end> "
      "end",
      ItemsText(FEditor.get()));
}

TEST_F(ItemListStreamTest, TheValueOfTheSelectedItemIsWrittenAsItsOneLineAndComesBackWhole) {
  FEditor->GetItems().Add("a", "1\r\n2");
  FEditor->SetCol(2);
  EXPECT_EQ(
      "Items = < item Name = 'a' Value = '2' Values.Strings = ( '1' '2') ExpressionMask = False "
      "Items.DefaultCategoryName = 'Miscellaneous' Items = <> Tag = 0 end> end",
      ItemsText(FEditor.get()));
  ReadBackThroughText();
  EXPECT_EQ("1\r\n2\r\n", FCopy->GetItems().GetItem(0)->GetValuesText());
}

TEST_F(ItemListStreamTest, AnInheritedFontIsWrittenOnlyBelowAParentOfTheOtherKind) {
  FEditor->GetItems().AddFullPath("a.b", {}, false);
  EXPECT_FALSE(QString::fromStdString(ItemsText(FEditor.get())).contains("Font"));
  FEditor->GetItems().GetItem(0)->SetCategory(true);
  EXPECT_EQ(1, QString::fromStdString(ItemsText(FEditor.get())).count("Font.Name"));
}

TEST_F(ItemListStreamTest, StringsAreNotStreamedForTheyAreTheItems) {
  FEditor->GetItems().Add("a", "1");
  EXPECT_FALSE(QString::fromStdString(ItemsText(FEditor.get())).contains("a=1"));
}

TEST_F(ItemListStreamTest, OptionsComeBack) {
  FEditor->SetPropertyOptions({propEdit, propUnique});
  FEditor->SetDisplayOptions({doColumnTitles, doMultiColValues});
  FEditor->SetCaseSensitive(true);
  FEditor->SetDeleteBlanks(false);
  FEditor->SetPathDelimiter("/");
  FEditor->SetArrangeByCategory(true);
  FEditor->GetTitleCaptions().SetStrings(0, "Name");
  ReadBackThroughText();
  EXPECT_EQ((TILEPropOptions{propEdit, propUnique}), FCopy->GetPropertyOptions());
  EXPECT_EQ((TILEDisplayOptions{doColumnTitles, doMultiColValues}), FCopy->GetDisplayOptions());
  EXPECT_TRUE(FCopy->GetCaseSensitive());
  EXPECT_FALSE(FCopy->GetDeleteBlanks());
  EXPECT_EQ("/", FCopy->GetPathDelimiter());
  EXPECT_TRUE(FCopy->GetArrangeByCategory());
  EXPECT_EQ("Name", FCopy->GetTitleCaptions().GetStrings(0));
}

TEST_F(ItemListStreamTest, ASortedListIsSortedBeforeItsItemsAreRead) {
  FEditor->SetSorted(true);
  FEditor->GetItems().Add("b", {})->GetItems().Add("y", {});
  FEditor->GetItems().Add("a", {});
  ReadBackThroughText();
  EXPECT_TRUE(FCopy->IsSorted());
  EXPECT_TRUE(FCopy->GetItems().GetItem(1)->GetItems().GetSorted());
  EXPECT_EQ("a b [y]", Tree(FCopy->GetItems()));
}

TEST_F(ItemListStreamTest, AnEditorWithEditableNamesIsLoadedWithTheCursorInTheNameColumn) {
  ReadBack(BinaryOf("object E: TStreamedEditor\n  PropertyOptions = [propEdit]\nend\n"));
  EXPECT_EQ(0, FCopy->GetCol());
  ReadBack(BinaryOf("object E: TStreamedEditor\n  PropertyOptions = [propUnique]\nend\n"));
  EXPECT_EQ(1, FCopy->GetCol());
}

TEST_F(ItemListStreamTest, AcrossTheColumnsAnEditorWithEditableNamesIsLoadedWithTheCursorInTheNameRow) {
  ReadBack(BinaryOf("object E: TStreamedEditor\n  Orientation = goHorizontal\n  PropertyOptions = [propEdit]\nend\n"));
  EXPECT_EQ(0, FCopy->GetRow());
  EXPECT_EQ(1, FCopy->GetCol());
  ReadBack(
      BinaryOf("object E: TStreamedEditor\n  Orientation = goHorizontal\n  PropertyOptions = [propUnique]\nend\n"));
  EXPECT_EQ(1, FCopy->GetRow());
}

TEST_F(ItemListStreamTest, CategorizingNeverMovesAnythingWhileLoading) {
  const auto map = Make<TStringList>();
  map->SetCommaText("x=X,x=Y,a=Z");
  TKTItemProp* answer = nullptr;
  TStreamedEditor::WhileLoading = [&](TStreamedEditor& editor) {
    TKTItemProp* x = editor.GetItems().FindItemByFullPathName("a.x");
    answer = editor.Categorize(x, "x", *map);
    EXPECT_EQ(x->GetParent(), answer);
    editor.Categorize(x, *map, false);
    editor.Categorize(x, *map, true);
    editor.Categorize(*map, false);
  };
  ReadBack(
      BinaryOf("object E: TStreamedEditor\n"
               "  Items = <\n    item\n      Name = 'a'\n      Items = <\n        item\n          Name = 'x'\n"
               "        end>\n    end>\n"
               "  ArrangeByCategory = True\nend\n"));
  EXPECT_NE(nullptr, answer);
  EXPECT_EQ("a [x]", Tree(FCopy->GetItems()));
}

TEST_F(ItemListStreamTest, AFormArrangedByCategoryIsLoadedWithItsItemsWhereTheyStood) {
  ReadBack(
      BinaryOf("object E: TStreamedEditor\n"
               "  ArrangeByCategory = True\n"
               "  Items = <\n    item\n      Name = 'a'\n      Items = <\n        item\n          Name = 'x'\n"
               "        end>\n    end\n    item\n      Name = 'b'\n    end>\nend\n"));
  EXPECT_TRUE(FCopy->GetArrangeByCategory());
  EXPECT_EQ("a [x] b", Tree(FCopy->GetItems()));
}

/// The properties whose value in a fresh object is not the declared default.
QString NotAtDefault(TObject& object) {
  QStringList names;
  for (const TPropInfo* property : object.ClassType()->Props()) {
    if (!property->HasDefault()) continue;
    if (GetOrdProp(&object, property) != property->Default()) names += property->Name();
  }
  return names.join(u' ');
}

TEST(PublishedItemsTest, AFreshItemIsAtItsDeclaredDefaults) {
  EXPECT_EQ("", NotAtDefault(*Make<TKTItemProp>(nullptr)));
}

TEST(PublishedItemsTest, AFreshEditorIsAtItsDeclaredDefaultsButForTheIndent) {
  // Deliberately: 17 is never written, and a new editor has 11.
  EXPECT_EQ("Indent", NotAtDefault(*Make<TKTItemListEditor>()));
}

TEST(PublishedItemsTest, TheItemPublishesInThisOrder) {
  QStringList names;
  for (const TPropInfo* property : TKTItemProp::Class()->Props()) names += property->Name();
  EXPECT_EQ(
      "Font ValueFont ParentFont ParentValueFont Category DefaultCategory Expanded Enabled Name Value Values Hint "
      "ReadOnly Visible EditStyle EditMask OnEditButtonClick OnGetPickList OnValidate OnValidated OnValidateError "
      "PickList ExpressionMask Items Tag",
      names.join(u' '));
}

TEST(PublishedItemsTest, TheCollectionPublishesItsCategories) {
  QStringList names;
  for (const TPropInfo* property : TKTItemProps::Class()->Props()) names += property->Name();
  EXPECT_EQ("Categories DefaultCategoryName", names.join(u' '));
}

TEST(PublishedItemsTest, TheLinesPublishWhetherTheyAreThoseOfTheRowsOnly) {
  ASSERT_EQ(1, TKTItemStrings::Class()->Props().size());
  const TPropInfo* property = TKTItemStrings::Class()->Props()[0];
  EXPECT_EQ("ShowVisibleOnly", property->Name());
  EXPECT_EQ(0, property->Default());
}

}  // namespace
}  // namespace kt::tests
