#include "KTPropertyPresets/PresetFixture.h"
#include "kt/ktcommon/SpecialFiler.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "support/FormText.h"
#include "support/VisualWalk.h"

namespace kt::tests {
namespace {

/// A preset whose constructor fills lists.
class TFilledPreset : public TKTPropertyPreset {
 public:
  using Inherited = TKTPropertyPreset;
  static const TClassInfo* Class() {
    static const TClassInfo info =
        TClassBuilder<TFilledPreset>("TFilledPreset")
            .Property<&TFilledPreset::GetMatchTypes, &TFilledPreset::SetMatchTypes>("MatchTypes")
            .Default(TKTPresetMatchTypes{mtPropertyType, mtParentPropertyName})
            .Property<&TFilledPreset::GetEditStyle, &TFilledPreset::SetEditStyle>("EditStyle")
            .Default(esPickList)
            .Creatable()
            .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TFilledPreset(TCollection* collection) : TKTPropertyPreset(collection) {}

  void Construct() override {
    TKTPropertyPreset::Construct();
    GetTypeNames().Add("TColor");
    GetParentPropNames().Add("Font");
    GetPickList().Add("x");
  }
};

/// The root of a form: presets without an inspector, and a handler that forms know by name.
class TPresetForm : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TPresetForm>("TPresetForm")
                                       .Method("HandleValidate", &TPresetForm::HandleValidate)
                                       .Creatable()
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  void HandleValidate(TObject*, TKTItemProp*, int) {}

  std::unique_ptr<TKTPropertyPresets> Presets = Make<TKTPropertyPresets>(nullptr);

 protected:
  explicit TPresetForm(TComponent* owner = nullptr) : TComponent(owner) {}
  void DefineProperties(TFiler& filer) override {
    TComponent::DefineProperties(filer);
    filer.DefineProperty(
        u"Presets", [this](TReader& reader) { TGSpecialFiler::ReadCollection(reader, *Presets); },
        [this](TWriter& writer) { TGSpecialFiler::WriteCollection(writer, *Presets); }, Presets->GetCount() > 0);
  }
};

class PropertyPresetStreamTest : public testing::Test {
 protected:
  PropertyPresetStreamTest() { RegisterClasses({TPresetForm::Class(), TFilledPreset::Class()}); }
  ~PropertyPresetStreamTest() override { UnRegisterClasses({TPresetForm::Class(), TFilledPreset::Class()}); }

  TFilledPreset* AddFilled() { return static_cast<TFilledPreset*>(FForm->Presets->Add(TFilledPreset::Class())); }
  /// The first preset after the way through a text form.
  TKTPropertyPreset* ReadBack() {
    TReader reader(BinaryOf(TextOf(FForm.get()).c_str()));
    FCopy = reader.ReadRoot<TPresetForm>();
    return FCopy->Presets->GetItem(0);
  }
  TKTPropertyPreset* Read(const std::string& properties) {
    const std::string text = "object F: TPresetForm\n  Presets = <\n    item\n      ClassName = 'TFilledPreset'\n" +
                             properties + "    end>\nend\n";
    TReader reader(BinaryOf(text.c_str()));
    FCopy = reader.ReadRoot<TPresetForm>();
    return FCopy->Presets->GetItem(0);
  }
  /// What the form says of the presets, without the fonts, which are always written.
  std::string Written() {
    QStringList lines = QString::fromStdString(TextOf(FForm.get())).split(u'\n');
    lines.removeIf([](const QString& line) { return line.contains(QLatin1String("Font.")); });
    return lines.join(u' ').simplified().toStdString();
  }

