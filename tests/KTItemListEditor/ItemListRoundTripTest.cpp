#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/typeinfo/PropInfo.h"
#include "kt/vcl/Registration.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"

#include <algorithm>

namespace kt::tests {
namespace {

/// An editor as the root of a form, with a handler for each event.
class THandlingEditor : public TKTItemListEditor {
 public:
  using Inherited = TKTItemListEditor;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit THandlingEditor(TComponent* owner = nullptr) : TKTItemListEditor(owner) {}

 private:
  void Notify(TObject*) {}
  void Mouse(TObject*, TMouseButton, TShiftState, int, int) {}
  void MouseMoved(TObject*, TShiftState, int, int) {}
  void StartsDrag(TObject*, TDragObject*&) {}
  void DragsOver(TObject*, TObject*, int, int, TDragState, bool&) {}
  void Dropped(TObject*, TObject*, int, int) {}
  void Key(TObject*, quint16&, TShiftState) {}
  void Character(TObject*, QChar&) {}
  void DrawsCell(TObject*, int, int, const QRect&, TGridDrawState) {}
  void SelectsCell(TObject*, int, int, bool&) {}
  void GetsEdit(TObject*, int, int, QString&) {}
  void SetsEdit(TObject*, int, int, const QString&) {}
  void Moved(TObject*, int, int) {}
  void PickList(TObject*, const QString&, TStrings&) {}
  void Validates(TObject*, TKTItemProp*, int) {}
  void Refuses(TObject*, TKTItemProp*, int, const Exception&) {}
  void Hint(TObject*, TKTItemProp*, QString&) {}
  void Categorizes(TObject*, TKTItemProp*, const QString&, QString&) {}
};

const TClassInfo* THandlingEditor::Class() {
  using T = THandlingEditor;
  static const TClassInfo info = TClassBuilder<T>("THandlingEditor")
                                     .Method("Notify", &T::Notify)
                                     .Method("Mouse", &T::Mouse)
                                     .Method("MouseMoved", &T::MouseMoved)
                                     .Method("StartsDrag", &T::StartsDrag)
                                     .Method("DragsOver", &T::DragsOver)
                                     .Method("Dropped", &T::Dropped)
                                     .Method("Key", &T::Key)
                                     .Method("Character", &T::Character)
                                     .Method("DrawsCell", &T::DrawsCell)
                                     .Method("SelectsCell", &T::SelectsCell)
                                     .Method("GetsEdit", &T::GetsEdit)
                                     .Method("SetsEdit", &T::SetsEdit)
                                     .Method("Moved", &T::Moved)
                                     .Method("PickList", &T::PickList)
                                     .Method("Validates", &T::Validates)
                                     .Method("Refuses", &T::Refuses)
                                     .Method("Hint", &T::Hint)
                                     .Method("Categorizes", &T::Categorizes)
                                     .Creatable()
                                     .Done();
  return &info;
}

/// Each property is read from a form's text, and written again as it was; a fresh object does not write it so.
class ItemListRoundTripTest : public testing::TestWithParam<const char*> {
 protected:
  ItemListRoundTripTest() {
    RegisterVisualPlatform();
    RegisterClass(THandlingEditor::Class());
  }
  ~ItemListRoundTripTest() override { UnRegisterClass(THandlingEditor::Class()); }

  static QString OneLine(const std::string& text) { return QString::fromStdString(text).simplified() + u' '; }
  /// The form of an editor with these lines, read and written.
  static QString Written(const QByteArray& lines) {
    TReader reader(BinaryOf("object E: THandlingEditor\n" + lines + "end\n"));
    return OneLine(TextOf(reader.ReadRoot<THandlingEditor>().get()));
  }
  static QString WrittenItem(const QByteArray& lines) {
    return Written("  Items = <\n    item\n" + lines + "    end>\n");
  }
  static QByteArray Line() { return QByteArray(GetParam()) + '\n'; }
  static QString Expected() { return u' ' + QString::fromLatin1(GetParam()).simplified() + u' '; }
  /// Fails with both texts.
  static testing::AssertionResult Has(const QString& text, const QString& part) {
    if (text.contains(part)) return testing::AssertionSuccess();
    return testing::AssertionFailure() << part.toStdString() << " is not in " << text.toStdString();
  }

