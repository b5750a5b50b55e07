// Handlers of typing may throw; the user is told, nothing stays locked, and the next scan is whole.
#include "KTObjectInspector/LivelyEditor.h"

namespace kt::tests {
namespace {

class InspectorEditorThrowTest : public TLivelyEditorTest, public testing::WithParamInterface<TThrown> {
 protected:
  /// Throws at each call that has to do with typing while `scenario` runs with the editor open over the item.
  void ThrowAtEachCallOf(const QString& path, const std::function<void()>& scenario) {
    const auto run = [&] {
      Open(path, imPlain);
      TLively::SetHook([](const char* name) {
        if (IsOfTyping(name)) CallOut(name);
      });
      scenario();
      TLively::SetHook({});
      // What the user was told is no less told.
      if (!FErrors.isEmpty()) throw Exception(FErrors.first());
    };
    EXPECT_LT(0, ThrowAtEachCallOut(GetParam(), run, [this] { CheckAllIsWell(); }));
  }
};

TEST_P(InspectorEditorThrowTest, WhileATextIsWritten) {
  ThrowAtEachCallOf("Part.Size", [this] {
    Type("4");
    LeaveRow();
  });
}

TEST_P(InspectorEditorThrowTest, WhileWhatWasPickedIsWritten) {
  ThrowAtEachCallOf("Align", [this] {
    DropDown();
    TWindowProbe::Key(Qt::Key_Down);
    TWindowProbe::Key(Qt::Key_Return);
    LeaveRow();
  });
}

TEST_P(InspectorEditorThrowTest, WhileTheTreeIsBuiltAnew) {
  ThrowAtEachCallOf("Part.Size", [this] {
    Type("4");
    FInspector->Rescan();
  });
}

TEST_P(InspectorEditorThrowTest, WhileAnObjectIsAdded) {
  ThrowAtEachCallOf("Partner.Whole", [this] {
    Type("4");
    FInspector->GetObjects().Add(FThird.get());
    Deliver();
  });
}

TEST_P(InspectorEditorThrowTest, WhileAnObjectDies) {
  ThrowAtEachCallOf("Whole", [this] {
    Type("4");
    FFirst.reset();
    Deliver();
  });
}

INSTANTIATE_TEST_SUITE_P(Thrown, InspectorEditorThrowTest, testing::Values(thOurs, thForeign),
                         [](const auto& test) { return std::string(test.param == thOurs ? "Ours" : "Foreign"); });

}  // namespace
}  // namespace kt::tests
