// What the commands of the edit menu do.
#include "designer/document/Parts.h"
#include "designer/palette/PaletteList.h"
#include "designer/surface/Surface.h"
#include "designer/window/MainWindow.h"
#include "kt/vcl/menus/MenuItem.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

namespace designer {

using namespace kt;

namespace {

/// Those that can be copied and deleted: not the form.
std::vector<TComponent*> Parts(const TSession& session) {
  std::vector<TComponent*> parts = session.Selected();
  std::erase(parts, &session.Form());
  return parts;
}

/// Whether another control stands at the very place of this one.
bool Covers(const TControl& control) {
  const TWinControl* parent = control.GetParent();
  for (int i = 0; parent && i < parent->GetControlCount(); ++i) {
    const TControl* other = parent->GetControls(i);
    const bool isThere = other->GetLeft() == control.GetLeft() && other->GetTop() == control.GetTop();
    if (other != &control && isThere) return true;
  }
  return false;
}

/// So that a copy does not hide what it was copied from.
void StepAside(const std::vector<TComponent*>& pasted) {
  for (TComponent* component : pasted) {
    auto* control = dynamic_cast<TControl*>(component);
    while (control && IsMovable(*control) && Covers(*control)) {
      control->SetBounds(control->GetLeft() + kGridStep, control->GetTop() + kGridStep, control->GetWidth(),
                         control->GetHeight());
    }
  }
}

}  // namespace

/// Back or forth, with what is being typed as the last step.
void TMainWindow::Step(void (TSession::*step)()) {
  if (FinishEdits()) (FSession.*step)();
}

void TMainWindow::Copy() {
  const std::vector<TComponent*> parts = Parts(FSession);
  if (parts.empty()) return;
  QGuiApplication::clipboard()->setText(FSession.Document().CopyText(parts));
  FCopied.clear();
  for (const TComponent* part : parts) FCopied.append(part->GetName());
  FCopiedFrom = FSession.Document().ParentOf(parts.front())->GetName();
}

void TMainWindow::Remove(const QString& verb) {
  const std::vector<TComponent*> parts = Parts(FSession);
  if (parts.empty()) return;
  const QString text = StepText(verb, parts);
  TComponent* around = FSession.Document().ParentOf(parts.front());
  // What is around may be selected itself, and go too.
  while (std::find(parts.begin(), parts.end(), around) != parts.end()) around = FSession.Document().ParentOf(around);
  FSession.Document().Settle();
  FSession.Document().Delete(parts);
  FSession.Edited(text);
  FSession.Select(around);
}

void TMainWindow::Delete() { Remove(QStringLiteral("Delete")); }

void TMainWindow::Cut() {
  Copy();
  Remove(QStringLiteral("Cut"));
}

/// What is pasted comes on this one, or into it. Beside an item that is all there is, or that was copied itself.
TComponent* TMainWindow::PasteTarget() const {
  TComponent* main = FSession.Main();
  const auto* item = dynamic_cast<TMenuItem*>(main);
  // What was copied itself is no place for its copy.
  const bool isCopied = main != &FSession.Form() && FCopied.contains(main->GetName());
  const bool isBeside = isCopied || (item && item->GetCount() == 0);
  return isBeside ? FSession.Document().ParentOf(main) : main;
}

void TMainWindow::Paste() {
  const QString text = QGuiApplication::clipboard()->text();
  if (text.trimmed().isEmpty() || !FinishEdits()) return;
  const TFormDocument& document = FSession.Document();
  TComponent* before = FSession.Main();
  const std::vector<TComponent*> pasted =
      FSession.Document().Paste(text, PasteTarget(), FCopiedFrom.isEmpty() ? nullptr : document.Find(FCopiedFrom));
  if (pasted.empty()) return;
  StepAside(pasted);
  for (TComponent* component : pasted) {
    PutBehind(component, before);
    ShowPage(component);
    if (IsPart(component->ClassType())) before = component;
  }
  FSession.Edited(StepText(QStringLiteral("Paste"), pasted));
  FSession.Select(pasted);
}

void TMainWindow::SelectAll() {
  std::vector<TComponent*> all = FSession.Components();
  std::erase_if(all, [this](TComponent* component) {
    return component == &FSession.Form() || FSession.Document().ParentOf(component) != &FSession.Form();
  });
  if (!all.empty()) FSession.Select(all);
}

void TMainWindow::PlaceInMiddle(const TClassInfo* classInfo) {
  FSession.Document().Settle();
  TWinControl* container = Surface().Places().ContainerOf(FSession.Main());
  const QPoint middle = container->GetClientRect().center();
  TComponent* added = FSession.Document().Add(classInfo, container, {Snapped(middle), QSize(0, 0)});
  if (auto* control = dynamic_cast<TControl*>(added); control && IsMovable(*control)) {
    const QPoint place = Snapped(middle - QPoint(control->GetWidth(), control->GetHeight()) / 2);
    control->SetBounds(std::max(place.x(), 0), std::max(place.y(), 0), control->GetWidth(), control->GetHeight());
    StepAside({added});
  }
  Surface().SetTool(nullptr);
  FPalette->LayAside();
  FSession.Edited(StepText(QStringLiteral("Add"), {added}));
  FSession.Select(added);
}

}  // namespace designer
