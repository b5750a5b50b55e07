// Forms from real programs, shown in the window.
#include "DesignerFixture.h"
#include "designer/document/FormLoading.h"

#include <QDir>

namespace designer::tests {
namespace {

class RealFormsWindowTest : public TDesignerTest {
 protected:
  void SetUp() override {
    if (!FForms.exists()) GTEST_SKIP() << "no folder of real forms beside the source";
  }
  /// The forms that are not saved as they were, after `act` in the window.
  template <class F>
  QString FormsChangedBy(F act) {
    const QString copy = FFolder.filePath("copy.dfm");
    QStringList changed;
    for (const QString& name : FForms.entryList({QStringLiteral("*.?fm")}, QDir::Files)) {
      if (!FWindow->Open(FForms.filePath(name))) continue;
      Settle();
      act();
      EXPECT_TRUE(FWindow->SaveTo(copy));
      if (FileContent(copy) != FileContent(FForms.filePath(name))) changed.append(name);
    }
    return changed.join(u' ');
  }

  const QDir FForms = QDir(QStringLiteral(KT_SOURCE_DIR "/../shared/forms"));
};

TEST_F(RealFormsWindowTest, WhatWasOnlyLookedAtIsSavedAsItWas) {
  EXPECT_EQ(FormsChangedBy([] {}), "");
  EXPECT_EQ(TakeTold(), "");
}

TEST_F(RealFormsWindowTest, WhatWasMovedAndUndoneIsSavedAsItWas) {
  EXPECT_EQ(FormsChangedBy([this] {
              Surface().setFocus();
              Key(Qt::Key_A, Qt::ControlModifier);
              Key(Qt::Key_Right);
              while (Document().UndoStack().canUndo()) Key(Qt::Key_Z, Qt::ControlModifier);
            }),
            "");
}

}  // namespace
}  // namespace designer::tests
