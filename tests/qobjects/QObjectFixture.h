#pragma once

#include "KTObjectInspector/InspectorFixture.h"
#include "kt/QObjects.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "qobjects/SampleObjects.h"

#include <QVariant>

namespace kt::tests {

/// An inspector without a window, for objects of Qt's.
class TQObjectTest : public TInspectorTest {
 protected:
  void InspectQ(std::initializer_list<QObject*> objects) {
    for (QObject* object : objects) FInspector->GetObjects().Add(ComponentOf(object));
    Deliver();
  }
  /// Writes a text into an item, as if it was typed and accepted.
  void Put(const QString& path, const QString& text) {
    Item(path).SetValueLine(0, text);
    Item(path).UpdateProperty();
    Deliver();
  }
};

}  // namespace kt::tests
