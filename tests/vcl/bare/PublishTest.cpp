// What the visual classes publish in common.
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/grids/DrawGrid.h"
#include "kt/vcl/mask/MaskEdit.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

/// A class that publishes.
struct TPublisher {
  const TClassInfo* (*Class)();

  friend void PrintTo(const TPublisher& publisher, std::ostream* out) {
    *out << publisher.Class()->ClassName().toStdString();
  }
};

class PublishTest : public testing::TestWithParam<TPublisher> {
 protected:
  /// Those of the names that the class does not publish.
  static QString MissingOf(const QStringList& names) {
    QStringList missing;
    for (const QString& name : names) {
      if (!GetParam().Class()->FindProp(name)) missing += name;
    }
    return missing.join(u' ');
  }
};

TEST_P(PublishTest, PlaceAndLook) {
  EXPECT_EQ(MissingOf({"Left", "Top", "Width", "Height", "Align", "Anchors", "Constraints", "Color", "Font",
                       "ParentFont", "BiDiMode", "ParentBiDiMode", "Cursor", "Visible", "Enabled"}),
            "");
}

TEST_P(PublishTest, HelpMenuAndDragging) {
  EXPECT_EQ(MissingOf({"Action", "Hint", "ShowHint", "HelpType", "HelpKeyword", "HelpContext", "PopupMenu", "DragKind",
                       "DragMode", "OnDragDrop", "OnDragOver"}),
            "");
}

TEST_P(PublishTest, MouseAndKeys) {
  EXPECT_EQ(MissingOf({"OnClick", "OnContextPopup", "OnDblClick", "OnMouseDown", "OnMouseEnter", "OnMouseLeave",
                       "OnMouseMove", "OnMouseUp", "OnKeyDown", "OnKeyPress", "OnKeyUp"}),
            "");
}

INSTANTIATE_TEST_SUITE_P(Classes, PublishTest,
                         testing::Values(TPublisher{&TForm::Class}, TPublisher{&TDrawGrid::Class},
                                         TPublisher{&TListBox::Class}, TPublisher{&TMaskEdit::Class}));

class PublishInParentTest : public PublishTest {};

TEST_P(PublishInParentTest, WhatControlsOnAFormHaveBesides) {
  EXPECT_EQ(MissingOf({"ParentColor", "ParentShowHint", "TabOrder", "TabStop", "DragCursor", "OnStartDrag", "OnEndDrag",
                       "OnEnter", "OnExit"}),
            "");
}

INSTANTIATE_TEST_SUITE_P(Classes, PublishInParentTest,
                         testing::Values(TPublisher{&TDrawGrid::Class}, TPublisher{&TListBox::Class},
                                         TPublisher{&TMaskEdit::Class}));

}  // namespace
}  // namespace kt
