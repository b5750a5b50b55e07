// References to other components, and the names of handlers.
#include "designer/inspector/DesignInspector.h"
#include "designer/inspector/ValuePresets.h"
#include "designer/session/Session.h"
#include "kt/KTPropertyPresets.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/strings/Strings.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"

namespace designer {

using namespace kt;

namespace {

/// What the item under the handler's sender stands for, in the first of the objects; null when that is gone.
TObject* FirstHolder(const TDesignInspector& inspector, TKTItemProperty* item) {
  const bool hasObject = item && inspector.GetObjects().GetCount() > 0;
  TObject* first = hasObject ? inspector.GetObjects().GetItem(0)->GetObjects() : nullptr;
  return first ? HolderOf(first, *item) : nullptr;
}

void OfferComponents(const TSession& session, const TClassInfo* wanted, TStrings& values) {
  for (const TComponent* component : session.Components()) {
    const bool fits = component->ClassType()->InheritsFrom(wanted) && !component->GetName().isEmpty();
    if (fits) values.Add(component->GetName());
  }
}

void SetReference(const TSession& session, TObject* instance, const QString& name, const QString& value) {
  if (!instance) return;
  const QString wanted = value.trimmed();
  TComponent* component = wanted.isEmpty() ? nullptr : session.Document().Find(wanted);
  if (!wanted.isEmpty() && !component) {
    throw EPropertyConvertError(QStringLiteral("There is no component '%1'").arg(wanted));
  }
  const TClassInfo* declared = GetObjectPropClass(instance, name);
  if (component && !component->InheritsFrom(declared)) {
    throw EPropertyConvertError(QStringLiteral("%1 is no %2").arg(TitleOf(*component), declared->ClassName()));
  }
  SetObjectProp(instance, name, component);
}

}  // namespace

void AddReferences(TDesignInspector& inspector, TSession& session) {
  TKTPropertyPreset* preset = inspector.GetPresets().Add();
  preset->SetName(QStringLiteral("References"));
  preset->GetTypeNames().Add(QStringLiteral("TComponent"));
  preset->SetTypeKinds({tkClass});
  preset->SetEditStyle(esPickList);
  preset->OnGetPickList = [&inspector, &session, preset](TObject* sender, const QString& path, TStrings& values) {
    TKTItemProperty* item = preset->GetItemProperty(sender, path);
    TObject* holder = FirstHolder(inspector, item);
    if (holder) OfferComponents(session, GetObjectPropClass(holder, item->GetRealPropName()), values);
  };
  preset->OnGetProperty = [](TObject*, TObject* instance, const QString& name, QString& value) {
    const auto* component = instance ? dynamic_cast<TComponent*>(GetObjectProp(instance, name)) : nullptr;
    value = component ? component->GetName() : QString();
  };
  preset->OnSetProperty = [&session](TObject*, TObject* instance, const QString& name, const QString& value) {
    SetReference(session, instance, name, value);
  };
  preset->SetMatchTypes({mtPropertyType});
  preset->SetActions({pftEditStyle, pftValidate});
}

void AddHandlerNames(TDesignInspector& inspector, TSession& session) {
  TKTPropertyPreset* preset = inspector.GetPresets().Add();
  preset->SetName(QStringLiteral("Handlers"));
  preset->SetTypeKinds({tkMethod});
  preset->SetEditStyle(esPickList);
  preset->OnGetPickList = [&inspector, &session, preset](TObject* sender, const QString& path, TStrings& values) {
    TKTItemProperty* item = preset->GetItemProperty(sender, path);
    TObject* holder = FirstHolder(inspector, item);
    if (!holder) return;
    const TPropInfo* event = FindPropInfo(holder, item->GetRealPropName());
    for (const QString& name : session.Document().HandlerNames(event)) values.Add(name);
  };
  preset->OnGetProperty = [&session](TObject*, TObject* instance, const QString& name, QString& value) {
    auto* object = dynamic_cast<TPersistent*>(instance);
    value = object ? session.Document().HandlerName(object, FindPropInfo(object, name)) : QString();
  };
  preset->OnSetProperty = [&session](TObject*, TObject* instance, const QString& name, const QString& value) {
    auto* object = dynamic_cast<TPersistent*>(instance);
    if (object) session.Document().SetHandlerName(object, FindPropInfo(object, name), value.trimmed());
  };
  preset->SetMatchTypes({mtPropertyType});
  preset->SetActions({pftEditStyle, pftValidate, pftWritable});
}

}  // namespace designer
