#include "KTPropertyPresets/PresetFixture.h"
#include "kt/rtl/objects/LifeWatch.h"

namespace kt::tests {
namespace {

/// What a handler frees.
enum TPresetVictim { pvItem, pvPreset, pvAllPresets, pvCollection, pvInspector };
constexpr const char* PresetVictims[] = {"Item", "Preset", "AllPresets", "Collection", "Inspector"};

struct TPresetCallOut {
  const char* Name;
  std::function<void(TKTPropertyPreset&, TPresetInspector&, TKTItemProperty&, const std::function<void()>&)> Install;
};

void PrintTo(const TPresetCallOut& callOut, std::ostream* out) { *out << callOut.Name; }

const TPresetCallOut PresetCallOuts[] = {
    {"OnMatchPreset",
     [](TKTPropertyPreset& preset, TPresetInspector&, TKTItemProperty&, const std::function<void()>& call) {
       preset.OnMatchPreset = [call](TObject*, TKTItemProperty*, bool& result) {
         result = true;
         call();
       };
     }},
    {"OnMatchPresetOfTheInspector",
     [](TKTPropertyPreset&, TPresetInspector& inspector, TKTItemProperty&, const std::function<void()>& call) {
       inspector.OnMatchPreset = [call](TObject*, TKTPropertyPreset*, TKTItemProperty*, bool&) { call(); };
     }},
    {"OnCustomPreset",
     [](TKTPropertyPreset& preset, TPresetInspector&, TKTItemProperty&, const std::function<void()>& call) {
       preset.OnCustomPreset = [call](TObject*, TKTItemProperty*) { call(); };
     }},
    {"OnCustomPresetOfTheInspector",
     [](TKTPropertyPreset&, TPresetInspector& inspector, TKTItemProperty&, const std::function<void()>& call) {
       inspector.OnCustomPreset = [call](TObject*, TKTPropertyPreset*, TKTItemProperty*) { call(); };
     }},
    {"OnGetProperty",
     [](TKTPropertyPreset& preset, TPresetInspector&, TKTItemProperty&, const std::function<void()>& call) {
       preset.OnGetProperty = [call](TObject*, TObject*, const QString&, QString&) { call(); };
     }},
    {"OnRefreshValue",
     [](TKTPropertyPreset&, TPresetInspector&, TKTItemProperty& item, const std::function<void()>& call) {
       item.SetOnRefreshValue([call](TObject*, TKTItemProperty*) { call(); });
     }},
    {"OnRefreshValueOfTheInspector",
     [](TKTPropertyPreset&, TPresetInspector& inspector, TKTItemProperty&, const std::function<void()>& call) {
       inspector.OnRefreshValue = [call](TObject*, TKTItemProperty*) { call(); };
     }},
};

/// Two presets for all items, the first with everything to do, in the inspector's collection or one of its own.
class PropertyPresetLifeTest : public TPresetTest,
                               public testing::WithParamInterface<std::tuple<TPresetCallOut, TPresetVictim>> {
 protected:
  PropertyPresetLifeTest() {
    Presets().Clear();
    FInspector->GetObjects().Add(FInspected.get());
    FItem = Add("a");
    FPresets = Victim() == pvCollection ? FOwn.get() : &Presets();
    FPreset = FPresets->Add();
    FPreset->SetInclusive(false);
    FPreset->SetAlias("alias");
    FPreset->GetPickList().Add("x");
    FPreset->GetFont().SetColor(clRed);
    FPreset->GetValueFont().SetColor(clRed);
    FPreset->SetActions(FPreset->GetActions() + TKTPropertyPresetTypes{pftCustom, pftValidate, pftHidden});
    TKTPropertyPreset* second = FPresets->Add();
    second->SetInclusive(false);
    second->SetHint("second");
  }

  static TPresetVictim Victim() { return std::get<1>(GetParam()); }
  void Free() {
    switch (Victim()) {
      case pvItem:
        delete std::exchange(FItem, nullptr);
        break;
      case pvPreset:
        delete std::exchange(FPreset, nullptr);
        break;
      case pvAllPresets:
        FPresets->Clear();
        break;
      case pvCollection:
        FOwn = nullptr;
        break;
      case pvInspector:
        FItem = nullptr;
        FInspector = nullptr;
    }
    ++FTimes;
  }
  void FreeOnce() {
    if (FTimes == 0) Free();
  }
  void Install() {
    std::get<0>(GetParam()).Install(*FPreset, *FInspector, *FItem, [this] { FreeOnce(); });
  }

  std::unique_ptr<TComponent> FInspected = Make<TComponent>(nullptr);
  std::unique_ptr<TKTPropertyPresets> FOwn = Make<TKTPropertyPresets>(FInspector.get());
  TKTPropertyPresets* FPresets;
  TKTItemProperty* FItem;
  int FTimes = 0;
};

TEST_P(PropertyPresetLifeTest, AHandlerMayFreeIt) {
  // The collection outside the inspector has to go first.
  const bool isOutside = Victim() == pvCollection;
  if (!isOutside) FOwn = nullptr;
  Install();
  FPresets->CopyPresetsToProperty(FItem);
  EXPECT_EQ(1, FTimes);
  // What is left of the presets is applied to what is left of the items.
  const bool goesOn = Victim() == pvPreset;
  EXPECT_EQ(goesOn ? "second" : "", goesOn ? FItem->GetHint() : QString());
}

TEST_P(PropertyPresetLifeTest, AHandlerMayFreeItFromAPresetThatIsCopiedByItself) {
  if (Victim() != pvCollection) FOwn = nullptr;
  Install();
  FPreset->CopyPreset(FItem);
  EXPECT_LE(FTimes, 1);
}

TEST_P(PropertyPresetLifeTest, AHandlerMayFreeItFromAMatch) {
  if (Victim() != pvCollection) FOwn = nullptr;
  Install();
  const bool matches = FPreset->Matches(FItem);
  // What is gone matches nothing.
  const bool isGone = FTimes == 1;
  EXPECT_EQ(!isGone, matches);
}

INSTANTIATE_TEST_SUITE_P(CallOuts, PropertyPresetLifeTest,
                         testing::Combine(testing::ValuesIn(PresetCallOuts),
                                          testing::Values(pvItem, pvPreset, pvAllPresets, pvCollection, pvInspector)),
                         [](const auto& test) {
                           return std::get<0>(test.param).Name + std::string("Frees") +
                                  PresetVictims[std::get<1>(test.param)];
                         });

// Finding the class of a property reads other properties.

class TGuardedHolder : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TGuardedHolder>("TGuardedHolder")
                                       .Property<&TGuardedHolder::GetHolder>("Holder")
                                       .Creatable()
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  TGuardedHolder* GetHolder() {
    if (const auto handler = std::exchange(OnGet, {})) handler();
    return this;
  }

