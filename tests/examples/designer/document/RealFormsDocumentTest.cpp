// Forms from real programs, opened and edited.
#include "examples/designer/document/DocumentFixture.h"

#include <QDir>

namespace designer::tests {
namespace {

class RealFormsDocumentTest : public TDocumentTest {
 protected:
  void SetUp() override {
    if (!FForms.exists()) GTEST_SKIP() << "no folder of real forms beside the source";
  }

  /// Runs `check` with each file.
  template <class F>
  void WithEach(F check) {
    for (const QString& name : FForms.entryList({QStringLiteral("*.?fm")}, QDir::Files)) {
      SCOPED_TRACE(name.toStdString());
      const QByteArray file = Content(FForms.filePath(name));
      const auto document = TFormDocument::Open(file);
      check(*document, file);
    }
  }

  /// The lines in which two files differ; all of them when one has more.
  static QByteArrayList Differences(const QByteArray& a, const QByteArray& b) {
    const QByteArrayList first = a.split('\n');
    const QByteArrayList second = b.split('\n');
    QByteArrayList differences;
    for (qsizetype i = 0; i < std::max(first.size(), second.size()); ++i)
      if (first.value(i) != second.value(i)) differences += second.value(i);
    return differences;
  }

  /// A control that stands where its properties say.
  static kt::TControl* AnyPlaced(const TFormDocument& document) {
    for (int i = 0; i < document.Form().GetComponentCount(); ++i) {
      auto* control = dynamic_cast<kt::TControl*>(document.Form().GetComponents(i));
      if (control && control->GetAlign() == kt::alNone) return control;
    }
    return nullptr;
  }

  const QDir FForms = QDir(QStringLiteral(KT_SOURCE_DIR "/../shared/forms"));
};

TEST_F(RealFormsDocumentTest, AFileThatNobodyTouchesStaysAsItIs) {
  WithEach([](const TFormDocument& document, const QByteArray& file) { EXPECT_EQ(file, document.FileBytes()); });
}

TEST_F(RealFormsDocumentTest, AWrittenFormReadsAsTheSame) {
  WithEach([](TFormDocument& document, const QByteArray& file) {
    const QByteArray before = document.Written();
    kt::SetOrdProp(&document.Form(), u"Tag", 77);
    EXPECT_TRUE(document.Commit("Tag"));
    document.Undo();
    EXPECT_EQ(before, document.Written());
    EXPECT_EQ(file, document.FileBytes());
  });
}

TEST_F(RealFormsDocumentTest, AMovedComponentChangesOneLine) {
  int moved = 0;
  WithEach([&moved](const TFormDocument& document, const QByteArray& file) {
    kt::TControl* control = AnyPlaced(document);
    if (!control) return;
    ++moved;
    const int left = control->GetLeft() + 1000;
    control->SetLeft(left);
    const QByteArrayList lines = Differences(file, document.FileBytes());
    EXPECT_EQ(1, lines.size()) << lines.join('\n').toStdString();
    EXPECT_EQ("Left = " + QByteArray::number(left), lines.value(0).trimmed());
  });
  EXPECT_LT(20, moved);
}

TEST_F(RealFormsDocumentTest, OfADeletedComponentExactlyItsLinesGo) {
  int deleted = 0;
  WithEach([&deleted](TFormDocument& document, const QByteArray& file) {
    const auto children = document.ChildrenOf(&document.Form());
    if (children.empty()) return;
    ++deleted;
    kt::TComponent* victim = children[children.size() / 2];
    const QByteArray header = "\n  object " + victim->GetName().toLatin1() + ": ";
    const qsizetype from = file.indexOf(header);
    ASSERT_LE(0, from) << header.toStdString();
    const qsizetype to = file.indexOf("\n  end", from) + 6;
    document.Delete({victim});
    QByteArray rest = file;
    rest.remove(from, to - from);
    // Properties that referred to it go too; nothing else does.
    const QByteArrayList left = document.FileBytes().split('\n');
    QByteArrayList wanted = rest.split('\n');
    for (const QByteArray& line : left) {
      const qsizetype place = wanted.indexOf(line);
      EXPECT_LE(0, place) << line.toStdString();
      if (place >= 0) wanted.remove(0, place + 1);
    }
    EXPECT_GE(rest.count('\n') - left.size() + 1, 0);
  });
  EXPECT_LT(20, deleted);
}

}  // namespace
}  // namespace designer::tests
