#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <QRegularExpression>

#include <algorithm>
#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;

/// What a test frees, and when: at one moment of the component called Self.
struct TPlan {
  const char* Moment = "";
  const char* Victim = "";
};

TPlan Plan;

/// A component each of whose own pieces of code may free a component.
class TMortal : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  static inline std::vector<TMortal*> All;
  ~TMortal() override { std::erase(All, this); }

  static TMortal* Find(QStringView name) {
    const auto found =
        std::find_if(All.begin(), All.end(), [name](const TMortal* other) { return other->GetName() == name; });
    return found == All.end() ? nullptr : *found;
  }
  /// Frees the victim when this is the moment for it.
  static void At(const char* moment) {
    if (qstrcmp(moment, Plan.Moment) != 0) return;
    Plan.Moment = "";
    delete Find(QString::fromLatin1(Plan.Victim));
  }
  void AtMine(const char* moment) const {
    if (GetName() == u"Self") At(moment);
  }

  int GetNumber() const { return FNumber; }
  void SetNumber(int value) {
    FNumber = value;
    AtMine("setter");
  }
  TComponent* GetPartner() const { return FPartner; }
  void SetPartner(TComponent* value) {
    FPartner = value;
    if (value) value->FreeNotification(this);
    AtMine("reference setter");
  }
  tests::TSampleItems& GetItems() { return *FItems; }
  void SetItems(tests::TSampleItems* value) { FItems->Assign(value); }
  void SetName(const QString& value) override {
    TComponent::SetName(value);
    AtMine("SetName");
  }
  TNotifyEvent GetOnAction() const { return FOnAction; }
  void SetOnAction(const TNotifyEvent& value) {
    FOnAction = value;
    AtMine("event setter");
  }

 protected:
  explicit TMortal(TComponent* owner = nullptr) : TComponent(owner) { All.push_back(this); }
  void Construct() override {
    FItems = Make<tests::TSampleItems>(this);
    TComponent::Construct();
    FNumber = 0;
  }
  void Loaded() override {
    TComponent::Loaded();
    AtMine("Loaded");
  }
  /// At the component before Self, when Self comes.
  void Notification(TComponent* component, TOperation operation) override {
    TComponent::Notification(component, operation);
    if (component == FPartner && operation == opRemove) FPartner = nullptr;
    if (operation == opInsert && GetName() == u"Witness" && All.size() == 5) At("Notification");
  }
  void SetParentComponent(TComponent*) override { AtMine("SetParentComponent"); }
  void SetChildOrder(TComponent* child, int) override { static_cast<TMortal*>(child)->AtMine("SetChildOrder"); }
  void DefineProperties(TFiler& filer) override {
    filer.DefineProperty(
        u"Extra",
        [this](TReader& reader) {
          FNumber = reader.ReadInteger();
          AtMine("defined reader");
        },
        {}, false);
    filer.DefineBinaryProperty(
        u"Bytes", [this](const QByteArray&) { AtMine("binary reader"); }, {}, false);
    TComponent::DefineProperties(filer);
  }

 private:
  int FNumber = 0;
  TComponent* FPartner = nullptr;
  TNotifyEvent FOnAction;
  std::unique_ptr<tests::TSampleItems> FItems;
};

const TClassInfo* TMortal::Class() {
  static const TClassInfo info = TClassBuilder<TMortal>("TMortal")
                                     .Property<&TMortal::GetNumber, &TMortal::SetNumber>("Number")
                                     .Property<&TMortal::GetPartner, &TMortal::SetPartner>("Partner")
                                     .Property<&TMortal::GetItems, &TMortal::SetItems>("Items")
                                     .Property<&TMortal::GetOnAction, &TMortal::SetOnAction>("OnAction")
                                     .Creatable()
                                     .Done();
  return &info;
}

constexpr char kFormThatFrees[] = R"(object Root: TMortal
  object Parent: TMortal
    object Before: TMortal
    end
    object Witness: TMortal
    end
    object Self: TAlias [2]
      Number = 1
      Partner = Other
      OnAction = Handler
      Extra = 2
      Bytes = {01}
      Nonsense = 3
      Items = <
        item
          Caption = 'a'
        end>
    end
    object After: TMortal
    end
  end
  object Other: TMortal
  end
end
)";

void ListenTo(TReader& reader) {
  reader.OnFindMethod = [](const QString&) -> TMethod {
    TMortal::At("OnFindMethod");
    return TNotifyEvent([](TObject*) {});
  };
  reader.OnFindComponentClass = [](const QString&) {
    if (TMortal::All.size() == 4) TMortal::At("OnFindComponentClass");
    return TMortal::Class();
  };
  reader.OnCreateComponent = [](const TClassInfo*, TComponent*) -> TComponent* {
    if (TMortal::All.size() == 4) TMortal::At("OnCreateComponent");
    return nullptr;
  };
  reader.OnSetName = [](TComponent* component, QString& name) {
    if (name != u"Self") return;
    // So that it can be found.
    component->TComponent::SetName(name);
    TMortal::At("OnSetName");
  };
  reader.OnError = [](const QString&) {
    TMortal::At("OnError");
    return true;
  };
}

