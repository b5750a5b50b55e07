#include "inspectdump/InspectedForm.h"
#include "kt/rtl/objects/Exceptions.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kt::tests {
namespace {

using testing::HasSubstr;
using testing::Not;

class InspectedFormTest : public testing::Test {
 protected:
  /// A file with a form on which a button of an unknown class stands, too.
  QString FileWith(const char* form) {
    QFile file(FFolder.filePath("form.dfm"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(form);
    return file.fileName();
  }
  static std::string TextOf(TInspectedForm& form) { return form.Text().toStdString(); }
  static std::string ContentOf(const QString& fileName) {
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
  }
  static QString ErrorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const Exception& error) {
      return error.Message();
    }
    return "none";
  }

  QTemporaryDir FFolder;
  const QString FFile = FileWith(
      "object Menu: TPopupMenu\n  AutoPopup = False\n  object Open: TMenuItem\n    Caption = 'Open'\n  end\n"
      "  object Thing: TNobodyKnows\n    Secret = 5\n  end\nend\n");
};

TEST_F(InspectedFormTest, EveryComponentIsListedWithItsPropertiesAndWhatIsModified) {
  TInspectedForm form(FFile);
  const std::string text = TextOf(form);
  EXPECT_THAT(text, HasSubstr("Menu: TPopupMenu\n"));
  EXPECT_THAT(text, HasSubstr("  * AutoPopup = False\n"));
  EXPECT_THAT(text, HasSubstr("  Open: TMenuItem\n"));
  EXPECT_THAT(text, HasSubstr("    * Caption = Open\n"));
  EXPECT_THAT(text, HasSubstr("      Checked = False\n"));
  EXPECT_THAT(text, HasSubstr("  Thing: TUnknownComponent\n"));
}

TEST_F(InspectedFormTest, PropertiesAreListedBelowTheirCategoriesWhenThatIsWanted) {
  TInspectedForm form(FFile);
  EXPECT_THAT(TextOf(form), Not(HasSubstr("[Action]")));
  form.SetCategories(true);
  EXPECT_THAT(TextOf(form), HasSubstr("    [Action]\n"));
}

TEST_F(InspectedFormTest, ValuesAreWrittenAndSavedAndWhatNobodyKnowsIsKept) {
  TInspectedForm form(FFile);
  form.SetValue("AutoPopup", "True");
  form.SetValue("Menu.Open.Caption", "Close");
  form.Save();
  const std::string saved = ContentOf(FFile);
  EXPECT_THAT(saved, HasSubstr("Caption = 'Close'"));
  EXPECT_THAT(saved, Not(HasSubstr("AutoPopup")));
  EXPECT_THAT(saved, HasSubstr("object Thing: TNobodyKnows"));
  EXPECT_THAT(saved, HasSubstr("Secret = 5"));
}

TEST_F(InspectedFormTest, WhatCannotBeWrittenIsRefused) {
  TInspectedForm form(FFile);
  EXPECT_EQ("Open.Nothing: there is no such property", ErrorOf([&] { form.SetValue("Open.Nothing", "1"); }));
  EXPECT_EQ("Invalid property element: maybe", ErrorOf([&] { form.SetValue("AutoPopup", "maybe"); }));
}

}  // namespace
}  // namespace kt::tests
