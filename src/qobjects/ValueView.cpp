// What inspectors are told of members, whoever holds them.
#include "kt/qobjects/MemberAccess.h"
#include "kt/qobjects/ValueMember.h"
#include "kt/qobjects/ValueTexts.h"
#include "kt/rtl/typeinfo/PropInfo.h"

namespace kt {

namespace {

/// A copy: what it is of may go while it is used.
TMemberPtr MemberBehind(const TPropInfo& property) {
  const IMemberAccess* access = FindMemberAccess(property);
  return access ? access->Member() : nullptr;
}

TMemberTexts TextsOf(const TPropInfo& property) {
  const IMemberAccess* access = FindMemberAccess(property);
  return access ? access->Texts() : TMemberTexts();
}

}  // namespace

std::optional<QString> TValueHolder::PropText(const TPropInfo& property) {
  const auto toText = TextsOf(property).ToText;
  if (!toText) return std::nullopt;
  return toText(*this);
}

bool TValueHolder::TakesPropText(const TPropInfo& property) {
  if (!property.IsWritable()) return false;
  return property.Kind() != tkClass || TextsOf(property).FromText;
}

bool TValueHolder::SetPropText(const TPropInfo& property, const QString& text) {
  const auto fromText = property.IsWritable() ? TextsOf(property).FromText : nullptr;
  return fromText && fromText(*this, text);
}

bool TValueHolder::HasPropChoices(const TPropInfo& property) {
  return property.IsWritable() && TextsOf(property).Choices;
}

QStringList TValueHolder::PropChoices(const TPropInfo& property) {
  const auto choices = TextsOf(property).Choices;
  return choices ? choices(*this) : QStringList();
}

bool TValueHolder::IsPropChanged(const TPropInfo& property) {
  const TMemberPtr member = MemberBehind(property);
  // What cannot be written, or is not stored, is nobody's change.
  if (!member || !member->Write || !member->IsStored) return false;
  const std::optional<QVariant> fresh = FreshValueOf(*member);
  return fresh && !LooksSame(member->Read(*this), *fresh);
}

bool TValueHolder::CanResetProp(const TPropInfo& property) {
  const TMemberPtr member = MemberBehind(property);
  return member && (member->Reset || (member->Write && FreshValueOf(*member)));
}

bool TValueHolder::ResetProp(const TPropInfo& property) {
  const TMemberPtr member = MemberBehind(property);
  if (!member) return false;
  if (member->Reset) return member->Reset(*this);
  const std::optional<QVariant> fresh = member->Write ? FreshValueOf(*member) : std::nullopt;
  if (fresh) member->Write(*this, *fresh);
  return fresh.has_value();
}

}  // namespace kt
