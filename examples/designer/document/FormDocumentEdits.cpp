// What changes the live form.
#include "designer/document/ClipboardText.h"
#include "designer/document/ComponentTree.h"
#include "designer/document/FormDocument.h"
#include "designer/document/Parts.h"
#include "kt/rtl/streams/TextLexer.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/menus/MenuItem.h"

#include <QUndoStack>

#include <algorithm>

namespace designer {
namespace {

qint32 DesignInfoOf(const QPoint& place) {
  const auto word = [](int number) { return quint32(std::clamp(number, -0x8000, 0x7FFF)) & 0xFFFF; };
  return qint32(word(place.y()) << 16 | word(place.x()));
}

/// As the framework's designer does: a new control shows its name where it has a text of its own.
void ShowName(kt::TControl& control) {
  if (!control.GetControlStyle().Has(kt::csSetCaption)) return;
  for (const char* name : {"Caption", "Text"}) {
    const kt::TPropInfo* property = control.ClassType()->FindProp(QString::fromLatin1(name));
    if (property && property->IsWritable()) kt::SetStrProp(&control, property, control.GetName());
  }
}

void PlaceControl(kt::TControl& control, kt::TWinControl* parent, const QRect& place) {
  control.SetParent(parent);
  const int width = place.width() > 0 ? place.width() : control.GetWidth();
  const int height = place.height() > 0 ? place.height() : control.GetHeight();
  control.SetBounds(place.left(), place.top(), width, height);
}

}  // namespace

void TFormDocument::RequireOnForm(const kt::TComponent* component) const {
  if (component && component != FForm.get() && IsOn(FForm.get(), component)) return;
  throw EDocumentError(component == FForm.get()
                           ? QStringLiteral("The form itself (%1) cannot be deleted").arg(FForm->GetName())
                           : QStringLiteral("The component is not on %1").arg(FForm->GetName()));
}

kt::TComponent* TFormDocument::Find(QStringView name) const {
  if (name.compare(FForm->GetName(), Qt::CaseInsensitive) == 0) return FForm.get();
  return FForm->FindComponent(name);
}

kt::TComponent* TFormDocument::ParentOf(kt::TComponent* component) const { return ParentIn(FForm.get(), component); }

std::vector<kt::TComponent*> TFormDocument::ChildrenOf(kt::TComponent* component) const {
  return kt::TWriter::ChildrenOf(component, FForm.get());
}

QString TFormDocument::NewName(QStringView className) const { return NewNameBeside(className.toString(), {}); }

QString TFormDocument::NewNameBeside(const QString& className, const QStringList& others) const {
  QString base = className.startsWith(u'T', Qt::CaseInsensitive) ? className.mid(1) : className;
  if (!kt::IsFormIdentifier(base) || base.contains(u'.')) base = QStringLiteral("Component");
  for (int number = 1;; ++number) {
    QString name = base + QString::number(number);
    if (!Find(name) && !others.contains(name, Qt::CaseInsensitive)) return name;
  }
}

/// The component, or the next one around it, that takes controls.
kt::TComponent* TFormDocument::TakesControls(kt::TComponent* component) const {
  for (; component && component != FForm.get(); component = ParentOf(component)) {
    // On its pages, of which one shows.
    auto* pages = dynamic_cast<kt::TPageControl*>(component);
    if (pages && pages->GetActivePage()) return pages->GetActivePage();
    auto* control = dynamic_cast<kt::TWinControl*>(component);
    if (control && control->GetControlStyle().Has(kt::csAcceptsControls)) return control;
  }
  return FForm.get();
}

kt::TComponent* TFormDocument::Add(const kt::TClassInfo* classInfo, kt::TComponent* parent, const QRect& place) {
  if (!classInfo || !classInfo->InheritsFrom(kt::TComponent::Class()) || !classInfo->IsCreatable())
    throw EDocumentError(
        QStringLiteral("A %1 cannot be put on a form").arg(classInfo ? classInfo->ClassName() : QString()));
  if (!parent) parent = FForm.get();
  const THolders holders(FForm.get(), parent, nullptr);
  auto* component = static_cast<kt::TComponent*>(classInfo->CreateInstance(FForm.get()));
  try {
    component->SetName(NewName(classInfo->ClassName()));
    PlaceNew(*component, holders, parent, place);
    return component;
  } catch (...) {
    delete component;
    throw;
  }
}

void TFormDocument::PlaceNew(kt::TComponent& component, const THolders& holders, kt::TComponent* parent,
                             const QRect& place) {
  auto* control = dynamic_cast<kt::TControl*>(&component);
  if (IsPart(component.ClassType())) {
    SetParentComponent(&component, holders.For(component.ClassType()));
    if (auto* item = dynamic_cast<kt::TMenuItem*>(&component)) item->SetCaption(item->GetName());
  } else if (control) {
    PlaceControl(*control, static_cast<kt::TWinControl*>(TakesControls(parent)), place);
  } else {
    component.SetDesignInfo(DesignInfoOf(place.topLeft()));
    if (parent != FForm.get()) SetParentComponent(&component, parent);
  }
  if (control) ShowName(*control);
}

void TFormDocument::Delete(const std::vector<kt::TComponent*>& components) {
  for (const kt::TComponent* component : components) RequireOnForm(component);
  for (kt::TComponent* component : Outermost(FForm.get(), components)) {
    CloseGap(FForm.get(), component);
    // From the leaves: not every parent takes its children along.
    const std::vector<kt::TComponent*> all = WithDescendants(FForm.get(), component);
    std::for_each(all.rbegin(), all.rend(), [](kt::TComponent* one) { delete one; });
  }
}

QString TFormDocument::CopyText(const std::vector<kt::TComponent*>& components) const {
  return TextOfComponents(FForm.get(), Outermost(FForm.get(), components));
}

std::vector<kt::TComponent*> TFormDocument::Paste(const QString& text, kt::TComponent* parent, kt::TComponent* origin) {
  const THolders holders(FForm.get(), parent, origin);
  kt::TComponent* target = TakesControls(parent);
  std::vector<kt::TComponent*> pasted = PasteComponents(
      FForm.get(), target, text,
      [this](const QString& className, const QStringList& others) { return NewNameBeside(className, others); });
  try {
    for (kt::TComponent* component : pasted) {
      if (kt::TComponent* holder = holders.For(component->ClassType())) SetParentComponent(component, holder);
    }
  } catch (...) {
    Delete(pasted);
    throw;
  }
  return pasted;
}

}  // namespace designer
