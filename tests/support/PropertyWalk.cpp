#include "support/PropertyWalk.h"

#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/strings/Strings.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "support/FormText.h"

#include <algorithm>
#include <utility>

namespace kt::tests {
namespace {

/// Items in items would go on without end.
constexpr int kLevelsOfItems = 2;

class THolder : public TCollection {
 public:
  using Inherited = TCollection;

 protected:
  explicit THolder(const TClassInfo* itemClass) : TCollection(itemClass) {}
};

TClassInfo FormClass(const TWalkRules& rules) {
  return TClassInfo({.Name = QStringLiteral("TWalkForm"), .Parent = TComponent::Class(), .Methods = rules.Handlers});
}

/// A form with an object of the walked class.
struct TWorld {
  explicit TWorld(const TClassInfo& formClass) : Form(Make<TWalkForm>(&formClass)) {}

  /// Makes the object; components, which a reader makes by itself, too.
  void MakeWalked(const TClassInfo* classInfo) {
    if (classInfo->InheritsFrom(TComponent::Class())) {
      Form->Walked = static_cast<TComponent*>(classInfo->CreateInstance(Form.get()));
    } else if (classInfo->InheritsFrom(TCollectionItem::Class())) {
      Holder = Make<THolder>(classInfo);
      Form->Walked = Holder->Add();
    } else {
      Own.reset(static_cast<TPersistent*>(classInfo->CreateInstance(nullptr)));
      Form->Walked = Own.get();
    }
  }

  std::unique_ptr<TCollection> Holder;
  std::unique_ptr<TPersistent> Own;
  std::unique_ptr<TWalkForm> Form;
};

/// The component that a property refers to, if it is one that refers.
TComponent* ReferredBy(TPersistent* object, const TPropInfo* property) {
  if (property->Kind() == tkInterface) return ComponentBehind(GetInterfaceProp(object, property));
  auto* component = dynamic_cast<TComponent*>(GetObjectProp(object, property));
  return component && !component->GetComponentStyle().Has(csSubComponent) ? component : nullptr;
}

/// The object that lives in a property, as a font does.
TPersistent* PartIn(TPersistent* object, const TPropInfo* property) {
  if (property->Kind() != tkClass || !property->IsReadable() || ReferredBy(object, property)) return nullptr;
  return dynamic_cast<TPersistent*>(GetObjectProp(object, property));
}

QString ValueText(TPersistent* object, const TPropInfo* property) {
  switch (property->Kind()) {
    case tkFloat:
      return QString::number(static_cast<double>(GetExtendedProp(object, property)), 'g', 17);
    case tkClass:
    case tkInterface: {
      const TComponent* target = ReferredBy(object, property);
      return target ? u'@' + target->GetName() : QStringLiteral("nil");
    }
    case tkMethod: {
      const TMethod method = GetMethodProp(object, property);
      return method.Instance() ? method.Instance()->ClassType()->MethodName(method) : QString();
    }
    default:
      return VarToStr(GetPropValue(object, property));
  }
}

bool IsIn(const std::vector<TWalkException>& exceptions, const QString& property) {
  return std::any_of(exceptions.begin(), exceptions.end(),
                     [&](const TWalkException& one) { return property == QLatin1StringView(one.Property); });
}

QString FullName(const TPersistent* object, const TPropInfo* property) {
  return object->ClassName() + u'.' + property->Name();
}

/// What the stored properties hold, one a line, by path.
void Describe(TPersistent* object, const QString& path, const TWalkRules& rules, QStringList& lines) {
  for (const TPropInfo* property : object->ClassType()->Props()) {
    if (!property->IsReadable() || !IsStoredProp(object, property)) continue;
    if (IsIn(rules.Derived, FullName(object, property))) continue;
    const QString name = path + property->Name();
    if (TPersistent* part = PartIn(object, property)) {
      Describe(part, name + u'.', rules, lines);
    } else {
      lines += name + u'=' + ValueText(object, property);
    }
  }
  if (auto* collection = dynamic_cast<TCollection*>(object)) {
    for (int i = 0; i < collection->GetCount(); ++i) {
      Describe(collection->GetItem(i), path + u'[' + QString::number(i) + QStringLiteral("]."), rules, lines);
    }
  }
  if (auto* strings = dynamic_cast<TStrings*>(object)) lines += path + strings->GetCommaText();
}

QStringList DescriptionOf(TPersistent* object, const TWalkRules& rules) {
  QStringList lines;
  Describe(object, QString(), rules, lines);
  return lines;
}

/// The smallest other ordinal that the type has.
qint64 OtherOrdinal(const TTypeInfo* type, qint64 present) {
  if (type->Kind() == tkSet) return present ^ 1;
  const TOrdTypeInfo* range = OrdTypeOf(type);
  if (IsBoolType(type)) return present == 0 ? (range->MinValue() < 0 ? -1 : 1) : 0;
  return present < range->MaxValue() ? present + 1 : range->MinValue();
}

/// Gives every property of an object another value than it has, and notes those that have not taken it.
class TChanges {
 public:
  TChanges(TWalkForm& form, const TWalkRules& rules) : FForm(form), FRules(rules) {}

