#pragma once

#include "KTObjectInspector/InspectorFixture.h"
#include "KTObjectInspector/LivelySample.h"
#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/KTPropertyPresets/PropertyPresets.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "support/CallOuts.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

namespace kt::tests {

/// How the inspector is set up.
enum TInspectorMode { imPlain, imSeveralColumns, imByCategory };

/// An inspector of two objects that has every handler, each of which is code of an application, as the getters of the
/// objects are.
class TLivelyInspectorTest : public TInspectorTest {
 public:
  // What scenarios do.

  void Scan() { FInspector->Rescan(); }
  void AddObject() {
    FInspector->GetObjects().Add(FThird.get());
    Deliver();
  }
  void Refresh() { FInspector->RefreshProperties(); }
  void WriteAll() {
    for (const char* path : {"Align", "Items.Items[0].Caption", "Lines.Items[0]", "Part.Size", "Partner.Whole",
                             "Reference.Whole", "Styles.ssBold", "Whole"}) {
      TKTItemProperty* item = At(path);
      if (!item) continue;
      const QString text = item->GetTypeKind() == tkEnumeration ? item->GetPickList().GetStrings(1) : "5";
      item->SetValueLine(0, text);
      item->Validate();
    }
    if (FInspector) Deliver();
  }
  void ReadByAccessors() {
    for (const char* path : {"Part.Size", "Partner.Whole", "Reference.Whole", "Whole"}) {
      if (TKTItemProperty* item = At(path)) item->GetOrdProperty(-1);
    }
    if (TKTItemProperty* item = At("Items.Items[1].Caption")) item->GetStringProperty(0);
    if (TKTItemProperty* item = At("Items.Items[1]")) item->GetObjectProperty(-1);
    if (TKTItemProperty* item = At("Partner")) item->GetObjectProperty(1);
  }
  void WriteByAccessors() {
    for (const char* path : {"Part.Size", "Partner.Whole", "Whole"}) {
      if (TKTItemProperty* item = At(path)) item->SetOrdProperty(7, -1);
    }
    // By a text of the item that is written.
    TKTItemProperty* item = At("Items.Items[1].Caption");
    if (item) item->SetStringProperty(item->GetRealPropName(), -1);
  }
  /// What painting asks.
  void LookAtFonts() {
    for (int i = 0; FInspector && i < FInspector->GetItemCount(); ++i) {
      FInspector->GetItem(i)->IndividualValueFontToDraw(0);
    }
  }
  void ChangeFilters() {
    FInspector->GetFilters().Add("Tag");
    if (FInspector) Deliver();
  }

  // What happens to those who called.

  void FreeFirst() { FFirst.reset(); }
  void FreePartner() { FPartner.reset(); }
  void FreeReferred() { FReferred.reset(); }
  void FreeObjects() {
    FFirst.reset();
    FSecond.reset();
    FThird.reset();
    FPartner.reset();
    FReferred.reset();
  }
  void ClearObjects() {
    if (FInspector) FInspector->GetObjects().Clear();
  }
  void ReplaceObject() {
    if (FInspector) FInspector->SetInspectedComponent(FThird.get());
  }
  void ClearItems() {
    if (FInspector) FInspector->GetItems().Clear();
  }
  void ClearElements() {
    TLively::SetHook({});
    if (FFirst) FFirst->GetItems()->Clear();
  }
  void RescanInside() {
    if (FInspector) FInspector->Rescan();
  }
  void RefreshInside() {
    if (FInspector) FInspector->RefreshProperties();
  }
  void FreeInspector() { FInspector.reset(); }

 protected:
  TLivelyInspectorTest() {
    Application().OnException = [this](TObject*, const Exception& error) { FErrors += error.Message(); };
  }
  ~TLivelyInspectorTest() override {
    TLively::SetHook({});
    // An open editor writes what it holds, which handlers hear that use what is kept here.
    FWindow.reset();
    FInspector.reset();
    Application().OnException = nullptr;
  }