 private:
  static QByteArray BinaryOf(const QByteArray& text) { return tests::BinaryOf(text.constData()); }
};

using EditorRoundTripTest = ItemListRoundTripTest;

TEST_P(EditorRoundTripTest, APropertyOfTheEditorComesBack) {
  EXPECT_FALSE(Written("").contains(Expected()));
  EXPECT_TRUE(Has(Written(Line()), Expected()));
}

constexpr const char* EditorLines[] = {"Tag = 7",
                                       "Left = 5",
                                       "Top = 6",
                                       "Width = 99",
                                       "Height = 98",
                                       "Cursor = crHandPoint",
                                       "HelpType = htKeyword",
                                       "HelpKeyword = 'grids'",
                                       "Hint = 'h'",
                                       "HelpContext = 7",
                                       "Align = alClient",
                                       "Anchors = [akRight]",
                                       "BiDiMode = bdRightToLeft",
                                       "BorderStyle = bsNone",
                                       "Color = clRed",
                                       "ColCount = 4",
                                       "Constraints.MinWidth = 7",
                                       "DefaultColWidth = 90",
                                       "DefaultRowHeight = 30",
                                       "DefaultDrawing = False",
                                       "DragCursor = crHandPoint",
                                       "DragKind = dkDock",
                                       "DragMode = dmAutomatic",
                                       "Enabled = False",
                                       "FixedColor = clBlue",
                                       "FixedCols = 1",
                                       "Font.Color = clRed",
                                       "GridLineWidth = 2",
                                       "ParentBiDiMode = False",
                                       "ParentColor = True",
                                       "ParentFont = False",
                                       "ParentShowHint = False",
                                       "ScrollBars = ssNone",
                                       "ShowHint = True",
                                       "TabStop = False",
                                       "Visible = False",
                                       "Options = [goVertLine, goEditing]",
                                       "ArrangeByCategory = True",
                                       "CaseSensitive = True",
                                       "DeleteBlanks = False",
                                       "CategoryFont.Color = clGreen",
                                       "DisplayOptions = [doMultiColValues]",
                                       "DropDownRows = 3",
                                       "HideSelection = False",
                                       "Indent = 5",
                                       "Orientation = goHorizontal",
                                       "PathDelimiter = '/'",
                                       "PropertyOptions = [propEdit, propDelete]",
                                       "ShowItemHintStyle = shHintOnly",
                                       "Sorted = True",
                                       "TitleCaptions.Strings = (\n'Key'\n'Text')",
                                       "TitleCaptionFont.Color = clGreen",
                                       "ValueFont.Color = clGreen",
                                       "Items.Categories.Strings = (\n'a=A')",
                                       "Items.DefaultCategoryName = 'Rest'",
                                       "OnClick = Notify",
                                       "OnDblClick = Notify",
                                       "OnMouseDown = Mouse",
                                       "OnMouseEnter = Notify",
                                       "OnMouseLeave = Notify",
                                       "OnMouseMove = MouseMoved",
                                       "OnMouseUp = Mouse",
                                       "OnDragDrop = Dropped",
                                       "OnDragOver = DragsOver",
                                       "OnEndDrag = Dropped",
                                       "OnStartDrag = StartsDrag",
                                       "OnEnter = Notify",
                                       "OnExit = Notify",
                                       "OnKeyDown = Key",
                                       "OnKeyPress = Character",
                                       "OnKeyUp = Key",
                                       "OnColumnMoved = Moved",
                                       "OnDrawCell = DrawsCell",
                                       "OnGetEditMask = GetsEdit",
                                       "OnGetEditText = GetsEdit",
                                       "OnRowMoved = Moved",
                                       "OnSelectCell = SelectsCell",
                                       "OnSetEditText = SetsEdit",
                                       "OnTopLeftChanged = Notify",
                                       "OnCategorize = Categorizes",
                                       "OnEditButtonClick = Notify",
                                       "OnGetPickList = PickList",
                                       "OnShowHints = Hint",
                                       "OnValidate = Validates",
                                       "OnValidated = Validates",
                                       "OnValidateError = Refuses"};

INSTANTIATE_TEST_SUITE_P(Lines, EditorRoundTripTest, testing::ValuesIn(EditorLines));

class ItemRoundTripTest : public ItemListRoundTripTest {};

TEST_P(ItemRoundTripTest, APropertyOfAnItemComesBack) {
  EXPECT_FALSE(WrittenItem("").contains(Expected()));
  EXPECT_TRUE(Has(WrittenItem(Line()), Expected()));
}

constexpr const char* ItemLines[] = {"Font.Color = clRed",
                                     "ValueFont.Color = clRed",
                                     "ParentFont = False",
                                     "ParentValueFont = False",
                                     "Category = True",
                                     "DefaultCategory = True",
                                     "Expanded = True",
                                     "Enabled = False",
                                     "Name = 'n'",
                                     "Value = 'v'",
                                     "Values.Strings = (\n'v')",
                                     "Hint = 'h'",
                                     "ReadOnly = True",
                                     "Visible = False",
                                     "EditStyle = esEllipsis",
                                     "EditMask = '00'",
                                     "OnEditButtonClick = Notify",
                                     "OnGetPickList = PickList",
                                     "OnValidate = Validates",
                                     "OnValidated = Validates",
                                     "OnValidateError = Refuses",
                                     "PickList.Strings = (\n'p')",
                                     "ExpressionMask = True",
                                     "Items.Categories.Strings = (\n'a=A')",
                                     "Items.DefaultCategoryName = 'Rest'",
                                     "Tag = 7"};

INSTANTIATE_TEST_SUITE_P(Lines, ItemRoundTripTest, testing::ValuesIn(ItemLines));

/// The properties that no line of a table names.
QStringList Untested(const TClassInfo* type, const QStringList& lines) {
  QStringList names;
  for (const TPropInfo* property : type->Props()) {
    const QString name = property->Name();
    const bool isTested = std::any_of(lines.begin(), lines.end(), [&](const QString& line) {
      return line.startsWith(name + u' ') || line.startsWith(name + u'.');
    });
    if (!isTested) names += name;
  }
  return names;
}

QStringList ToList(const char* const* begin, size_t count) {
  QStringList list;
  for (size_t i = 0; i < count; ++i) list += QString::fromLatin1(begin[i]);
  return list;
}

/// The number of rows follows the items, action and menu are other components, the tab order needs a parent, the place
/// of a menu and the wheel have no handlers here, glyphs are pictures, and strings are not streamed.
TEST(RoundTripTablesTest, EveryPropertyOfTheEditorIsInTheTableButForThose) {
  EXPECT_EQ(
      "Name Action RowCount PopupMenu TabOrder OnContextPopup OnMouseWheel OnMouseWheelDown OnMouseWheelUp "
      "MinusGlyph PlusGlyph Strings",
      Untested(TKTItemListEditor::Class(), ToList(EditorLines, std::size(EditorLines))).join(u' '));
}

TEST(RoundTripTablesTest, EveryPropertyOfAnItemIsInTheTable) {
  EXPECT_EQ("", Untested(TKTItemProp::Class(), ToList(ItemLines, std::size(ItemLines))).join(u' '));
}

// What is made for writing.

class TCountedItems : public TKTItemProps {
 public:
  using Inherited = TKTItemProps;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TCountedItems>("TCountedItems").Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  ~TCountedItems() override { --Alive; }
  static inline int Alive = 0;

