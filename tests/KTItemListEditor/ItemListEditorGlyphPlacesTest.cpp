#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/ItemProbe.h"
#include "support/PaintLog.h"

#include <QPainter>

namespace kt::tests {
namespace {

/// An item that may keep its children to itself.
class TClosedItem : public TKTItemProp {
 public:
  using Inherited = TKTItemProp;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TClosedItem>("TClosedItem").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  bool IsExpandable() override { return !IsClosed && TKTItemProp::IsExpandable(); }

  static inline bool IsClosed = false;

 protected:
  explicit TClosedItem(TCollection* collection) : TKTItemProp(collection) {}
};

class TGlyphEditor : public TKTItemListEditor {
 public:
  using TKTItemListEditor::DrawCell;

 protected:
  explicit TGlyphEditor(TComponent* owner = nullptr) : TKTItemListEditor(owner) {}
  std::unique_ptr<TKTItemProps> CreateItems(TPersistent* owner) override {
    return Make<TKTItemProps>(owner, TClosedItem::Class());
  }
};

/// Where the boxes before names stand in their cells.
class ItemListEditorGlyphPlacesTest : public TItemListTest {
 protected:
  ItemListEditorGlyphPlacesTest() {
    FEditor = Make<TGlyphEditor>();
    Fill("a [b]");
  }
  ~ItemListEditorGlyphPlacesTest() override { TClosedItem::IsClosed = false; }

  /// What drawing the name into a cell at the origin draws.
  QString Drawn(int height) {
    TPaintLog log;
    {
      QPainter painter(&log);
      FEditor->GetCanvas().Begin(painter);
      static_cast<TGlyphEditor&>(*FEditor).DrawCell(0, 1, QRect(0, 0, 200, height), {});
      FEditor->GetCanvas().End();
    }
    return QString::fromStdString(log.Take());
  }
  QString Image(int height) {
    return Drawn(height).split(QStringLiteral(" | ")).filter(QStringLiteral("image ")).join(QStringLiteral(" | "));
  }
  void UseGlyph(int height) { FEditor->GetPlusGlyph().GetBitmap().SetImage(QImage(9, height, QImage::Format_RGB32)); }
};

TEST_F(ItemListEditorGlyphPlacesTest, AGlyphIsInTheMiddleOfTheUsualHeightOfRows) {
  UseGlyph(9);
  FEditor->SetDefaultRowHeight(30);
  EXPECT_EQ("image 0,10 9x9", Image(30));
}

/// Next to the first line of a text, and not to the middle of all of them.
TEST_F(ItemListEditorGlyphPlacesTest, InAHigherRowAGlyphStandsWhereItDoesInOthers) {
  UseGlyph(9);
  EXPECT_EQ("image 0,4 9x9", Image(60));
}

TEST_F(ItemListEditorGlyphPlacesTest, AGlyphThatIsHigherByAnOddNumberStandsOutByTheLesserHalfAbove) {
  UseGlyph(19);
  EXPECT_EQ("image 0,0 9x19", Image(18));
  UseGlyph(21);
  EXPECT_EQ("image 0,-1 9x21", Image(18));
}

TEST_F(ItemListEditorGlyphPlacesTest, AnItemThatCannotBeExpandedHasNoGlyphThoughItHasChildren) {
  UseGlyph(9);
  TClosedItem::IsClosed = true;
  ASSERT_TRUE(Item("a").HasVisibleChildren());
  EXPECT_EQ("", Image(18));
  EXPECT_TRUE(Drawn(18).contains("text 13,"));
}

// What a new font paints.

class TFontsEditor : public TProbeEditor {
 public:
  using TProbeEditor::FontChanged;

 protected:
  explicit TFontsEditor(TComponent* owner = nullptr) : TProbeEditor(owner) {}
};

TEST(ItemListEditorFontChangedTest, AnotherFontHasTheGridPainted) {
  const auto editor = Make<TFontsEditor>();
  EXPECT_EQ("editor.Invalidate", Heard([&] { editor->FontChanged(); }));
}

}  // namespace
}  // namespace kt::tests
