// Which properties of several objects are listed as one.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt::tests {
namespace {

enum TForeignAlign { foreignNone };

}  // namespace
}  // namespace kt::tests

namespace kt {
template <>
struct TEnumNames<tests::TForeignAlign> {
  static constexpr char Name[] = "TForeignAlign";
  static constexpr const char* Values[] = {"foreignNone"};
};
}  // namespace kt

namespace kt::tests {
namespace {

/// A 32-bit number under the name of another kind's type.
const TTypeInfo* SmallNumberCalledInt64() {
  static const TOrdTypeInfo info(tkInteger, QStringLiteral("Int64"), otSLong, -0x7FFFFFFF - 1, 0x7FFFFFFF);
  return &info;
}

/// Has properties of a TSample's names, some of them with other types.
class TForeignSample : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TForeignSample>("TForeignSample")
                                       .Property<&TForeignSample::Whole>("Whole")
                                       .Property<&TForeignSample::Small>("Small")
                                       .Property<&TForeignSample::Color>("Color")
                                       .Property<&TForeignSample::Align>("Align")
                                       .Property<&TForeignSample::Text>("Text", &TypeInfos::WideText)
                                       .Property<&TForeignSample::Big>("Big", &SmallNumberCalledInt64)
                                       .Property<&TForeignSample::Ratio>("Ratio")
                                       .Property<&TForeignSample::Partner>("Partner")
                                       .Property<&TForeignSample::Sibling>("Sibling")
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  qint64 Whole = 0;  // another kind
  quint8 Small = 0;  // the same type
  int Color = 0;     // the same kind under another name
  TForeignAlign Align = foreignNone;
  QString Text;
  int Big = 0;  // another kind under the same name
  double Ratio = 0;
  TComponent* Partner = nullptr;
  TComponent* Sibling = nullptr;

 protected:
  explicit TForeignSample(TComponent* owner = nullptr) : TComponent(owner) {}
};

class InspectorSharingTest : public TInspectorTest {
 protected:
  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
  std::unique_ptr<TForeignSample> FForeign = Make<TForeignSample>();
};

TEST_F(InspectorSharingTest, OnlyWhatAllObjectsHaveIsListed) {
  const auto holder = Make<TComponent>();
  Inspect({FSample.get(), holder.get()});
  EXPECT_EQ("Name Tag", Names(Items()));
}

TEST_F(InspectorSharingTest, OnlyWhatHasTheSameTypeInAllObjectsIsListed) {
  ASSERT_EQ(SmallNumberCalledInt64()->Name(), TypeInfoOf<qint64>()->Name());
  Inspect({FSample.get(), FForeign.get()});
  EXPECT_EQ("Name Partner Ratio Small Tag", Names(Items()));
}

TEST_F(InspectorSharingTest, WhichObjectComesFirstDoesNotMatter) {
  Inspect({FForeign.get(), FSample.get()});
  EXPECT_EQ("Name Partner Ratio Small Tag", Names(Items()));
}

TEST_F(InspectorSharingTest, TheLastOfManyObjectsCountsToo) {
  Inspect({FSample.get(), FOther.get(), FForeign.get()});
  EXPECT_EQ("Name Partner Ratio Small Tag", Names(Items()));
}

TEST_F(InspectorSharingTest, BelowAPropertyTheSameGoesForItsObjects) {
  FSample->Partner = FOther.get();
  const auto second = Make<TSample>();
  second->Partner = FForeign.get();
  Inspect({FSample.get(), second.get()});
  EXPECT_EQ("Name Partner Ratio Small Tag", NamesBelow("Partner"));
  second->Partner = nullptr;
}

TEST_F(InspectorSharingTest, AnEditGoesToAllObjectsWhateverTheirClass) {
  Inspect({FSample.get(), FForeign.get()});
  Edit("Ratio", "2.5");
  EXPECT_EQ(2.5, FSample->Ratio);
  EXPECT_EQ(2.5, FForeign->Ratio);
}

}  // namespace
}  // namespace kt::tests
