#include "kt/rtl/objects/Persistent.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/Load.h"
#include "kt/rtl/streams/UnknownComponent.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TPersistent::Class() {
  static const TClassInfo info = TClassBuilder<TPersistent>("TPersistent").Creatable().Done();
  return &info;
}

void TPersistent::Destruct() {
  TLoad::Forget(this);
  RemoveFixups(this);
  ForgetStandIns(this);
  TObject::Destruct();
}

void TPersistent::Assign(TPersistent* source) {
  if (!source) AssignError(nullptr);
  source->AssignTo(this);
}

void TPersistent::AssignTo(TPersistent* dest) { dest->AssignError(this); }

void TPersistent::AssignError(TPersistent* source) {
  const QString sourceName = source ? source->ClassName() : QStringLiteral("nil");
  throw EConvertError(Format(SAssignError, {sourceName, ClassName()}));
}

QString TPersistent::GetNamePath() {
  TPersistent* owner = GetOwner();
  const QString path = owner ? owner->GetNamePath() : QString();
  return path.isEmpty() ? ClassName() : path + QLatin1Char('.') + ClassName();
}

}  // namespace kt
