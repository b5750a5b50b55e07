#include "designer/surface/Bounds.h"

#include "designer/surface/Grid.h"
#include "designer/surface/StandIns.h"
#include "kt/vcl/controls/Control.h"

namespace designer {

using namespace kt;

std::optional<QRect> BoundsOf(TComponent& component) {
  if (const auto* control = dynamic_cast<TControl*>(&component)) return control->GetBoundsRect();
  std::optional<QRect> bounds = StandInBounds(component);
  if (bounds && bounds->size().isEmpty()) bounds->setSize(QSize(kIconSize, kIconSize));
  return bounds;
}

void SetBoundsOf(TComponent& component, const QRect& bounds) {
  if (auto* control = dynamic_cast<TControl*>(&component)) {
    return control->SetBounds(bounds.x(), bounds.y(), bounds.width(), bounds.height());
  }
  const std::optional<QRect> before = BoundsOf(component);
  Q_ASSERT(before);
  SetStandInPlace(component, bounds.topLeft());
  // One without a size in the file is as large as an icon.
  if (bounds.size() != before->size()) SetStandInSize(component, bounds.size());
}

}  // namespace designer
