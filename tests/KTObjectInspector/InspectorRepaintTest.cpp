// What has the window painted anew.
#include "KTObjectInspector/InspectorWindowFixture.h"

#include <QEvent>

namespace kt::tests {
namespace {

/// Counts how often a window is painted.
class TPaintCounter : public QObject {
 public:
  explicit TPaintCounter(QWidget* widget) { widget->installEventFilter(this); }
  int Take() {
    TWindowProbe::Settle();
    return std::exchange(FCount, 0);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    FCount += event->type() == QEvent::Paint;
    return false;
  }

 private:
  int FCount = 0;
};

class InspectorRepaintTest : public TInspectorWindowTest {
 protected:
  InspectorRepaintTest() {
    Show({FSample.get()});
    FPaints = std::make_unique<TPaintCounter>(FWindow->Body());
    FPaints->Take();
    EXPECT_EQ(0, FPaints->Take());
  }

  std::unique_ptr<TPaintCounter> FPaints;
};

TEST_F(InspectorRepaintTest, WhetherChangedValuesAreMarked) {
  FInspector->SetShowValueChangedFont(false);
  EXPECT_LT(0, FPaints->Take());
  FInspector->SetShowValueChangedFont(false);
  EXPECT_EQ(0, FPaints->Take());
}

TEST_F(InspectorRepaintTest, TheFontOfChangedValues) {
  FInspector->GetValueChangedFont().SetColor(clRed);
  EXPECT_LT(0, FPaints->Take());
  FInspector->GetValueChangedFont().SetColor(clRed);
  EXPECT_EQ(0, FPaints->Take());
}

TEST_F(InspectorRepaintTest, WhetherTitlesAreTheNamesOfTheObjects) {
  FInspector->SetDynamicTitleCaptions(true);
  EXPECT_LT(0, FPaints->Take());
  FInspector->SetDynamicTitleCaptions(true);
  EXPECT_EQ(0, FPaints->Take());
}

TEST_F(InspectorRepaintTest, ValuesThatWereReadAgain) {
  FInspector->RefreshProperties();
  EXPECT_LT(0, FPaints->Take());
}

}  // namespace
}  // namespace kt::tests