  std::unique_ptr<TPresetForm> FForm = Make<TPresetForm>();
  std::unique_ptr<TPresetForm> FCopy;
};

TEST_F(PropertyPresetStreamTest, AFreshPresetIsWrittenWithItsActionsAndTheMarksOfEmptyLists) {
  FForm->Presets->Add();
  EXPECT_EQ(
      "object TPresetForm Presets = < item ClassName = 'TKTPropertyPreset' Actions = [] TypeNamesEmpty = True "
      "ParentClassNamesEmpty = True PropNamesEmpty = True ParentPropNamesEmpty = True ParentTypeNamesEmpty = True "
      "PickListEmpty = True end> end",
      Written());
}

TEST_F(PropertyPresetStreamTest, TheFontsAreAlwaysWritten) {
  FForm->Presets->Add();
  const QString text = QString::fromStdString(TextOf(FForm.get()));
  EXPECT_TRUE(text.contains(QLatin1String(" Font.Color =")));
  EXPECT_TRUE(text.contains(QLatin1String(" ValueFont.Color =")));
}

TEST_F(PropertyPresetStreamTest, ListsWithLinesHaveNoMark) {
  AddFilled();
  EXPECT_EQ(
      "object TPresetForm Presets = < item ClassName = 'TFilledPreset' TypeNames.Strings = ( 'TColor') "
      "ParentPropNames.Strings = ( 'Font') PickList.Strings = ( 'x') Actions = [pftEditStyle] ParentClassNamesEmpty = "
      "True PropNamesEmpty = True ParentTypeNamesEmpty = True end> end",
      Written());
}

TEST_F(PropertyPresetStreamTest, APresetWithEverythingComesBack) {
  TKTPropertyPreset* preset = FForm->Presets->Add();
  preset->SetActive(false);
  preset->SetAlias("alias");
  preset->SetInclusive(false);
  preset->GetFont().SetColor(clRed);
  preset->SetName("name");
  preset->GetPropNames().Add("1");
  preset->GetParentTypeNames().Add("2");
  preset->SetTypeKinds({tkClass, tkDynArray});
  preset->SetHint("hint");
  preset->GetPickList().SetCommaText("x,y");
  preset->OnValidate = {FForm.get(), &TPresetForm::HandleValidate};
  preset->SetMatchTypes({mtPropertyName, mtFullPropertyName, mtParentPropertyType});
  preset->SetActions({pftHint, pftReadOnly});
  TKTPropertyPreset* copy = ReadBack();
  EXPECT_EQ(TextOf(FForm.get()), TextOf(FCopy.get()));
  EXPECT_EQ(clRed, copy->GetFont().GetColor());
  EXPECT_EQ((TKTPresetMatchTypes{mtPropertyName, mtFullPropertyName, mtParentPropertyType}), copy->GetMatchTypes());
  EXPECT_TRUE(copy->OnValidate);
}

TEST_F(PropertyPresetStreamTest, LinesSwitchTheirTestOnAgainWhenTheyAreReadDeliberately) {
  TKTPropertyPreset* preset = FForm->Presets->Add();
  preset->GetPropNames().Add("Part.Size");
  preset->SetMatchTypes({mtFullPropertyName});
  TKTPropertyPreset* copy = ReadBack();
  EXPECT_EQ("Part.Size\r\n", copy->GetPropNames().GetText());
  // What is tested is written before the lines, and filling a list is what switches its test on.
  EXPECT_EQ((TKTPresetMatchTypes{mtPropertyName, mtFullPropertyName}), copy->GetMatchTypes());
}

TEST_F(PropertyPresetStreamTest, ActionsAreReadLastAndSoAreAsTheyWere) {
  TKTPropertyPreset* preset = FForm->Presets->Add();
  preset->SetAlias("alias");
  preset->SetHint("hint");
  preset->GetFont().SetColor(clRed);
  preset->SetActions({});
  EXPECT_EQ(TKTPropertyPresetTypes{}, ReadBack()->GetActions());
}

TEST_F(PropertyPresetStreamTest, AListThatWasClearedStaysEmptyAlthoughTheConstructorFillsIt) {
  TFilledPreset* preset = AddFilled();
  preset->GetTypeNames().Clear();
  preset->GetPickList().Clear();
  TKTPropertyPreset* copy = ReadBack();
  EXPECT_EQ("", copy->GetTypeNames().GetText());
  EXPECT_EQ("", copy->GetPickList().GetText());
  EXPECT_EQ("Font\r\n", copy->GetParentPropNames().GetText());
  EXPECT_EQ(TKTPresetMatchTypes{mtParentPropertyName}, copy->GetMatchTypes());
  EXPECT_EQ(esSimple, copy->GetEditStyle());
}

TEST_F(PropertyPresetStreamTest, AMarkThatIsFalseLeavesTheList) {
  TKTPropertyPreset* copy = Read("      TypeNamesEmpty = False\n      ParentPropNamesEmpty = True\n");
  EXPECT_EQ("TColor\r\n", copy->GetTypeNames().GetText());
  EXPECT_EQ("", copy->GetParentPropNames().GetText());
}

TEST_F(PropertyPresetStreamTest, WithoutMarksTheListsAreWhatTheConstructorMakes) {
  TKTPropertyPreset* copy = Read("");
  EXPECT_EQ("TColor\r\n", copy->GetTypeNames().GetText());
  EXPECT_EQ("x\r\n", copy->GetPickList().GetText());
}

/// What the walk over all properties has to know of presets.
const TWalkRules& PresetWalkRules() {
  static const TWalkRules rules = [] {
    TWalkRules all{.Handlers = VisualHandlers()};
    all.Handlers.push_back(HandlerOf<TKTItemPropertyEvent>());
    all.Handlers.push_back(HandlerOf<TKTItemPropertyQueryEvent>());
    all.Handlers.push_back(HandlerOf<TKTGetPickListEvent>());
    all.Handlers.push_back(HandlerOf<TKTItemGetPropertyEvent>());
    all.Handlers.push_back(HandlerOf<TKTItemSetPropertyEvent>());
    all.Handlers.push_back(HandlerOf<TKTOnValidateEvent>());
    all.Handlers.push_back(HandlerOf<TKTOnValidateErrorEvent>());
    return all;
  }();
  return rules;
}

TEST_F(PropertyPresetStreamTest, EveryPropertyTakesAnotherValueAndComesBack) {
  const QString name = QStringLiteral("TKTPropertyPreset");
  EXPECT_EQ(QStringList(), WrongDefaults(name, PresetWalkRules()));
  EXPECT_EQ(QStringList(), UnchangedProperties(name, PresetWalkRules()));
  EXPECT_EQ(QStringList(), LostOnTheWay(name, PresetWalkRules(), wsFresh, wfBinary));
  EXPECT_EQ(QStringList(), LostOnTheWay(name, PresetWalkRules(), wsChanged, wfBinary));
  EXPECT_EQ(QStringList(), LostOnTheWay(name, PresetWalkRules(), wsChanged, wfText));
}

TEST_F(PropertyPresetStreamTest, TheInspectorsPresetsComeBackWithTheirClasses) {
  RegisterClass(TPresetInspector::Class());
  const auto inspector = Make<TPresetInspector>();
  inspector->GetPresets().Clear();
  inspector->GetPresets().Add(TFilledPreset::Class())->SetName("1");
  inspector->GetPresets().Add()->SetName("2");
  TReader reader(BinaryOf(TextOf(inspector.get()).c_str()));
  const auto copy = reader.ReadRoot<TPresetInspector>();
  ASSERT_EQ(2, copy->GetPresets().GetCount());
  EXPECT_EQ(TFilledPreset::Class(), copy->GetPresets().GetItem(0)->ClassType());
  EXPECT_EQ(TKTPropertyPreset::Class(), copy->GetPresets().GetItem(1)->ClassType());
  EXPECT_EQ(1, copy->GetPresets().IndexOf("2"));
  UnRegisterClass(TPresetInspector::Class());
}

}  // namespace
}  // namespace kt::tests