  void ChangeObject(TPersistent* object, int levels) {
    for (const TPropInfo* property : object->ClassType()->Props()) ChangeProperty(object, property, levels);
    if (auto* collection = dynamic_cast<TCollection*>(object); collection && levels > 0) {
      ChangeObject(collection->Add(), levels - 1);
    }
    if (auto* strings = dynamic_cast<TStrings*>(object)) strings->Add(QStringLiteral("line"));
  }
  const QStringList& Unchanged() const { return FUnchanged; }

 private:
  void ChangeProperty(TPersistent* object, const TPropInfo* property, int levels) {
    const QString name = FullName(object, property);
    if (IsIn(FRules.Untouched, name)) return;
    if (TPersistent* part = PartIn(object, property)) return ChangeObject(part, levels);
    if (!property->IsReadable() || !property->IsWritable()) return;
    try {
      const QString before = ValueText(object, property);
      SetOther(object, property);
      if (!IsIn(FRules.Choosy, name) && ValueText(object, property) == before) FUnchanged += name + u'=' + before;
    } catch (const Exception& error) {
      FUnchanged += name + QStringLiteral(": ") + error.Message();
    }
  }

  void SetOther(TPersistent* object, const TPropInfo* property) {
    switch (property->Kind()) {
      case tkInt64:
        return SetInt64Prop(object, property, GetInt64Prop(object, property) + 1);
      case tkFloat:
        return SetFloatProp(object, property, GetFloatProp(object, property) + 0.5);
      case tkString:
      case tkLString:
      case tkWString:
        return SetStrProp(object, property, GetStrProp(object, property) + u'x');
      case tkVariant:
        return SetVariantProp(object, property, Variant(QStringLiteral("varied")));
      case tkMethod:
        return SetHandler(object, property);
      case tkClass:
        return SetObjectProp(object, property, FForm.EnsureTarget(GetObjectPropClass(property)));
      case tkInterface:
        return SetInterfaceProp(object, property,
                                static_cast<IInterfaceComponentReference*>(FForm.EnsureTarget(TComponent::Class())));
      default:
        SetOrdProp(object, property, OtherOrdinal(property->PropType(), GetOrdProp(object, property)));
    }
  }

  /// The first handler that the event takes; none of them leaves the event as it is.
  void SetHandler(TPersistent* object, const TPropInfo* property) {
    for (const TClassInfo::TPublishedMethod& handler : FRules.Handlers) {
      try {
        return SetMethodProp(object, property, handler.Bind(&FForm));
      } catch (const EPropertyConvertError&) {
        // Of another signature.
      }
    }
  }

