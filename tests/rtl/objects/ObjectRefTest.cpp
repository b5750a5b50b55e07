#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/ObjectRef.h"

#include <gtest/gtest.h>
#include <vector>

namespace kt {
namespace {

TEST(ObjectRefTest, BecomesNullWhenTheObjectGoes) {
  auto object = Make<TObject>();
  const TObjectRef first(object.get());
  const TObjectRef second(object.get());
  const TObjectRef copy(first);
  EXPECT_EQ(object.get(), copy.Get());
  object.reset();
  EXPECT_EQ(nullptr, first.Get());
  EXPECT_EQ(nullptr, second.Get());
  EXPECT_FALSE(copy);
}

TEST(ObjectRefTest, GoesFromObjectToObject) {
  auto first = Make<TObject>();
  const auto second = Make<TObject>();
  TObjectRef ref(first.get());
  const TObjectRef other(first.get());
  ref = second.get();
  first.reset();
  EXPECT_EQ(second.get(), ref.Get());
  EXPECT_EQ(nullptr, other.Get());
  ref = nullptr;
  EXPECT_EQ(nullptr, ref.Get());
}

TEST(ObjectRefTest, ReferencesMayGoInAnyOrderBeforeTheObject) {
  auto object = Make<TObject>();
  std::vector<TObjectRef> refs(5, TObjectRef(object.get()));
  refs.erase(refs.begin() + 2);
  refs.erase(refs.begin());
  refs.pop_back();
  EXPECT_EQ(object.get(), refs.back().Get());
  object.reset();
  EXPECT_EQ(nullptr, refs.front().Get());
  EXPECT_EQ(nullptr, refs.back().Get());
}

TEST(ObjectRefTest, FindsAnObjectWhoseFirstBaseIsAnotherOne) {
  auto component = Make<TComponent>();
  const TObjectRef ref(component.get());
  component.reset();
  EXPECT_FALSE(ref);
}

TEST(ObjectRefTest, TheObjectIsThereUntilItsDestructionIsOver) {
  class TTelling : public TObject {
   public:
    TObjectRef* Ref = nullptr;
    bool* Told = nullptr;

   protected:
    TTelling() = default;
    void Destruct() override { *Told = Ref->Get() == this; }
  };
  bool wasThere = false;
  auto object = Make<TTelling>();
  TObjectRef ref(object.get());
  object->Ref = &ref;
  object->Told = &wasThere;
  object.reset();
  EXPECT_TRUE(wasThere);
  EXPECT_FALSE(ref);
}

}  // namespace
}  // namespace kt