  std::function<void()> OnGet;

 protected:
  explicit TGuardedHolder(TComponent* owner = nullptr) : TComponent(owner) {}
};

class PropertyPresetGetterLifeTest : public TPresetTest {
 protected:
  PropertyPresetGetterLifeTest() {
    FInspector->GetObjects().Add(FInspected.get());
    FItem = AddHolder(AddHolder(FInspector->GetItems())->GetItems());
    FPreset->SetTypeKinds({tkClass});
    FPreset->GetTypeNames().Add("TPersistent");
    FPreset->GetPropNames().Add("Holder");
  }
  static TKTItemProperty* AddHolder(TKTItemProperties& items) {
    TKTItemProperty* item = AddTo(items, "Holder", tkClass, "TGuardedHolder");
    item->SetRealPropName("Holder");
    item->SetIsRealProperty(true);
    return item;
  }

  std::unique_ptr<TGuardedHolder> FInspected = Make<TGuardedHolder>(nullptr);
  TKTItemProperty* FItem;
};

TEST_F(PropertyPresetGetterLifeTest, TheClassComesByTheGetter) {
  bool isRead = false;
  FInspected->OnGet = [&] { isRead = true; };
  EXPECT_TRUE(FPreset->Matches(FItem));
  EXPECT_TRUE(isRead);
}

TEST_F(PropertyPresetGetterLifeTest, AGetterMayFreeThePreset) {
  FInspected->OnGet = [this] { delete FPreset; };
  EXPECT_FALSE(FPreset->Matches(FItem));
}

TEST_F(PropertyPresetGetterLifeTest, AGetterMayFreeAllPresetsFromTheWalk) {
  FInspected->OnGet = [this] { Presets().Clear(); };
  Presets().CopyPresetsToProperty(FItem);
  EXPECT_EQ(0, Presets().GetCount());
}

TEST_F(PropertyPresetGetterLifeTest, AGetterMayFreeTheItem) {
  FInspected->OnGet = [this] { FInspector->GetItems().Clear(); };
  EXPECT_FALSE(FPreset->Matches(FItem));
}

// The way of the walk when handlers change the collection.

class PropertyPresetWalkTest : public TPresetTest {
 protected:
  PropertyPresetWalkTest() {
    Presets().Clear();
    for (int i = 0; i < 4; ++i) {
      TKTPropertyPreset* preset = Presets().Add();
      preset->SetName(QString::number(i));
      preset->SetInclusive(false);
      preset->SetActions({pftCustom});
    }
    FInspector->OnCustomPreset = [this](TObject*, TKTPropertyPreset* preset, TKTItemProperty*) {
      FApplied += preset->GetName();
      if (preset->GetName() == FActor) FAct(preset);
    };
  }
  /// The presets that are applied while the one of that name does something.
  QString Walk(const QString& actor, std::function<void(TKTPropertyPreset*)> act) {
    FActor = actor;
    FAct = std::move(act);
    Presets().CopyPresetsToProperty(Add("a"));
    return FApplied.join(u' ');
  }

