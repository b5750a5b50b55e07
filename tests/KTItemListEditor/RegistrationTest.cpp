#include "kt/KTItemListEditor.h"
#include "kt/KTItemListEditor/Registration.h"
#include "kt/rtl/objects/ClassRegistry.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

TEST(RegistrationTest, FormsCanNameTheEditor) {
  RegisterItemListEditor();
  EXPECT_EQ(TKTItemListEditor::Class(), GetClass(u"TKTItemListEditor"));
}

TEST(RegistrationTest, RegisteringAgainChangesNothing) {
  RegisterItemListEditor();
  RegisterItemListEditor();
  EXPECT_EQ(TKTItemListEditor::Class(), GetClass(u"TKTItemListEditor"));
}

}  // namespace
}  // namespace kt::tests
