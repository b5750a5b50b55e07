#include "support/Samples.h"

#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt::tests {

const TTypeInfo* SampleColorTypeInfo() {
  static const TOrdTypeInfo info(tkInteger, QStringLiteral("TSampleColor"), otSLong, -0x7FFFFFFF - 1, 0x7FFFFFFF);
  return &info;
}

const TClassInfo* TSamplePart::Class() {
  static const TClassInfo info = TClassBuilder<TSamplePart>("TSamplePart")
                                     .Property<&TSamplePart::GetSize, &TSamplePart::SetSize>("Size")
                                     .Default(8)
                                     .Property<&TSamplePart::GetTitle, &TSamplePart::SetTitle>("Title")
                                     .Property<&TSamplePart::GetStyle, &TSamplePart::SetStyle>("Style")
                                     .Default(TSampleStyles())
                                     .Creatable()
                                     .Done();
  return &info;
}

void TSamplePart::Assign(TPersistent* source) {
  auto* other = dynamic_cast<TSamplePart*>(source);
  if (!other) return TPersistent::Assign(source);
  FSize = other->FSize;
  FTitle = other->FTitle;
  FStyle = other->FStyle;
}

const TClassInfo* TSampleItem::Class() {
  static const TClassInfo info = TClassBuilder<TSampleItem>("TSampleItem")
                                     .Property<&TSampleItem::GetCaption, &TSampleItem::SetCaption>("Caption")
                                     .Property<&TSampleItem::GetChildren, &TSampleItem::SetChildren>("Children")
                                     .Creatable()
                                     .Done();
  return &info;
}

void TSampleItem::Construct() {
  FChildren = Make<TSampleItems>(this);
  TCollectionItem::Construct();
}

void TSampleItem::Assign(TPersistent* source) {
  auto* other = dynamic_cast<TSampleItem*>(source);
  if (!other) return TCollectionItem::Assign(source);
  SetCaption(other->FCaption);
  SetChildren(other->FChildren.get());
}

const TClassInfo* TSampleItems::Class() {
  static const TClassInfo info = TClassBuilder<TSampleItems>("TSampleItems").Done();
  return &info;
}

TSampleItem* TSampleItems::AddItem(const QString& caption) {
  auto* item = static_cast<TSampleItem*>(Add());
  item->SetCaption(caption);
  return item;
}

const TClassInfo* TSample::Class() {
  static const TClassInfo info = TClassBuilder<TSample>("TSample")
                                     .Property<&TSample::Whole>("Whole")
                                     .Default(0)
                                     .Property<&TSample::Small>("Small")
                                     .Property<&TSample::Color>("Color", &SampleColorTypeInfo)
                                     .Property<&TSample::Letter>("Letter")
                                     .Default('A')
                                     .Property<&TSample::WideLetter>("WideLetter")
                                     .Default(QChar(u'A'))
                                     .Property<&TSample::Flag>("Flag")
                                     .Default(false)
                                     .Property<&TSample::Wide>("Wide")
                                     .Default(WordBool(false))
                                     .Property<&TSample::Align>("Align")
                                     .Default(saNone)
                                     .Property<&TSample::Styles>("Styles")
                                     .Default(TSampleStyles())
                                     .Property<&TSample::Ratio>("Ratio")
                                     .Property<&TSample::Narrow>("Narrow")
                                     .Property<&TSample::Price>("Price")
                                     .Property<&TSample::Moment>("Moment", &TypeInfos::DateTime)
                                     .Property<&TSample::Text>("Text")
                                     .Stored(&TSample::TextIsStored)
                                     .Property<&TSample::ShortText>("ShortText", &TypeInfos::ShortText)
                                     .Property<&TSample::WideText>("WideText", &TypeInfos::WideText)
                                     .Property<&TSample::Anything>("Anything")
                                     .Property<&TSample::Big>("Big")
                                     .Property<&TSample::Huge>("Huge")
                                     .Property<&TSample::Partner>("Partner")
                                     .Property<&TSample::Sibling>("Sibling")
                                     .Property<&TSample::Reference>("Reference")
                                     .Property<&TSample::GetPart, &TSample::SetPart>("Part")
                                     .Property<&TSample::GetItems, &TSample::SetItems>("Items")
                                     .Property<&TSample::GetDouble>("Double")
                                     .Property<&TSample::OnAction>("OnAction")
                                     .Method("HandleAction", &TSample::HandleAction)
                                     .Creatable()
                                     .Done();
  return &info;
}

void TSample::Construct() {
  FPart = Make<TSamplePart>();
  FItems = Make<TSampleItems>(this);
  TComponent::Construct();
}

void TSample::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == opRemove && component == Partner) Partner = nullptr;
  if (operation == opRemove && component == Sibling) Sibling = nullptr;
}

void TSample::GetChildren(const TGetChildProc& proc, TComponent* root) {
  if (root != this) return;
  for (int i = 0; i < GetComponentCount(); ++i) proc(GetComponents(i));
}

}  // namespace kt::tests
