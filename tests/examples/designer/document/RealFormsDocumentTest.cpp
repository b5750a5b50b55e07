// Forms from real programs, opened and edited.
#include "examples/designer/document/DocumentFixture.h"
#include "kt/rtl/streams/FormConversion.h"

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
      try {
        const auto document = TFormDocument::Open(file);
        check(*document, file);
      } catch (const kt::Exception& error) {
        ADD_FAILURE() << error.Message().toStdString();
      }
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

/// Without the lines of an object that stands on the form.
QByteArray WithoutObject(QByteArray text, const QString& name) {
  const qsizetype at = text.indexOf(' ' + name.toLatin1() + ": ");
  const qsizetype from = text.lastIndexOf('\n', at);
  const qsizetype to = text.indexOf("\n  end", from) + 6;
  return text.remove(from, to - from);
}

QByteArray TextOfForm(const QByteArray& binary) {
  QByteArray text;
  kt::ObjectBinaryToText(binary, text);
  return text;
}

TEST_F(RealFormsDocumentTest, OfADeletedComponentExactlyItsLinesGo) {
  int deleted = 0;
  WithEach([&deleted](TFormDocument& document, const QByteArray& file) {
    const auto children = document.ChildrenOf(&document.Form());
    if (children.empty()) return;
    kt::TComponent* victim = children[children.size() / 2];
    const QString name = victim->GetName();
    const QByteArray wanted = WithoutObject(TextOfForm(document.Written()), name);
    document.Delete({victim});
    // Others may change with it: their tab order, what came from an action, references.
    if (TextOfForm(document.Written()) != wanted) return;
    ++deleted;
    EXPECT_EQ(WithoutObject(file, name), document.FileBytes());
  });
  EXPECT_LT(50, deleted);
}

/// Beside controls that nobody knows, which have numbers in the file and none here, tab orders are not comparable.
QByteArray WithoutTabOrders(const QByteArray& text) {
  QByteArrayList lines = text.split('\n');
  lines.removeIf([](const QByteArray& line) { return line.trimmed().startsWith("TabOrder = "); });
  return lines.join('\n');
}

TEST_F(RealFormsDocumentTest, WhatIsSavedOpensAsTheSameForm) {
  WithEach([](TFormDocument& document, const QByteArray&) {
    const auto children = document.ChildrenOf(&document.Form());
    if (children.empty()) return;
    document.Delete({children[children.size() / 3]});
    document.Form().SetCaption(QStringLiteral("changed"));
    const auto read = TFormDocument::Open(document.Written());
    const auto saved = TFormDocument::Open(document.FileBytes());
    EXPECT_EQ(WithoutTabOrders(TextOfForm(read->Written())), WithoutTabOrders(TextOfForm(saved->Written())));
  });
}

}  // namespace
}  // namespace designer::tests
