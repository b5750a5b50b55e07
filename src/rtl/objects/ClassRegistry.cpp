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

bool EndsLineage(const TClassInfo* classInfo) { return !classInfo || classInfo == TObject::Class(); }

/// The classes that registering `classInfo` adds, itself first: up to one that is there already, or to TPersistent.
std::vector<const TClassInfo*> MissingLineage(const TRegistry& registry, const TClassInfo* classInfo) {
  std::vector<const TClassInfo*> missing;
  for (; !EndsLineage(classInfo); classInfo = classInfo->ClassParent()) {
    const TClassInfo* entry = registry.Classes.value(LowerCase(classInfo->ClassName()));
    if (entry == classInfo) break;
    if (entry) throw EFilerError(Format(SDuplicateClass, {classInfo->ClassName()}));
    missing.push_back(classInfo);
    if (classInfo == TPersistent::Class()) break;
  }
  return missing;
}

}  // namespace

// In one step, since to another thread a class that is there means that its parents are.
void RegisterClass(const TClassInfo* classInfo) {
  TRegistry& registry = Registry();
  const std::lock_guard lock(registry.Mutex);
  for (const TClassInfo* missing : MissingLineage(registry, classInfo)) {
    registry.Classes[LowerCase(missing->ClassName())] = missing;
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
