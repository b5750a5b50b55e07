#include "kt/KTObjectInspector/PropViews.h"

#include "kt/KTObjectInspector/Messages.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Object.h"
#include "kt/rtl/typeinfo/PropInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <exception>
#include <typeinfo>

namespace kt {

namespace {

/// What `read` answers; where the object knows its properties itself and it raises, nothing.
template <class F>
auto ReadOrNothing(TObject* object, F read) -> decltype(read()) {
  const TLifeWatch watch(object);
  try {
    return read();
  } catch (...) {
    if (!watch.IsAlive() || !PropViewOf(object)) throw;
    // The row says what was raised: its text is read just so.
    return {};
  }
}

QString Described(const QString& error) { return Format(SUnreadableValue, {error}); }

}  // namespace

/// Asked several times for each property of a scan, most often about an object of the class of the one before.
IPropView* PropViewOf(TObject* object) {
  thread_local const std::type_info* classWithout = nullptr;
  if (!object) return nullptr;
  const std::type_info& type = typeid(*object);
  if (&type == classWithout) return nullptr;
  auto* view = dynamic_cast<IPropView*>(object);
  if (!view) classWithout = &type;
  return view;
}

QString CurrentErrorText() {
  try {
    throw;
  } catch (const Exception& error) {
    return Described(error.Message());
  } catch (const std::exception& error) {
    return Described(QString::fromLocal8Bit(error.what()));
  } catch (...) {
    return Described(SUnknownError.toString());
  }
}

QString ViewedText(TObject* object, const TPropInfo& property, const std::function<QString()>& reflect) {
  IPropView* view = PropViewOf(object);
  if (!view) return reflect();
  const TLifeWatch watch(object);
  try {
    const std::optional<QString> text = view->PropText(property);
    if (text) return *text;
    return watch.IsAlive() ? reflect() : QString();
  } catch (...) {
    return CurrentErrorText();
  }
}

Variant RawPropValue(TObject* object, const TPropInfo& property) {
  return ReadOrNothing(object, [&] { return GetPropValue(object, &property, false); });
}

qint64 RawPropOrdinal(TObject* object, const TPropInfo& property) {
  return ReadOrNothing(object, [&] { return GetOrdProp(object, &property); });
}

TObject* ViewedObject(TObject* object, const TPropInfo& property) {
  return ReadOrNothing(object, [&] { return GetObjectProp(object, &property); });
}

}  // namespace kt
