// Random edits through an inspector, against the same edits by reflection.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <random>

namespace kt::tests {
namespace {

/// Has whatever can be listed in place.
class TEditedSample : public TSample {
 public:
  using Inherited = TSample;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TEditedSample>("TEditedSample")
                                       .Property<&TEditedSample::GetLines, &TEditedSample::SetLines>("Lines")
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  TStrings& GetLines() { return *FLines; }
  void SetLines(TStrings& value) { FLines->Assign(&value); }

 protected:
  explicit TEditedSample(TComponent* owner = nullptr) : TSample(owner) {}
  void Construct() override {
    TSample::Construct();
    FPartner = Make<TSample>();
    Partner = FPartner.get();
    FLines->SetCommaText("one,two");
    GetItems().AddItem("a");
    auto* second = GetItems().AddItem("b");
    static_cast<TSampleItems&>(second->GetChildren()).AddItem("c");
  }

 private:
  std::unique_ptr<TSample> FPartner;
  std::unique_ptr<TStringList> FLines = Make<TStringList>();
};

const char* const kPlain[] = {
    "Whole",  "Small", "Color",     "Letter",     "Flag",       "Wide",          "Align",        "Ratio",
    "Narrow", "Price", "Moment",    "Text",       "ShortText",  "WideText",      "Big",          "Huge",
    "Styles", "Tag",   "Part.Size", "Part.Title", "Part.Style", "Partner.Whole", "Partner.Text", "Partner.Part.Size"};
const char* const kMembers[] = {"Styles.ssBold", "Styles.ssUnderline", "Part.Style.ssItalic", "Partner.Styles.ssBold"};
/// Listed while there is one column for all objects.
const char* const kElements[] = {"Items.Items[0].Caption", "Items.Items[1].Caption",
                                 "Items.Items[1].Children.Items[0].Caption"};
const char* const kLines[] = {"Lines.Items[0]", "Lines.Items[1]"};
const char* const kTexts[] = {"0",
                              "7",
                              "-3",
                              "300",
                              "abc",
                              "",
                              "True",
                              "saTop",
                              "1.25",
                              "$F",
                              "99999999999999",
                              "65",
                              "False",
                              "[ssBold,ssItalic]",
                              "ssBold",
                              "maybe"};

/// What edits do to plain objects.
class TModel {
 public:
  using TSamples = std::vector<std::unique_ptr<TEditedSample>>;

  explicit TModel(int count) {
    for (int i = 0; i < count; ++i) FSamples.push_back(Make<TEditedSample>());
  }
  const TSamples& Samples() const { return FSamples; }

  /// The object at the path but for its last name.
  static TObject* HolderOf(TEditedSample& sample, const QStringList& path) {
    TObject* object = &sample;
    for (const QString& name : path.mid(0, path.size() - 1)) {
      auto* collection = dynamic_cast<TCollection*>(object);
      object = collection ? collection->GetItem(IndexIn(name)) : GetObjectProp(object, name);
    }
    return object;
  }
  static QString TextAt(TEditedSample& sample, const QString& path) {
    const QStringList names = path.split(u'.');
    TObject* holder = HolderOf(sample, names);
    if (auto* lines = dynamic_cast<TStrings*>(holder)) return lines->GetStrings(IndexIn(names.last()));
    return VarToStr(GetPropValue(holder, names.last()));
  }
  /// Writes one text to all objects, or to that of a column.
  void Edit(const QString& path, const QString& text, int column) {
    for (int i = 0; i < int(FSamples.size()); ++i) {
      // The other columns write what they show.
      Write(*FSamples[i], path, column < 0 || i == column ? text : TextAt(*FSamples[i], path));
    }
  }
  void EditMember(const QString& path, const QString& text) {
    if (text != "True" && text != "False") throw EPropertyConvertError("Invalid property element: " + text);
    // Every member that has the name of a truth value comes into the set.
    for (const auto& sample : FSamples) Write(*sample, path.section(u'.', 0, -2), "ssBold,ssItalic,ssUnderline");
  }

 private:
  static int IndexIn(const QString& name) { return name.section(u'[', 1).section(u']', 0, 0).toInt(); }
  static void Write(TEditedSample& sample, const QString& path, const QString& text) {
    const QStringList names = path.split(u'.');
    TObject* holder = HolderOf(sample, names);
    if (auto* lines = dynamic_cast<TStrings*>(holder)) return lines->SetStrings(IndexIn(names.last()), text);
    const bool isWide = names.last() == "Wide";
    SetPropValue(holder, names.last(), isWide ? Variant(Variant(text).ToBool()) : Variant(text));
  }

  TSamples FSamples;
};

class InspectorRandomEditsTest : public TInspectorTest, public testing::WithParamInterface<unsigned> {
 protected:
  InspectorRandomEditsTest() {
    FInspector->SetInplaceCollections(true);
    FInspector->SetInplaceTStrings(true);
    for (const auto& sample : FInspected.Samples()) Inspect({sample.get()});
  }

