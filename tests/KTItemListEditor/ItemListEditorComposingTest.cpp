#include "KTItemListEditor/ItemListEditorInputFixture.h"

#include <QInputMethodEvent>

namespace kt::tests {
namespace {

/// What input methods compose and commit.
class ItemListEditorComposingTest : public TItemListInputTest {
 protected:
  static void Send(QInputMethodEvent& event) { QApplication::sendEvent(QApplication::focusWidget(), &event); }
  static void Compose(const QString& text) {
    QInputMethodEvent event(text, {});
    Send(event);
  }
  static void Commit(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    Send(event);
  }
  /// Where the caret stands in what the in-place editor shows.
  int CaretLeft() {
    return FEditor->InplaceEditor()->GetHandle()->inputMethodQuery(Qt::ImCursorRectangle).toRect().left();
  }
};

TEST_F(ItemListEditorComposingTest, ComposedTextOpensAHiddenEditor) {
  Show("a");
  CloseEditor();
  ASSERT_FALSE(IsEditorOpen());
  ASSERT_NE(nullptr, FEditor->InplaceEditor());
  Compose(QStringLiteral("n"));
  EXPECT_TRUE(IsEditorOpen());
  EXPECT_TRUE(FEditor->InplaceEditor()->Focused());
  Commit(QStringLiteral("\u306B"));
  EXPECT_EQ(QStringLiteral("\u306B"), EditorText());
}

TEST_F(ItemListEditorComposingTest, WhatOpensTheEditorIsComposedInThere) {
  Show("a");
  CloseEditor();
  Compose(QStringLiteral("n"));
  const int before = CaretLeft();
  Compose({});
  const int after = CaretLeft();
  EXPECT_GT(before, after);
}

TEST_F(ItemListEditorComposingTest, ComposedTextPassesTheExpression) {
  Fill("a");
  Item("a").SetExpressionMask(true);
  Item("a").SetEditMask(QStringLiteral("[0-9]*"));
  FWindow = std::make_unique<TWindowProbe>(*FEditor);
  FEditor->SetFocus();
  FEditor->SetEditorMode(true);
  Commit(QStringLiteral("12"));
  EXPECT_EQ("12", EditorText());
  Commit(QStringLiteral("x"));
  EXPECT_EQ("12", EditorText());
  Compose(QStringLiteral("y"));
  EXPECT_EQ("12", EditorText());
}

}  // namespace
}  // namespace kt::tests
