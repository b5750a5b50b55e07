// Adding and deleting.
#include "examples/designer/document/DocumentFixture.h"
#include "kt/vcl/menus/PopupMenu.h"
#include "kt/vcl/stdctrls/Button.h"

namespace designer::tests {
namespace {

class FormDocumentEditsTest : public TDocumentTest {
 protected:
  const std::unique_ptr<TFormDocument> FDocument = Opened();

  kt::TControl& Button(const char* name) { return dynamic_cast<kt::TControl&>(*Named(*FDocument, name)); }
};

TEST_F(FormDocumentEditsTest, NewNamesCountFromOneAndPassByTakenOnes) {
  EXPECT_EQ("Button1", FDocument->NewName(u"TButton"));
  EXPECT_EQ("Box2", FDocument->NewName(u"TBox"));
  EXPECT_EQ("OpenSsl1", FDocument->NewName(u"OpenSsl"));
  EXPECT_EQ("Component1", FDocument->NewName(u"T"));
}

TEST_F(FormDocumentEditsTest, AControlComesToItsPlaceWithItsOwnSize) {
  kt::TComponent* added =
      FDocument->Add(kt::TButton::Class(), Named(*FDocument, "Box1"), QRect(QPoint(30, 40), QSize()));
  EXPECT_EQ("Button1", added->GetName());
  EXPECT_EQ(Named(*FDocument, "Box1"), FDocument->ParentOf(added));
  EXPECT_EQ(QRect(30, 40, 75, 25), Button("Button1").GetBoundsRect());
  EXPECT_TRUE(added->HasState(kt::csDesigning));
  EXPECT_EQ("Button1", kt::GetStrProp(added, u"Caption"));
}

TEST_F(FormDocumentEditsTest, AControlComesToItsPlaceWithAGivenSize) {
  FDocument->Add(kt::TButton::Class(), nullptr, QRect(1, 2, 33, 44));
  EXPECT_EQ(&FDocument->Form(), FDocument->ParentOf(Named(*FDocument, "Button1")));
  EXPECT_EQ(QRect(1, 2, 33, 44), Button("Button1").GetBoundsRect());
}

TEST_F(FormDocumentEditsTest, WhatTakesNoControlsPassesThemOn) {
  const auto parentOf = [this](const char* name) {
    kt::TComponent* added = FDocument->Add(kt::TButton::Class(), Named(*FDocument, name), QRect());
    return FDocument->ParentOf(added)->GetName();
  };
  EXPECT_EQ("Box1", parentOf("OkButton"));
  EXPECT_EQ("Box1", parentOf("Alien1"));
  EXPECT_EQ("OrderForm", parentOf("Menu1"));
  EXPECT_EQ("Inner1", parentOf("Inner1"));
}

TEST_F(FormDocumentEditsTest, AComponentWithoutAWindowShowsWhereItWasPut) {
  kt::TComponent* added = FDocument->Add(kt::TPopupMenu::Class(), Named(*FDocument, "Box1"), QRect(30, 40, 5, 5));
  EXPECT_EQ("PopupMenu1", added->GetName());
  EXPECT_EQ(30 + (40 << 16), added->GetDesignInfo());
  kt::TComponent* item = FDocument->Add(kt::TMenuItem::Class(), added, QRect());
  EXPECT_EQ(added, FDocument->ParentOf(item));
}

TEST_F(FormDocumentEditsTest, AnAddedComponentAddsItsLinesBehindItsSiblings) {
  FDocument->Add(kt::TButton::Class(), Named(*FDocument, "Box1"), QRect(30, 40, 75, 25));
  QByteArray file = FDocument->FileBytes();
  const qsizetype from = file.indexOf("    object Button1: TButton\n");
  const qsizetype to = file.indexOf("    end\n", from) + 8;
  EXPECT_EQ("    end\n  end\n  object Menu1", file.mid(from - 8, 8) + file.mid(to, 20).left(20));
  EXPECT_EQ(kDocumentForm, file.remove(from, to - from));
}

TEST_F(FormDocumentEditsTest, WhatIsNoComponentCannotBeAdded) {
  EXPECT_EQ("A TPersistent cannot be put on a form",
            MessageOf<EDocumentError>([this] { FDocument->Add(kt::TPersistent::Class(), nullptr, QRect()); }));
  EXPECT_EQ("A TControl cannot be put on a form",
            MessageOf<EDocumentError>([this] { FDocument->Add(kt::TControl::Class(), nullptr, QRect()); }));
  EXPECT_THROW(FDocument->Add(nullptr, nullptr, QRect()), EDocumentError);
  EXPECT_EQ(kDocumentForm, FDocument->FileBytes());
}

TEST_F(FormDocumentEditsTest, ADeletedComponentTakesExactlyItsLines) {
  FDocument->Delete(All(*FDocument, {"Menu1"}));
  QByteArray wanted(kDocumentForm);
  const qsizetype from = wanted.indexOf("  object Menu1");
  EXPECT_EQ(wanted.remove(from, wanted.size() - from - 4), FDocument->FileBytes());
}

TEST_F(FormDocumentEditsTest, OthersStayInTheirOrder) {
  FDocument->Delete(All(*FDocument, {"OkButton"}));
  EXPECT_EQ("OrderForm[Box1[Alien1[Inner1] CancelButton] Menu1[Open1]]", Tree(*FDocument));
}

TEST_F(FormDocumentEditsTest, AStandInGoesWithWhatIsBelowIt) {
  FDocument->Delete(All(*FDocument, {"Alien1"}));
  EXPECT_EQ("OrderForm[Box1[OkButton CancelButton] Menu1[Open1]]", Tree(*FDocument));
  EXPECT_EQ(nullptr, FDocument->Find(u"Inner1"));
}

TEST_F(FormDocumentEditsTest, ParentsAndTheirChildrenCanBeDeletedTogether) {
  FDocument->Delete(All(*FDocument, {"CancelButton", "Box1", "OkButton", "Open1"}));
  EXPECT_EQ("OrderForm[Menu1]", Tree(*FDocument));
}

TEST_F(FormDocumentEditsTest, TheFormItselfAndStrangersStay) {
  EXPECT_EQ("The form itself (OrderForm) cannot be deleted", MessageOf<EDocumentError>([this] {
              FDocument->Delete({Named(*FDocument, "OkButton"), &FDocument->Form()});
            }));
  const auto other = Opened();
  EXPECT_EQ("The component is not on OrderForm",
            MessageOf<EDocumentError>([&] { FDocument->Delete(All(*other, {"OkButton"})); }));
  EXPECT_THROW(FDocument->Delete({nullptr}), EDocumentError);
  EXPECT_EQ(kDocumentForm, FDocument->FileBytes());
}

}  // namespace
}  // namespace designer::tests