  int Random(size_t count) { return int(FRandom() % count); }
  template <size_t N>
  QString Choose(const char* const (&texts)[N]) {
    return QString::fromLatin1(texts[Random(N)]);
  }
  QString ChoosePath() {
    const int kind = Random(FIsMultiColumn ? 6 : 10);
    return kind < 4 ? Choose(kPlain) : kind < 6 ? Choose(kMembers) : kind < 8 ? Choose(kElements) : Choose(kLines);
  }
  template <class F>
  static QString ErrorOf(F action) {
    try {
      action();
    } catch (const Exception& error) {
      return error.Message();
    }
    return {};
  }
  /// One edit, done by both; the errors that came of it.
  std::pair<QString, QString> Step() {
    FPath = ChoosePath();
    FText = Choose(kTexts);
    const int column = FIsMultiColumn ? Random(FPlain.Samples().size()) : -1;
    const bool isMember = FPath.section(u'.', -1).startsWith("ss");
    const QString expected =
        ErrorOf([&] { isMember ? FPlain.EditMember(FPath, FText) : FPlain.Edit(FPath, FText, column); });
    TKTItemProperty& item = Item(FPath);
    item.SetValueLine(std::max(column, 0), FText);
    return {expected, ErrorOf([&] { item.Validate(); })};
  }
  void ExpectSameObjects(const QString& path) {
    for (size_t i = 0; i < FPlain.Samples().size(); ++i) {
      ASSERT_EQ(TModel::TextAt(*FPlain.Samples()[i], path), TModel::TextAt(*FInspected.Samples()[i], path))
          << path.toStdString() << " of object " << i;
    }
  }
  void ExpectAllIsTheSame() {
    for (const char* path : kPlain) ExpectSameObjects(path);
    for (const char* path : kElements) ExpectSameObjects(path);
    for (const char* path : kLines) ExpectSameObjects(path);
  }
  /// The texts that an inspector of its own shows which has never shown others, and whether it finds them the same.
  static QString ShownBy(TKTObjectInspector& inspector, const char* path) {
    TKTItemProperty* item = inspector.GetItems().FindItemByFullPathName(path);
    if (!item) return QStringLiteral("no item");
    QStringList texts;
    for (int i = 0; i < inspector.GetValueCount(); ++i) texts += item->GetValueLine(i);
    return texts.join(u'|');
  }
  std::unique_ptr<TKTObjectInspector> MakeFreshInspector() {
    auto fresh = Make<TKTObjectInspector>();
    fresh->SetInplaceCollections(true);
    fresh->SetInplaceTStrings(true);
    fresh->SetDisplayOptions(FInspector->GetDisplayOptions());
    for (const auto& sample : FInspected.Samples()) fresh->GetObjects().Add(sample.get());
    fresh->Rescan();
    return fresh;
  }
  /// After a refresh nothing shows what was there before the edits.
  void ExpectShownIsFresh() {
    const auto fresh = MakeFreshInspector();
    for (const char* path : kPlain) ExpectShownAs(*fresh, path);
    for (const char* path : kMembers) ExpectShownAs(*fresh, path);
    for (const char* path : kElements) ExpectShownAs(*fresh, path);
    for (const char* path : kLines) ExpectShownAs(*fresh, path);
  }
  void ExpectShownAs(TKTObjectInspector& fresh, const char* path) {
    EXPECT_EQ(ShownBy(fresh, path), ShownBy(*FInspector, path)) << path;
  }
  bool IsSameInModel(const QString& path) const {
    if (FIsMultiColumn && FPlain.Samples().size() > 1) return false;
    for (const auto& sample : FPlain.Samples()) {
      if (TModel::TextAt(*sample, path) != TModel::TextAt(*FPlain.Samples()[0], path)) return false;
    }
    return true;
  }
  /// As long as no scan has counted anew, an edit of one object leaves the mark as it stood.
  void ExpectMarksAreThoseOfTheModel() {
    for (const char* path : kPlain) EXPECT_EQ(IsSameInModel(path), Item(path).IsAllEqual()) << path;
  }
  void SwitchColumns() {
    FIsMultiColumn = !FIsMultiColumn;
    UseSeveralColumns(FIsMultiColumn);
  }

  std::mt19937 FRandom{GetParam()};
  TModel FPlain{int(1 + GetParam() % 3)};
  TModel FInspected{int(1 + GetParam() % 3)};
  bool FIsMultiColumn = false;
  QString FPath;
  QString FText;
};

TEST_P(InspectorRandomEditsTest, DoWhatReflectionDoes) {
  for (int step = 0; step < 500; ++step) {
    const auto [expected, actual] = Step();
    const std::string what = std::to_string(step) + " " + FPath.toStdString() + "=" + FText.toStdString();
    ASSERT_EQ(expected, actual) << what;
    ExpectAllIsTheSame();
    if (HasFatalFailure()) FAIL() << what;
    if (Random(50) == 0) SwitchColumns();
    // A text that was refused is not written again.
    if (Random(8) == 0) Deliver();
    FInspector->RefreshProperties();
    const bool isAnew = Random(20) == 0;
    if (isAnew) Rescan();
    Deliver();
    if (isAnew || step % 8 == 0) ExpectShownIsFresh();
    if (isAnew) ExpectMarksAreThoseOfTheModel();
    if (HasFailure()) FAIL() << what;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, InspectorRandomEditsTest, testing::Range(1u, 7u));

}  // namespace
}  // namespace kt::tests
