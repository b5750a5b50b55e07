// What the walk over all properties has to know of the classes of the visual platform.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/forms/ControlScrollBar.h"
#include "support/Expect.h"
#include "support/VisualWalk.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

const TWalkRules& Rules() {
  static const TWalkRules rules{
      .Handlers = VisualHandlers(),
      .Untouched = {{"TCheckBox.Action", "is done when Checked changes, and is disabled then for want of a handler"},
                    {"TRadioButton.Action", "is done when Checked changes, and is disabled then for want of a handler"},
                    {"TPageControl.ActivePage", "takes only a page of its own"},
                    {"TForm.ActiveControl", "takes only a control that shows in the form itself"}},
      .Choosy = {{"TDrawGrid.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TGroupBox.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TPanel.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TScrollBox.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TControlScrollBar.Position", "is at most what the children need, and there are none"},
                 {"TButton.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TCheckBox.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TRadioButton.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TListBox.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TPageControl.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TPageControl.TabIndex", "is the place among the tabs, and there are none"},
                 {"TTabSheet.PageIndex", "is the place among the pages, and there is no page control"},
                 {"TMaskEdit.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TEdit.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TMemo.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TComboBox.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TScrollBar.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TProgressBar.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TTrackBar.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TMaskEdit.MaxLength", "is the length of the mask, which the walk has set by then"},
                 {"TMaskEdit.Text", "is what the mask of the walk allows"}},
      .Derived = {{"TLabel.Width", "is that of the text as soon as a form is loaded"},
                  {"TLabel.Height", "is that of the text as soon as a form is loaded"}}};
  return rules;
}

std::vector<QString> VisualClasses() {
  RegisterVisualPlatform();
  return WalkedClasses();
}

TEST(PropertyWalkExceptions, EachHasAPropertyAndAReason) {
  RegisterVisualPlatform();
  // A part of forms, which itself stands in none.
  RegisterClasses({TControlScrollBar::Class()});
  EXPECT_EQ(QStringList(), IdleExceptions(Rules()));
}

}  // namespace

TProgramWalk WalkOfProgram() {
  return {&Rules, &RegisterVisualPlatform, [] {}, &VisualClasses};
}

}  // namespace kt::tests
