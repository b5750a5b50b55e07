#include "kt/qobjects/ValueShapes.h"

#include "kt/qobjects/PropertyKinds.h"

#include <QLine>
#include <QLineF>
#include <QMargins>
#include <QMarginsF>
#include <QMetaProperty>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <QSizePolicy>

#include <map>

namespace kt {

namespace {

template <class T>
std::vector<TValueMember> SizeMembers() {
  return TShapeBuilder<T>().Member("width", &T::width, &T::setWidth).Member("height", &T::height, &T::setHeight).Done();
}

template <class T>
std::vector<TValueMember> PointMembers() {
  return TShapeBuilder<T>().Member("x", &T::x, &T::setX).Member("y", &T::y, &T::setY).Done();
}

/// A place moves the rectangle, and does not change its size.
template <class T>
std::vector<TValueMember> RectMembers() {
  return TShapeBuilder<T>()
      .Member("x", &T::x, &T::moveLeft)
      .Member("y", &T::y, &T::moveTop)
      .Member("width", &T::width, &T::setWidth)
      .Member("height", &T::height, &T::setHeight)
      .Done();
}

template <class T>
std::vector<TValueMember> MarginsMembers() {
  return TShapeBuilder<T>()
      .Member("left", &T::left, &T::setLeft)
      .Member("top", &T::top, &T::setTop)
      .Member("right", &T::right, &T::setRight)
      .Member("bottom", &T::bottom, &T::setBottom)
      .Done();
}

template <class T>
std::vector<TValueMember> LineMembers() {
  return TShapeBuilder<T>().Member("from", &T::p1, &T::setP1).Member("to", &T::p2, &T::setP2).Done();
}

/// The height for a width, and the other way round, have no names of their own in forms; they stay.
std::vector<TValueMember> SizePolicyMembers() {
  using T = QSizePolicy;
  // No pointers to its functions: the compiler takes them for virtual ones of something larger, and warns.
  return TShapeBuilder<T>()
      .Member(
          "horizontalPolicy", [](const T& policy) { return policy.horizontalPolicy(); },
          [](T& policy, T::Policy value) { policy.setHorizontalPolicy(value); })
      .Member(
          "verticalPolicy", [](const T& policy) { return policy.verticalPolicy(); },
          [](T& policy, T::Policy value) { policy.setVerticalPolicy(value); })
      .Member(
          "horizontalStretch", [](const T& policy) { return policy.horizontalStretch(); },
          [](T& policy, int value) { policy.setHorizontalStretch(value); })
      .Member(
          "verticalStretch", [](const T& policy) { return policy.verticalStretch(); },
          [](T& policy, int value) { policy.setVerticalStretch(value); })
      .Member(
          "retainSizeWhenHidden", [](const T& policy) { return policy.retainSizeWhenHidden(); },
          [](T& policy, bool value) { policy.setRetainSizeWhenHidden(value); })
      .Done();
}

using TMembers = std::vector<TValueMember> (*)();

const std::map<int, TMembers>& KnownShapes() {
  static const std::map<int, TMembers> shapes = {
      {QMetaType::QSize, &SizeMembers<QSize>},
      {QMetaType::QSizeF, &SizeMembers<QSizeF>},
      {QMetaType::QPoint, &PointMembers<QPoint>},
      {QMetaType::QPointF, &PointMembers<QPointF>},
      {QMetaType::QRect, &RectMembers<QRect>},
      {QMetaType::QRectF, &RectMembers<QRectF>},
      {QMetaType::QLine, &LineMembers<QLine>},
      {QMetaType::QLineF, &LineMembers<QLineF>},
      {QMetaType::fromType<QMargins>().id(), &MarginsMembers<QMargins>},
      {QMetaType::fromType<QMarginsF>().id(), &MarginsMembers<QMarginsF>},
      {QMetaType::QSizePolicy, &SizePolicyMembers},
      {QMetaType::QFont, &FontMembers},
  };
  return shapes;
}

// Gadgets.

bool IsGadget(QMetaType type) {
  return type.flags().testFlag(QMetaType::IsGadget) && type.metaObject() && type.metaObject()->propertyCount() > 0;
}

TValueMember GadgetMember(const QMetaProperty& property) {
  TValueMember member;
  member.Name = QString::fromUtf8(property.name());
  member.Type = property.metaType();
  if (property.isEnumType()) member.Enumeration = property.enumerator();
  member.IsStored = property.isStored();
  member.Pick = [property](const QVariant& whole) { return property.readOnGadget(whole.constData()); };
  member.Read = [pick = member.Pick](TValueHolder& holder) { return pick(WholeOf(holder)); };
  if (!property.isWritable() || property.isConstant()) return member;
  if (property.isResettable()) {
    member.Reset = [property](TValueHolder& holder) {
      ChangeWhole(holder, [&](QVariant& whole) { property.resetOnGadget(whole.data()); });
      return true;
    };
  }
  member.Write = [property](TValueHolder& holder, const QVariant& value) {
    ChangeWhole(holder, [&](QVariant& whole) { property.writeOnGadget(whole.data(), value); });
  };
  return member;
}

std::vector<TValueMember> GadgetMembers(const QMetaObject& meta) {
  std::vector<TValueMember> members;
  for (int i = 0; i < meta.propertyCount(); ++i) {
    const QMetaProperty property = meta.property(i);
    const bool isListed = property.isReadable() && property.isDesignable();
    if (isListed && meta.indexOfProperty(property.name()) == i) members.push_back(GadgetMember(property));
  }
  return members;
}

std::vector<TValueMember> MembersOf(QMetaType type) {
  const auto known = KnownShapes().find(type.id());
  return known != KnownShapes().end() ? known->second() : GadgetMembers(*type.metaObject());
}

std::unique_ptr<const TClassInfo> MakeShape(QMetaType type, const TClassInfo* parent, bool isWritable) {
  TClassInfo::TDefinition definition{.Name = QString::fromUtf8(type.name()), .Parent = parent};
  for (TValueMember& member : MembersOf(type)) {
    if (!isWritable) member.Write = nullptr;
    if (!isWritable) member.Reset = nullptr;
    definition.Properties.push_back(DefineProperty(std::make_shared<const TValueMember>(std::move(member))));
  }
  return std::make_unique<const TClassInfo>(std::move(definition));
}

}  // namespace

bool HasShape(QMetaType type) { return type.isValid() && (KnownShapes().contains(type.id()) || IsGadget(type)); }

const TClassInfo* ShapeOf(QMetaType type) {
  static std::map<int, std::unique_ptr<const TClassInfo>> known;
  auto& info = known[type.id()];
  if (!info) info = MakeShape(type, TPersistent::Class(), false);
  return info.get();
}

const TClassInfo* WritableShapeOf(QMetaType type) {
  static std::map<int, std::unique_ptr<const TClassInfo>> known;
  auto& info = known[type.id()];
  if (!info) info = MakeShape(type, ShapeOf(type), true);
  return info.get();
}

}  // namespace kt
