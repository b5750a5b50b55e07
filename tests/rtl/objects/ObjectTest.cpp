#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/Object.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <gtest/gtest.h>
#include <string>

namespace kt {
namespace {

std::string* Log = nullptr;

class TBase : public TObject {
 public:
  using Inherited = TObject;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TBase>("TBase").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  ~TBase() override { *Log += "~TBase "; }

 protected:
  TBase() = default;
  void Construct() override {
    *Log += "TBase.Construct ";
    Hook();
  }
  void Destruct() override {
    Hook();
    *Log += "TBase.Destruct ";
  }
  virtual void Hook() { *Log += "TBase.Hook "; }
};

class TDerived : public TBase {
 public:
  using Inherited = TBase;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TDerived>("TDerived").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  ~TDerived() override { *Log += "~TDerived "; }

  bool FailInConstruct = false;
  bool FailAfterConstruction = false;
  bool FailInDestruct = false;

 protected:
  TDerived() = default;
  explicit TDerived(const char* failure) {
    FailInConstruct = failure == std::string("construct");
    FailAfterConstruction = failure == std::string("after");
  }
  void Construct() override {
    TBase::Construct();
    *Log += "TDerived.Construct ";
    if (FailInConstruct) throw EInvalidOperation(QStringLiteral("no"));
  }
  void AfterConstruction() override {
    *Log += "AfterConstruction ";
    if (FailAfterConstruction) throw EInvalidOperation(QStringLiteral("no"));
  }
  void BeforeDestruction() override { *Log += "BeforeDestruction "; }
  void Destruct() override {
    *Log += "TDerived.Destruct ";
    TBase::Destruct();
    if (FailInDestruct) throw EInvalidOperation(QStringLiteral("no"));
  }
  void Hook() override { *Log += "TDerived.Hook "; }
};

class TThrowingConstructor : public TObject {
 protected:
  TThrowingConstructor() { throw EInvalidOperation(QStringLiteral("early")); }
};

class TListener : public TObject {
 public:
  int Seen = 0;
  int Defaulted = 0;
  void Dispatch(TMessage& message) override {
    if (message.Msg != 7) return TObject::Dispatch(message);
    ++Seen;
    message.Result = message.WParam + message.LParam;
  }
  void DefaultHandler(TMessage&) override { ++Defaulted; }
};

class ObjectTest : public ::testing::Test {
 protected:
  ObjectTest() { Log = &FLog; }
  ~ObjectTest() override { Log = nullptr; }
  std::string FLog;
};

TEST_F(ObjectTest, VirtualCallsReachTheMostDerivedClassWhileConstructingAndDestroying) {
  { const auto object = Make<TDerived>(); }
  EXPECT_EQ(
      "TBase.Construct TDerived.Hook TDerived.Construct AfterConstruction "
      "BeforeDestruction TDerived.Destruct TDerived.Hook TBase.Destruct ~TDerived ~TBase ",
      FLog);
}

TEST_F(ObjectTest, DeleteThroughTheRootClassRunsTheWholeDestruction) {
  TObject* object = Make<TDerived>().release();
  FLog.clear();
  delete object;
  EXPECT_EQ("BeforeDestruction TDerived.Destruct TDerived.Hook TBase.Destruct ~TDerived ~TBase ", FLog);
}

TEST_F(ObjectTest, AThrowingConstructDestroysWithoutBeforeDestruction) {
  EXPECT_THROW(static_cast<void>(Make<TDerived>("construct")), EInvalidOperation);
  EXPECT_EQ(
      "TBase.Construct TDerived.Hook TDerived.Construct TDerived.Destruct TDerived.Hook TBase.Destruct ~TDerived "
      "~TBase ",
      FLog);
}

TEST_F(ObjectTest, AThrowingAfterConstructionDestroysTheObject) {
  EXPECT_THROW(static_cast<void>(Make<TDerived>("after")), EInvalidOperation);
  EXPECT_TRUE(FLog.ends_with("TDerived.Destruct TDerived.Hook TBase.Destruct ~TDerived ~TBase "));
}

TEST_F(ObjectTest, AThrowingCppConstructorPassesTheExceptionOn) {
  EXPECT_THROW(static_cast<void>(Make<TThrowingConstructor>()), EInvalidOperation);
}

/// Frees itself at every step on its way out, as a handler that hears of that may do.
class TImpatient : public TObject {
 public:
  ~TImpatient() override {
    *Log += "gone ";
    delete this;
  }

