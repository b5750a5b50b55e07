// Event handlers whose code is elsewhere.
#include "examples/designer/document/DocumentFixture.h"
#include "kt/vcl/controls/Control.h"
#include "kt/vcl/stdctrls/Button.h"

#include <gmock/gmock.h>

namespace designer::tests {
namespace {

class HandlerNamesTest : public TDocumentTest {
 protected:
  const std::unique_ptr<TFormDocument> FDocument = Opened();

  const kt::TPropInfo* Event(const char* component, const char* event) {
    return kt::FindPropInfo(Named(*FDocument, component), QString::fromLatin1(event));
  }
  QString HandlerOf(const char* component, const char* event) {
    return FDocument->HandlerName(Named(*FDocument, component), Event(component, event));
  }
  void SetHandler(const char* component, const char* event, const char* name) {
    FDocument->SetHandlerName(Named(*FDocument, component), Event(component, event), QString::fromLatin1(name));
  }
};

TEST_F(HandlerNamesTest, ReflectionTellsTheNamesOfTheFile) {
  EXPECT_EQ("FormCreate", HandlerOf("OrderForm", "OnCreate"));
  EXPECT_EQ("OkButtonClick", HandlerOf("OkButton", "OnClick"));
  EXPECT_EQ("OkButtonClick", HandlerOf("Open1", "OnClick"));
  EXPECT_EQ("", HandlerOf("CancelButton", "OnClick"));
}

TEST_F(HandlerNamesTest, AHandlerDoesNothing) {
  auto& button = dynamic_cast<kt::TButton&>(*Named(*FDocument, "OkButton"));
  button.OnClick(&button);
  EXPECT_EQ(kDocumentForm, FDocument->FileBytes());
}

TEST_F(HandlerNamesTest, AHandlerIsSetClearedAndSetAgainByName) {
  SetHandler("CancelButton", "OnClick", "CloseClick");
  EXPECT_EQ("CloseClick", HandlerOf("CancelButton", "OnClick"));
  EXPECT_THAT(FDocument->FileBytes().toStdString(),
              ::testing::HasSubstr("      OnClick = CloseClick\n    end\n  end\n"));
  SetHandler("CancelButton", "OnClick", "");
  EXPECT_EQ(kDocumentForm, FDocument->FileBytes());
}

TEST_F(HandlerNamesTest, WhatIsNoNameIsRefused) {
  EXPECT_EQ("OnClick: 'two words' is not a valid method name",
            MessageOf<EDocumentError>([this] { SetHandler("OkButton", "OnClick", "two words"); }));
  EXPECT_EQ("Left is no event", MessageOf<EDocumentError>([this] { SetHandler("OkButton", "Left", "X"); }));
}

TEST_F(HandlerNamesTest, OneNameCanHandleEventsOfSeveralTypes) {
  SetHandler("OkButton", "OnMouseDown", "OkButtonClick");
  EXPECT_EQ("OkButtonClick", HandlerOf("OkButton", "OnMouseDown"));
  EXPECT_EQ("OkButtonClick", HandlerOf("OkButton", "OnClick"));
}

TEST_F(HandlerNamesTest, TheNamesThatFitAnEventAreListed) {
  SetHandler("CancelButton", "OnClick", "CloseClick");
  SetHandler("CancelButton", "OnMouseDown", "Pressed");
  EXPECT_EQ(QStringList({"CloseClick", "FormCreate", "OkButtonClick"}),
            FDocument->HandlerNames(Event("OkButton", "OnClick")));
  EXPECT_EQ(QStringList("Pressed"), FDocument->HandlerNames(Event("OkButton", "OnMouseDown")));
}

TEST_F(HandlerNamesTest, NamesSurviveUndo) {
  SetHandler("CancelButton", "OnClick", "CloseClick");
  FDocument->Commit("Handler");
  FDocument->Undo();
  EXPECT_EQ("", HandlerOf("CancelButton", "OnClick"));
  FDocument->Redo();
  EXPECT_EQ("CloseClick", HandlerOf("CancelButton", "OnClick"));
  EXPECT_EQ("OkButtonClick", HandlerOf("Open1", "OnClick"));
}

}  // namespace
}  // namespace designer::tests