  QStringList FApplied;
  QString FActor;
  std::function<void(TKTPropertyPreset*)> FAct;
};

TEST_F(PropertyPresetWalkTest, APresetThatFreesItselfDoesNotHideTheNextOne) {
  EXPECT_EQ("0 1 2 3", Walk("1", [](TKTPropertyPreset* preset) { delete preset; }));
}

TEST_F(PropertyPresetWalkTest, APresetThatFreesOneBeforeItDoesNotHideTheNextOne) {
  EXPECT_EQ("0 1 2 3", Walk("1", [this](TKTPropertyPreset*) { Presets().Delete(0); }));
}

TEST_F(PropertyPresetWalkTest, APresetThatIsFreedBeforeItsTurnIsNotApplied) {
  EXPECT_EQ("0 1 3", Walk("1", [this](TKTPropertyPreset*) { Presets().Delete(2); }));
}

TEST_F(PropertyPresetWalkTest, APresetThatIsAddedIsAppliedInItsTurn) {
  EXPECT_EQ("0 1 2 3 4", Walk("1", [this](TKTPropertyPreset*) {
              TKTPropertyPreset* added = Presets().Add();
              added->SetName("4");
              added->SetInclusive(false);
              added->SetActions({pftCustom});
            }));
}

TEST_F(PropertyPresetWalkTest, APresetThatMovesToTheEndIsTheLast) {
  EXPECT_EQ("0 1", Walk("1", [](TKTPropertyPreset* preset) { preset->SetIndex(3); }));
}

// Observers of single changes.

/// Frees a preset, or itself, when it hears of a change.
class TFreeingInspector : public TPresetInspector {
 public:
  std::function<void()> OnUpdate;

 protected:
  void PresetUpdate(TKTPropertyPreset* preset) override {
    TPresetInspector::PresetUpdate(preset);
    if (const auto handler = std::exchange(OnUpdate, {})) handler();
  }
};

class PropertyPresetChangeLifeTest : public testing::Test {
 protected:
  PropertyPresetChangeLifeTest() {
    FPreset = FInspector->GetPresets().Add();
    FInspector->OnUpdate = [this] { delete std::exchange(FPreset, nullptr); };
  }

  std::unique_ptr<TFreeingInspector> FInspector = Make<TFreeingInspector>();
  TKTPropertyPreset* FPreset;
};

TEST_F(PropertyPresetChangeLifeTest, WhoHearsOfANewValueMayFreeThePreset) {
  FPreset->SetAlias("a");
  EXPECT_EQ(nullptr, FPreset);
}

TEST_F(PropertyPresetChangeLifeTest, WhoHearsOfANewLineMayFreeThePreset) {
  FPreset->GetPropNames().Add("a");
  EXPECT_EQ(nullptr, FPreset);
}

TEST_F(PropertyPresetChangeLifeTest, WhoHearsOfNewLinesMayFreeThePreset) {
  const auto lines = Make<TStringList>();
  lines->SetCommaText("a,b");
  FPreset->SetPickList(*lines);
  EXPECT_EQ(nullptr, FPreset);
}

TEST_F(PropertyPresetChangeLifeTest, WhoHearsOfANewFontMayFreeThePreset) {
  FPreset->GetFont().SetColor(clRed);
  EXPECT_EQ(nullptr, FPreset);
}

TEST_F(PropertyPresetChangeLifeTest, WhoHearsOfAFontThatFollowsMayFreeThePreset) {
  FInspector->GetFont().SetColor(clRed);
  EXPECT_EQ(nullptr, FPreset);
}

TEST_F(PropertyPresetChangeLifeTest, WhoHearsOfACopyMayFreeThePreset) {
  const auto source = Make<TKTPropertyPreset>(nullptr);
  FPreset->Assign(source.get());
  EXPECT_EQ(nullptr, FPreset);
}

TEST_F(PropertyPresetChangeLifeTest, WhoHearsOfANewValueMayFreeTheInspector) {
  FInspector->OnUpdate = [this] { FInspector = nullptr; };
  FPreset->SetAlias("a");
  EXPECT_EQ(nullptr, FInspector);
}

}  // namespace
}  // namespace kt::tests
