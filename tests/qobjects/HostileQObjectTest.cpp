// Getters and setters that do what they should not.
#include "qobjects/QObjectFixture.h"
#include "qobjects/SpecialObjects.h"

#include <stdexcept>

namespace kt::tests {
namespace {

class HostileQObjectTest : public TQObjectTest {
 protected:
  std::unique_ptr<TQtHostile> FObject = std::make_unique<TQtHostile>();
};

TEST_F(HostileQObjectTest, ASetterThatDestroysTheObject) {
  InspectQ({FObject.get()});
  FObject->OnSet = [this] { FObject.reset(); };
  Put("alpha", "3");
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(HostileQObjectTest, ASetterThatDestroysTheObjectBelowAGadget) {
  InspectQ({FObject.get()});
  FObject->OnSet = [this] { FObject.reset(); };
  Put("gadget.inner.place.x", "5");
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(HostileQObjectTest, ASetterThatDestroysTheObjectBelowALine) {
  FInspector->SetInplaceTStrings(true);
  InspectQ({FObject.get()});
  FObject->OnSet = [this] { FObject.reset(); };
  Put("lines.Items[0]", "b");
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(HostileQObjectTest, AGetterThatDestroysTheObjectInAScan) {
  FObject->OnGet = [this] { FObject.reset(); };
  InspectQ({FObject.get()});
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(HostileQObjectTest, AGetterOfAGadgetThatDestroysTheObjectInARefresh) {
  InspectQ({FObject.get()});
  FObject->OnGetGadget = [this] { FObject.reset(); };
  FInspector->RefreshProperties();
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(HostileQObjectTest, AGetterOfAGadgetThatDestroysTheObjectInAWrite) {
  InspectQ({FObject.get()});
  FObject->OnGetGadget = [this] { FObject.reset(); };
  Put("gadget.title", "x");
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(HostileQObjectTest, AGetterOfLinesThatDestroysTheObject) {
  TComponent* component = ComponentOf(FObject.get());
  FObject->OnGetLines = [this] { FObject.reset(); };
  EXPECT_EQ(nullptr, GetObjectProp(component, u"lines"));
}

TEST_F(HostileQObjectTest, AGetterThatChangesAnotherProperty) {
  FObject->OnGet = [this] { ++FObject->Beta; };
  InspectQ({FObject.get()});
  FInspector->RefreshProperties();
  EXPECT_EQ(QString::number(FObject->Beta), Value("beta"));
}

TEST_F(HostileQObjectTest, AGetterThatThrowsIsHeardByWhoeverReads) {
  TComponent* component = ComponentOf(FObject.get());
  FObject->OnGet = [] { throw EConvertError("no value"); };
  EXPECT_THROW(GetOrdProp(component, u"alpha"), EConvertError);
  FObject->OnGet = nullptr;
  EXPECT_EQ(1, GetOrdProp(component, u"alpha"));
}

TEST_F(HostileQObjectTest, AGetterThatThrowsShowsWhatItThrewAndTheRestGoesOn) {
  TQtThrower object;
  object.OnGet = [] { throw EConvertError("no value"); };
  InspectQ({&object});
  for (const char* name : {"alpha", "text", "partner", "sides", "lines"}) EXPECT_EQ("(no value)", Value(name)) << name;
  EXPECT_EQ("9", Value("zeta"));
  EXPECT_NE(nullptr, Find("Tag"));
}

TEST_F(HostileQObjectTest, AnyExceptionIsShown) {
  TQtThrower object;
  object.OnGet = [] { throw std::runtime_error("standard"); };
  InspectQ({&object});
  EXPECT_EQ("(standard)", Value("alpha"));
  object.OnGet = [] { throw 5; };
  FInspector->RefreshProperties();
  EXPECT_EQ("(unknown error)", Value("alpha"));
}

TEST_F(HostileQObjectTest, AGetterThatThrowsNoMoreShowsItsValue) {
  TQtThrower object;
  InspectQ({&object});
  EXPECT_EQ("1", Value("alpha"));
  object.OnGet = [] { throw EConvertError("no value"); };
  FInspector->RefreshProperties();
  EXPECT_EQ("(no value) (no value) 9", Value("alpha") + ' ' + Value("sides") + ' ' + Value("zeta"));
  object.OnGet = nullptr;
  FInspector->RefreshProperties();
  Deliver();
  EXPECT_EQ("1 [AlignLeft]", Value("alpha") + ' ' + Value("sides"));
}

TEST_F(HostileQObjectTest, ASetterThatThrowsIsHeardByWhoeverWrites) {
  InspectQ({FObject.get()});
  FObject->OnSet = [] { throw EConvertError("not this"); };
  EXPECT_THROW(Put("alpha", "3"), EConvertError);
  EXPECT_EQ("1", QString::number(GetOrdProp(ComponentOf(FObject.get()), u"alpha")));
}

}  // namespace
}  // namespace kt::tests