/// "loaded", or the error with its offset as N.
QString Outcome(TComponent* root) {
  TReader reader(BinaryOf(kFormThatFrees));
  ListenTo(reader);
  try {
    reader.ReadRootComponent(root);
    return QStringLiteral("loaded");
  } catch (const Exception& error) {
    return tests::WithoutPlace(error.Message())
        .replace(QRegularExpression(QStringLiteral("offset \\d+")), QStringLiteral("offset N"));
  }
}

/// One moment with the error of a load whose component being read, or one around it, is freed then; none when it is
/// late enough for the load to end well.
struct TMoment {
  const char* Name;
  const char* Error;
};

constexpr char kAtSelf[] = "An object was freed while it was in use at offset N (Self)";

const TMoment Moments[] = {
    {"setter", "Error reading Self.Number: An object was freed while it was in use"},
    {"event setter", "Error reading Self.OnAction: An object was freed while it was in use"},
    {"OnFindMethod", "Error reading Self.OnAction: An object was freed while it was in use"},
    {"defined reader", "Error reading Self.Extra: An object was freed while it was in use"},
    {"binary reader", "Error reading Self.Bytes: An object was freed while it was in use"},
    {"OnError", "Error reading Self.Nonsense: An object was freed while it was in use"},
    {"OnFindComponentClass", kAtSelf},
    {"OnCreateComponent", kAtSelf},
    {"Notification", kAtSelf},
    {"OnSetName", kAtSelf},
    {"SetName", kAtSelf},
    {"SetParentComponent", kAtSelf},
    {"SetChildOrder", kAtSelf},
    {"reference setter", "loaded"},
    {"Loaded", "loaded"},
};

class FreeingHandlersTest : public ::testing::TestWithParam<TMoment> {
 protected:
  FreeingHandlersTest() { RegisterClass(TMortal::Class()); }
  ~FreeingHandlersTest() override { UnRegisterClass(TMortal::Class()); }

  /// Loads with `victim` freed at the moment; what was loaded is freed again.
  static QString WhenFreed(const char* victim) {
    Plan = {GetParam().Name, victim};
    const QString outcome = Outcome(nullptr);
    if (*Plan.Moment) return QStringLiteral("the moment never came");
    delete TMortal::Find(u"Root");
    return outcome;
  }
  /// The same over a root that existed before.
  static QString WhenFreedFromAnExistingForm(const char* victim) {
    TMortal* root = Make<TMortal>().release();
    Plan = {GetParam().Name, victim};
    const QString outcome = Outcome(root);
    if (std::find(TMortal::All.begin(), TMortal::All.end(), root) != TMortal::All.end()) delete root;
    return outcome;
  }
  static void ExpectNothingLeft() { EXPECT_TRUE(TMortal::All.empty()); }
};

std::string TitleOf(const ::testing::TestParamInfo<TMoment>& info) {
  return QString::fromLatin1(info.param.Name).remove(u' ').toStdString();
}

INSTANTIATE_TEST_SUITE_P(Moments, FreeingHandlersTest, ::testing::ValuesIn(Moments), TitleOf);

TEST_P(FreeingHandlersTest, FreeingTheRootEndsTheLoad) {
  EXPECT_EQ(QString::fromLatin1(GetParam().Error), WhenFreed("Root"));
  ExpectNothingLeft();
}

TEST_P(FreeingHandlersTest, FreeingAnExistingRootEndsTheLoad) {
  EXPECT_EQ(QString::fromLatin1(GetParam().Error), WhenFreedFromAnExistingForm("Root"));
  ExpectNothingLeft();
}

TEST_P(FreeingHandlersTest, FreeingTheParentEndsTheLoad) {
  EXPECT_EQ(QString::fromLatin1(GetParam().Error), WhenFreed("Parent"));
  ExpectNothingLeft();
}

TEST_P(FreeingHandlersTest, AnExistingRootSurvivesTheFreeingOfAParent) {
  EXPECT_EQ(QString::fromLatin1(GetParam().Error), WhenFreedFromAnExistingForm("Parent"));
  ExpectNothingLeft();
}

TEST_P(FreeingHandlersTest, FreeingASiblingThatIsCompleteIsAllowed) {
  EXPECT_EQ(QStringLiteral("loaded"), WhenFreed("Before"));
  ExpectNothingLeft();
}

/// The moments at which the component itself has its name.
class SelfFreeingHandlersTest : public FreeingHandlersTest {};

INSTANTIATE_TEST_SUITE_P(Moments, SelfFreeingHandlersTest,
                         ::testing::Values(Moments[0], Moments[1], Moments[2], Moments[3], Moments[4], Moments[5],
                                           Moments[9], Moments[10], Moments[11], Moments[12], Moments[13], Moments[14]),
                         TitleOf);

TEST_P(SelfFreeingHandlersTest, FreeingTheComponentItselfEndsTheLoad) {
  EXPECT_EQ(QString::fromLatin1(GetParam().Error), WhenFreed("Self"));
  ExpectNothingLeft();
}

/// The moments at which the component that is referred to exists.
class LateFreeingHandlersTest : public FreeingHandlersTest {};

INSTANTIATE_TEST_SUITE_P(Moments, LateFreeingHandlersTest, ::testing::Values(Moments[13], Moments[14]), TitleOf);

TEST_P(LateFreeingHandlersTest, FreeingTheReferencedComponentIsAllowed) {
  EXPECT_EQ(QStringLiteral("loaded"), WhenFreed("Other"));
  ExpectNothingLeft();
}

}  // namespace
}  // namespace kt
