// Copying and pasting.
#include "examples/designer/document/DocumentFixture.h"
#include "kt/vcl/menus/MenuItem.h"

#include <gmock/gmock.h>

namespace designer::tests {
namespace {

using ::testing::HasSubstr;

class FormDocumentClipboardTest : public TDocumentTest {
 protected:
  const std::unique_ptr<TFormDocument> FDocument = Opened();

  QString Copy(std::initializer_list<const char*> names) { return FDocument->CopyText(All(*FDocument, names)); }
  /// The names of what was pasted.
  QString Paste(const QString& text, const char* parent = "OrderForm") {
    QStringList names;
    for (kt::TComponent* component : FDocument->Paste(text, Named(*FDocument, parent))) names += component->GetName();
    return names.join(u' ');
  }
  QString ReferenceOf(const char* name) {
    kt::TObject* target = kt::GetObjectProp(Named(*FDocument, name), u"Friend");
    return target ? static_cast<kt::TComponent*>(target)->GetName() : QString();
  }
};

TEST_F(FormDocumentClipboardTest, ComponentsAreCopiedAsTextObjectsInTheOrderOfTheForm) {
  const QString text = Copy({"Open1", "OkButton"});
  EXPECT_THAT(text.toStdString(), ::testing::StartsWith("object OkButton: TButton\n  Left = 3\n"));
  EXPECT_THAT(text.toStdString(),
              HasSubstr("  OnClick = OkButtonClick\nend\nobject Open1: TMenuItem\n  Caption = 'Open'\n"));
}

TEST_F(FormDocumentClipboardTest, ChildrenComeWithTheirParentsOnly) {
  const QString text = Copy({"Inner1", "Alien1"});
  EXPECT_THAT(text.toStdString(), ::testing::StartsWith("object Alien1: TNobodyKnows\n  Left = 5\n"));
  EXPECT_EQ(1, text.count("object Inner1"));
  EXPECT_EQ("", Copy({"OrderForm"}));
}

TEST_F(FormDocumentClipboardTest, FreeNamesStay) {
  const QString text = Copy({"Box1"});
  FDocument->Delete(All(*FDocument, {"Box1"}));
  EXPECT_EQ("Box1", Paste(text));
  EXPECT_EQ("OrderForm[Box1[OkButton Alien1[Inner1] CancelButton] Menu1[Open1]]", Tree(*FDocument));
  EXPECT_EQ("OkButton", ReferenceOf("Box1"));
}

TEST_F(FormDocumentClipboardTest, TakenNamesChangeAndReferencesFollow) {
  EXPECT_EQ("TestBox1", Paste(Copy({"Box1"})));
  EXPECT_EQ(
      "OrderForm[Box1[OkButton Alien1[Inner1] CancelButton] TestBox1[Button1 NobodyKnows1[TestBox2] Button2] "
      "Menu1[Open1]]",
      Tree(*FDocument));
  EXPECT_EQ("OkButton", ReferenceOf("Box1"));
  EXPECT_EQ("Button1", ReferenceOf("TestBox1"));
  EXPECT_THAT(FDocument->FileBytes().toStdString(), HasSubstr("Buddy = Button1\n"));
}

TEST_F(FormDocumentClipboardTest, ReferencesToOthersStay) {
  EXPECT_EQ("TestBox1", Paste("object Box1: TTestBox\n  Friend = CancelButton\nend\n"));
  EXPECT_EQ("CancelButton", ReferenceOf("TestBox1"));
}

TEST_F(FormDocumentClipboardTest, NewNamesPassByThoseOfTheText) {
  EXPECT_EQ("TestBox3 TestBox1 TestBox2",
            Paste("object Box1: TTestBox\nend\nobject TestBox1: TTestBox\nend\nobject TestBox2: TTestBox\nend\n"));
}

TEST_F(FormDocumentClipboardTest, OfTwoWithOneNameTheFirstKeepsItAndTheReferences) {
  EXPECT_EQ("A TestBox1 B",
            Paste("object A: TTestBox\nend\nobject A: TTestBox\nend\nobject B: TTestBox\n  Friend = A\nend\n"));
  EXPECT_EQ("A", ReferenceOf("B"));
}

TEST_F(FormDocumentClipboardTest, ControlsComeToTheNextParentThatTakesThem) {
  Paste("object New1: TButton\nend\n", "OkButton");
  EXPECT_EQ("Box1", FDocument->ParentOf(Named(*FDocument, "New1"))->GetName());
  Paste("object New2: TButton\nend\n", "Inner1");
  EXPECT_EQ("Inner1", FDocument->ParentOf(Named(*FDocument, "New2"))->GetName());
}

TEST_F(FormDocumentClipboardTest, MenuItemsComeToTheirMenu) {
  EXPECT_EQ("MenuItem1", Paste(Copy({"Open1"}), "Menu1"));
  EXPECT_EQ("OrderForm[Box1[OkButton Alien1[Inner1] CancelButton] Menu1[Open1 MenuItem1]]", Tree(*FDocument));
}

TEST_F(FormDocumentClipboardTest, AControlThatIsPastedOnAMenuComesToTheForm) {
  Paste("object New1: TButton\nend\n", "Open1");
  EXPECT_EQ(&FDocument->Form(), dynamic_cast<kt::TControl&>(*Named(*FDocument, "New1")).GetParent());
}

TEST_F(FormDocumentClipboardTest, StandInsComeBehindTheirSiblings) {
  EXPECT_EQ("NobodyKnows1", Paste(Copy({"Alien1"}), "Box1"));
  EXPECT_EQ("OrderForm[Box1[OkButton Alien1[Inner1] CancelButton NobodyKnows1[TestBox1]] Menu1[Open1]]",
            Tree(*FDocument));
}

TEST_F(FormDocumentClipboardTest, HandlersComeAlongAsNames) {
  Paste("object New1: TButton\n  OnClick = SomeClick\nend\n");
  EXPECT_THAT(FDocument->FileBytes().toStdString(), HasSubstr("    OnClick = SomeClick\n"));
}

TEST_F(FormDocumentClipboardTest, ATextThatIsNoneIsToldAndChangesNothing) {
  EXPECT_EQ("OBJECT expected on line 1, column 1", MessageOf<kt::EParserError>([this] { Paste("Hello"); }));
  EXPECT_EQ("OBJECT expected on line 2, column 1",
            MessageOf<kt::EParserError>([this] { Paste("object A: TA end\nHello"); }));
  EXPECT_THROW(Paste(""), kt::EParserError);
  EXPECT_EQ(kDocumentForm, FDocument->FileBytes());
}

TEST_F(FormDocumentClipboardTest, AValueThatCannotBeReadIsToldAndChangesNothing) {
  EXPECT_EQ("Error reading Button1.Caption: Invalid property value on line 4, column 3 (OrderForm.Button1.Caption)",
            MessageOf<kt::EReadError>(
                [this] { Paste("object A: TButton\nend\nobject OkButton: TButton\n  Caption = 5\nend\n"); }));
  EXPECT_EQ(kDocumentForm, FDocument->FileBytes());
  EXPECT_EQ(nullptr, FDocument->Find(u"A"));
}

}  // namespace
}  // namespace designer::tests
