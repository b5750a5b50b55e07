#pragma once

#include "kt/KTObjectInspector/ItemProperties.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTPropertyPresets/PropertyPresets.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/Font.h"
#include "support/Expect.h"

#include <QStringList>

#include <functional>

namespace kt::tests {

/// An inspector that writes down what its presets tell it and ask of it.
class TPresetInspector : public TKTCustomObjectInspector {
 public:
  using Inherited = TKTCustomObjectInspector;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TPresetInspector>("TPresetInspector").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  QStringList Log;

 protected:
  explicit TPresetInspector(TComponent* owner = nullptr) : TKTCustomObjectInspector(owner) {}

  /// Without the inherited handling, which tells itself of an update.
  void PresetNotify(TKTPropertyPreset* preset, TCollectionNotification action) override {
    static const char* const names[] = {"added", "extracting", "deleting"};
    Log += QStringLiteral("%1(%2)").arg(names[action], NameOf(preset));
  }
  void PresetUpdate(TKTPropertyPreset* preset) override {
    Log += QStringLiteral("update(%1)").arg(NameOf(preset));
    TKTCustomObjectInspector::PresetUpdate(preset);
  }
  void MatchPreset(TKTPropertyPreset* preset, TKTItemProperty* item, bool& result) override {
    Log += QStringLiteral("match(%1,%2,%3)").arg(NameOf(preset), item->GetName(), result ? "true" : "false");
    TKTCustomObjectInspector::MatchPreset(preset, item, result);
  }
  void CustomPreset(TKTPropertyPreset* preset, TKTItemProperty* item) override {
    Log += QStringLiteral("custom(%1,%2)").arg(NameOf(preset), item->GetName());
    TKTCustomObjectInspector::CustomPreset(preset, item);
  }

 private:
  static QString NameOf(TKTPropertyPreset* preset) { return preset ? preset->GetDisplayName() : QStringLiteral("nil"); }
};

/// An inspector without window and without presets of others, and one preset "p" in it.
class TPresetTest : public testing::Test {
 protected:
  TPresetTest() {
    FInspector->GetPresets().Clear();
    FPreset = FInspector->GetPresets().Add();
    FPreset->SetName("p");
    FInspector->Log.clear();
  }

  TKTPropertyPresets& Presets() { return FInspector->GetPresets(); }
  /// What the inspector hears during a call.
  std::string Heard(const std::function<void()>& call) {
    FInspector->Log.clear();
    call();
    return FInspector ? FInspector->Log.join(u' ').toStdString() : "";
  }
  /// An item at the end of a level.
  static TKTItemProperty* AddTo(TKTItemProperties& items, const QString& name, TTypeKind kind = tkUnknown,
                                const QString& typeName = {}) {
    TKTItemProperty* item = items.Add();
    item->SetName(name);
    item->SetTypeKind(kind);
    item->SetTypeName(typeName);
    return item;
  }
  TKTItemProperty* Add(const QString& name, TTypeKind kind = tkUnknown, const QString& typeName = {}) {
    return AddTo(FInspector->GetItems(), name, kind, typeName);
  }

  std::unique_ptr<TPresetInspector> FInspector = Make<TPresetInspector>();
  TKTPropertyPreset* FPreset;
};

}  // namespace kt::tests
