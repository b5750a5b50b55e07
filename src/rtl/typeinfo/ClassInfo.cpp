#include "kt/rtl/typeinfo/ClassInfo.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <algorithm>

namespace kt {

TClassInfo::TClassInfo(TDefinition definition)
    : FParent(definition.Parent),
      FTypeInfo(std::move(definition.Name), this),
      FMethods(std::move(definition.Methods)),
      FFactory(std::move(definition.Factory)) {
  for (TPropInfo::TDefinition& property : definition.Properties) FOwnProps.emplace_back(std::move(property));
  IndexProps();
}

bool TClassInfo::InheritsFrom(const TClassInfo* ancestor) const {
  for (const TClassInfo* candidate = this; candidate; candidate = candidate->FParent) {
    if (candidate == ancestor) return true;
  }
  return false;
}

bool TClassInfo::ClassNameIs(QStringView name) const { return SameText(ClassName(), name); }

const TPropInfo* TClassInfo::FindProp(QStringView name) const {
  const auto found = std::lower_bound(
      FAllByName.begin(), FAllByName.end(), name,
      [](const TPropInfo* property, QStringView wanted) { return CompareText(property->Name(), wanted) < 0; });
  return found != FAllByName.end() && SameText((*found)->Name(), name) ? *found : nullptr;
}

TObject* TClassInfo::CreateInstance(TObject* parent) const {
  if (!FFactory) throw EInvalidCast(Format(SCannotCreate, {ClassName()}));
  return FFactory(parent);
}

TMethod TClassInfo::FindMethod(QStringView name, TObject* instance) const {
  for (const TPublishedMethod& method : FMethods) {
    if (SameText(method.Name, name)) return method.Bind(instance);
  }
  return FParent ? FParent->FindMethod(name, instance) : TMethod();
}

QString TClassInfo::MethodName(const TMethod& method) const {
  if (!method.Instance()) return {};
  QString ownName = method.Handler()->MethodName();
  if (!ownName.isEmpty()) return ownName;
  for (const TPublishedMethod& candidate : FMethods) {
    if (candidate.Bind(method.Instance()) == method) return candidate.Name;
  }
  return FParent ? FParent->MethodName(method) : QString();
}

void TClassInfo::IndexProps() {
  if (FParent) FAllProps = FParent->FAllProps;
  for (const TPropInfo& property : FOwnProps) {
    const auto inherited = std::find_if(FAllProps.begin(), FAllProps.end(), [&property](const TPropInfo* other) {
      return SameText(other->Name(), property.Name());
    });
    if (inherited != FAllProps.end()) {
      *inherited = &property;
    } else {
      FAllProps.push_back(&property);
    }
  }
  FAllByName = FAllProps;
  std::sort(FAllByName.begin(), FAllByName.end(),
            [](const TPropInfo* a, const TPropInfo* b) { return CompareText(a->Name(), b->Name()) < 0; });
}

}  // namespace kt
