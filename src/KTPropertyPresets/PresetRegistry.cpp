#include "kt/KTPropertyPresets/PresetRegistry.h"

#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <atomic>
#include <mutex>

namespace kt {

namespace {

using TPresetClasses = TThreadListOf<const TClassInfo>;

std::atomic<TPresetClasses*> PresetClasses = nullptr;

/// Never freed: presets of other libraries are unregistered at any time until the process ends.
TPresetClasses& EnsurePresetClasses() {
  static std::mutex mutex;
  const std::lock_guard lock(mutex);
  if (!PresetClasses) PresetClasses = Make<TPresetClasses>().release();
  return *PresetClasses;
}

/// Lists keep plain pointers; nobody writes through these.
void* ElementOf(const TClassInfo* presetClass) { return const_cast<TClassInfo*>(presetClass); }

bool IsOwnClass(const TClassInfo* presetClass) { return presetClass && presetClass != TKTPropertyPreset::Class(); }

}  // namespace

TPresetClasses* RegisteredPresets() { return PresetClasses; }

void RegisterPreset(const TClassInfo* presetClass) {
  Q_ASSERT(presetClass && presetClass->InheritsFrom(TKTPropertyPreset::Class()));
  RegisterClasses({presetClass});
  const TThreadListLock list(EnsurePresetClasses());
  for (; IsOwnClass(presetClass) && list->IndexOf(presetClass) < 0; presetClass = presetClass->ClassParent()) {
    list->Add(ElementOf(presetClass));
  }
}

void UnregisterPreset(const TClassInfo* presetClass) {
  TPresetClasses* classes = RegisteredPresets();
  if (!classes) return;
  const TThreadListLock list(*classes);
  while (IsOwnClass(presetClass) && list->Remove(ElementOf(presetClass)) >= 0) presetClass = presetClass->ClassParent();
}

void RegisterPresets(std::initializer_list<const TClassInfo*> presetClasses) {
  for (const TClassInfo* presetClass : presetClasses) RegisterPreset(presetClass);
}

void UnregisterPresets(std::initializer_list<const TClassInfo*> presetClasses) {
  for (const TClassInfo* presetClass : presetClasses) UnregisterPreset(presetClass);
}

}  // namespace kt
