// Every class of Qt's that can be created, with all its properties.
#include "kt/rtl/objects/Exceptions.h"
#include "qobjects/QObjectFixture.h"

#include <QMetaProperty>

namespace kt::tests {
namespace {

class WidgetWalkTest : public TQObjectTest, public testing::WithParamInterface<const QMetaObject*> {
 protected:
  static QVariantList ValuesOf(const QObject& object) {
    QVariantList values;
    const QMetaObject& meta = *object.metaObject();
    for (int i = 0; i < meta.propertyCount(); ++i) values.append(QVariant(meta.property(i).read(&object)));
    return values;
  }
  /// The properties that have other values; types that cannot tell do not count.
  static QString Changes(const QObject& object, const QVariantList& before) {
    QStringList names;
    const QMetaObject& meta = *object.metaObject();
    for (int i = 0; i < meta.propertyCount(); ++i) {
      const QVariant value = meta.property(i).read(&object);
      const bool tells = value.metaType().isEqualityComparable();
      if (value.metaType() != before[i].metaType() || (tells && value != before[i])) names += meta.property(i).name();
    }
    return names.join(u' ');
  }
  /// Writes what each item shows, members before the whole.
  void WriteBack(TKTItemProperties& items) {
    for (int i = 0; i < items.GetCount(); ++i) {
      TKTItemProperty& item = *items.GetItem(i);
      // A set is written as a whole.
      const bool isSet = item.GetPropertyKind() == pkSet;
      if (!isSet && item.HasItems()) WriteBack(item.GetItems());
      const bool isReadOnly = isSet ? !item.HasItems() || item.GetItems().GetItem(0)->IsReadOnly() : item.IsReadOnly();
      if (isReadOnly) continue;
      ++FWritten;
      SCOPED_TRACE(item.GetFullPathName().toStdString());
      try {
        item.UpdateProperty();
      } catch (const Exception& error) {
        ADD_FAILURE() << error.Message().toStdString();
      }
    }
  }
  /// The properties for designers that are not listed.
  QString Missing(const QObject& object) {
    QStringList names;
    const QMetaObject& meta = *object.metaObject();
    for (int i = 0; i < meta.propertyCount(); ++i) {
      const QMetaProperty property = meta.property(i);
      const QString name = QString::fromUtf8(property.name());
      if (property.isDesignable() && property.isReadable() && !Find(name)) names += name;
    }
    return names.join(u' ');
  }

  static QString Changed(TComponent& component) {
    QStringList names;
    for (const TPropInfo* property : GetPropList(component.ClassType(), tkProperties)) {
      const bool isComponents = property->Name() == "Tag" || property->Name() == "Name";
      if (!isComponents && IsStoredProp(&component, property)) names += property->Name();
    }
    return names.join(u' ');
  }

  int FWritten = 0;
};

TEST_P(WidgetWalkTest, EverythingIsListedAndWritingItBackChangesNothing) {
  const std::unique_ptr<QObject> object = MakeFreshQObject(*GetParam());
  ASSERT_NE(nullptr, object);
  FInspector->SetInplaceTStrings(true);
  if (object->objectName().isEmpty()) object->setObjectName("walked");
  // Reading itself has Qt lay out what it had put off.
  ValuesOf(*object);
  const QVariantList before = ValuesOf(*object);
  InspectQ({object.get()});
  EXPECT_EQ("", Missing(*object));
  WriteBack(Items());
  Deliver();
  EXPECT_EQ("", Changes(*object, before));
  EXPECT_LT(0, FWritten);
}

TEST_P(WidgetWalkTest, AFreshObjectHasNoChangedValue) {
  const std::unique_ptr<QObject> object = MakeFreshQObject(*GetParam());
  EXPECT_EQ("", Changed(*ComponentOf(object.get())));
}

QString NameOfClass(const QMetaObject* meta) { return QString::fromUtf8(meta->className()); }

INSTANTIATE_TEST_SUITE_P(OfQt, WidgetWalkTest, testing::ValuesIn(CreatableQtClasses()),
                         [](const auto& parameter) { return NameOfClass(parameter.param).toStdString(); });

}  // namespace
}  // namespace kt::tests