 protected:
  explicit TCountedItems(TPersistent* owner) : TKTItemProps(owner, TKTItemProp::Class()) { ++Alive; }
};

class TCountingEditor : public TKTItemListEditor {
 public:
  using TKTItemListEditor::TKTItemListEditor;

 protected:
  std::unique_ptr<TKTItemProps> CreateItems(TPersistent* owner) override { return Make<TCountedItems>(owner); }
};

TEST(ItemWritingTest, LeavesAreNoLargerForHavingBeenSaved) {
  const auto editor = Make<TCountingEditor>();
  for (int i = 0; i < 10; ++i) editor->GetItems().Add("a", "1");
  const std::string text = TextOf(editor.get());
  // That of the editor, and at most one that was lent to an item.
  EXPECT_GE(2, TCountedItems::Alive);
  editor->GetItems().GetItem(0)->GetItems();
  editor->GetItems().GetItem(1)->GetValues();
  EXPECT_EQ(text, TextOf(editor.get()));
}

TEST(ItemWritingTest, AListThatSomebodyAskedForStaysTheItemsOwnWhenThatIsSaved) {
  const auto editor = Make<TKTItemListEditor>();
  TKTItemProp* item = editor->GetItems().Add("a", {});
  TKTItemProps& items = item->GetItems();
  TextOf(editor.get());
  items.Add("b", {});
  EXPECT_EQ("a [b]", Tree(editor->GetItems()));
}

TEST(ItemWritingTest, AListThatIsAskedForAfterSavingIsTheItemsOwn) {
  const auto editor = Make<TKTItemListEditor>();
  TKTItemProp* item = editor->GetItems().Add("a", {});
  TextOf(editor.get());
  item->GetItems().Add("b", {});
  EXPECT_EQ("a [b]", Tree(editor->GetItems()));
}

}  // namespace
}  // namespace kt::tests