  TWalkForm& FForm;
  const TWalkRules& FRules;
  QStringList FUnchanged;
};

/// Reads a form into a fresh world like the one that it was written from.
QStringList DescriptionAfterReading(const QByteArray& binary, const TWorld& written, const TWalkRules& rules) {
  const TClassInfo formClass = FormClass(rules);
  TWorld world(formClass);
  world.Form->EnsureTargetsOf(*written.Form);
  const TClassInfo* walked = written.Form->Walked->ClassType();
  const bool isChild = walked->InheritsFrom(TComponent::Class());
  if (!isChild) world.MakeWalked(walked);
  TReader(binary).ReadRootComponent(world.Form.get());
  TWalkForm& form = *world.Form;
  return DescriptionOf(isChild ? form.GetComponents(form.GetComponentCount() - 1) : form.Walked, rules);
}

}  // namespace

TComponent* TWalkForm::EnsureTarget(const TClassInfo* declared) {
  if (!declared->InheritsFrom(TComponent::Class())) return nullptr;
  const TClassInfo* fitting = declared->IsCreatable() ? declared : nullptr;
  for (const TClassInfo* candidate : RegisteredClasses()) {
    if (!fitting && candidate->IsCreatable() && candidate->InheritsFrom(declared)) fitting = candidate;
  }
  if (!fitting) return nullptr;
  const QString name = QStringLiteral("Target") + fitting->ClassName();
  if (TComponent* present = FindComponent(name)) return present;
  auto* made = static_cast<TComponent*>(fitting->CreateInstance(this));
  made->SetName(name);
  return made;
}

void TWalkForm::EnsureTargetsOf(const TWalkForm& other) {
  for (int i = 0; i < other.GetComponentCount(); ++i) {
    const TComponent* target = other.GetComponents(i);
    if (static_cast<const TPersistent*>(target) != other.Walked) EnsureTarget(target->ClassType());
  }
}

void TWalkForm::DefineProperties(TFiler& filer) {
  const auto read = [this](TReader& reader) {
    reader.ReadCollectionBegin();
    reader.ReadItemBegin();
    reader.ReadProperties(*Walked);
    reader.ReadListEnd();
    reader.ReadListEnd();
  };
  const auto write = [this](TWriter& writer) {
    writer.WriteCollectionBegin();
    writer.WriteListBegin();
    writer.WriteProperties(*Walked);
    writer.WriteListEnd();
    writer.WriteListEnd();
  };
  filer.DefineProperty(u"Walked", read, write, Walked && !dynamic_cast<TComponent*>(Walked));
}

void TWalkForm::GetChildren(const TGetChildProc& proc, TComponent*) {
  if (auto* child = dynamic_cast<TComponent*>(Walked)) proc(child);
}

std::vector<QString> WalkedClasses() {
  std::vector<QString> names;
  for (const TClassInfo* classInfo : RegisteredClasses()) {
    if (classInfo->IsCreatable()) names.push_back(classInfo->ClassName());
  }
  return names;
}

QStringList WrongDefaults(const QString& className, const TWalkRules& rules) {
  const TClassInfo formClass = FormClass(rules);
  TWorld world(formClass);
  world.MakeWalked(FindClass(className));
  TPersistent* object = world.Form->Walked;
  QStringList wrong;
  for (const TPropInfo* property : object->ClassType()->Props()) {
    const QString name = FullName(object, property);
    const bool isKnown = property->HasDefault() && property->IsReadable() && property->Kind() != tkClass;
    if (!isKnown || IsIn(rules.OtherDefaults, name)) continue;
    const qint64 value = GetOrdProp(object, property);
    if (value != property->Default()) wrong += QStringLiteral("%1=%2").arg(name).arg(value);
  }
  return wrong;
}

QStringList UnchangedProperties(const QString& className, const TWalkRules& rules) {
  const TClassInfo formClass = FormClass(rules);
  TWorld world(formClass);
  world.MakeWalked(FindClass(className));
  TChanges changes(*world.Form, rules);
  changes.ChangeObject(world.Form->Walked, kLevelsOfItems);
  return changes.Unchanged();
}

QStringList LostOnTheWay(const QString& className, const TWalkRules& rules, TWalkState state, TWalkFormat format) {
  const TClassInfo formClass = FormClass(rules);
  TWorld world(formClass);
  world.MakeWalked(FindClass(className));
  if (state == wsChanged) TChanges(*world.Form, rules).ChangeObject(world.Form->Walked, kLevelsOfItems);
  QByteArray binary = WriteComponentToBinary(world.Form.get());
  if (format == wfText) binary = BinaryOf(TextOf(binary).c_str());
  const QStringList expected = DescriptionOf(world.Form->Walked, rules);
  const QStringList actual = DescriptionAfterReading(binary, world, rules);
  QStringList lost;
  for (const QString& line : expected) {
    if (!actual.contains(line)) lost += QStringLiteral("lost ") + line;
  }
  for (const QString& line : actual) {
    if (!expected.contains(line)) lost += QStringLiteral("got ") + line;
  }
  return lost;
}

QStringList IdleExceptions(const TWalkRules& rules) {
  QStringList idle;
  for (const auto* list : {&rules.Untouched, &rules.Choosy, &rules.Derived, &rules.OtherDefaults}) {
    for (const TWalkException& exception : *list) {
      const QString name = QString::fromLatin1(exception.Property);
      const TClassInfo* classInfo = GetClass(name.section(u'.', 0, 0));
      const bool isProperty = classInfo && classInfo->FindProp(name.section(u'.', 1));
      if (!isProperty || !*exception.Reason) idle += name;
    }
  }
  return idle;
}

}  // namespace kt::tests
