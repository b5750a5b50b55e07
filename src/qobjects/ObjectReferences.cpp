#include "kt/qobjects/ObjectReferences.h"

#include "kt/qobjects/ComponentOf.h"
#include "kt/qobjects/Messages.h"
#include "kt/qobjects/QObjectClasses.h"
#include "kt/qobjects/ReferenceChoices.h"
#include "kt/qobjects/ReferenceWatch.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <QObject>
#include <QThread>

namespace kt {

namespace {

/// What a member points to.
struct TTarget {
  QObject* Object = nullptr;
  /// The pointer was left behind.
  bool IsGone = false;
  bool IsElsewhere = false;

  bool IsUsable() const { return Object && !IsGone && !IsElsewhere; }
};

/// The holder may be gone afterwards, and then there is no target.
TTarget ReadTarget(TValueHolder& holder, const TValueMember& member) {
  const TLifeWatch watch(&holder.AsObject());
  const QVariant value = member.Read(holder);
  if (!watch.IsAlive() || !IsReference(value.metaType())) return {};
  TTarget target;
  target.Object = *static_cast<QObject* const*>(value.constData());
  if (!target.Object) {
    holder.References().Forget(member);
    return target;
  }
  target.IsGone = holder.References().IsGone(member, target.Object);
  if (target.IsGone) return target;
  holder.References().Follow(member, *target.Object);
  target.IsElsewhere = target.Object->thread() != QThread::currentThread();
  return target;
}

QString ReferredText(TValueHolder& holder, const TValueMember& member) {
  const TLifeWatch watch(&holder.AsObject());
  const TTarget target = ReadTarget(holder, member);
  if (!target.Object || !watch.IsAlive()) return {};
  if (target.IsGone) return SDestroyedReference.toString();
  if (target.IsElsewhere) return SReferenceElsewhere.toString();
  return ReferenceText(*target.Object, holder.Root(), *member.Type.metaObject());
}

QStringList ChoicesFor(const TValueHolder& holder, const TValueMember& member) {
  QStringList texts = {SNoReference.toString()};
  QObject* root = holder.Root();
  if (!root) return texts;
  for (const TReferenceChoice& choice : ReferenceChoices(*root, *member.Type.metaObject())) texts += choice.Text;
  return texts;
}

/// Raises EPropertyConvertError for a text that is nobody's.
QObject* ObjectOfText(const TValueHolder& holder, const TValueMember& member, const QString& text) {
  const QString wanted = text.trimmed();
  if (wanted.isEmpty() || wanted == SNoReference) return nullptr;
  QObject* root = holder.Root();
  if (root) {
    for (const TReferenceChoice& choice : ReferenceChoices(*root, *member.Type.metaObject())) {
      if (choice.Text == wanted) return choice.Object;
    }
  }
  const QString type = QString::fromUtf8(member.Type.metaObject()->className());
  throw EPropertyConvertError(Format(SInvalidTextOfType, {text, type}));
}

void WriteReferredText(TValueHolder& holder, const TValueMember& member, const QString& text) {
  const TLifeWatch watch(&holder.AsObject());
  // An object of another tree has no text that it could be found by.
  if (ReferredText(holder, member) == text || !watch.IsAlive()) return;
  QObject* object = ObjectOfText(holder, member, text);
  holder.References().Forget(member);
  ChangeMember(holder.AsObject(), member, [&](const QVariant&) { return QVariant(member.Type, &object); });
}

}  // namespace

bool IsReference(QMetaType type) { return type.flags().testFlag(QMetaType::PointerToQObject) && type.metaObject(); }

const TTypeInfo* ReferenceTypeInfo(QMetaType type) { return QObjectClassOf(type.metaObject())->TypeInfo(); }

TObject* ReferredComponent(TValueHolder& holder, const TValueMember& member) {
  const TTarget target = ReadTarget(holder, member);
  return target.IsUsable() ? ComponentOf(target.Object) : nullptr;
}

QVariant ValueOfComponent(QMetaType type, TObject* component) {
  QObject* object = ObjectOf(dynamic_cast<TComponent*>(component));
  const bool isOther = component && (!object || !object->metaObject()->inherits(type.metaObject()));
  if (isOther) throw EInvalidCast(SInvalidCast.toString());
  return QVariant(type, &object);
}

TMemberTexts ReferenceTexts(const TMemberPtr& member) {
  return {.ToText = [member](TValueHolder& holder) { return ReferredText(holder, *member); },
          .FromText =
              [member](TValueHolder& holder, const QString& text) {
                WriteReferredText(holder, *member, text);
                return true;
              },
          .Choices = [member](TValueHolder& holder) { return ChoicesFor(holder, *member); }};
}

}  // namespace kt