 protected:
  void BeforeDestruction() override {
    *Log += "before ";
    delete this;
  }
  void Destruct() override {
    *Log += "destruct ";
    delete this;
    TObject::Destruct();
  }
};

TEST_F(ObjectTest, AnObjectThatIsFreedWhileItIsBeingDestroyedIsDestroyedOnce) {
  Make<TImpatient>().reset();
  EXPECT_EQ("before destruct gone ", FLog);
}

class TStillborn : public TImpatient {
 protected:
  void Construct() override { throw EInvalidOperation(QStringLiteral("no")); }
};

TEST_F(ObjectTest, AnObjectThatIsFreedWhileItsFailedConstructionIsUndoneIsDestroyedOnce) {
  EXPECT_THROW(static_cast<void>(Make<TStillborn>()), EInvalidOperation);
  EXPECT_EQ("destruct gone ", FLog);
}

TEST_F(ObjectTest, AnExceptionWhileDestroyingIsReportedAndTheDestructionGoesOn) {
  QString reported;
  const TExceptionHandler previous = SetExceptionHandler([&reported](std::exception_ptr error) {
    try {
      std::rethrow_exception(error);
    } catch (const Exception& caught) {
      reported = caught.Message();
    }
  });
  auto object = Make<TDerived>();
  object->FailInDestruct = true;
  object.reset();
  SetExceptionHandler(previous);
  EXPECT_EQ(QStringLiteral("no"), reported);
  EXPECT_TRUE(FLog.ends_with("~TDerived ~TBase "));
}

TEST_F(ObjectTest, TheClassNameIsThatOfTheObjectsOwnClass) {
  const std::unique_ptr<TBase> object = Make<TDerived>();
  EXPECT_EQ(QStringLiteral("TDerived"), object->ClassName());
  EXPECT_EQ(TBase::Class(), object->ClassParent());
}

TEST_F(ObjectTest, TheRootClassHasNoParent) { EXPECT_EQ(nullptr, TObject::Class()->ClassParent()); }

TEST_F(ObjectTest, AnObjectInheritsFromItsOwnClassAndItsAncestorsOnly) {
  const auto object = Make<TBase>();
  EXPECT_TRUE(object->InheritsFrom(TBase::Class()));
  EXPECT_TRUE(object->InheritsFrom(TObject::Class()));
  EXPECT_FALSE(object->InheritsFrom(TDerived::Class()));
}

TEST_F(ObjectTest, ClassNameIsIgnoresCaseAndAncestors) {
  const auto object = Make<TDerived>();
  EXPECT_TRUE(object->ClassNameIs(u"tderived"));
  EXPECT_FALSE(object->ClassNameIs(u"TBase"));
}

TEST_F(ObjectTest, DispatchReachesTheHandlerOfTheMessagesNumber) {
  const auto listener = Make<TListener>();
  TMessage message{.Msg = 7, .WParam = 2, .LParam = 3};
  listener->Dispatch(message);
  EXPECT_EQ(5, message.Result);
  EXPECT_EQ(0, listener->Defaulted);
}

TEST_F(ObjectTest, UnknownMessagesEndInTheDefaultHandler) {
  const auto listener = Make<TListener>();
  TMessage message{.Msg = 8};
  listener->Dispatch(message);
  EXPECT_EQ(1, listener->Defaulted);
}

TEST_F(ObjectTest, AnInstanceCanBeMadeThroughItsClassReference) {
  const std::unique_ptr<TObject> object(TDerived::Class()->CreateInstance(nullptr));
  EXPECT_EQ(TDerived::Class(), object->ClassType());
}

}  // namespace
}  // namespace kt
