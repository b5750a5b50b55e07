#pragma once

#include <QStringView>

#include <initializer_list>
#include <vector>

namespace kt {

class TClassInfo;

/// The classes that streams can create by name. Shared by the whole process; every operation locks.

/// Registers a class and its ancestors up to TPersistent. Raises EFilerError "A class named %s already exists" when
/// another class of that name is registered, and then registers nothing; registering one class twice does nothing.
void RegisterClass(const TClassInfo* classInfo);
void RegisterClasses(std::initializer_list<const TClassInfo*> classInfos);
/// Takes back a registration; its ancestors stay.
void UnRegisterClass(const TClassInfo* classInfo);
void UnRegisterClasses(std::initializer_list<const TClassInfo*> classInfos);
/// The registered class of that name, without regard to case, or null.
const TClassInfo* GetClass(QStringView name);
/// As GetClass(), but raises EClassNotFound "Class %s not found".
const TClassInfo* FindClass(QStringView name);
/// All registered classes in the order of their names.
std::vector<const TClassInfo*> RegisteredClasses();

}  // namespace kt
