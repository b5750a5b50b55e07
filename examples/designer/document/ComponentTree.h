#pragma once

#include <QString>

#include <vector>

namespace kt {
class TComponent;
}

namespace designer {

/// The component that a tree shows around `component` on the form `root`: the parent of a control or menu item, the
/// stand-in that it stood below, else the form. Null for the form itself.
kt::TComponent* ParentIn(kt::TComponent* root, kt::TComponent* component);

/// Puts a component below another one, as a reader would.
void SetParentComponent(kt::TComponent* component, kt::TComponent* parent);

/// As the form's file has it, also for classes that are not registered.
QString ClassNameOf(const kt::TComponent& component);

/// `component` and all below it, each before what is in it, in the order of the file.
std::vector<kt::TComponent*> WithDescendants(kt::TComponent* root, kt::TComponent* component);

/// Those of `components` that are not below another one of them, once each and in the order of the file; the form
/// itself is left out.
std::vector<kt::TComponent*> Outermost(kt::TComponent* root, const std::vector<kt::TComponent*>& components);

// Stand-ins know their places among their siblings as numbers.

/// To be called before `component` goes: those behind it move up.
void CloseGap(kt::TComponent* root, kt::TComponent* component);
/// Puts a stand-in, if it is one, behind all its siblings.
void MoveToEnd(kt::TComponent* root, kt::TComponent* component);

/// Whether the form owns the component, directly or through others.
bool IsOn(const kt::TComponent* root, const kt::TComponent* component);

}  // namespace designer
