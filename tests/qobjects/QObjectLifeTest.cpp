// Objects that go at any moment.
#include "KTObjectInspector/InspectorWindowFixture.h"
#include "qobjects/QObjectFixture.h"

#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

namespace kt::tests {
namespace {

/// Hears what its components are told.
class TQtListener : public TComponent {
 public:
  using Inherited = TComponent;
  QStringList Log;

 protected:
  explicit TQtListener(TComponent* owner = nullptr) : TComponent(owner) {}
  void Notification(TComponent* component, TOperation operation) override {
    TComponent::Notification(component, operation);
    if (operation == opRemove) Log += "removed " + component->GetName();
  }
};

class QObjectLifeTest : public TQObjectTest {
 protected:
  static void AddChildren(QObject& parent, int count) {
    for (int i = 0; i < count; ++i) new QObject(&parent);
  }

  std::unique_ptr<TQtKinds> FObject = std::make_unique<TQtKinds>();
};

TEST_F(QObjectLifeTest, AComponentGoesWithItsObjectAndSaysSo) {
  const auto listener = Make<TQtListener>();
  FObject->setObjectName("Gone");
  TComponent* component = ComponentOf(FObject.get());
  const TObjectRef watched(component);
  component->FreeNotification(listener.get());
  FObject.reset();
  EXPECT_FALSE(watched);
  EXPECT_EQ("removed Gone", listener->Log.join(u'|'));
}

TEST_F(QObjectLifeTest, PartsGoWithTheirObject) {
  const TObjectRef part(GetObjectProp(ComponentOf(FObject.get()), u"font"));
  FObject.reset();
  EXPECT_FALSE(part);
}

TEST_F(QObjectLifeTest, AnObjectAtTheAddressOfOneThatWentHasAComponentOfItsOwn) {
  alignas(QObject) std::byte memory[sizeof(QObject)];
  auto* first = new (memory) QObject;
  const TObjectRef component(ComponentOf(first));
  first->~QObject();
  EXPECT_FALSE(component);
  auto* second = new (memory) QObject;
  EXPECT_NE(nullptr, ComponentOf(second));
  EXPECT_EQ(second, ObjectOf(ComponentOf(second)));
  second->~QObject();
}

TEST_F(QObjectLifeTest, AComponentThatIsFreedLeavesTheObject) {
  delete ComponentOf(FObject.get());
  EXPECT_EQ("0", QString::number(GetOrdProp(ComponentOf(FObject.get()), u"whole")));
  FObject.reset();
}

TEST_F(QObjectLifeTest, NothingOfAnObjectIsTouchedOnceItsDestructorRuns) {
  auto object = std::make_unique<TQtHostileHeir>();
  TComponent* component = ComponentOf(object.get());
  EXPECT_EQ(3, GetOrdProp(component, u"gamma"));
  int reads = 0;
  object->OnGet = [&] { ++reads; };
  object->OnDestruct = [&] {
    EXPECT_EQ(nullptr, ObjectOf(component));
    EXPECT_EQ(0, GetOrdProp(component, u"gamma"));
    EXPECT_EQ(0, GetOrdProp(component, u"alpha"));
    EXPECT_THROW(SetOrdProp(component, u"alpha", 1), EInvalidOperation);
  };
  object.reset();
  EXPECT_EQ(0, reads);
}

TEST_F(QObjectLifeTest, AnInspectedObjectLeavesTheInspectorWhenItGoes) {
  TQtCounter other;
  InspectQ({FObject.get(), &other});
  FObject.reset();
  Deliver();
  EXPECT_EQ(1, FInspector->GetObjects().GetCount());
  EXPECT_EQ("5", Value("count"));
}

TEST_F(QObjectLifeTest, AnObjectMayGoInAHandlerOfTheScan) {
  int items = 0;
  FInspector->OnBeforeScan = [&](TObject*, TKTItemProperty* item, bool&) {
    if (item && ++items == 2) FObject.reset();
  };
  InspectQ({FObject.get()});
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(QObjectLifeTest, AnObjectMayGoInAHandlerOfARefresh) {
  InspectQ({FObject.get()});
  FInspector->OnRefreshValue = [&](TObject*, TKTItemProperty* item) {
    if (item->GetName() == "font") FObject.reset();
  };
  FInspector->RefreshProperties();
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(QObjectLifeTest, AnObjectMayGoBeforeAndAfterAWrite) {
  InspectQ({FObject.get()});
  FInspector->OnPropertyChanging = [&](TObject*, TKTItemProperty*) { FObject.reset(); };
  Put("whole", "5");
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(QObjectLifeTest, AnObjectMayGoInAQueuedCall) {
  InspectQ({FObject.get()});
  QMetaObject::invokeMethod(
      FObject.get(), [&] { FObject.reset(); }, Qt::QueuedConnection);
  FInspector->RefreshProperties();
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(QObjectLifeTest, AParentMayGoBeforeAnInspectedChild) {
  auto parent = std::make_unique<QWidget>();
  auto* button = new QPushButton(parent.get());
  new QVBoxLayout(parent.get());
  InspectQ({button, parent.get()});
  parent.reset();
  Deliver();
  EXPECT_EQ(0, FInspector->GetObjects().GetCount());
}

TEST_F(QObjectLifeTest, AChildIsAskedForWhileItsParentIsOnItsWayOut) {
  auto parent = std::make_unique<QWidget>();
  auto* button = new QPushButton(parent.get());
  ComponentOf(parent.get());
  bool isAsked = false;
  QWidget* raw = parent.get();
  QObject::connect(button, &QObject::destroyed, button, [&] {
    isAsked = true;
    EXPECT_EQ(nullptr, ComponentOf(raw));
  });
  parent.reset();
  EXPECT_TRUE(isAsked);
}

TEST_F(QObjectLifeTest, AnObjectThatWasAskedForInItsConstructorIsKnownWhenItIsComplete) {
  TComponent* early = nullptr;
  TQtHostile::OnConstruct = [&](QObject* object) { early = ComponentOf(object); };
  TQtHostileHeir object;
  TQtHostile::OnConstruct = nullptr;
  EXPECT_EQ(early, ComponentOf(&object));
  EXPECT_TRUE(early->ClassNameIs(u"kt::tests::TQtHostileHeir"));
  EXPECT_EQ(3, GetOrdProp(early, u"gamma"));
}

TEST_F(QObjectLifeTest, AThousandObjectsComeAndGo) {
  auto root = std::make_unique<QObject>();
  TComponent* component = ComponentOf(root.get());
  AddChildren(*root, 1000);
  Deliver();
  EXPECT_EQ(1000, component->GetComponentCount());
  const TObjectRef watched(component->GetComponents(999));
  root.reset();
  EXPECT_FALSE(watched);
}

TEST_F(QObjectLifeTest, AnObjectMayGoInASlotOfItsOwnSignal) {
  auto counter = std::make_unique<TQtCounter>();
  InspectQ({counter.get()});
  QObject::connect(counter.get(), &TQtCounter::Changed, [&] { counter.release()->deleteLater(); });
  Put("count", "8");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(QObjectLifeTest, AnObjectMayGoInASignalThatTellsOfItsChange) {
  auto counter = std::make_unique<TQtCounter>();
  TQtCounter other;
  InspectQ({&other, counter.get()});
  QObject::connect(&other, &TQtCounter::Changed, [&] { counter.reset(); });
  Put("count", "8");
  EXPECT_EQ(1, FInspector->GetObjects().GetCount());
  EXPECT_EQ(8, other.Count());
}

TEST_F(QObjectLifeTest, AnObjectMayGoInATimer) {
  InspectQ({FObject.get()});
  QTimer timer;
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, [&] { FObject.reset(); });
  timer.start(0);
  while (FObject) QCoreApplication::processEvents();
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(QObjectLifeTest, AReferredObjectMayGoWhileItIsRead) {
  auto partner = std::make_unique<TQtHostile>();
  FObject->Partner = partner.get();
  partner->OnGet = [&] { partner.reset(); };
  InspectQ({FObject.get()});
  Deliver();
  Deliver();
  EXPECT_EQ("(destroyed)", Value("partner"));
}

class QObjectEditorLifeTest : public TInspectorWindowTest {};

TEST_F(QObjectEditorLifeTest, AnObjectMayGoWhileItsEditorIsOpen) {
  auto object = std::make_unique<TQtKinds>();
  object->Text = "old";
  Show({ComponentOf(object.get())});
  Select("text");
  ASSERT_TRUE(IsEditorOpen());
  Retype("new");
  object.reset();
  TWindowProbe::Settle();
  EXPECT_EQ(0, FInspector->GetItemCount());
  EXPECT_EQ("", TakeErrors());
}

TEST_F(QObjectEditorLifeTest, AnObjectMayGoInATimerWhileItsListIsOpen) {
  auto object = std::make_unique<TQtKinds>();
  Show({ComponentOf(object.get())});
  Select("mode");
  TWindowProbe::Key(Qt::Key_Down, Qt::AltModifier);
  TWindowProbe::Settle();
  QTimer::singleShot(0, [&] { object.reset(); });
  while (object) QCoreApplication::processEvents();
  TWindowProbe::Key(Qt::Key_Return);
  TWindowProbe::Settle();
  EXPECT_EQ(0, FInspector->GetItemCount());
  EXPECT_EQ("", TakeErrors());
}

TEST_F(QObjectEditorLifeTest, AnObjectMayGoInTheSetterOfWhatIsTyped) {
  auto object = std::make_unique<TQtHostile>();
  object->OnSet = [&] { object.reset(); };
  Show({ComponentOf(object.get())});
  Select("alpha");
  Retype("3");
  TWindowProbe::Key(Qt::Key_Return);
  TWindowProbe::Settle();
  EXPECT_EQ(0, FInspector->GetItemCount());
  EXPECT_EQ("", TakeErrors());
}

TEST_F(QObjectEditorLifeTest, WhatIsTypedIsWritten) {
  TQtKinds object;
  Show({ComponentOf(&object)});
  Select("text");
  Retype("typed");
  TWindowProbe::Key(Qt::Key_Return);
  TWindowProbe::Settle();
  EXPECT_EQ("typed", object.Text);
  EXPECT_EQ("", TakeErrors());
}

}  // namespace
}  // namespace kt::tests