  /// Makes everything anew and lists it, with nothing happening meanwhile.
  void Renew(TInspectorMode mode) {
    TLively::SetHook({});
    FErrors.clear();
    FWindow.reset();
    FInspector.reset();
    FMode = mode;
    MakeObjects();
    FInspector = MakeInspector();
    Hear(*FInspector);
    FInspector->GetObjects().Add(FFirst.get());
    FInspector->GetObjects().Add(FSecond.get());
    Deliver();
    HearItem(*At("Reference.Whole"));
  }
  void Show() {
    FWindow = std::make_unique<TWindowProbe>(*FInspector, QSize(400, 600));
    FInspector->SetFocus();
    TWindowProbe::Settle();
  }

  /// Whatever has happened: nothing is locked, and a scan lists what an inspector that has seen nothing of it lists.
  void CheckAllIsWell() {
    TLively::SetHook({});
    if (!FInspector) return;
    EXPECT_FALSE(FInspector->IsEditUpdateLocked());
    EXPECT_EQ(0, FInspector->GetItems().GetUpdateCount());
    EXPECT_EQ(0, FInspector->GetObjects().GetUpdateCount());
    FInspector->Rescan();
    Deliver();
    const auto fresh = MakeInspector();
    fresh->SetFilters(FInspector->GetFilters());
    fresh->GetObjects().Assign(&FInspector->GetObjects());
    fresh->Rescan();
    EXPECT_EQ(Tree(fresh->GetItems()), Tree(FInspector->GetItems()));
    EXPECT_FALSE(FInspector->IsEditUpdateLocked());
    EXPECT_EQ(0, FInspector->GetItems().GetUpdateCount());
  }

  /// The item of that path, in which categories do not count; null without an inspector.
  TKTItemProperty* At(const QString& path) const {
    for (int i = 0; FInspector && i < FInspector->GetItemCount(); ++i) {
      QStringList names;
      for (TKTItemProperty* item = FInspector->GetItem(i); item; item = item->GetParent()) {
        if (!item->GetCategory()) names.prepend(item->GetName());
      }
      if (names.join(u'.') == path && !FInspector->GetItem(i)->GetCategory()) return FInspector->GetItem(i);
    }
    return nullptr;
  }

  /// The whole tree: "a=1 b[c=2]".
  static QString Tree(TKTItemProperties& items) {
    QStringList texts;
    for (int i = 0; i < items.GetCount(); ++i) {
      TKTItemProperty& item = *items.GetItem(i);
      QString text = item.GetName() + "=" + item.GetValueLine(0);
      if (item.HasItems()) text += "[" + Tree(item.GetItems()) + "]";
      texts += text;
    }
    return texts.join(u' ');
  }

  std::unique_ptr<TLivelySample> FFirst;
  std::unique_ptr<TLivelySample> FSecond;
  std::unique_ptr<TLivelySample> FThird;
  std::unique_ptr<TLivelyPartner> FPartner;
  std::unique_ptr<TLivelyPartner> FReferred;
  std::unique_ptr<TWindowProbe> FWindow;
  QStringList FErrors;
  /// What handlers have made of their parameters.
  QString FUsed;
  TInspectorMode FMode = imPlain;

