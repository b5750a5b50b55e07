#include "KTObjectInspector/LivelySample.h"

#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt::tests {

namespace {

/// A value that was read before anything could happen.
template <class V>
V Told(const char* name, V value) {
  TLively::Call(name);
  return value;
}

/// An object, or null when it did not survive the call.
template <class T>
T* ToldObject(const char* name, T* object) {
  const TObjectRef watched(object);
  TLively::Call(name);
  return static_cast<T*>(watched.Get());
}

/// Writes a field, and only then lets anything happen.
template <class V>
void Write(const char* name, V& field, V value) {
  field = value;
  TLively::Call(name);
}

}  // namespace

const TClassInfo* TLivelyPart::Class() {
  static const TClassInfo info = TClassBuilder<TLivelyPart>("TLivelyPart")
                                     .Property<&TLivelyPart::GetSize, &TLivelyPart::SetSize>("Size")
                                     .Default(0)
                                     .Creatable()
                                     .Done();
  return &info;
}

int TLivelyPart::GetSize() const { return Told("GetSize", FSize); }
void TLivelyPart::SetSize(int value) { Write("SetSize", FSize, value); }

const TClassInfo* TLivelyItem::Class() {
  static const TClassInfo info = TClassBuilder<TLivelyItem>("TLivelyItem")
                                     .Property<&TLivelyItem::GetCaption, &TLivelyItem::SetCaption>("Caption")
                                     .Creatable()
                                     .Done();
  return &info;
}

QString TLivelyItem::GetCaption() const { return Told("GetCaption", FCaption); }
void TLivelyItem::SetCaption(const QString& value) { Write("SetCaption", FCaption, QString(value)); }
QString TLivelyItem::GetDisplayName() { return Told("GetDisplayName", QStringLiteral("element")); }

const TClassInfo* TLivelyItems::Class() {
  static const TClassInfo info = TClassBuilder<TLivelyItems>("TLivelyItems").Done();
  return &info;
}

const TClassInfo* TLivelyPartner::Class() {
  static const TClassInfo info = TClassBuilder<TLivelyPartner>("TLivelyPartner")
                                     .Property<&TLivelyPartner::GetWhole, &TLivelyPartner::SetWhole>("Whole")
                                     .Default(0)
                                     .Creatable()
                                     .Done();
  return &info;
}

int TLivelyPartner::GetWhole() const { return Told("Partner.GetWhole", FWhole); }
void TLivelyPartner::SetWhole(int value) { Write("Partner.SetWhole", FWhole, value); }

const TClassInfo* TLivelySample::Class() {
  using T = TLivelySample;
  static const TClassInfo info = TClassBuilder<T>("TLivelySample")
                                     .Property<&T::GetAlign, &T::SetAlign>("Align")
                                     .Default(saNone)
                                     .Property<&T::GetItems>("Items")
                                     .Property<&T::GetLines>("Lines")
                                     .Property<&T::GetPart>("Part")
                                     .Property<&T::GetPartner, &T::SetPartner>("Partner")
                                     .Property<&T::GetReference>("Reference")
                                     .Property<&T::GetStyles, &T::SetStyles>("Styles")
                                     .Default(TSampleStyles())
                                     .Property<&T::GetWhole, &T::SetWhole>("Whole")
                                     .Default(0)
                                     .Stored(&T::IsWholeStored)
                                     .Creatable()
                                     .Done();
  return &info;
}

void TLivelySample::Construct() {
  FPart = Make<TLivelyPart>();
  FItems = Make<TLivelyItems>();
  FLines = Make<TStringList>();
  FItems->Add();
  FItems->Add();
  FLines->Add(QStringLiteral("line"));
  TComponent::Construct();
}

TSampleAlign TLivelySample::GetAlign() const { return Told("GetAlign", FAlign); }
void TLivelySample::SetAlign(TSampleAlign value) { Write("SetAlign", FAlign, value); }
TCollection* TLivelySample::GetItems() const { return ToldObject<TCollection>("GetItems", FItems.get()); }
TStrings* TLivelySample::GetLines() const { return ToldObject<TStrings>("GetLines", FLines.get()); }
TLivelyPart* TLivelySample::GetPart() const { return ToldObject("GetPart", FPart.get()); }

TComponent* TLivelySample::GetPartner() const {
  return ToldObject("GetPartner", static_cast<TComponent*>(FPartner.Get()));
}

IInterfaceComponentReference* TLivelySample::GetReference() const {
  return ToldObject("GetReference", static_cast<TComponent*>(FReferred.Get()));
}

TSampleStyles TLivelySample::GetStyles() const { return Told("GetStyles", FStyles); }
void TLivelySample::SetStyles(TSampleStyles value) { Write("SetStyles", FStyles, value); }
int TLivelySample::GetWhole() const { return Told("GetWhole", FWhole); }
void TLivelySample::SetWhole(int value) { Write("SetWhole", FWhole, value); }
bool TLivelySample::IsWholeStored() const { return Told("IsWholeStored", true); }

}  // namespace kt::tests
