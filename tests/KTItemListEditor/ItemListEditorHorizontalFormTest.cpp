#include "kt/KTItemListEditor/Registration.h"
#include "kt/KTObjectInspector.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "support/FormText.h"
#include "support/ItemLists.h"
#include "support/Samples.h"

#include <QCoreApplication>

namespace kt::tests {
namespace {

/// Where the cursor is in an editor that has just been read from a form: "col,row".
class ItemListEditorHorizontalFormTest : public TItemListTest {
 protected:
  ItemListEditorHorizontalFormTest() { RegisterItemListEditor(); }

  static std::string CursorOf(const TCustomGrid& grid) {
    return std::to_string(grid.GetCol()) + ',' + std::to_string(grid.GetRow());
  }
  template <class T>
  static std::string CursorIn(const QByteArray& form) {
    const auto loaded = Make<T>();
    TReader(form).ReadRootComponent(loaded.get());
    return CursorOf(*loaded);
  }
};

TEST_F(ItemListEditorHorizontalFormTest, AnEditorThatIsTextStandsOnTheFirstValue) {
  EXPECT_EQ("1,1",
            CursorIn<TKTItemListEditor>(BinaryOf("object E: TKTItemListEditor\n  Orientation = goHorizontal\nend\n")));
}

TEST_F(ItemListEditorHorizontalFormTest, AnInspectorThatIsTextStandsOnTheFirstValue) {
  EXPECT_EQ("1,1", CursorIn<TKTObjectInspector>(
                       BinaryOf("object E: TKTObjectInspector\n  Orientation = goHorizontal\nend\n")));
}

TEST_F(ItemListEditorHorizontalFormTest, AnEditorThatWasStoredOnAValueComesBackOnOne) {
  Fill("a b c");
  FEditor->SetOrientation(goHorizontal);
  ASSERT_EQ("1,1", CursorOf(*FEditor));
  EXPECT_EQ("1,1", CursorIn<TKTItemListEditor>(WriteComponentToBinary(FEditor.get())));
}

TEST_F(ItemListEditorHorizontalFormTest, AnInspectorThatWasStoredOnAValueComesBackOnOne) {
  const auto inspector = Make<TKTObjectInspector>();
  inspector->SetOrientation(goHorizontal);
  ASSERT_EQ("1,1", CursorOf(*inspector));
  EXPECT_EQ("1,1", CursorIn<TKTObjectInspector>(WriteComponentToBinary(inspector.get())));
}

TEST_F(ItemListEditorHorizontalFormTest, AnInspectorIsStillOnAValueWhenItHasScanned) {
  const auto inspector = Make<TKTObjectInspector>();
  TReader(BinaryOf("object E: TKTObjectInspector\n  Orientation = goHorizontal\nend\n"))
      .ReadRootComponent(inspector.get());
  const auto sample = Make<TSample>();
  inspector->GetObjects().Add(sample.get());
  QCoreApplication::sendPostedEvents();
  EXPECT_GT(inspector->GetColCount(), 2);
  EXPECT_EQ("1,1", CursorOf(*inspector));
}

TEST_F(ItemListEditorHorizontalFormTest, WithoutTitlesTheCursorIsOnTheFirstValueToo) {
  const char* const across =
      "object E: TKTItemListEditor\n  DisplayOptions = [doShowReadOnly]\n  Orientation = goHorizontal\nend\n";
  EXPECT_EQ("0,1", CursorIn<TKTItemListEditor>(BinaryOf(across)));
  const char* const down = "object E: TKTItemListEditor\n  DisplayOptions = [doShowReadOnly]\nend\n";
  EXPECT_EQ("1,0", CursorIn<TKTItemListEditor>(BinaryOf(down)));
}

TEST_F(ItemListEditorHorizontalFormTest, AnEditorWithoutTitlesComesBackWithItsValues) {
  Fill("a b c");
  FEditor->SetDisplayOptions({doShowReadOnly});
  FEditor->SetOrientation(goHorizontal);
  const auto loaded = Make<TKTItemListEditor>();
  TReader(WriteComponentToBinary(FEditor.get())).ReadRootComponent(loaded.get());
  EXPECT_EQ(3, loaded->GetColCount());
  EXPECT_EQ(2, loaded->GetRowCount());
  EXPECT_EQ("0,1", CursorOf(*loaded));
}

TEST_F(ItemListEditorHorizontalFormTest, AnEditorOfSeveralValuesComesBackWithAllOfThem) {
  FEditor->SetDisplayOptions({doShowReadOnly, doColumnTitles, doMultiColValues});
  FEditor->SetColCount(4);
  FEditor->SetOrientation(goHorizontal);
  ASSERT_EQ(4, FEditor->GetRowCount());
  const auto loaded = Make<TKTItemListEditor>();
  TReader(WriteComponentToBinary(FEditor.get())).ReadRootComponent(loaded.get());
  EXPECT_EQ(4, loaded->GetRowCount());
  EXPECT_EQ(2, loaded->GetColCount());
  EXPECT_EQ("1,1", CursorOf(*loaded));
}

/// The blank line takes the place of the titles that are not there.
TEST_F(ItemListEditorHorizontalFormTest, AnEmptyEditorWithoutTitlesHasOneLine) {
  const auto loaded = Make<TKTItemListEditor>();
  TReader(BinaryOf("object E: TKTItemListEditor\n  DisplayOptions = [doShowReadOnly]\nend\n"))
      .ReadRootComponent(loaded.get());
  EXPECT_EQ(1, loaded->GetRowCount());
}

TEST_F(ItemListEditorHorizontalFormTest, WhereNamesCanBeEditedTheCursorIsOnOne) {
  const char* const form =
      "object E: TKTItemListEditor\n  Orientation = goHorizontal\n  PropertyOptions = [propEdit]\nend\n";
  EXPECT_EQ("1,0", CursorIn<TKTItemListEditor>(BinaryOf(form)));
}

TEST_F(ItemListEditorHorizontalFormTest, WhereWholeRowsAreSelectedTheCursorStaysInTheFirstColumn) {
  const char* const form =
      "object E: TKTItemListEditor\n  Options = [goEditing, goRowSelect]\n  DisplayOptions = [doShowReadOnly]\nend\n";
  EXPECT_EQ("0,0", CursorIn<TKTItemListEditor>(BinaryOf(form)));
}

}  // namespace
}  // namespace kt::tests