 private:
  void MakeObjects() {
    FPartner = Make<TLivelyPartner>();
    FReferred = Make<TLivelyPartner>();
    for (auto* object : {&FFirst, &FSecond, &FThird}) {
      *object = Make<TLivelySample>();
      (*object)->SetPartner(FPartner.get());
      (*object)->SetReferred(FReferred.get());
    }
  }
  std::unique_ptr<TKTObjectInspector> MakeInspector() const {
    auto inspector = Make<TKTObjectInspector>();
    inspector->SetInplaceCollections(true);
    inspector->SetInplaceTStrings(true);
    if (FMode == imSeveralColumns) {
      inspector->SetDisplayOptions(inspector->GetDisplayOptions() + TILEDisplayOptions{doMultiColValues});
    }
    if (FMode == imByCategory) inspector->SetArrangeByCategory(true);
    return inspector;
  }
  /// Handlers use what they were given also after what has happened inside.
  void Hear(TKTObjectInspector& inspector) {
    const auto tell = [](const char* name) { return [name](auto&&...) { TLively::Call(name); }; };
    inspector.OnBeforeScan = tell("OnBeforeScan");
    inspector.OnAfterScan = tell("OnAfterScan");
    inspector.OnRefreshValue = tell("OnRefreshValue");
    inspector.OnPropertyChanging = tell("OnPropertyChanging");
    inspector.OnPropertyChanged = tell("OnPropertyChanged");
    inspector.OnMatchPreset = tell("OnMatchPreset");
    inspector.OnCustomPreset = tell("OnCustomPreset");
    inspector.OnValidate = tell("OnValidate");
    inspector.OnValidated = tell("OnValidated");
    inspector.OnFiltersChanging = tell("OnFiltersChanging");
    inspector.OnFiltersChanged = tell("OnFiltersChanged");
    inspector.OnSelectCell = tell("OnSelectCell");
    inspector.OnGetEditText = tell("OnGetEditText");
    inspector.OnCategorize = [this](TObject*, TKTItemProp*, const QString& name, QString&) {
      CallWith("OnCategorize", name);
    };
    inspector.OnGetPickList = [this](TObject*, const QString& name, TStrings&) { CallWith("OnGetPickList", name); };
    inspector.OnSetEditText = [this](TObject*, int, int, const QString& text) { CallWith("OnSetEditText", text); };
    inspector.OnValidateError = [this](TObject*, TKTItemProp*, int, const Exception& error) {
      FErrors += error.Message();
      TLively::Call("OnValidateError");
      FUsed = error.Message() + u'.';
    };
    TKTPropertyPreset* preset = inspector.GetPresets().Add(TKTPropertyPreset::Class());
    preset->GetPropNames().Add("Whole");
    preset->SetActions({pftCustom});
  }
  void HearItem(TKTItemProperty& item) {
    item.SetOnGetProperty([](TObject*, TObject*, const QString& name, QString& value) {
      TLively::Call("OnGetProperty");
      value = name + u'!';
    });
    item.SetOnSetProperty([this](TObject*, TObject*, const QString& name, const QString& value) {
      TLively::Call("OnSetProperty");
      FUsed = name + value;
    });
  }
  void CallWith(const char* name, const QString& text) {
    TLively::Call(name);
    FUsed = text + u'.';
  }
};

/// A scenario, by its name.
struct TLivelyScenario {
  const char* Name;
  void (TLivelyInspectorTest::*Run)();
};
inline void PrintTo(const TLivelyScenario& scenario, std::ostream* out) { *out << scenario.Name; }

inline const TLivelyScenario LivelyScenarios[] = {{"Scanning", &TLivelyInspectorTest::Scan},
                                                  {"AddingAnObject", &TLivelyInspectorTest::AddObject},
                                                  {"Refreshing", &TLivelyInspectorTest::Refresh},
                                                  {"Writing", &TLivelyInspectorTest::WriteAll},
                                                  {"ReadingByAccessors", &TLivelyInspectorTest::ReadByAccessors},
                                                  {"WritingByAccessors", &TLivelyInspectorTest::WriteByAccessors},
                                                  {"LookingAtFonts", &TLivelyInspectorTest::LookAtFonts},
                                                  {"ChangingFilters", &TLivelyInspectorTest::ChangeFilters}};

/// What happens in the middle of something, by its name.
struct TLivelyDeed {
  const char* Name;
  void (TLivelyInspectorTest::*Do)();
};
inline void PrintTo(const TLivelyDeed& deed, std::ostream* out) { *out << deed.Name; }

inline const TLivelyDeed LivelyDeeds[] = {{"FreesTheFirstObject", &TLivelyInspectorTest::FreeFirst},
                                          {"FreesAPartner", &TLivelyInspectorTest::FreePartner},
                                          {"FreesAReferredObject", &TLivelyInspectorTest::FreeReferred},
                                          {"FreesEverything", &TLivelyInspectorTest::FreeObjects},
                                          {"ClearsTheObjects", &TLivelyInspectorTest::ClearObjects},
                                          {"ReplacesAnObject", &TLivelyInspectorTest::ReplaceObject},
                                          {"ClearsTheTree", &TLivelyInspectorTest::ClearItems},
                                          {"ClearsTheElements", &TLivelyInspectorTest::ClearElements},
                                          {"AsksForAScan", &TLivelyInspectorTest::RescanInside},
                                          {"Refreshes", &TLivelyInspectorTest::RefreshInside},
                                          {"FreesTheInspector", &TLivelyInspectorTest::FreeInspector}};

inline const char* NameOfMode(TInspectorMode mode) {
  constexpr const char* Names[] = {"Plain", "SeveralColumns", "ByCategory"};
  return Names[mode];
}

}  // namespace kt::tests
