// Whatever an open editor shows may go, from outside or in a handler of the typing.
#include "KTObjectInspector/LivelyEditor.h"

#include <QRegularExpression>

namespace kt::tests {
namespace {

// From outside.

class InspectorEditorLifeTest
    : public TLivelyEditorTest,
      public testing::WithParamInterface<std::tuple<const char*, TInspectorMode, TLivelyDeed>> {
 protected:
  void Open() { TLivelyEditorTest::Open(std::get<0>(GetParam()), std::get<1>(GetParam())); }
  void Do() { (this->*std::get<2>(GetParam()).Do)(); }
  static QString Path() { return std::get<0>(GetParam()); }

  /// Types a text and leaves the row, as often as there are calls, each time with the deed at the next of them, and
  /// checks afterwards that all is well. Answers the calls of the last time, when there was none left for the deed.
  QStringList TypeWithDeedAtEachCall(const QString& text, const std::function<void()>& check) {
    QStringList calls;
    for (int number = 0; !HasFailure() && number >= calls.size(); ++number) {
      SCOPED_TRACE(number);
      calls.clear();
      Open();
      TLively::SetHook([&](const char* name) {
        if (!IsOfTyping(name)) return;
        calls += QString::fromLatin1(name);
        if (calls.size() - 1 == number) Do();
      });
      Type(text);
      LeaveRow();
      TLively::SetHook({});
      if (calls.size() <= number) return calls;
      check();
      CheckAllIsWell();
      calls.clear();
    }
    return calls;
  }
};

TEST_P(InspectorEditorLifeTest, WhileItIsOnlyLookedAt) {
  Open();
  Do();
  TWindowProbe::Settle();
  ExpectNoErrors();
  CheckAllIsWell();
}

TEST_P(InspectorEditorLifeTest, WhileSomethingIsTyped) {
  Open();
  Type("4");
  Do();
  TWindowProbe::Settle();
  LeaveRow();
  ExpectNoErrors();
  CheckAllIsWell();
}

/// The deed at each call of a handler or setter while a text is typed and the row is left.
TEST_P(InspectorEditorLifeTest, WhileTheTypedTextIsWritten) {
  const QStringList calls = TypeWithDeedAtEachCall("4", [this] { ExpectNoErrors(); });
  EXPECT_FALSE(calls.contains("OnValidateError"));
}

/// The same while a number is refused, and the handler of errors is told; a caption takes any text, and so do the
/// handlers that the item of the reference has of its own.
TEST_P(InspectorEditorLifeTest, WhileATextIsWrittenThatIsNoNumber) {
  const QStringList calls = TypeWithDeedAtEachCall("x", [] {});
  const bool takesAnyText = Path().endsWith("Caption") || Path().startsWith("Reference");
  EXPECT_EQ(!takesAnyText, calls.contains("OnValidateError"));
}

std::string EditorTestName(const testing::TestParamInfo<InspectorEditorLifeTest::ParamType>& test) {
  const QString path = QString(std::get<0>(test.param)).remove(QRegularExpression("\\W"));
  return path.toStdString() + std::get<2>(test.param).Name;
}

INSTANTIATE_TEST_SUITE_P(OneColumn, InspectorEditorLifeTest,
                         testing::Combine(testing::Values("Part.Size", "Items.Items[0].Caption", "Partner.Whole",
                                                          "Reference.Whole"),
                                          testing::Values(imPlain), testing::ValuesIn(LivelyDeeds)),
                         EditorTestName);
INSTANTIATE_TEST_SUITE_P(SeveralColumns, InspectorEditorLifeTest,
                         testing::Combine(testing::Values("Part.Size", "Partner.Whole"),
                                          testing::Values(imSeveralColumns), testing::ValuesIn(LivelyDeeds)),
                         EditorTestName);

class InspectorTypingCallsTest : public TLivelyEditorTest {
 protected:
  /// The calls of typing while `type` runs.
  QString CallsOf(const std::function<void()>& type) {
    QStringList names = CallOutsOf([&] {
      TLively::SetHook(&CallOut);
      type();
      TLively::SetHook({});
    });
    names.removeIf([](const QString& name) { return !IsOfTyping(name.toLatin1().constData()); });
    names.sort();
    return names.join(u' ');
  }
};

TEST_F(InspectorTypingCallsTest, WritingATextReachesWhatIsMeant) {
  Open("Part.Size", imPlain);
  EXPECT_EQ(
      "OnGetEditText OnGetProperty OnPropertyChanged OnPropertyChanging OnSelectCell OnSetEditText OnValidate "
      "OnValidated SetSize",
      CallsOf([this] {
        Type("4");
        LeaveRow();
      }));
}

TEST_F(InspectorTypingCallsTest, ARefusedTextReachesTheHandlerOfErrors) {
  Open("Part.Size", imPlain);
  EXPECT_TRUE(CallsOf([this] {
                Type("x");
                LeaveRow();
              }).contains("OnValidateError"));
}

TEST_F(InspectorTypingCallsTest, DroppingTheListDownReachesItsHandler) {
  Open("Align", imPlain);
  EXPECT_TRUE(CallsOf([this] { DropDown(); }).contains("OnGetPickList"));
}

// With a drop-down list.

class InspectorListLifeTest : public TLivelyEditorTest,
                              public testing::WithParamInterface<std::tuple<const char*, TLivelyDeed>> {
 protected:
  void Open() { TLivelyEditorTest::Open(std::get<0>(GetParam()), imPlain); }
  void Do() { (this->*std::get<1>(GetParam()).Do)(); }
};

TEST_P(InspectorListLifeTest, WhileTheListIsDown) {
  Open();
  DropDown();
  Do();
  TWindowProbe::Settle();
  TWindowProbe::Key(Qt::Key_Return);
  TWindowProbe::Settle();
  ExpectNoErrors();
  CheckAllIsWell();
}

TEST_P(InspectorListLifeTest, WhileWhatWasPickedIsWritten) {
  for (int number = 0;; ++number) {
    SCOPED_TRACE(number);
    Open();
    int calls = 0;
    TLively::SetHook([&](const char* name) {
      if (IsOfTyping(name) && calls++ == number) Do();
    });
    DropDown();
    TWindowProbe::Key(Qt::Key_Down);
    TWindowProbe::Key(Qt::Key_Return);
    LeaveRow();
    TLively::SetHook({});
    if (calls <= number) break;
    ExpectNoErrors();
    CheckAllIsWell();
    if (HasFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Lists, InspectorListLifeTest,
                         testing::Combine(testing::Values("Align", "Styles.ssBold"), testing::ValuesIn(LivelyDeeds)),
                         [](const auto& test) {
                           const QString path = QString(std::get<0>(test.param)).remove(QRegularExpression("\\W"));
                           return path.toStdString() + std::get<1>(test.param).Name;
                         });

// While it is painted. Nobody frees a window that is just being painted.

class InspectorPaintLifeTest : public TLivelyEditorTest, public testing::WithParamInterface<TLivelyDeed> {};

TEST_P(InspectorPaintLifeTest, WhileItIsPainted) {
  for (int number = 0;; ++number) {
    SCOPED_TRACE(number);
    Renew(imSeveralColumns);
    FInspector->FullExpand();
    Show();
    int calls = 0;
    TLively::SetHook([&](const char*) {
      if (calls++ == number) (this->*GetParam().Do)();
    });
    FWindow->Window()->grab();
    TLively::SetHook({});
    if (calls <= number) break;
    ExpectNoErrors();
    CheckAllIsWell();
    if (HasFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Deeds, InspectorPaintLifeTest,
                         testing::ValuesIn(std::begin(LivelyDeeds), std::end(LivelyDeeds) - 1),
                         [](const auto& test) { return std::string(test.param.Name); });

}  // namespace
}  // namespace kt::tests
