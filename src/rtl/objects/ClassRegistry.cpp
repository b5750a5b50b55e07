#include "kt/rtl/objects/ClassRegistry.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <QMap>

#include <mutex>

namespace kt {
namespace {

struct TRegistry {
  std::mutex Mutex;
  QMap<QString, const TClassInfo*> Classes;
};

TRegistry& Registry() {
  static TRegistry registry;
  return registry;
}

/// False when the class was there already.
bool AddClass(const TClassInfo* classInfo) {
  TRegistry& registry = Registry();
  const std::lock_guard lock(registry.Mutex);
  const TClassInfo*& entry = registry.Classes[LowerCase(classInfo->ClassName())];
  if (entry == classInfo) return false;
  if (entry) throw EFilerError(Format(SDuplicateClass, {classInfo->ClassName()}));
  entry = classInfo;
  return true;
}

}  // namespace

void RegisterClass(const TClassInfo* classInfo) {
  while (classInfo && classInfo != TObject::Class() && AddClass(classInfo) && classInfo != TPersistent::Class()) {
    classInfo = classInfo->ClassParent();
  }
}

void RegisterClasses(std::initializer_list<const TClassInfo*> classInfos) {
  for (const TClassInfo* classInfo : classInfos) RegisterClass(classInfo);
}

void UnRegisterClass(const TClassInfo* classInfo) {
  TRegistry& registry = Registry();
  const std::lock_guard lock(registry.Mutex);
  const auto entry = registry.Classes.find(LowerCase(classInfo->ClassName()));
  if (entry != registry.Classes.end() && *entry == classInfo) registry.Classes.erase(entry);
}

void UnRegisterClasses(std::initializer_list<const TClassInfo*> classInfos) {
  for (const TClassInfo* classInfo : classInfos) UnRegisterClass(classInfo);
}

const TClassInfo* GetClass(QStringView name) {
  TRegistry& registry = Registry();
  const std::lock_guard lock(registry.Mutex);
  return registry.Classes.value(LowerCase(name));
}

const TClassInfo* FindClass(QStringView name) {
  const TClassInfo* found = GetClass(name);
  if (!found) throw EClassNotFound(Format(SClassNotFound, {name}));
  return found;
}

std::vector<const TClassInfo*> RegisteredClasses() {
  TRegistry& registry = Registry();
  const std::lock_guard lock(registry.Mutex);
  return {registry.Classes.begin(), registry.Classes.end()};
}

}  // namespace kt
