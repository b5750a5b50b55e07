// Objects that live in other threads, or go there.
#include "qobjects/QObjectFixture.h"

#include <QThread>

namespace kt::tests {
namespace {

class QObjectThreadTest : public TQObjectTest {
 protected:
  ~QObjectThreadTest() override { Stop(); }

  void Stop() {
    FThread.quit();
    FThread.wait();
  }
  /// Has something done in the other thread, and waits for it.
  void InThread(const std::function<void()>& what) {
    QObject there;
    there.moveToThread(&FThread);
    FThread.start();
    QMetaObject::invokeMethod(
        &there,
        [&] {
          what();
          there.moveToThread(thread());
        },
        Qt::BlockingQueuedConnection);
  }
  QThread* thread() { return QCoreApplication::instance()->thread(); }

  QThread FThread;
};

TEST_F(QObjectThreadTest, AComponentGoesBeforeItsObjectMovesAway) {
  auto object = std::make_unique<TQtCounter>();
  auto* child = new QObject(object.get());
  const TObjectRef component(ComponentOf(object.get()));
  const TObjectRef below(ComponentOf(child));
  object->moveToThread(&FThread);
  EXPECT_FALSE(component);
  EXPECT_FALSE(below);
  EXPECT_EQ(nullptr, ComponentOf(object.get()));
}

TEST_F(QObjectThreadTest, AnInspectedObjectThatMovesAwayLeavesTheInspector) {
  auto object = std::make_unique<TQtCounter>();
  InspectQ({object.get()});
  object->moveToThread(&FThread);
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(QObjectThreadTest, AnObjectThatMovedAwayChangesAndDiesThere) {
  auto object = std::make_unique<TQtCounter>();
  new QObject(object.get());
  InspectQ({object.get()});
  object->moveToThread(&FThread);
  InThread([&] {
    object->SetCount(7);
    object->setObjectName("there");
    new QObject(object.get());
    object->setProperty("dynamic", 1);
    object.reset();
  });
  Deliver();
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(QObjectThreadTest, AnObjectThatComesBackHasANewComponent) {
  TQtCounter object;
  ComponentOf(&object)->SetTag(5);
  object.moveToThread(&FThread);
  InThread([&] { object.moveToThread(thread()); });
  ASSERT_NE(nullptr, ComponentOf(&object));
  EXPECT_EQ(0, ComponentOf(&object)->GetTag());
  InspectQ({&object});
  object.SetCount(8);
  Deliver();
  EXPECT_EQ("8", Value("count"));
}

TEST_F(QObjectThreadTest, OtherThreadsGetNoComponents) {
  QObject object;
  TComponent* component = ComponentOf(&object);
  TComponent* there = component;
  InThread([&] { there = ComponentOf(&object); });
  EXPECT_NE(nullptr, component);
  EXPECT_EQ(nullptr, there);
}

TEST_F(QObjectThreadTest, AChangeThatIsToldInAnotherThreadIsShown) {
  TQtCounter object;
  InspectQ({&object});
  InThread([&] { object.SetCount(8); });
  Deliver();
  Deliver();
  EXPECT_EQ("8", Value("count"));
}

TEST_F(QObjectThreadTest, AReferenceToAnotherThreadSaysSo) {
  TQtKinds owner;
  QObject partner;
  owner.Partner = &partner;
  InspectQ({&owner});
  partner.moveToThread(&FThread);
  Deliver();
  EXPECT_EQ("(in another thread)", Value("partner"));
  InThread([&] { partner.moveToThread(thread()); });
}

TEST_F(QObjectThreadTest, AReferenceToWhatDiesInAnotherThreadSaysSo) {
  TQtKinds owner;
  auto* partner = new QObject;
  owner.Partner = partner;
  InspectQ({&owner});
  partner->moveToThread(&FThread);
  Deliver();
  ASSERT_EQ("(in another thread)", Value("partner"));
  InThread([&] { delete partner; });
  FInspector->RefreshProperties();
  EXPECT_EQ("(destroyed)", Value("partner"));
}

}  // namespace
}  // namespace kt::tests
