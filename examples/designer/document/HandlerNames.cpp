// The handlers of events, as names.
#include "designer/document/ComponentTree.h"
#include "designer/document/FormDocument.h"
#include "kt/rtl/streams/TextLexer.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <QUndoStack>

namespace designer {
namespace {

/// Whether an event of that type can call `method`.
bool Fits(const kt::TTypeInfo* type, const kt::TMethod& method) {
  const kt::TMethod example = kt::NamedMethod(type, method.Instance(), QStringLiteral("Example"));
  return example && example.Handler()->Signature() == method.Handler()->Signature();
}

}  // namespace

QString TFormDocument::HandlerName(kt::TPersistent* object, const kt::TPropInfo* event) const {
  return FForm->ClassType()->MethodName(kt::GetMethodProp(object, event));
}

QStringList TFormDocument::HandlerNames(const kt::TPropInfo* event) const {
  QStringList names;
  for (kt::TComponent* component : WithDescendants(FForm.get(), FForm.get())) {
    for (const kt::TPropInfo* property : component->ClassType()->Props()) {
      if (property->Kind() != kt::tkMethod || !property->IsReadable()) continue;
      const kt::TMethod method = kt::GetMethodProp(component, property);
      if (method && Fits(event->PropType(), method)) names.append(FForm->ClassType()->MethodName(method));
    }
  }
  names.removeAll(QString());
  names.sort(Qt::CaseInsensitive);
  names.removeDuplicates();
  return names;
}

void TFormDocument::SetHandlerName(kt::TPersistent* object, const kt::TPropInfo* event, const QString& name) {
  if (name.isEmpty()) return kt::SetMethodProp(object, event, kt::TMethod());
  if (!kt::IsFormIdentifier(name))
    throw EDocumentError(QStringLiteral("%1: '%2' is not a valid method name").arg(event->Name(), name));
  const kt::TMethod method = kt::NamedMethod(event->PropType(), FForm.get(), name);
  if (!method) throw EDocumentError(QStringLiteral("%1 is no event").arg(event->Name()));
  kt::SetMethodProp(object, event, method);
}

}  // namespace designer
