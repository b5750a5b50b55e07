#pragma once

#include "kt/vcl/forms/Form.h"

#include <QPoint>
#include <QRect>
#include <QRegion>

#include <vector>

class QWidget;

namespace kt {
class TMenuItem;
}

namespace designer {

/// Where the components of a live form are on the surface that lies over it, and what is at a place there. Lives on the
/// stack.
///
/// A component without a place of its own on the form, such as a menu or a timer, shows as an icon with its name; one
/// of an unknown class as a box where its file has it. The items of the form's menu show as entries of its bar.
class TPlaces {
 public:
  TPlaces(kt::TCustomForm& form, const QWidget& surface) : FForm(form), FSurface(surface) {}

  /// The client area of the form, or of another control.
  QRect ClientOf(kt::TWinControl& control) const;
  QRect RectOf(kt::TComponent& component) const;
  /// Whether the component can be seen and clicked: not what is on a page that does not show, nor what has no place
  /// even as an icon, as an item further down in a menu.
  bool IsShown(kt::TComponent& component) const;
  /// Whether it shows as an icon.
  static bool IsIcon(kt::TComponent& component);
  /// The components with an icon, the lowest first.
  std::vector<kt::TComponent*> Icons() const;
  /// Those of unknown classes that show as boxes, what is around others before these.
  std::vector<kt::TComponent*> StandIns() const;

  /// What is at a place: the form itself where there is nothing else on it; null beside it.
  kt::TComponent* ComponentAt(QPoint point) const;
  /// The window at a place, whoever owns it; null beside the form.
  kt::TWinControl* WindowAt(QPoint point) const;
  /// What a component that is dropped there would stand on.
  kt::TWinControl* ContainerAt(QPoint point) const;
  /// The nearest control, upwards from a component, that others can stand on.
  kt::TWinControl* ContainerOf(kt::TComponent* component) const;
  /// The controls that stand on a container, and, for the form, the icons.
  std::vector<kt::TComponent*> On(kt::TWinControl& container) const;

  /// All that shows of the form and on it that others can stand on.
  std::vector<kt::TWinControl*> Containers() const;
  /// The part of a container that nothing stands on.
  QRegion Ground(kt::TWinControl& container) const;

 private:
  kt::TControl* ControlAt(kt::TWinControl& parent, QPoint point) const;
  kt::TComponent* Selectable(kt::TControl* control) const;
  /// Where a widget's corner is.
  QPoint InSurface(const QWidget& widget) const;
  QRect MenuItemRect(const kt::TMenuItem& item) const;
  QPoint IconPlace(kt::TComponent& component) const;
  QRect StandInRect(kt::TComponent& component) const;

  kt::TCustomForm& FForm;
  const QWidget& FSurface;
};

/// Whether somebody can move it: not the form, nor a page, nor what keeps to a side.
bool IsMovable(kt::TComponent& component);
/// The place of an icon as it is kept, and the place to keep.
QPoint DesignPlace(const kt::TComponent& component);
void SetDesignPlace(kt::TComponent& component, QPoint place);

}  // namespace designer
